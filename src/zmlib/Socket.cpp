#include "zmlib/Socket.h"

#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/core/Waiting.h"

namespace {

// The number of the interface that the scope of an address names, by its name or number; 0: none.
quint32 scopeOf(const QHostAddress &address) {
    const QByteArray scope = address.scopeId().toLocal8Bit();
    const quint32 named = scope.isEmpty() ? 0 : ::if_nametoindex(scope.constData());
    return named != 0 ? named : scope.toUInt();
}

}  // namespace

Socket::Socket(QAbstractSocket::NetworkLayerProtocol protocol, int type)
    : m_fd(::socket(protocol == QAbstractSocket::IPv6Protocol ? AF_INET6 : AF_INET,
                    type | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {}

Socket::~Socket() {
    if (m_fd >= 0) ::close(m_fd);
}

bool Socket::startConnecting(const QHostAddress &address, quint16 port) const {
    int result = -1;
    if (address.protocol() == QAbstractSocket::IPv6Protocol) {
        sockaddr_in6 name{};
        name.sin6_family = AF_INET6;
        name.sin6_port = htons(port);
        name.sin6_scope_id = scopeOf(address);
        const Q_IPV6ADDR bytes = address.toIPv6Address();
        std::copy(std::begin(bytes.c), std::end(bytes.c), std::begin(name.sin6_addr.s6_addr));
        result = ::connect(m_fd, reinterpret_cast<const sockaddr *>(&name), sizeof name);
    } else {
        sockaddr_in name{};
        name.sin_family = AF_INET;
        name.sin_port = htons(port);
        name.sin_addr.s_addr = htonl(address.toIPv4Address());
        result = ::connect(m_fd, reinterpret_cast<const sockaddr *>(&name), sizeof name);
    }
    return result == 0 || errno == EINPROGRESS;
}

int Socket::connectionError() const {
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(m_fd, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

bool Socket::waitFor(short events, const QDeadlineTimer &deadline) const {
    bool ready = false;
    const auto poll = [&](std::chrono::milliseconds slice) {
        pollfd entry{m_fd, events, 0};
        ready = ::poll(&entry, 1, static_cast<int>(slice.count())) > 0;
    };
    return waitUntil([&] { return ready; }, deadline, poll);
}
