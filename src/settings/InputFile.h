#pragma once

#include <QByteArray>
#include <optional>

#include "settings/Plan.h"

// Longest file with settings, keys or a table, in bytes.
inline constexpr qint64 longestInput = qint64{4} * 1024 * 1024;

// The bytes of a file or pipe, of standard input for "-"; nothing, with a `fault`, when it is
// unreadable or too long.
std::optional<QByteArray> readInput(const QString &path, Fault &fault);

// The first line of a file; nothing, with a `fault`, when it is unreadable, empty or not UTF-8.
std::optional<QString> readSecret(const QString &path, Fault &fault);
