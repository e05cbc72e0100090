// The networks that the printer sees, the WPS guide, and the connection test.

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/WPSGuideWindow.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

// Taking a network over counts as a change, whatever the page held before.
void DWTMainSettingWindow::push_InfrastructureSelectSSID() {
    if (!dataManager_Object) dataManager_Object = make<DWTDataManager>();
    if (wireless_ViewObject->wirelessCommunicateMode() != CommunicationMode::Infrastructure) {
        showStandardAlert("DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID",
                          "DWT_Localize_Alert_MessageText_Warning",
                          "DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr");
        return;
    }
    const auto picked =
        window_SelectSSID->pick([this](QWidget *over) { return networksInReach(over); });
    if (!picked) return;
    infrastructure_ViewObject->showSSIDFromSelectSSID(*picked);
    MSW_SendButtonEnable();
    followEdits();
    infrastructure_ViewObject->focusNextEntry();
}

NetworkList::Found DWTMainSettingWindow::networksInReach(QWidget *over) {
    const WaitSheet waiting = window_Wait->over(over);
    const auto networks = dataManager_Object->SSIDList([this](int polls, int total) {
        const auto left = DWTDataManager::defaultScanInterval * (total - polls);
        window_Wait->say(localized("DWT_Localize_Wait_Searching")
                             .arg(std::chrono::ceil<std::chrono::seconds>(left).count()),
                         polls, total);
    });
    if (networks && !networks->isEmpty()) return {networks, {}};
    if (isWaitCancelled()) return {{}, u"DWT_Localize_SSIDList_Cancelled"_s};
    if (networks) return {networks, u"DWT_Localize_SSIDList_Empty"_s};
    showStandardAlert("DWT_Localize_Alert_MessageText_Dowline",
                      "DWT_Localize_Alert_MessageText_Error",
                      "DWT_Localize_Alert_InfoText_Printer_ConnectErr");
    return {{}, u"DWT_Localize_SSIDList_NotReached"_s};
}

void DWTMainSettingWindow::push_InfrastructureWPSGuide() {
    window_WPSGuide->run();
}

void DWTMainSettingWindow::checkConnection(InterfaceView &page, const QString &settingKey,
                                           const QString &addressKey) {
    const WaitSheet waiting = window_Wait->over(window_Main);
    if (!dataManager_Object) dataManager_Object = make<DWTDataManager>();
    QStringList address = page.getipAddressArray();
    if (const auto saved = dataManager_Object->setupDataToMainView(page.viewKey())) {
        const bool fixed = integerValue(*saved, settingKey) != AddressSetting::Automatic;
        address = addressValue(*saved, fixed ? addressKey : DWT_SaveData_Connect_IPAddress);
    }
    const bool answered = dataManager_Object->isCheckConnectToPrinter(address) >= 0;
    if (!isWaitCancelled()) page.showConnectResult(answered);
}
