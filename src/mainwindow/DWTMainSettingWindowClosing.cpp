// Closing, cancelling and reading again.

#include <algorithm>

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/SendDialog.h"
#include "mainwindow/WaitWindow.h"

namespace {

// What every closing says but that of a window whose printer could not be read.
const QVariantMap selectorStaysHidden{{DWT_IsShowPrinterSelectDialog_Flag, false}};

}  // namespace

bool DWTMainSettingWindow::windowShouldClose() {
    if (!MSW_AppClose()) return false;
    if (m_open) closeMainWindow(selectorStaysHidden);  // after the changes were sent, or not
    return true;
}

bool DWTMainSettingWindow::hasUnsentChanges() const {
    const auto differs = [](const std::shared_ptr<DWTBaseView> &page) {
        return !page->itemCheckDifferentToDataManager();
    };
    return bool_usbPrinter && bool_GetDataSuccess &&
           std::any_of(dictionary_ViewManagement.cbegin(), dictionary_ViewManagement.cend(),
                       differs);
}

bool DWTMainSettingWindow::MSW_AppClose() {
    if (hasUnsentChanges())
        return window_SendData->runOn(DWT_View_Key_Send_ChangeCheck, m_session->name()) !=
               SendDialog::stay;
    closeMainWindow(selectorStaysHidden);
    return true;
}

void DWTMainSettingWindow::closeMainWindow(const QVariantMap &userInfo) {
    m_open = false;
    window_Main->hide();
    NotificationCenter::shared().post(DWT_MainDialog_Close_Message, this, userInfo);
}

void DWTMainSettingWindow::push_SendChangeCheckReflect() {
    window_SendData->closeDialog();
    if (checkAndStorePages()) askToSend(shownPlan());
}

void DWTMainSettingWindow::push_SendChangeCheckNoReflect() {
    window_SendData->closeDialog();
    closeMainWindow(selectorStaysHidden);
}

void DWTMainSettingWindow::push_MainNewSetting() {
    if (bool_usbPrinter && bool_GetDataSuccess) {
        if (const auto shown = MSW_SelectedUIString())
            dictionary_ViewManagement[*shown]->itemSetToDataManager();
        if (!dataManager_Object->isEqualToSaveData()) {
            window_SendData->runOn(DWT_View_Key_Send_UpdateCheck, m_session->name());
            return;
        }
    }
    readAgain();
}

void DWTMainSettingWindow::push_UpdateChangeCheckOK() {
    window_SendData->closeDialog();
    readAgain();
}

void DWTMainSettingWindow::readAgain() {
    const WaitSheet waiting = window_Wait->over(window_Main);
    initializeData(std::nullopt, window_Wait);
    MSW_ClearTextField();
    MSW_SendButtonDisable();
    followEdits();
}
