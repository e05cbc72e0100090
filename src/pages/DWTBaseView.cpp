#include "pages/DWTBaseView.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <algorithm>

#include "platform/core/NotificationCenter.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"
#include "platform/ui/FieldRow.h"

using namespace Qt::StringLiterals;

bool DWTBaseView::TBV_Init() {
    view_Base = new QWidget;
    return true;
}

void DWTBaseView::TBV_Dealloc() {
    nsObjectRelease(ndm_Object);
    if (!view_Base) return;
    for (auto *field : view_Base->findChildren<TextField *>()) field->setDelegate(nullptr);
    if (!view_Base->parent()) delete view_Base;
}

Field &DWTBaseView::append(QWidget *control, const QString &key) {
    Field field{control, key.isEmpty() ? nullptr : settingOf(string_ViewKey, key)};
    if (field.setting) {
        field.name = localized(field.setting->labelKey);
        if (field.line() && field.setting->rule) field.rule = &*field.setting->rule;
    }
    m_fields.push_back(std::move(field));
    return m_fields.back();
}

Field &DWTBaseView::addField(QWidget *control, const QString &key, bool *input,
                             std::function<bool()> store) {
    Field &field = append(control, key);
    field.input = input;
    field.store = std::move(store);
    if (!qobject_cast<QCheckBox *>(control)) {
        field.row = new FieldRow(control);
        QObject::connect(field.row, &FieldRow::resetRequested, this,
                         [this, control] { putBack(*fieldOf(control)); });
    }
    if (auto *line = qobject_cast<TextField *>(control)) {
        QObject::connect(line, &QLineEdit::textChanged, this, [this] { updateMarks(); });
        if (field.isSecret())
            line->setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                                      Qt::ImhNoAutoUppercase | line->inputMethodHints());
    }
    return field;
}

void DWTBaseView::addShown(QLineEdit *control, const QString &key) {
    showAsValue(control);
    Field &field = append(control, key);
    if (field.setting->kind == Setting::Kind::Mac) showAsDigits(control);
    field.rule = nullptr;
    field.edited = false;
}

const Field *DWTBaseView::fieldOf(const QWidget *control) const {
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const Field &field) { return field.control == control; });
    return found == m_fields.end() ? nullptr : &*found;
}

void DWTBaseView::initializeUI() {
    notificationManager();
    for (const Field &field : m_fields)
        if (field.row && field.rule && field.rule->ruleKey)
            field.row->setRule(localized(field.rule->ruleKey));
    nameByLabels(view_Base);
    alignLabels();
    // In a narrow window the labels stand above their fields.
    for (QFormLayout *form : view_Base->findChildren<QFormLayout *>())
        form->setRowWrapPolicy(QFormLayout::WrapLongRows);
}

void DWTBaseView::alignLabels() {
    QList<QLabel *> labels;
    int width = 0;
    for (const QFormLayout *form : view_Base->findChildren<QFormLayout *>())
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLayoutItem *const item = form->itemAt(row, QFormLayout::LabelRole);
            auto *const label = item ? qobject_cast<QLabel *>(item->widget()) : nullptr;
            if (!label) continue;
            labels << label;
            width = std::max(width, label->sizeHint().width());
        }
    for (QLabel *label : labels) {
        label->setMinimumWidth(width);
        label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    }
}

void DWTBaseView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    for (const Field &field : m_fields) fill(field);
    m_said.clear();
    followSavedData();
}

void DWTBaseView::enableAllItems(bool enabled) {
    for (const Field &field : m_fields)
        if (field.edited) field.control->setEnabled(enabled);
}

void DWTBaseView::showForReading(bool reading) {
    keepLegible(view_Base, reading);
    for (const Field &field : m_fields) {
        if (field.row) field.row->showForReading(reading);
        if (auto *popup = qobject_cast<PopUpButton *>(field.control)) popup->showAsValue(reading);
        if (!field.edited || !field.line() || field.isSecret()) continue;
        showAsValue(field.line(), reading);
        if (reading) field.control->setEnabled(true);
    }
}

bool DWTBaseView::itemInputCheck() {
    updateMarks(true);
    bool passed = checkAddresses();
    for (const Field &field : m_fields) {
        if (field.isAddress()) continue;
        if (field.isNumber() && field.edited && field.control->isEnabled()) forceIntoRange(field);
        const QString rule = brokenRuleOf(field);
        if (rule.isEmpty()) continue;
        showInputError(field.name, rule);
        passed = false;
    }
    return passed;
}

bool DWTBaseView::checkAddresses() const {
    QStringList names, rules;
    for (const Field &field : m_fields) {
        const QString rule = brokenRuleOf(field);
        if (!field.isAddress() || rule.isEmpty()) continue;
        if (names.isEmpty()) {
            field.line()->setFocus();
            field.line()->selectAll();
        }
        names << field.name;
        rules << rule;
    }
    if (names.isEmpty()) return true;
    rules.prepend(pageName());
    showInputError(names.join(u'\n'), rules.join(u'\n'));
    return false;
}

void DWTBaseView::forceIntoRange(const Field &number) {
    if (isUnknown(number)) return;
    const Rules::Rule &rule = *number.rule;
    const int typed = integerOf(number.line()->text());
    const int value = Rules::numberInRange(number.line()->text(), rule);
    number.line()->setText(QString::number(value));
    if (value == typed) return;
    const auto *said = value == rule.min ? "DWT_Localize_Field_Least" : "DWT_Localize_Field_Most";
    m_said.insert(number.control, localized(said).arg(value));
}

bool DWTBaseView::passes(const Field &field) const {
    const Rules::Rule &rule = *field.rule;
    if (field.isAddress()) return itemInputCheckAddress(field.line(), !rule.loopback);
    const bool input = !field.input || *field.input;
    return itemInputCheckString(field.line(), rule.characters, rule.min, rule.max, input);
}

CategoryDictionary DWTBaseView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    for (const Field &field : m_fields) {
        if (!field.edited || !field.setting || !isUsed(field)) continue;
        if (!category.contains(field.key()) && field.isEmpty()) continue;
        if (const auto value = valueOf(field)) category.insert(field.key(), *value);
    }
    return category;
}

std::optional<SettingValue> DWTBaseView::valueOf(const Field &field) const {
    return isUnchangedText(field) ? textValue(savedCategory(), field.key()) : field.value();
}

bool DWTBaseView::isUnchangedText(const Field &field) const {
    const CategoryDictionary saved = savedCategory();
    return field.line() && field.setting && field.setting->kind == Setting::Kind::Text &&
           !textValue(saved, field.key()).isEmpty() && field.line()->text() == field.textOf(saved);
}

bool DWTBaseView::isUnknown(const Field &field) const {
    const CategoryDictionary saved = savedCategory();
    const auto known = saved.constFind(field.key());
    return ndm_Object && !ndm_Object->isReported(field.key()) && known != saved.constEnd() &&
           valueOf(field) == *known;
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
        field->row->setFault(faultOf(*field));
    }
    sendNotificationSendOK();
    return true;
}

void DWTBaseView::controlTextDidChange(TextField *control) {
    const Field *field = fieldOf(control);
    if (!field) return;
    m_said.remove(control);
    if (field->isAddress()) checkIPtextField(control);
    if (field->isNumber()) checkCountTextField(control);
    postSendState(itemCheckDifferentToDataManager(), true);
}

void DWTBaseView::showInputError(const QString &fieldName, const QString &rule) const {
    const QString kind = localized("DWT_Localize_Alert_MessageText_Error");
    Alert::runModal(alertStyle(), u"%1 %2"_s.arg(fieldName, kind), rule, view_Base);
}

bool DWTBaseView::store(const QWidget *control) {
    const Field &field = *fieldOf(control);
    if (field.isNumber()) forceIntoRange(field);
    mutableDictionary_ViewSettings.insert(field.key(), *valueOf(field));
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

// A choice may have changed which fields count.
void DWTBaseView::postSendState(bool unchanged, bool typing) {
    updateMarks();
    updateNotices(typing);
    updateChanges();
    NotificationCenter::shared().post(
        unchanged ? DWT_MainDialog_SendNG_Message : DWT_MainDialog_SendOK_Message, this);
}

void DWTBaseView::notificationManager() {
    for (const Field &field : m_fields)
        if (auto *control = qobject_cast<TextField *>(field.control)) control->setDelegate(this);
}

void DWTBaseView::offer(QComboBox *popup, const QStringList &keys, int firstCode) {
    popup->clear();
    for (const QString &key : keys) popup->addItem(localized(key), firstCode + popup->count());
}
