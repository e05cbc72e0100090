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

// Reads a regular file of at most longestDescription bytes. Whatever else the path names (a pipe, a
// device, a folder) is refused without waiting for it.
DescriptionText readDescription(const QString &path);

// A text of a description as a problem may quote it: cut after longestQuote characters, and on one
// line, every character that is not printable as "\u001b".
QString quotable(const QString &text);
