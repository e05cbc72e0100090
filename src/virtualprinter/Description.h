#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// What every reader of a description needs, be it of one virtual printer or of a catalogue.

inline constexpr qint64 longestDescription = 16LL * 1024 * 1024;  // bytes of a file
inline constexpr qsizetype longestQuote = 80;  // characters of a text in a problem

struct DescriptionText {
    std::optional<QByteArray> bytes;
    QString error;  // why there are none, without the path
};

// Reads a regular file of at most longestDescription bytes, and nothing else.
DescriptionText readDescription(const QString &path);

// A quotable text: at most longestQuote characters on one line, unprintable ones as "\u001b".
QString quotable(const QString &text);
