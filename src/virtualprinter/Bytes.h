#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

// Two-byte numbers of the wire, low byte first.

inline QByteArray littleEndian(int value) {
    const char bytes[] = {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)};
    return QByteArray(bytes, 2);
}

// The number at `offset`; the caller has made sure that both bytes are there.
inline int littleEndianAt(QByteArrayView bytes, qsizetype offset) {
    return static_cast<quint8>(bytes[offset]) | static_cast<quint8>(bytes[offset + 1]) << 8;
}
