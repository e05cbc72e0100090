#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <numeric>

// Two-byte numbers of the wire, low byte first, and its checksums.

inline QByteArray littleEndian(int value) {
    const char bytes[] = {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)};
    return QByteArray(bytes, 2);
}

// The number at `offset`; the caller has made sure that both bytes are there.
inline int littleEndianAt(QByteArrayView bytes, qsizetype offset) {
    return static_cast<quint8>(bytes[offset]) | static_cast<quint8>(bytes[offset + 1]) << 8;
}

// The sum of the bytes, modulo 256.
inline char checksum(QByteArrayView bytes) {
    return static_cast<char>(std::accumulate(bytes.begin(), bytes.end(), 0) & 0xFF);
}
