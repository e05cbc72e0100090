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

// A byte stream to one printer. Used by one thread at a time; every wait is sliced and ends at the
// deadline given.
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

    // Drops what has arrived and was not read, and what arrives within `notice`, so that a printer
    // that is about to close is noticed. Closed when the printer has closed, otherwise Done.
    virtual Completion dropArrived(std::chrono::milliseconds notice) = 0;

  protected:
    // Waits for at least one byte and appends what has come to m_received.
    virtual Completion receive(const QDeadlineTimer &deadline) = 0;

    QByteArray m_received;  // and not read yet
};

// How long an answer over TCP is looked for before the thread sleeps: a printer on the same machine
// answers sooner than a sleeping thread is woken.
inline constexpr std::chrono::microseconds nearAnswer{100};

// Where a printer listens. An IPv6 address has a scope where it needs one.
struct Endpoint {
    QHostAddress address;
    quint16 port;
    bool operator==(const Endpoint &) const = default;
};

// Opens the stream to the first of the endpoints that accepts it, each with an equal share of the
// time that is left; a null pointer when none does before the deadline.
std::unique_ptr<Transport> openTcpTransport(const QList<Endpoint> &endpoints,
                                            const QDeadlineTimer &deadline);

// Opens the stream to `host` (a name, or an IPv4 or IPv6 address, the latter with a scope where it
// needs one: "fe80::1%eth0") and `port`, under each address of a name as above.
std::unique_ptr<Transport> openTcpTransport(const QString &host, quint16 port,
                                            const QDeadlineTimer &deadline);

// Opens a channel of a virtual printer of this process; a null pointer when it refuses.
std::unique_ptr<Transport> openVirtualTransport(std::shared_ptr<VirtualPrinter> printer);
