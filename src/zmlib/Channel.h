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

// The open command channel of one printer: it carries frames, and tells the answer to one exchange
// from what is left of another. Used by one thread at a time.
//
// Integer results are 0 or a negative ZMLib::Result. After ZMLib::Closed the channel is of no use
// any more; after every other failure the next exchange may well succeed.
class Channel {
  public:
    // How long finish() looks whether the printer has closed instead of taking settings: the end of
    // a connection arrives right behind the last reply.
    static constexpr std::chrono::milliseconds closingNotice{2};

    explicit Channel(std::unique_ptr<Transport> transport);

    // Writes a frame that has no answer.
    int send(const QByteArray &frame, const QDeadlineTimer &deadline);

    // Writes a request or setting frame, reads its reply (Replies.h) and appends at most
    // `replySize` bytes of it to `reply`. What had arrived before is dropped, and so is what
    // answers an earlier exchange of this channel, by its item code.
    int exchange(const QByteArray &frame, int replySize, QByteArray &reply,
                 const QDeadlineTimer &deadline);

    // Writes the update frame and the end frame, unless the printer has closed the channel: then
    // nothing, and the result is ZMLib::Closed. Success as soon as the update frame is out.
    int finish(const QByteArray &update, const QByteArray &end, const QDeadlineTimer &deadline);

    // The dotted addresses that the printer uses on its interfaces now, the wired one first;
    // nothing when it does not tell. The channel must be inside a start.
    std::optional<QStringList> addressesInUse(const QDeadlineTimer &deadline);

  private:
    std::unique_ptr<Transport> m_transport;
    // What the exchanges so far waited for: the kind of reply ("F" or "R") and the item code.
    QSet<QByteArray> m_asked;
    bool m_wroteSettings = false;
};

// Frames around a query that changes nothing: no update frame goes between them.
extern const QByteArray queryStart;
extern const QByteArray queryEnd;
