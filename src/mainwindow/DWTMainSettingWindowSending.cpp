// Sending: from the Send button through login and confirmation to the end.

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/SendDialog.h"
#include "mainwindow/WaitWindow.h"

void DWTMainSettingWindow::push_MainSend() {
    if (!checkAndStorePages()) return;
    warnOfChangedConnection();
    window_SendData->runOn(sendViewAskingPassword());
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
    const WaitSheet waiting = window_Wait->over(window_Main);
    switch (dataManager_Object->isPassword()) {
        case PasswordState::Set:
            window_SendData->clearPassword();
            return DWT_View_Key_Send_Login;
        case PasswordState::NotSet:
            return DWT_View_Key_Send_Confirm;
        default:
            return DWT_View_Key_Send_ConnectError;
    }
}

void DWTMainSettingWindow::push_SendLoginOK() {
    const auto answer = [this] {
        const WaitSheet waiting = window_Wait->over(window_SendData);
        if (dataManager_Object->connectPrinter() != 0) return DWT_View_Key_Send_Login;
        const int login = dataManager_Object->checkLoginPassword(window_SendData->password());
        dataManager_Object->disconnectPrinter();
        return login == LoginResult::Accepted ? DWT_View_Key_Send_Confirm
                                              : DWT_View_Key_Send_LoginError;
    };
    window_SendData->MSW_SendUISelector(answer());
}

void DWTMainSettingWindow::push_SendConfirmTransmission() {
    window_SendData->showProgress();
    dataManager_Object->sendDataToPrinter();
}

void DWTMainSettingWindow::push_SendEndOK() {
    window_SendData->closeDialog();
    MSW_ClearTextField();
    password_ViewObject->passwordChangeSetting(false);
    MSW_SendButtonDisable();
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
