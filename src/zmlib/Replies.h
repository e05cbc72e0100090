#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include "zmlib/Transport.h"

// What the library knows of the stream: where a reply frame begins and ends.

// So many bytes that begin no reply are skipped before the stream is given up.
inline constexpr qsizetype skippedBytes = qsizetype{64} * 1024;

// The library's result for the way a transport operation ended.
int resultOf(Transport::Completion completion);

// Reads one reply frame into `reply`, which must be empty: at most skippedBytes, "C", 4 header
// bytes (offsets 3-4: little-endian length), then that many bytes. Result: 0 or a negative
// ZMLib::Result.
int readReply(Transport &transport, QByteArray &reply, const QDeadlineTimer &deadline);
