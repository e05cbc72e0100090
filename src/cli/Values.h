#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <optional>

#include "settings/Settings.h"

// What is wrong with something given, and where.
struct Fault {
    QString file = {};      // as it was named; empty when it is no file's
    int line = 0;           // counted from 1; 0 when it is none's
    QString name = {};      // of a setting, or of a column
    QString text = {};      // in words, without the place
    bool isColumn = false;  // `name` is that of a column

    bool operator==(const Fault &) const = default;
};

// A value that a file gives for a setting.
struct GivenValue {
    const Setting *setting;
    SettingValue value;
    Fault place;  // text: the rule that the value breaks, which counts unless the printer has it
};

// The value that a text, or a value of JSON, stands for. Otherwise nothing, and `fault.text` says
// why. A value of the right kind that breaks its rule is given, with the broken rule as the text of
// its place; the rest of the place is that of `fault`.
std::optional<GivenValue> valueFromText(const Setting &setting, const QString &text, Fault &fault);
std::optional<GivenValue> valueFromNumber(const Setting &setting, qint64 number, Fault &fault);

// What a value of the setting must be, in words.
QString wordsOfExpected(const Setting &setting);

// Three views of a value of the record: for programs, without a value for what the printer did not
// tell; for people, and empty for that; as a short text in messages ("(empty)" for that).
QJsonValue valueAsJson(const Setting &setting, const CategoryDictionary &category);
QString valueForPeople(const Setting &setting, const CategoryDictionary &category);
QString valueOrEmpty(const Setting &setting, const CategoryDictionary &category);
