#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <variant>

// The setting record of a printer.

// Text; integer; address (four texts, one decimal octet each); raw bytes. Two values are equal when
// kind and value are.
using SettingValue = std::variant<QString, int, QStringList, QByteArray>;
// Save-data key -> value.
using CategoryDictionary = QMap<QString, SettingValue>;
// One network found by the printer, under the DWT_SSIDList_ keys.
using SSIDEntry = QMap<QString, SettingValue>;
// View key -> category.
using SettingRecord = QMap<QString, CategoryDictionary>;

// Whether two values of a setting mean the same: texts as people read them (one that could not be
// read is like no other), addresses number by number.
bool isSame(const SettingValue &a, const SettingValue &b);

// What a text holds that could not be read from the printer.
inline const QString unreadable = QStringLiteral(" ");

// The value of `key` when it is there and of that kind, otherwise a default: an empty text, 0, an
// address without octets, no bytes.
QString textValue(const CategoryDictionary &category, const QString &key);
int integerValue(const CategoryDictionary &category, const QString &key);
QStringList addressValue(const CategoryDictionary &category, const QString &key);
QByteArray bytesValue(const CategoryDictionary &category, const QString &key);

// A text of the record as a person reads it: its characters are the bytes that were read, which
// are shown as UTF-8 where they are that, and as shownText() does; nothing when it could not be
// read.
QString readableText(const QString &text);

// A MAC address as a person writes it: the digits of the record in pairs with colons between them.
QString macText(const QString &digits);

// The integer that a typed text stands for: optional leading spaces and sign, then the leading
// decimal digits; 0 when there are none, and the nearest int when it would not fit.
int integerOf(const QString &text);
