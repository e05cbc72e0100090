#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QSet>
#include <QStringList>
#include <chrono>
#include <memory>
#include <optional>

#include "zmlib/Transport.h"
#include "zmlib/ZMLib.h"

// The open command channel of one printer. It carries frames, and tells an answer from what is left
// of an earlier exchange. Used by one thread at a time. Results: 0 or a negative ZMLib::Result;
// after ZMLib::Closed the channel is of no use.
class Channel {
  public:
    // Longest time for the end frame of a transaction that is given up.
    static constexpr std::chrono::milliseconds abandonWithin{200};

    explicit Channel(std::unique_ptr<Transport> transport);

    // Writes a frame that has no answer.
    int send(const QByteArray &frame, const QDeadlineTimer &deadline);

    // Writes a frame and appends at most `replySize` bytes of its reply (Replies.h) to `reply`.
    // Bytes before it, and answers to earlier exchanges, are dropped.
    int exchange(const QByteArray &frame, int replySize, QByteArray &reply,
                 const QDeadlineTimer &deadline);

    // Writes the update and end frames, unless the printer has closed the channel (ZMLib::Closed).
    // Success once the update frame is out.
    int finish(const QByteArray &update, const QByteArray &end, const QDeadlineTimer &deadline);

    // Sends the end frame of a transaction that was begun and not finished, so that a printer which
    // is still there drops what it has staged. The channel is of no use afterwards.
    void abandon();

    // Whether the destructor may take as long as a call.
    bool endsSlowly() const { return m_transport->endsSlowly(); }

    // The dotted addresses of the printer's interfaces, the wired one first. Inside a start only.
    std::optional<QStringList> addressesInUse(const QDeadlineTimer &deadline);

  private:
    std::unique_ptr<Transport> m_transport;
    // What the exchanges so far waited for: the kind of reply ("F" or "R") and the item code.
    QSet<QByteArray> m_asked;
    bool m_wroteSettings = false;
    bool m_isBegun = false;  // a frame went out, and no end frame since
};

// Frames around a query that changes nothing: no update frame goes between them.
extern const QByteArray queryStart;
extern const QByteArray queryEnd;
