// What stands beside and below the fields: faults, notices, changes, and the way back from a
// change.

#include <QLabel>
#include <QLayout>

#include "pages/DWTBaseView.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldRow.h"
#include "platform/ui/MaskedField.h"
#include "settings/Values.h"

void DWTBaseView::followSavedData() {
    updateNotices();
    updateChanges();
}

void DWTBaseView::showRow(const QWidget *control, bool on) {
    FieldRow *const row = fieldOf(control)->row;
    row->setVisible(on);
    for (auto *label : view_Base->findChildren<QLabel *>())
        if (label->buddy() == control) label->setVisible(on);
    // A layout that is not visible does not lay out by itself what comes back.
    row->parentWidget()->layout()->activate();
}

void DWTBaseView::coverSecrets() {
    for (auto *secret : view_Base->findChildren<MaskedField *>()) secret->cover();
}

void DWTBaseView::revert() {
    for (const Field &field : m_fields) {
        if (field.row) field.row->setFault({});
        restore(field);
    }
    handOver(savedCategory());
    showDataManager();
    sendNotificationSendOK();
}

void DWTBaseView::putBack(const Field &field) {
    field.row->setFault({});
    restore(field);
    handOver(mutableDictionary_ViewSettings);
    sendNotificationSendOK();
}

void DWTBaseView::restore(const Field &field) {
    if (!field.edited) return;
    const CategoryDictionary saved = savedCategory();
    mutableDictionary_ViewSettings.remove(field.key());
    if (saved.contains(field.key()))
        mutableDictionary_ViewSettings.insert(field.key(), saved.value(field.key()));
    m_said.remove(field.control);
    auto *const line = qobject_cast<TextField *>(field.control);
    if (line && field.isSecret()) line->forget();
    fill(field);
}

QString DWTBaseView::brokenRuleOf(const Field &field) const {
    const bool counts = field.rule && !field.isNumber() && field.control->isEnabled();
    if (!counts || isUnchangedText(field) || (field.isAddress() && isUnknown(field)) ||
        passes(field))
        return {};
    return localized(field.rule->ruleKey);
}

void DWTBaseView::updateMarks(bool all) {
    for (const Field &field : m_fields) {
        auto *const control = qobject_cast<TextField *>(field.control);
        if (control && field.row && (all || !control->fault().isEmpty()))
            field.row->setFault(faultOf(field));
    }
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

void DWTBaseView::updateNotices(bool typing) {
    for (const Field &field : m_fields)
        if (field.row && (!typing || field.row->hasNotice())) field.row->setNotice(noticeOf(field));
}

QString DWTBaseView::noticeOf(const Field &field) const {
    if (m_said.contains(field.control) || !ndm_Object) return m_said.value(field.control);
    const SettingRecord saved = ndm_Object->savedData();
    SettingRecord shown = saved;
    shown[string_ViewKey] = shownCategory();
    for (const SendWarning &warning : ownWarnings() + warningsOf(saved, shown))
        if (warning.viewKey == string_ViewKey && warning.key == field.key())
            return wordsOf(warning);
    return {};
}

void DWTBaseView::updateChanges() {
    for (const Field &field : m_fields)
        if (field.row)
            field.row->setChange(
                changeOf(field),
                localized("DWT_Localize_Field_Reset").arg(nameInLabel(field.name)));
}

QString DWTBaseView::changeOf(const Field &field) const {
    const CategoryDictionary saved = savedCategory();
    const bool isMissing = !saved.contains(field.key());
    if (!field.edited || !field.setting || !isUsed(field) || (isMissing && field.isEmpty()))
        return {};
    const auto shown = valueOf(field);
    if (!shown || (!isMissing && isSame(*shown, saved.value(field.key())))) return {};
    if (field.isSecret()) return localized("DWT_Localize_Outline_Changed");
    return localized("DWT_Localize_Field_Changed").arg(textOrEmpty(*field.setting, saved));
}
