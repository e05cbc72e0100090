#include "pages/DWTBaseView.h"

#include <QCheckBox>
#include <QLabel>
#include <algorithm>

#include "pages/TextFilter.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"
#include "platform/ui/RadioGroup.h"

namespace {

QString text(const char *key) {
    return localized(QLatin1String(key));
}

QString nameOf(const char *key) {
    return nameInLabel(text(key));
}

}  // namespace

bool DWTBaseView::TBV_Init() {
    nsObjectRelease(ndm_Object);
    string_ViewKey.clear();
    view_Base = new QWidget;
    return true;
}

void DWTBaseView::TBV_Dealloc() {
    nsObjectRelease(ndm_Object);
    if (!view_Base) return;
    for (auto *field : view_Base->findChildren<TextField *>()) field->setDelegate(nullptr);
    if (!view_Base->parent()) delete view_Base;
}

void DWTBaseView::addField(Field field) {
    if (auto *control = qobject_cast<TextField *>(field.control)) {
        control->setDelegate(this);
        QObject::connect(control, &QLineEdit::textChanged, this, [this] { updateMarks(); });
        if (field.rule && field.rule->secret)
            control->setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                                         Qt::ImhNoAutoUppercase | control->inputMethodHints());
    }
    m_fields.push_back(std::move(field));
}

void DWTBaseView::addChoice(QWidget *control, const QString &key, const char *nameKey,
                            const QStringList *items) {
    Field field{control, key, Kind::Choice};
    field.nameKey = nameKey;
    field.items = items;
    addField(std::move(field));
}

void DWTBaseView::addShown(QLineEdit *control, const QString &key, Kind kind,
                           const QStringList *items) {
    showAsValue(control);
    if (kind == Kind::Mac) showAsDigits(control);
    Field field{control, key, kind};
    field.items = items;
    field.edited = false;
    m_fields.push_back(std::move(field));
}

const DWTBaseView::Field *DWTBaseView::fieldOf(const QWidget *control) const {
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const Field &field) { return field.control == control; });
    return found == m_fields.end() ? nullptr : &*found;
}

void DWTBaseView::initializeUI() {
    for (const Field &field : m_fields)
        if (field.input) *field.input = false;
}

void DWTBaseView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    for (const Field &field : m_fields) fill(field);
}

void DWTBaseView::fill(const Field &field) {
    const CategoryDictionary &values = mutableDictionary_ViewSettings;
    const bool nothing = field.edited && !values.contains(field.key);
    if (field.input) *field.input = !nothing;
    const int code = nothing ? -1 : integerValue(values, field.key);
    if (auto *group = qobject_cast<RadioGroup *>(field.control)) {
        if (!nothing) group->selectTag(code);
    } else if (auto *popup = qobject_cast<QComboBox *>(field.control)) {
        popup->setCurrentIndex(popup->findData(code));
    } else if (nothing) {
        field.line()->clear();
    } else if (values.contains(field.key) || field.kind == Kind::Address ||
               field.kind == Kind::Choice) {
        field.line()->setText(textOf(field, values));
    }
}

void DWTBaseView::fillText(const Field &field, const QString &shown) {
    field.line()->setText(shown);
    if (field.input) *field.input = !shown.isEmpty();
}

void DWTBaseView::enableAllItems(bool enabled) {
    for (const Field &field : m_fields)
        if (field.edited) field.control->setEnabled(enabled);
}

void DWTBaseView::showForReading(bool reading) {
    keepLegible(view_Base, reading);
    for (const Field &field : m_fields) {
        if (auto *popup = qobject_cast<PopUpButton *>(field.control)) popup->showAsValue(reading);
        if (!field.edited || !field.isText() || (field.rule && field.rule->secret)) continue;
        showAsValue(field.line(), reading);
        if (reading) field.control->setEnabled(true);
    }
}

bool DWTBaseView::itemInputCheck() {
    Alert alert(alertStyle());
    updateMarks(true);
    bool passed = checkAddresses(alert);
    for (const Field &field : m_fields) {
        if (field.kind == Kind::Address) continue;
        if (field.kind == Kind::Number && field.edited && field.control->isEnabled())
            forceIntoRange(field);
        const QString rule = brokenRuleOf(field);
        if (rule.isEmpty()) continue;
        showInputError(alert, text(field.nameKey), rule);
        passed = false;
    }
    return passed;
}

QString DWTBaseView::brokenRuleOf(const Field &field) const {
    const bool counts = field.rule && field.kind != Kind::Number && field.control->isEnabled();
    if (!counts || isUnchangedText(field) || (field.kind == Kind::Address && isUnknown(field)) ||
        passes(field))
        return {};
    return text(field.rule->ruleKey);
}

QString DWTBaseView::faultOf(const Field &field) const {
    return brokenRuleOf(field);
}

void DWTBaseView::updateMarks(bool all) {
    for (const Field &field : m_fields) {
        auto *const control = qobject_cast<TextField *>(field.control);
        if (control && (all || !control->fault().isEmpty())) control->setFault(faultOf(field));
    }
}

bool DWTBaseView::hasFault() const {
    return firstFault() != nullptr;
}

void DWTBaseView::focusFirstFault() {
    TextField *const fault = firstFault();
    if (!fault) return;
    fault->setFocus(Qt::OtherFocusReason);
    fault->selectAll();
}

TextField *DWTBaseView::firstFault() const {
    for (const Field &field : m_fields) {
        auto *const control = qobject_cast<TextField *>(field.control);
        if (control && !control->fault().isEmpty()) return control;
    }
    return nullptr;
}

bool DWTBaseView::checkAddresses(Alert &alert) const {
    QStringList names, rules;
    for (const Field &field : m_fields) {
        const QString rule = brokenRuleOf(field);
        if (field.kind != Kind::Address || rule.isEmpty()) continue;
        if (names.isEmpty()) {
            field.line()->setFocus();
            field.line()->selectAll();
        }
        names << text(field.nameKey);
        rules << rule;
    }
    if (names.isEmpty()) return true;
    if (!m_pageName.isEmpty()) rules.prepend(m_pageName);
    showInputError(alert, names.join(u'\n'), rules.join(u'\n'));
    return false;
}

void DWTBaseView::forceIntoRange(const Field &number) const {
    if (isUnknown(number)) return;
    const int value = Rules::numberInRange(number.line()->text(), *number.rule);
    number.line()->setText(QString::number(value));
}

bool DWTBaseView::passes(const Field &field) const {
    const Rules::Rule &rule = *field.rule;
    if (field.kind == Kind::Address) return itemInputCheckAddress(field.line(), !rule.loopback);
    return itemInputCheckString(field.line(), rule.characters, rule.min, rule.max,
                                !field.input || *field.input);
}

CategoryDictionary DWTBaseView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    for (const Field &field : m_fields) {
        if (!field.edited || field.key.isEmpty() || !isUsed(field)) continue;
        if (!category.contains(field.key) && showsNothing(field)) continue;
        if (const auto value = valueOf(field)) category.insert(field.key, *value);
    }
    return category;
}

QList<DWTBaseView::Change> DWTBaseView::changes() const {
    const CategoryDictionary saved = savedCategory(), shown = shownCategory();
    QList<Change> list;
    for (const Field &field : m_fields) {
        if (!field.nameKey || !shown.contains(field.key)) continue;
        const auto old = saved.constFind(field.key);
        if (old != saved.constEnd() && *old == shown.value(field.key)) continue;
        const bool secret = field.rule && field.rule->secret;
        list << Change{nameOf(field.nameKey), secret ? QString() : textOf(field, saved),
                       secret ? text("DWT_Localize_Send_Confirm_NewSecret") : textOf(field, shown),
                       secret};
    }
    return list;
}

QList<DWTBaseView::Value> DWTBaseView::values() const {
    QList<Value> list;
    for (const Field &field : m_fields)
        if (!field.rule || !field.rule->secret)
            list << Value{labelOf(field), shownTextOf(field).trimmed()};
    return list;
}

QString DWTBaseView::shownTextOf(const Field &field) {
    if (const auto *box = qobject_cast<QCheckBox *>(field.control))
        return text(box->isChecked() ? "DWT_Localize_Report_Yes" : "DWT_Localize_Report_No");
    if (const auto *group = qobject_cast<RadioGroup *>(field.control))
        return group->titleOf(group->selectedTag());
    if (const auto *popup = qobject_cast<QComboBox *>(field.control)) return popup->currentText();
    const QString shown = field.line()->text();
    return field.kind == Kind::Mac ? macText(shown) : shown;
}

QString DWTBaseView::labelOf(const Field &field) const {
    if (field.nameKey) return nameOf(field.nameKey);
    if (const auto *box = qobject_cast<QCheckBox *>(field.control)) return nameInLabel(box->text());
    for (const QLabel *label : view_Base->findChildren<QLabel *>())
        if (label->buddy() == field.control) return nameInLabel(label->text());
    return {};
}

std::optional<SettingValue> DWTBaseView::valueOf(const Field &field) const {
    if (const auto *box = qobject_cast<QCheckBox *>(field.control)) return box->isChecked() ? 1 : 0;
    if (const auto *group = qobject_cast<RadioGroup *>(field.control)) {
        const int tag = group->selectedTag();
        return tag < 0 ? std::nullopt : std::optional<SettingValue>(tag);
    }
    if (const auto *popup = qobject_cast<QComboBox *>(field.control)) {
        const QVariant code = popup->currentData();
        return code.isValid() ? std::optional<SettingValue>(code.toInt()) : std::nullopt;
    }
    if (isUnchangedText(field)) return textValue(savedCategory(), field.key);
    const QString shown = field.line()->text();
    if (field.kind == Kind::Address) return shown.split(u'.');
    if (field.kind == Kind::Number) return integerOf(shown);
    return shown;
}

bool DWTBaseView::showsNothing(const Field &field) const {
    if (const auto *group = qobject_cast<RadioGroup *>(field.control))
        return group->selectedTag() <= 0;
    if (const auto *popup = qobject_cast<QComboBox *>(field.control))
        return popup->currentIndex() <= 0;
    if (field.kind == Kind::Flag) return false;
    return field.line()->text().isEmpty() || field.line()->text() == addressNumberToString({});
}

bool DWTBaseView::isUnchangedText(const Field &field) const {
    const CategoryDictionary saved = savedCategory();
    return field.kind == Kind::Text && !textValue(saved, field.key).isEmpty() &&
           field.line()->text() == textOf(field, saved);
}

bool DWTBaseView::isUnknown(const Field &field) const {
    const CategoryDictionary saved = savedCategory();
    const auto known = saved.constFind(field.key);
    return ndm_Object && !ndm_Object->isTold(field.key) && known != saved.constEnd() &&
           valueOf(field) == *known;
}

QString DWTBaseView::labelOf(const QString &key) const {
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const Field &f) { return f.key == key; });
    return found == m_fields.end() || !found->nameKey ? QString() : nameOf(found->nameKey);
}

QString DWTBaseView::textOf(const Field &field, const CategoryDictionary &category) const {
    const int code = integerValue(category, field.key);
    switch (field.kind) {
        case Kind::Text:
        case Kind::Mac:
            return readableText(textValue(category, field.key));
        case Kind::Address:
            return addressNumberToString(addressValue(category, field.key));
        case Kind::Choice:
            if (field.items) return localized(field.items->value(code));
            if (const auto *group = qobject_cast<RadioGroup *>(field.control))
                return group->titleOf(code);
            [[fallthrough]];
        default:
            return QString::number(code);
    }
}

bool DWTBaseView::textShouldBeginEditing(TextField *control) {
    if (const Field *field = fieldOf(control)) markInput(*field, false);
    return true;
}

bool DWTBaseView::textShouldEndEditing(TextField *control) {
    if (const Field *field = fieldOf(control)) {
        markInput(*field, true);
        if (field->store)
            field->store();
        else
            store(control);
        control->setFault(faultOf(*field));
    }
    sendNotificationSendOK();
    return true;
}

void DWTBaseView::controlTextDidChange(TextField *control) {
    const Field *field = fieldOf(control);
    if (!field) return;
    if (field->kind == Kind::Address) checkIPtextField(control);
    if (field->kind == Kind::Number) checkCountTextField(control);
    postSendState(itemCheckDifferentToDataManager());
}

void DWTBaseView::markInput(const Field &field, bool) {
    if (field.input) *field.input = true;
}

bool DWTBaseView::itemInputCheckString(const QLineEdit *field, const QString &characterSet, int min,
                                       int max, bool input) const {
    return Rules::isText(field->text(), characterSet, min, max, input);
}

bool DWTBaseView::itemInputCheckAddress(const QLineEdit *field, bool localhostCheck) const {
    return Rules::isAddress(field->text(), !localhostCheck);
}

bool DWTBaseView::isEqualAddress(const QStringList &address,
                                 const QStringList &printerAddress) const {
    return Rules::isSameAddress(address, printerAddress);
}

void DWTBaseView::checkIPtextField(TextField *field) const {
    filterText(field, Rules::addressCharacters);
}

void DWTBaseView::checkCountTextField(TextField *field) const {
    filterText(field, Rules::digits);
}

QString DWTBaseView::addressNumberToString(const QStringList &address) {
    if (address.size() != 4) return QStringLiteral("0.0.0.0");
    QStringList numbers;
    for (const QString &part : address) numbers << QString::number(integerOf(part));
    return numbers.join(u'.');
}

void DWTBaseView::showInputError(Alert &alert, const QString &fieldName,
                                 const QString &rule) const {
    alert.setButtonTitle(text("DWT_Localize_Alert_Button_OK"));
    alert.setMessageText(
        QStringLiteral("%1 %2").arg(fieldName, text("DWT_Localize_Alert_MessageText_Error")));
    alert.setInformativeText(rule);
    alert.runModal(view_Base);
}

bool DWTBaseView::store(const QWidget *control) {
    const Field &field = *fieldOf(control);
    if (field.kind == Kind::Number) forceIntoRange(field);
    mutableDictionary_ViewSettings.insert(field.key, *valueOf(field));
    handOver(mutableDictionary_ViewSettings);
    return true;
}

CategoryDictionary DWTBaseView::savedCategory() const {
    if (!ndm_Object) return {};
    return ndm_Object->setupDataToMainView(string_ViewKey).value_or(CategoryDictionary());
}

void DWTBaseView::handOver(const CategoryDictionary &category) {
    if (ndm_Object) ndm_Object->setupDataFromMainView(category, string_ViewKey);
}

void DWTBaseView::sendNotificationSendOK() {
    postSendState(ndm_Object && ndm_Object->isEqualToSaveData());
}

// A choice may have changed which fields count.
void DWTBaseView::postSendState(bool unchanged) {
    updateMarks();
    NotificationCenter::shared().post(
        unchanged ? DWT_MainDialog_SendNG_Message : DWT_MainDialog_SendOK_Message, this);
}

// The page is its fields' delegate as well, which tells it of the same change first.
void DWTBaseView::notificationManager() {
    m_textChanges = NotificationCenter::shared().observe(
        QStringLiteral("NSControlTextDidChangeNotification"), [this](const Notification &change) {
            auto *sender = const_cast<QObject *>(change.sender);
            if (auto *field = qobject_cast<TextField *>(sender)) controlTextDidChange(field);
        });
}

void DWTBaseView::offer(QComboBox *popup, const QStringList &keys, int firstCode) {
    popup->clear();
    for (const QString &key : keys) popup->addItem(localized(key), firstCode + popup->count());
}
