#include "pages/DWTPasswordView.h"

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

void DWTPasswordView::NPS_Dealloc() {}

bool DWTPasswordView::NPS_Init() {
    SetViewKey(DWT_View_Key_Password);
    setupUi(view_Base);
    addField(checkbox_PasswordChange, DWT_SaveData_Password_Change);
    const Field password = addField(secureTextField_Password, DWT_SaveData_Password_Password,
                                    nullptr, [this] { return itemInputCheckPassword(); });
    Field &again = addField(secureTextField_PasswordReinput, {}, nullptr,
                            [this] { return itemInputCheckPasswordReinput(); });
    again.rule = password.rule;
    again.name = localized("DWT_Localize_Alert_MessageText_Password_Reinput");
    connect(checkbox_PasswordChange, &QCheckBox::clicked, this,
            &DWTPasswordView::push_PasswordChange);
    connect(checkbox_PasswordRemove, &QCheckBox::clicked, this,
            &DWTPasswordView::push_PasswordRemove);
    // The fields report no typing.
    for (const auto *field : {secureTextField_Password, secureTextField_PasswordReinput})
        connect(field, &QLineEdit::textChanged, this, &DWTPasswordView::followSavedData);
    return true;
}

void DWTPasswordView::initializeUI() {
    DWTBaseView::initializeUI();
    // The longest password, and the button inside.
    for (auto *field : {secureTextField_Password, secureTextField_PasswordReinput})
        fitWidth(field, QString(Rules::longestPassword + 5, u'M'));
    enableFields(false);
    showPasswordState({});
}

void DWTPasswordView::showPasswordState(int state) {
    m_state = state;
    const auto *said = "DWT_Localize_Password_State_Unknown";
    if (state == PasswordState::Set) said = "DWT_Localize_Password_State_Set";
    if (state == PasswordState::NotSet) said = "DWT_Localize_Password_State_NotSet";
    textField_PasswordState->setText(localized(said));
    checkbox_PasswordRemove->setEnabled(m_enabled && state != PasswordState::NotSet);
}

void DWTPasswordView::enableAllItems(bool enabled) {
    m_enabled = enabled;
    checkbox_PasswordChange->setEnabled(enabled);
    checkbox_PasswordRemove->setEnabled(enabled && m_state != PasswordState::NotSet);
    enableFields(enabled && checkbox_PasswordChange->isChecked());
}

bool DWTPasswordView::itemInputCheck() {
    if (!secureTextField_Password->isEnabled()) return true;
    if (!DWTBaseView::itemInputCheck()) return false;
    const QString fault = faultOfBoth();
    if (!fault.isEmpty()) showInputError(passwordName(), fault);
    return fault.isEmpty();
}

QString DWTPasswordView::faultOfBoth() const {
    if (!fieldsAgree()) return localized("DWT_Localize_Alert_InfoText_Password_MatchingErr");
    if (!secureTextField_Password->text().isEmpty()) return {};
    return localized("DWT_Localize_Alert_InfoText_Password_Missing");
}

// The two fields are compared where the password is confirmed.
QString DWTPasswordView::faultOf(const Field &field) const {
    const QString broken = DWTBaseView::faultOf(field);
    const bool isLast = field.control == secureTextField_PasswordReinput;
    return isLast && broken.isEmpty() && field.control->isEnabled() ? faultOfBoth() : broken;
}

QString DWTPasswordView::noticeOf(const Field &field) const {
    const auto *secret = qobject_cast<const DWTSecureTextField *>(field.control);
    if (secret && secret->hasRefused()) return localized("DWT_Localize_Password_TooLong");
    return DWTBaseView::noticeOf(field);
}

void DWTPasswordView::putBack(const Field &field) {
    emptyFields();
    DWTBaseView::putBack(field);
}

void DWTPasswordView::revert() {
    passwordChangeSetting(false);
    DWTBaseView::revert();
}

CategoryDictionary DWTPasswordView::shownCategory() const {
    CategoryDictionary category = DWTBaseView::shownCategory();
    if (checkbox_PasswordRemove->isChecked()) {
        category.insert(DWT_SaveData_Password_Change, 1);
        category.insert(DWT_SaveData_Password_Password, QString());
    }
    return category;
}

void DWTPasswordView::passwordChangeSetting(bool on) {
    checkbox_PasswordChange->setChecked(on);
    checkbox_PasswordRemove->setChecked(false);
    if (!on) emptyFields();
    enableFields(on);
    mutableDictionary_ViewSettings.insert(DWT_SaveData_Password_Change, on ? 1 : 0);
    mutableDictionary_ViewSettings.insert(DWT_SaveData_Password_Password, QString());
    handOver(mutableDictionary_ViewSettings);
    sendNotificationSendOK();
}

void DWTPasswordView::clearPassword(bool) {
    emptyFields();
    checkbox_PasswordChange->setChecked(false);
    checkbox_PasswordRemove->setChecked(false);
    enableFields(false);
}

void DWTPasswordView::push_PasswordChange() {
    passwordChangeSetting(checkbox_PasswordChange->isEnabled() &&
                          checkbox_PasswordChange->isChecked());
}

void DWTPasswordView::push_PasswordRemove() {
    const bool removes = checkbox_PasswordRemove->isChecked();
    passwordChangeSetting(false);
    checkbox_PasswordRemove->setChecked(removes);
    itemSetToDataManager();
    sendNotificationSendOK();
}

void DWTPasswordView::enableFields(bool enabled) {
    // The second first, so that the first does not hand it the focus.
    secureTextField_PasswordReinput->setEnabled(enabled);
    secureTextField_Password->setEnabled(enabled);
}

void DWTPasswordView::emptyFields() {
    secureTextField_Password->forget();
    secureTextField_PasswordReinput->forget();
}
