#include "pages/DWTPasswordView.h"

#include "pages/CharacterSets.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

namespace {

constexpr int longestPassword = 8;

}  // namespace

DWTPasswordView::~DWTPasswordView() {
    NPS_Dealloc();
}

bool DWTPasswordView::init() {
    return DWTBaseView::init() && NPS_Init();
}

void DWTPasswordView::initializeUI() {
    checkbox_PasswordChange->setText(
        localized(QStringLiteral("DWT_Localize_Password_Text_PasswordChange_Label")));
    box_AdministratorPassword->setTitle(
        localized(QStringLiteral("DWT_Localize_Password_Box_AdministratorPassword")));
    textField_Label_Password->setText(
        localized(QStringLiteral("DWT_Localize_Password_Text_Password_Label")));
    textField_Label_Reinput->setText(
        localized(QStringLiteral("DWT_Localize_Password_Text_Reinput_Label")));
    textField_PasswordInfo->setText(
        localized(QStringLiteral("DWT_Localize_Password_Text_PasswordInfomation")));
    textField_Label_Cautions->setText(
        localized(QStringLiteral("DWT_Localize_Password_Text_Cautions_Label")));
    secureTextField_Password->setToolTip(
        localized(QStringLiteral("DWT_ToolChip_Password_Text_Password")));
    secureTextField_PasswordReinput->setToolTip(
        localized(QStringLiteral("DWT_ToolChip_Password_Text_Reinput")));
    // Eight mask characters, and room to see that there is no more.
    fitWidth(secureTextField_Password, QString(longestPassword, u'M'));
    fitWidth(secureTextField_PasswordReinput, QString(longestPassword, u'M'));
    enableFields(false);
}

void DWTPasswordView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
}

void DWTPasswordView::enableAllItems(bool enabled) {
    checkbox_PasswordChange->setEnabled(enabled);
    enableFields(enabled && checkbox_PasswordChange->isChecked());
}

bool DWTPasswordView::itemInputCheck() {
    if (!secureTextField_Password->isEnabled()) return true;
    const QString name = QStringLiteral("DWT_Localize_Alert_MessageText_Password_Password");
    Alert alert(Alert::Style::Warning);
    const bool password = checkField(alert, secureTextField_Password, name);
    const bool repeated =
        checkField(alert, secureTextField_PasswordReinput,
                   QStringLiteral("DWT_Localize_Alert_MessageText_Password_Reinput"));
    if (!password || !repeated) return false;
    if (secureTextField_Password->text() == secureTextField_PasswordReinput->text()) return true;
    showInputError(alert, localized(name),
                   localized(QStringLiteral("DWT_Localize_Alert_InfoText_Password_MatchingErr")));
    return false;
}

void DWTPasswordView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTPasswordView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

void DWTPasswordView::passwordChangeSetting(bool on) {
    checkbox_PasswordChange->setChecked(on);
    enableFields(on);
    if (!on) emptyFields();
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

bool DWTPasswordView::textShouldEndEditing(TextField *control) {
    if (control == secureTextField_Password) itemInputCheckPassword();
    if (control == secureTextField_PasswordReinput) itemInputCheckPasswordReinput();
    sendNotificationSendOK();
    return true;
}

bool DWTPasswordView::NPS_Init() {
    SetViewKey(DWT_View_Key_Password);
    mutableDictionary_ViewSettings.clear();
    view_Password = new QWidget;
    view_Base = view_Password;
    setupUi(view_Password);
    secureTextField_Password->setDelegate(this);
    secureTextField_PasswordReinput->setDelegate(this);
    connect(checkbox_PasswordChange, &QCheckBox::clicked, this,
            &DWTPasswordView::push_PasswordChange);
    return true;
}

void DWTPasswordView::NPS_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    if (!view_Password) return;
    secureTextField_Password->setDelegate(nullptr);
    secureTextField_PasswordReinput->setDelegate(nullptr);
}

void DWTPasswordView::push_PasswordChange() {
    passwordChangeSetting(checkbox_PasswordChange->isEnabled() &&
                          checkbox_PasswordChange->isChecked());
}

bool DWTPasswordView::itemInputCheckPassword() {
    if (secureTextField_Password->text() != secureTextField_PasswordReinput->text()) return true;
    mutableDictionary_ViewSettings.insert(DWT_SaveData_Password_Password,
                                          secureTextField_Password->text());
    handOver(mutableDictionary_ViewSettings);
    return true;
}

bool DWTPasswordView::itemInputCheckPasswordReinput() {
    return itemInputCheckPassword();
}

void DWTPasswordView::enableFields(bool enabled) {
    secureTextField_Password->setEnabled(enabled);
    secureTextField_PasswordReinput->setEnabled(enabled);
}

void DWTPasswordView::emptyFields() {
    secureTextField_Password->clear();
    secureTextField_PasswordReinput->clear();
}

bool DWTPasswordView::checkField(Alert &alert, const TextField *field,
                                 const QString &messageKey) const {
    if (itemInputCheckString(field, passwordCharacters, 0, longestPassword, true)) return true;
    showInputError(alert, localized(messageKey),
                   localized(QStringLiteral("DWT_Localize_Alert_InfoText_Password_InputErr")));
    return false;
}

// The saved category with the state of the box and what stands in the first field now.
CategoryDictionary DWTPasswordView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    category.insert(DWT_SaveData_Password_Change, checkbox_PasswordChange->isChecked() ? 1 : 0);
    category.insert(DWT_SaveData_Password_Password, secureTextField_Password->text());
    return category;
}
