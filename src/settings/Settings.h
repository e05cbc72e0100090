#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "settings/Items.h"
#include "settings/Rules.h"
#include "settings/SettingRecord.h"

// The table of settings: a row a value of the record. Reading, sending, codec, rules, names in
// files and words come from it.

struct Setting {
    enum class Kind { Text, Number, Address, Choice, Mac };
    enum class Access {
        Read,    // reported by the printer alone
        Change,  // reported and written
        Enter    // a secret, or written and never reported
    };

    // Stable name in files, tables and JSON: "wired.address.mode"; once released it stays. Empty
    // for what the record keeps beside.
    QString name;
    // Category and key in the record. A value of the printer's entry in the list ("printer.uri")
    // has no category, and a key of the entry.
    QString viewKey, key;
    Kind kind;
    QString labelKey;  // localisation key of what people call it
    // The item that carries the value; its code is 0 when none does. Without category and keys.
    Item item = {};
    // The rule that a value must keep; every text, number and address that can be entered has one.
    std::optional<Rules::Rule> rule = {};
    // Of a choice: the names of its codes, and the localisation keys of their texts, by code.
    QStringList codes = {}, codeTexts = {};

    Access access() const;
    bool isSecret() const { return rule && rule->secret; }
    // Whether a send writes the value.
    bool isSent() const { return item.sendTurn > 0; }
    // Whether a reading asks for the value.
    bool isReported() const { return item.readTurn > 0; }
    // What people call it, in the words of the pages.
    QString label() const;
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
// The title of the page of a category, in words.
QString titleOfPage(const QString &viewKey);

// How an interface gets its address: mode (AddressSetting), address, mask and gateway.
struct AddressSetup {
    const Setting *mode, *address, *mask, *gateway;
};
// Those of the wired and of the wireless interface.
const QList<AddressSetup> &addressSetups();

// A category of read values. It ends before the first missing one; what nobody reads is initial.
CategoryDictionary categoryOf(const QString &viewKey, const CategoryDictionary &values);

// The record's key of the network key that an encryption (settings/Codes.h) uses; may be empty.
QString networkKeyOf(int encryption);
