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

    // Writes all of `bytes`, after the rest of a frame that was begun before and timed out: a
    // printer would take the next frame for that rest. A frame that has not begun is dropped.
    Completion write(const QByteArray &bytes, const QDeadlineTimer &deadline) {
        m_unsent += bytes;
        const auto completion = transmit(deadline);
        if (completion == Completion::Closed) m_unsent.clear();
        if (completion == Completion::TimedOut && m_unsent.size() >= bytes.size())
            m_unsent.chop(bytes.size());
        return completion;
    }

    // Waits for at least one byte and appends what has come, `limit` bytes at most, to `bytes`.
    Completion read(QByteArray &bytes, qsizetype limit, const QDeadlineTimer &deadline) {
        const auto completion = m_received.isEmpty() ? receive(deadline) : Completion::Done;
        const qsizetype taken = std::min(limit, m_received.size());
        bytes.append(m_received.constData(), taken);
        m_received.remove(0, taken);
        return completion;
    }

    // Drops unread bytes and those that arrive until `silence` passes without any, drainedBytes
    // have come or `deadline` has passed (TimedOut: more may come). Closed when the printer has
    // closed.
    Completion drain(std::chrono::milliseconds silence, const QDeadlineTimer &deadline);

    // How long after the last reply its connection may still turn out to be closed.
    static constexpr std::chrono::milliseconds closingNotice{2};
    virtual std::chrono::milliseconds noticeOfEnd() const { return closingNotice; }

    // Whether the destructor may take as long as a call.
    virtual bool endsSlowly() const { return false; }

  protected:
    // Waits for at least one byte and appends what has come to m_received.
    virtual Completion receive(const QDeadlineTimer &deadline) = 0;
    // Writes m_unsent and removes from it what the printer has taken.
    virtual Completion transmit(const QDeadlineTimer &deadline) = 0;

    QByteArray m_received;  // and not read yet
    QByteArray m_unsent;
};

// Most bytes that are dropped at a time, and the longest time that this may take.
inline constexpr qsizetype drainedBytes = qsizetype{64} * 1024;
inline constexpr std::chrono::milliseconds drainWithin{500};

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
