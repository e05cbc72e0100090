#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <variant>

// The setting record of a printer.

// Text; integer; address (four decimal octets as texts); bytes. Equality is that of kind and value.
using SettingValue = std::variant<QString, int, QStringList, QByteArray>;
// Save-data key -> value.
using CategoryDictionary = QMap<QString, SettingValue>;
// One network found by the printer, under the DWT_SSIDList_ keys.
using SSIDEntry = QMap<QString, SettingValue>;
// View key -> category.
using SettingRecord = QMap<QString, CategoryDictionary>;

// Whether two values mean the same: texts as people read them, addresses number by number. An
// unreadable text is like no other.
bool isSame(const SettingValue &a, const SettingValue &b);

// What a text holds that could not be read from the printer.
inline const QString unreadable = QStringLiteral(" ");

// The value of `key` when it has that kind, otherwise an empty text, 0, an empty address, no bytes.
QString textValue(const CategoryDictionary &category, const QString &key);
int integerValue(const CategoryDictionary &category, const QString &key);
QStringList addressValue(const CategoryDictionary &category, const QString &key);
QByteArray bytesValue(const CategoryDictionary &category, const QString &key);

// A text of the record, a byte a character, as a person reads it: decoded where it is UTF-8, and by
// shownText(); empty when it could not be read.
QString readableText(const QString &text);

// A MAC address as a person writes it: the digits of the record in pairs with colons between them.
QString macText(const QString &digits);

// The integer of a typed text: leading spaces, sign and decimal digits; 0 without digits, the
// nearest int when it would not fit.
int integerOf(const QString &text);
