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
    return true;
}

void DWTPasswordView::initializeUI() {
    DWTBaseView::initializeUI();
    // Eight mask characters, and room to see that there is no more.
    fitWidth(secureTextField_Password, QString(Rules::longestPassword, u'M'));
    fitWidth(secureTextField_PasswordReinput, QString(Rules::longestPassword, u'M'));
    enableFields(false);
}

void DWTPasswordView::enableAllItems(bool enabled) {
    checkbox_PasswordChange->setEnabled(enabled);
    enableFields(enabled && checkbox_PasswordChange->isChecked());
}

bool DWTPasswordView::itemInputCheck() {
    if (!secureTextField_Password->isEnabled()) return true;
    if (!DWTBaseView::itemInputCheck()) return false;
    if (fieldsAgree()) return true;
    showInputError(passwordName(), localized("DWT_Localize_Alert_InfoText_Password_MatchingErr"));
    return false;
}

// The two fields are compared where the password is confirmed.
QString DWTPasswordView::faultOf(const Field &field) const {
    QString broken = DWTBaseView::faultOf(field);
    if (!broken.isEmpty() || field.control != secureTextField_PasswordReinput ||
        !field.control->isEnabled() || fieldsAgree())
        return broken;
    return localized("DWT_Localize_Alert_InfoText_Password_MatchingErr");
}

void DWTPasswordView::passwordChangeSetting(bool on) {
    checkbox_PasswordChange->setChecked(on);
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
    enableFields(false);
}

void DWTPasswordView::push_PasswordChange() {
    passwordChangeSetting(checkbox_PasswordChange->isEnabled() &&
                          checkbox_PasswordChange->isChecked());
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
