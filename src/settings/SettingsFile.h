#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "settings/InputFile.h"

// Settings that a file gives, in its order.
struct GivenSettings {
    QList<WantedValue> values;
    QList<Fault> faults;   // what cannot be used at all; the faults of values beside
    QStringList readOnly;  // names of settings in it that cannot be changed, and are left out

    // All faults, broken rules included, in the order of the lines.
    QList<Fault> allFaults() const;
};

// Reads settings from JSON: groups as objects, `null` for no change, a secret also as {"file":
// PATH}, relative to `file`; "wireless.ssidHex" gives the bytes of a network name that is no text.
// Takes any bytes.
GivenSettings settingsFromJson(const QByteArray &json, const QString &file);

// The same from a file.
GivenSettings settingsFromFile(const QString &path);

// The value of a setting in a category, as a file gives it; `null` when it is missing.
QJsonValue asJson(const Setting &setting, const CategoryDictionary &category);
// The settings of a record in groups, by their names; `null` for what the printer did not report. A
// network name that is no text is given as "ssidHex".
enum class Part { All, Changeable };
QJsonObject asJson(const SettingRecord &record, Part part = Part::All);
