#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "settings/Plan.h"

// Longest file with settings, keys or a table, in bytes.
inline constexpr qint64 longestInput = qint64{4} * 1024 * 1024;

// The bytes of a file, which may be a pipe; nothing when it cannot be read or is longer, and
// `fault` says so.
std::optional<QByteArray> readInput(const QString &path, Fault &fault);

// A key or password of a file: its first line. Nothing when it cannot be read, is empty or not
// UTF-8, and `fault` says so.
std::optional<QString> readSecret(const QString &path, Fault &fault);

// Settings that a file gives, in its order.
struct GivenSettings {
    QList<WantedValue> values;
    QList<Fault> faults;   // what cannot be used at all; the faults of values beside
    QStringList readOnly;  // names of settings in it that cannot be changed, and are left out

    // All faults, broken rules included, in the order of the lines.
    QList<Fault> allFaults() const;
};

// Reads settings from JSON text: groups of names as objects, `null` for what is not to be changed,
// for a secret also {"file": PATH}, where PATH is relative to that of `file`. Takes any bytes.
GivenSettings settingsFromJson(const QByteArray &json, const QString &file);

// The same from a file.
GivenSettings settingsFromFile(const QString &path);
