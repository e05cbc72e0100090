#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QStringList>
#include <optional>

#include "zmlib/Transport.h"
#include "zmlib/ZMLib.h"

// What the library knows of the stream: where a reply frame begins and ends.

// So many bytes that begin no reply are skipped before the stream is given up.
inline constexpr qsizetype skippedBytes = qsizetype{64} * 1024;

// The library's result for the outcome of a transport operation.
int resultOf(Transport::Outcome outcome);

// Reads one reply frame and appends at most `replySize` bytes of it to `reply`. Bytes before the
// first "C" are skipped (more than skippedBytes are no reply); then come 5 header bytes, whose
// offsets 3-4 hold the little-endian number of bytes after them. Result: 0, or a negative
// ZMLib::Result with `reply` unchanged.
int readReply(Transport &transport, int replySize, QByteArray &reply,
              const QDeadlineTimer &deadline);

// Writes `frame`, then reads one reply as readReply() does.
int requestReply(Transport &transport, const QByteArray &frame, int replySize, QByteArray &reply,
                 const QDeadlineTimer &deadline);

// Frames around a query that changes nothing: no update frame goes between them.
extern const QByteArray queryStart;
extern const QByteArray queryEnd;

// The dotted addresses that the printer uses on its interfaces now, the wired one first; nothing
// when it does not tell. The stream must be inside a start.
std::optional<QStringList> addressesInUse(Transport &transport, const QDeadlineTimer &deadline);
