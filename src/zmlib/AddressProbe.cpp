#include "zmlib/AddressProbe.h"

#include <poll.h>
#include <sys/socket.h>

#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/core/Waiting.h"
#include "zmlib/Snmp.h"
#include "zmlib/Socket.h"

namespace {

constexpr std::size_t longestPacket = 1500;  // bytes

// IPv4 addresses of machines begin behind 0.x.x.x ("this network") and end before 224.0.0.0, where
// multicast addresses begin; behind those come reserved ones, and broadcast is the last of them.
constexpr quint32 firstOfMachines = 0x01000000;
constexpr quint32 firstMulticast = 0xE0000000;

// One way to ask. It is over when it can bring no answer any more.
struct Way {
    Socket socket;
    bool isOver = false;
};

// Whether an error on the way of a datagram only says that there is nothing yet.
bool isNothingYet() {
    return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

class Probe {
  public:
    Probe(const QHostAddress &address, ProbePorts ports)
        : m_snmp{{address.protocol(), SOCK_DGRAM}}, m_data{{address.protocol(), SOCK_STREAM}} {
        m_snmp.isOver = !m_snmp.socket.startConnecting(address, ports.snmp);
        m_data.isOver = !m_data.socket.startConnecting(address, ports.data);
    }

    bool isDecided() const { return m_answered || (m_snmp.isOver && m_data.isOver); }
    bool isAnswered() const { return m_answered; }

    // Asks when it is time to, and looks for at most `slice` what has come.
    void look(std::chrono::milliseconds slice) {
        if (!m_snmp.isOver && m_ask.hasExpired()) ask();
        std::array<pollfd, 2> ends{{{m_snmp.isOver ? -1 : m_snmp.socket.fd(), POLLIN, 0},
                                    {m_data.isOver ? -1 : m_data.socket.fd(), POLLOUT, 0}}};
        if (::poll(ends.data(), ends.size(), static_cast<int>(slice.count())) <= 0) return;
        if (ends[0].revents != 0) receive();
        if (ends[1].revents != 0) {
            m_answered |= m_data.socket.connectionError() == 0;
            m_data.isOver = true;
        }
    }

  private:
    void ask() {
        const QByteArray request = snmpRequest(m_number);
        m_ask = QDeadlineTimer(askAgain);
        if (::send(m_snmp.socket.fd(), request.constData(), static_cast<size_t>(request.size()),
                   MSG_NOSIGNAL) < 0)
            m_snmp.isOver = !isNothingYet();
    }

    void receive() {
        std::array<char, longestPacket> packet;
        const ssize_t size = ::recv(m_snmp.socket.fd(), packet.data(), packet.size(), 0);
        if (size < 0)
            m_snmp.isOver = !isNothingYet();
        else
            m_answered |= isSnmpAnswer(QByteArray(packet.data(), size), m_number);
    }

    const quint32 m_number = QRandomGenerator::global()->bounded(quint32{1}, quint32{0x7FFFFFFF});
    Way m_snmp;
    Way m_data;
    QDeadlineTimer m_ask{0};
    bool m_answered = false;
};

}  // namespace

bool isOfOneMachine(const QHostAddress &address) {
    bool isIPv4 = false;  // also as an IPv6 address
    const quint32 number = address.toIPv4Address(&isIPv4);
    if (isIPv4) return number >= firstOfMachines && number < firstMulticast;
    return !address.isNull() && address != QHostAddress::AnyIPv6 && !address.isMulticast();
}

bool answersAtAddress(const QHostAddress &address, const QDeadlineTimer &deadline,
                      ProbePorts ports) {
    if (!isOfOneMachine(address)) return false;  // to the system, "any address" is this machine
    Probe probe(address, ports);
    waitUntil([&] { return probe.isDecided(); }, std::min(deadline, QDeadlineTimer(longestSilence)),
              [&](std::chrono::milliseconds slice) { probe.look(slice); });
    return probe.isAnswered();
}
