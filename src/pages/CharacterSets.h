#pragma once

#include <QString>

// Characters that the printer accepts in its texts.

// Digits, small and capital letters: 62 characters.
inline const QString alphanumericCharacters =
    QStringLiteral("1234567890abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");

// What a host name may hold: those and the hyphen.
inline const QString hostNameCharacters = alphanumericCharacters + u'-';

// What an administrator password may hold: 81 characters.
inline const QString passwordCharacters =
    alphanumericCharacters + QStringLiteral("!\"#$%&'()*+,-./{|}~");

// Digits of hexadecimal numbers.
inline const QString hexadecimalCharacters = QStringLiteral("1234567890abcdefABCDEF");

// The 95 printable ASCII characters, space to tilde.
inline const QString printableCharacters =
    alphanumericCharacters + QStringLiteral("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~ ");
