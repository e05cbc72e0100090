#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

#include "settings/Settings.h"

class FieldRow;

// A row of a page's table: a setting and its control. Texts, addresses, numbers and choices that
// are only shown are in a QLineEdit, choices in a RadioGroup (codes as tags) or a QComboBox (codes
// as item data), flags in a QCheckBox.
struct Field {
    QWidget *control;
    const Setting *setting;            // null for a control beside those of the record
    bool *input = nullptr;             // set when the field was filled or touched
    std::function<bool()> store = {};  // at the end of editing; the page's own by default
    const Rules::Rule *rule = nullptr;
    QString name = {};        // in alerts
    bool edited = true;       // false: shown, and never written
    FieldRow *row = nullptr;  // around the control; null for one that only shows, and for a flag

    QString key() const { return setting ? setting->key : QString(); }
    bool isAddress() const { return setting && setting->kind == Setting::Kind::Address; }
    bool isNumber() const { return line() && setting && setting->kind == Setting::Kind::Number; }
    bool isSecret() const { return rule && rule->secret; }
    // The control, unless it is a choice or a flag.
    QLineEdit *line() const { return qobject_cast<QLineEdit *>(control); }

    // Shows the value of a category. A missing one empties a field that is edited.
    void show(const CategoryDictionary &category) const;
    // Shows a text, or nothing; it counts as filled when it is not empty.
    void showText(const QString &text) const;
    // What the control shows; nothing when no item of a choice is selected.
    std::optional<SettingValue> value() const;
    // Whether the control shows what it shows when its value is missing.
    bool isEmpty() const;
    // The text of a QLineEdit for the value of a category: a missing address is "0.0.0.0", a code
    // without a text empty.
    QString textOf(const CategoryDictionary &category) const;
};

// An address of four parts with dots between them; "0.0.0.0" for any other count of parts.
QString shownAddress(const QStringList &address);
