#pragma once

#include <QByteArray>

#include "settings/Codes.h"

// The frames of the setting protocol, as pure functions on bytes. Numbers of two bytes are
// little-endian; checksums are sums modulo 256.

namespace Frames {

// The low 16 bits of `value` as two bytes, low byte first.
QByteArray word(qsizetype value);

// The frame  ESC "{" N command parameters... checksum "}"  where N counts the bytes after it and
// the checksum covers command and parameters. At most 252 parameter bytes.
QByteArray escFrame(char command, const QByteArray &parameters);

// The frames that bracket a transaction.
QByteArray startFrame();   // command "U", parameter 1
QByteArray endFrame();     // command "U", parameter 0
QByteArray updateFrame();  // command "w"

// Asks for the setting item `code`: command "f" with the code.
QByteArray requestFrame(ItemCode code);

// The frame  "CF;" L ";" code ";" payload ";" checksum  that writes the setting item `code`. L
// counts the bytes from offset 5 on; the checksum covers those from offset 5 to the last ";".
// Empty when the payload is longer than maximumPayload.
QByteArray settingFrame(ItemCode code, const QByteArray &payload);

// Longest payload that the 16-bit length can express, in bytes.
inline constexpr qsizetype maximumPayload = 0xFFFF - 6;

}  // namespace Frames
