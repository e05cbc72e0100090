#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <QList>
#include <QString>
#include <algorithm>
#include <chrono>
#include <memory>

class VirtualPrinter;

// A byte stream to one printer, for one thread at a time. Waits are sliced and have a deadline.
class Transport {
  public:
    // How an operation ended.
    enum class Completion { Done, TimedOut, Closed };

    virtual ~Transport() = default;

    // Writes all of `bytes`.
    virtual Completion write(const QByteArray &bytes, const QDeadlineTimer &deadline) = 0;

    // Waits for at least one byte and appends what has come, `limit` bytes at most, to `bytes`.
    Completion read(QByteArray &bytes, qsizetype limit, const QDeadlineTimer &deadline) {
        const auto completion = m_received.isEmpty() ? receive(deadline) : Completion::Done;
        const qsizetype taken = std::min(limit, m_received.size());
        bytes.append(m_received.constData(), taken);
        m_received.remove(0, taken);
        return completion;
    }

    // Drops unread bytes and those that arrive within `notice`. Closed when the printer has closed.
    virtual Completion dropArrived(std::chrono::milliseconds notice) = 0;

  protected:
    // Waits for at least one byte and appends what has come to m_received.
    virtual Completion receive(const QDeadlineTimer &deadline) = 0;

    QByteArray m_received;  // and not read yet
};

// How long TCP answers are looked for without sleeping, as local printers answer at once.
inline constexpr std::chrono::microseconds nearAnswer{100};

// Where a printer listens. An IPv6 address has a scope where it needs one.
struct Endpoint {
    QHostAddress address;
    quint16 port;
    bool operator==(const Endpoint &) const = default;
};

// Opens a stream to the first endpoint that accepts, each with an equal share of the time; null
// when none does. `reached`, where given, becomes the address of that endpoint.
std::unique_ptr<Transport> openTcpTransport(const QList<Endpoint> &endpoints,
                                            const QDeadlineTimer &deadline,
                                            QHostAddress *reached = nullptr);

// The same for a name or an address ("fe80::1%eth0") and a port.
std::unique_ptr<Transport> openTcpTransport(const QString &host, quint16 port,
                                            const QDeadlineTimer &deadline);

// Opens a channel of a virtual printer of this process; a null pointer when it refuses.
std::unique_ptr<Transport> openVirtualTransport(std::shared_ptr<VirtualPrinter> printer);
