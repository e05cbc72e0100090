#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <QHostAddress>
#include <QHostInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <future>
#include <memory>

#include "platform/core/MainThread.h"
#include "platform/core/Waiting.h"
#include "zmlib/Socket.h"
#include "zmlib/Transport.h"
#include "zmlib/ZMLib.h"

namespace {

class TcpTransport : public Transport {
  public:
    explicit TcpTransport(Socket socket) : m_socket(std::move(socket)) {
        // Frames are short and each waits for its answer.
        const int on = 1;
        ::setsockopt(m_socket.fd(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }

  private:
    Completion transmit(const QDeadlineTimer &deadline) override {
        while (!m_unsent.isEmpty()) {
            const ssize_t n = ::send(m_socket.fd(), m_unsent.constData(),
                                     static_cast<size_t>(m_unsent.size()), MSG_NOSIGNAL);
            if (n >= 0) {
                m_unsent.remove(0, n);
            } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
                if (!m_socket.waitFor(POLLOUT, deadline)) return Completion::TimedOut;
            } else if (errno != EINTR) {
                return Completion::Closed;
            }
        }
        return Completion::Done;
    }

    // Awake at first, and takes all that has come, so that one call serves a whole reply.
    Completion receive(const QDeadlineTimer &deadline) override {
        std::array<char, ZMLib::replyArea> buffer;
        const QDeadlineTimer awake =
            std::min(deadline, QDeadlineTimer(nearAnswer, Qt::PreciseTimer));
        for (;;) {
            const ssize_t n = ::recv(m_socket.fd(), buffer.data(), buffer.size(), 0);
            if (n > 0) {
                m_received.append(buffer.data(), n);
                return Completion::Done;
            }
            if (n == 0) return Completion::Closed;
            if (errno == EINTR) continue;
            if (errno != EAGAIN && errno != EWOULDBLOCK) return Completion::Closed;
            if (!awake.hasExpired()) continue;
            if (!m_socket.waitFor(POLLIN, deadline)) return Completion::TimedOut;
        }
    }

    Socket m_socket;
};

// The addresses of `host`. The look-up of a name may outlive the wait, but not the application.
QList<QHostAddress> addressesOf(const QString &host, const QDeadlineTimer &deadline) {
    if (const QHostAddress address(host); !address.isNull()) return {address};
    const auto promise = std::make_shared<std::promise<QList<QHostAddress>>>();
    auto found = promise->get_future();
    const auto lookUp = [host, promise] {
        promise->set_value(QHostInfo::fromName(host).addresses());
    };
    if (!MainThread::startBackgroundWork(lookUp)) return {};
    const auto ready = [&] {
        return found.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    const auto pause = [&](std::chrono::milliseconds slice) { found.wait_for(slice); };
    return waitUntil(ready, deadline, pause) ? found.get() : QList<QHostAddress>();
}

bool connectSocket(const Socket &socket, const Endpoint &endpoint, const QDeadlineTimer &deadline) {
    return socket.startConnecting(endpoint.address, endpoint.port) &&
           socket.waitFor(POLLOUT, deadline) && socket.connectionError() == 0;
}

}  // namespace

std::unique_ptr<Transport> openTcpTransport(const QList<Endpoint> &endpoints,
                                            const QDeadlineTimer &deadline, QHostAddress *reached) {
    for (qsizetype i = 0; i < endpoints.size(); ++i) {
        Socket socket(endpoints[i].address.protocol(), SOCK_STREAM);
        const QDeadlineTimer share(deadline.remainingTimeAsDuration() / (endpoints.size() - i));
        if (!connectSocket(socket, endpoints[i], share)) continue;
        if (reached) *reached = endpoints[i].address;
        return std::make_unique<TcpTransport>(std::move(socket));
    }
    return nullptr;
}

std::unique_ptr<Transport> openTcpTransport(const QString &host, quint16 port,
                                            const QDeadlineTimer &deadline) {
    QList<Endpoint> endpoints;
    for (const QHostAddress &address : addressesOf(host, deadline))
        endpoints.append({address, port});
    return openTcpTransport(endpoints, deadline);
}
