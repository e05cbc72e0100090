#pragma once

#include <vector>

#include "pages/DWTBaseView.h"
#include "platform/ui/RadioGroup.h"

// How an interface of the printer gets its address: the choice between automatic and fixed, and the
// three fields of a fixed address, which are usable only while fixed is chosen. For the pages of
// the interfaces, each of which holds one on its own controls.
class AddressSetup {
  public:
    // Tags of the choice, and its values in the record.
    static constexpr int automatic = 0;
    static constexpr int manual = 1;

    // A field, its keys in the record (configured, in use), whether 127.0.0.1 is refused, and what
    // is said of a wrong address.
    struct Field {
        TextField *field;
        QString key;
        QString keyInUse;
        bool localhostCheck;
        QString messageKey;
        QString informationKey;
    };

    AddressSetup() = default;
    // `choice` and the fields outlive this object. `settingKey`: the choice's key in the record.
    // `fields`: in the order in which they are checked.
    AddressSetup(RadioGroup *choice, const QString &settingKey, std::vector<Field> fields);

    // Makes the fields as wide as the longest address.
    void fitWidths();
    // Shows the category: in automatic setup the addresses in use, otherwise the configured ones.
    void show(const CategoryDictionary &category);
    // Enables or disables choice and fields as one; enabled fields follow the choice.
    void enable(bool enabled);
    void enableFieldsByChoice();
    bool fieldsAreEnabled() const { return m_fields.front().field->isEnabled(); }
    // The key of a field in the record; empty when it is none of these.
    QString keyOf(const TextField *field) const;

    // What the user picked, put into `category`: in manual setup the typed addresses, otherwise
    // those of `saved`.
    void putPicked(CategoryDictionary &category, const CategoryDictionary &saved) const;
    // What is shown, put over `category`: the choice (a setting that no choice stands for stays),
    // and the typed addresses unless it is automatic.
    void putShown(CategoryDictionary &category) const;

    // Checks the addresses, selects the first wrong one and shows one alert for all that are wrong.
    // True when none is, or the fields are disabled.
    bool check(DWTBaseView &page, Alert &alert) const;
    // Whether the typed addresses are those of `saved`, or the fields are disabled.
    bool isUnchanged(const DWTBaseView &page, const CategoryDictionary &saved) const;

    // An address of four parts with dots between them; "0.0.0.0" for any other count of parts.
    static QString addressNumberToString(const QStringList &address);
    // The parts of a typed address.
    static QStringList partsOf(const TextField *field) { return field->text().split(u'.'); }

  private:
    RadioGroup *m_choice = nullptr;
    QString m_settingKey;
    std::vector<Field> m_fields;
};
