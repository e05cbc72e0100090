#pragma once

#include <QString>
#include <optional>

#include "settings/Settings.h"

// Values of settings as texts: as people read them, and as files and tables give them.

// The value of a setting in a category, for people; empty for one that is missing or says nothing.
QString textOf(const Setting &setting, const CategoryDictionary &category);
// The same; "(empty)" for an empty one.
QString textOrEmpty(const Setting &setting, const CategoryDictionary &category);
// A record as people read it, page by page, without secrets and what the printer never reports. A
// value that is missing was not reported.
struct ShownPage {
    QString title;
    QList<std::pair<QString, QString>> lines;  // label and value
};
QList<ShownPage> shownPages(const SettingRecord &record);
// Four numbers with dots between them, without leading zeros; empty for anything else.
QString dottedAddress(const QStringList &address);

// The value that something given stands for.
struct Parsed {
    std::optional<SettingValue> value;  // nothing when it can be none of the setting
    // Why it can be none or, of a value, the rule that it breaks, in words; otherwise empty.
    QString fault;
};
// The setting can be entered: a text or an address has its rule.
Parsed parsedText(const Setting &setting, const QString &text);
Parsed parsedNumber(const Setting &setting, qint64 number);

// What a value of the setting must be, in words.
QString wordsOfExpected(const Setting &setting);

// What is said of a name that no setting has, with those that may be meant.
QString wordsOfUnknown(const QString &name);
