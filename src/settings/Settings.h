#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "settings/Items.h"
#include "settings/Rules.h"
#include "settings/SettingRecord.h"

// The table of settings: a row for each value of the setting record. What is read and written and
// in which order, the names of files and JSON, labels, rules and the words of codes come from it.

struct Setting {
    enum class Kind { Text, Number, Address, Choice, Mac };
    enum class Access {
        Read,    // reported by the printer alone
        Change,  // reported and written
        Enter    // a secret, or written and never reported
    };

    // Stable name, which files, tables and JSON use: "wired.address.mode". Once released it stays.
    // Empty for what the record keeps beside: it is neither shown nor given.
    QString name;
    // Where the record holds the value: category and key. What is known of the printer without
    // asking it ("printer.uri") has no category, and a key of its entry in the list.
    QString viewKey, key;
    Kind kind;
    Access access;
    QString labelKey;  // localisation key of what people call it
    // The item that carries the value; its code is 0 when none does. Without category and keys.
    Item item = {};
    // Of a choice: the names of its codes, and the localisation keys of their texts, by code.
    QStringList codes = {}, codeTexts = {};
    // Of a number: its bounds.
    int min = 0, max = 0;
    // The rule that a text or an address must keep.
    std::optional<Rules::Rule> rule = {};
    // Without the addresses of its category the record does not hold it, wherever its row stands.
    bool needsAddresses = false;

    bool isSecret() const { return rule && rule->secret; }
};

// All of them, in the order of the pages of the windows.
const QList<Setting> &settings();

// The setting of a name; a null pointer for any other name.
const Setting *settingOf(const QString &name);
// The setting that the record holds under a key of a category; a null pointer when there is none.
const Setting *settingOf(const QString &viewKey, const QString &key);
// Whether the name is the first part of settings' names: "wired", "wired.address".
bool isGroup(const QString &name);

// The pages, which are the categories of the record, in their order.
struct SettingPage {
    QString viewKey, titleKey;  // localisation key of the title
};
const QList<SettingPage> &settingPages();

// A category made of the values that were read. It ends before the first value that is missing,
// unless nobody reads that: then it has its value of the beginning.
CategoryDictionary categoryOf(const QString &viewKey, const CategoryDictionary &values);
