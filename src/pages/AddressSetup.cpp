#include "pages/AddressSetup.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

AddressSetup::AddressSetup(RadioGroup *choice, const QString &settingKey, std::vector<Field> fields)
    : m_choice(choice), m_settingKey(settingKey), m_fields(std::move(fields)) {}

void AddressSetup::fitWidths() {
    for (const Field &address : m_fields)
        fitWidth(address.field, QStringLiteral("255.255.255.255"));
}

void AddressSetup::show(const CategoryDictionary &category) {
    const int setting = integerValue(category, m_settingKey);
    m_choice->selectTag(setting);
    for (const Field &address : m_fields) {
        const QString &key = setting == automatic ? address.keyInUse : address.key;
        address.field->setText(addressNumberToString(addressValue(category, key)));
    }
    enableFieldsByChoice();
}

void AddressSetup::enable(bool enabled) {
    m_choice->setEnabled(enabled);
    for (const Field &address : m_fields) address.field->setEnabled(enabled);
    if (enabled) enableFieldsByChoice();
}

void AddressSetup::enableFieldsByChoice() {
    const bool usable = m_choice->selectedTag() != automatic;
    for (const Field &address : m_fields) address.field->setEnabled(usable);
}

QString AddressSetup::keyOf(const TextField *field) const {
    for (const Field &address : m_fields)
        if (address.field == field) return address.key;
    return {};
}

void AddressSetup::putPicked(CategoryDictionary &category, const CategoryDictionary &saved) const {
    const int setting = m_choice->selectedTag();
    category.insert(m_settingKey, setting);
    for (const Field &address : m_fields) {
        if (setting == manual)
            category.insert(address.key, partsOf(address.field));
        else if (saved.contains(address.key))
            category.insert(address.key, saved.value(address.key));
        else
            category.remove(address.key);
    }
}

void AddressSetup::putShown(CategoryDictionary &category) const {
    const int setting = m_choice->selectedTag();
    if (setting >= 0) category.insert(m_settingKey, setting);
    if (setting == automatic) return;
    for (const Field &address : m_fields) category.insert(address.key, partsOf(address.field));
}

bool AddressSetup::check(DWTBaseView &page, Alert &alert) const {
    if (!fieldsAreEnabled()) return true;
    QStringList names, rules;
    for (const Field &address : m_fields) {
        if (page.itemInputCheckAddress(address.field, address.localhostCheck)) continue;
        if (names.isEmpty()) {
            address.field->setFocus();
            address.field->selectAll();
        }
        names << localized(address.messageKey);
        rules << localized(address.informationKey);
    }
    if (names.isEmpty()) return true;
    page.showInputError(alert, names.join(u'\n'), rules.join(u'\n'));
    return false;
}

bool AddressSetup::isUnchanged(const DWTBaseView &page, const CategoryDictionary &saved) const {
    if (!fieldsAreEnabled()) return true;
    return std::all_of(m_fields.begin(), m_fields.end(), [&](const Field &address) {
        return page.isEqualAddress(partsOf(address.field), addressValue(saved, address.key));
    });
}

QString AddressSetup::addressNumberToString(const QStringList &address) {
    if (address.size() != 4) return QStringLiteral("0.0.0.0");
    QStringList numbers;
    for (const QString &part : address) numbers << QString::number(integerOf(part));
    return numbers.join(u'.');
}
