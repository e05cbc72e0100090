// Sending: from the Send button through login and confirmation to the end, and the connection test.

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/ViewKeys.h"
#include "platform/ui/Modal.h"

namespace {

// Results of isPassword() and checkLoginPassword().
constexpr int passwordIsSet = 2;
constexpr int noPasswordIsSet = 3;
constexpr int loginAccepted = 4;

}  // namespace

void DWTMainSettingWindow::push_MainSend() {
    if (!checkAndStorePages()) return;
    warnOfChangedConnection();
    openSendDialog(sendViewAskingPassword());
}

// Asks every page, so that each shows what is wrong on it. False when something is.
bool DWTMainSettingWindow::checkAndStorePages() {
    bool passed = true;
    for (const auto &page : dictionary_ViewManagement) passed &= page->itemInputCheck();
    if (!passed) return false;
    for (const auto &page : dictionary_ViewManagement) page->itemSetToDataManager();
    return true;
}

void DWTMainSettingWindow::warnOfChangedConnection() {
    for (const auto &page : dictionary_ViewManagement) {
        if (page->itemConnectChangeCheck()) continue;
        showStandardAlert("DWT_Localize_Alert_MessageText_Dowline",
                          "DWT_Localize_Alert_MessageText_Warning",
                          "DWT_Localize_Alert_InfoText_ChangeSetting_Warning");
        return;
    }
}

// The view with which the dialog opens, by whether the printer has a password.
QString DWTMainSettingWindow::sendViewAskingPassword() {
    const WaitSheet waiting = wait(window_Main);
    switch (dataManager_Object->isPassword()) {
        case passwordIsSet:
            textField_Password->clear();
            return DWT_View_Key_Send_Login;
        case noPasswordIsSet:
            return DWT_View_Key_Send_Confirm;
        default:
            return DWT_View_Key_Send_ConnectError;
    }
}

void DWTMainSettingWindow::push_SendLoginOK() {
    const auto answer = [this] {
        const WaitSheet waiting = wait(window_SendData);
        if (dataManager_Object->connectPrinter() != 0) return DWT_View_Key_Send_Login;
        const int login = dataManager_Object->checkLoginPassword(textField_Password->text());
        dataManager_Object->disconnectPrinter();
        return login == loginAccepted ? DWT_View_Key_Send_Confirm : DWT_View_Key_Send_LoginError;
    };
    MSW_SendUISelector(answer());
}

void DWTMainSettingWindow::push_SendLoginCancel() {
    closeSendDialog();
}

void DWTMainSettingWindow::push_SendLoginErrorOK() {
    MSW_SendUISelector(DWT_View_Key_Send_Login);
}

void DWTMainSettingWindow::push_SendConfirmTransmission() {
    progress_SendProgress->reset();
    MSW_SendUISelector(DWT_View_Key_Send_Progress);
    dataManager_Object->sendDataToPrinter();
}

void DWTMainSettingWindow::push_SendConfirmCancel() {
    closeSendDialog();
}

void DWTMainSettingWindow::push_SendEndOK() {
    closeSendDialog();
    MSW_ClearTextField();
    password_ViewObject->passwordChangeSetting(false);
    MSW_SendButtonDisable();
}

void DWTMainSettingWindow::push_SendConnectErrorOK() {
    closeSendDialog();
}

void DWTMainSettingWindow::MSW_SendUISelector(const QString &viewKey) {
    m_sendViews->select(viewKey);
    m_sendViews->focusFirstControl();
}

int DWTMainSettingWindow::openSendDialog(const QString &viewKey) {
    MSW_SendUISelector(viewKey);
    return Modal::run(window_SendData);
}

void DWTMainSettingWindow::closeSendDialog() {
    Modal::stop(window_SendData);
    window_SendData->hide();
}

void DWTMainSettingWindow::MSW_DataSendStart(const Notification &notification) {
    MSW_SetProgressInfo(notification.userInfo);
}

void DWTMainSettingWindow::MSW_DataSendProgress(const Notification &notification) {
    MSW_SetProgressInfo(notification.userInfo);
}

void DWTMainSettingWindow::MSW_DataSendStop(const Notification &notification) {
    MSW_SetProgressInfo(notification.userInfo);
    const bool ran = notification.userInfo.value(MSW_Searching_Value_Current).toDouble() == 0;
    MSW_SendUISelector(ran ? DWT_View_Key_Send_End : DWT_View_Key_Send_ConnectError);
}

void DWTMainSettingWindow::MSW_SetProgressInfo(const QVariantMap &progress) {
    const auto number = [&](const QString &key) { return qRound(progress.value(key).toDouble()); };
    progress_SendProgress->setRange(number(MSW_Searching_Value_Minimum),
                                    number(MSW_Searching_Value_Maximum));
    progress_SendProgress->setValue(number(MSW_Searching_Value_Current));
}

void DWTMainSettingWindow::MSW_SendButtonEnable() {
    button_MainSend->setEnabled(true);
    infrastructure_ViewObject->settingConnectButtonEnable(false);
    ethernet_ViewObject->settingConnectButtonEnable(false);
}

void DWTMainSettingWindow::MSW_SendButtonDisable() {
    button_MainSend->setEnabled(false);
    infrastructure_ViewObject->settingConnectButtonEnable(true);
    ethernet_ViewObject->settingConnectButtonEnable(true);
}

void DWTMainSettingWindow::MSW_ClearTextField() {
    infrastructure_ViewObject->clearEncryptionKey(bool_usbPrinter);
    password_ViewObject->clearPassword(bool_usbPrinter);
}

void DWTMainSettingWindow::push_EthernetConnect() {
    checkConnection(*ethernet_ViewObject, DWT_SaveData_Ethernet_IPAddressSetting,
                    DWT_SaveData_Ethernet_IPAddress);
}

void DWTMainSettingWindow::push_InfrastructureConnect() {
    checkConnection(*infrastructure_ViewObject, DWT_SaveData_Infrastructure_IPAddressSetting,
                    DWT_SaveData_Infrastructure_IPAddress);
}

template <typename Page>
void DWTMainSettingWindow::checkConnection(Page &page, const QString &settingKey,
                                           const QString &addressKey) {
    const WaitSheet waiting = wait(window_Main);
    if (!dataManager_Object) dataManager_Object = make<DWTDataManager>();
    QStringList address = page.getipAddressArray();
    if (const auto saved = dataManager_Object->setupDataToMainView(page.viewKey())) {
        const bool fixed = integerValue(*saved, settingKey) != 0;
        address = addressValue(*saved, fixed ? addressKey : DWT_SaveData_Connect_IPAddress);
    }
    page.showConnectResult(dataManager_Object->isCheckConnectToPrinter(address) >= 0);
}

WaitSheet DWTMainSettingWindow::wait(QWidget *parent) {
    return WaitSheet(window_Wait, parent, progress_Wait);
}
