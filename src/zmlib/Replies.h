#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include "zmlib/Transport.h"

// What the library knows of the stream: where a reply frame begins and ends.

// So many bytes that begin no reply are skipped before the stream is given up.
inline constexpr qsizetype skippedBytes = qsizetype{64} * 1024;

// The library's result for the way a transport operation ended.
int resultOf(Transport::Completion completion);

// Reads one reply frame into `reply`, which must be empty. Bytes before the first "C" are skipped
// (more than skippedBytes are no reply); then come 5 header bytes, whose offsets 3-4 hold the
// little-endian number of bytes after them. Result: 0, or a negative ZMLib::Result; `reply` is then
// of no use.
int readReply(Transport &transport, QByteArray &reply, const QDeadlineTimer &deadline);
