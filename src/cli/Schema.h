#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "settings/Rules.h"
#include "settings/SettingRecord.h"

// The settings of a printer under their stable names, which files, tables and the output in JSON
// use: "wired.address.mode". docs/command-line.md describes them; a name, once released, stays.
struct Setting {
    enum class Kind { Text, Number, Address, Choice, Mac };
    enum class Access {
        Read,  // told by the printer alone
        Change,
        Enter  // taken by the printer and never told, or a secret
    };

    QString name;
    // Where the record holds it: the category and the key. What is known of the printer without
    // asking it ("printer.uri") has no category, and a key of its entry in the list.
    QString viewKey, key;
    Kind kind;
    Access access;
    // Localisation key of what people call it.
    QString labelKey;
    // Of a choice: the names of its codes, and the localisation keys of their texts, by code.
    QStringList codes = {}, codeTexts = {};
    // Of a number: its bounds.
    int min = 0, max = 0;
    // The rule that a text or an address must keep; null without one.
    const Rules::Rule *rule = nullptr;

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

// The pages in their order: view key, and localisation key of the title.
struct Page {
    QString viewKey, titleKey;
};
const QList<Page> &settingPages();
