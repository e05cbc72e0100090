// The networks that the printer sees, and the WPS guide.

#include <algorithm>

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/ViewKeys.h"
#include "mainwindow/WPSTexts.h"
#include "platform/core/Texts.h"
#include "platform/ui/Modal.h"

namespace {

// The communication mode in which the printer joins a network.
constexpr int infrastructureMode = 1;

// Weakest signals (dBm) that count as strong and as middle.
constexpr int strongSignal = -66;
constexpr int middleSignal = -74;

// How strong a signal is said to be: its text and its picture.
struct Intensity {
    const char *key;
    const char *picture;
};

Intensity intensityOf(const SSIDEntry &network) {
    const int strength = integerValue(network, DWT_SSIDList_SignalStrength);
    if (strength >= strongSignal)
        return {"DWT_Localize_SSIDList_Intensity_Strong", ":/pictures/signal-strong.svg"};
    if (strength >= middleSignal)
        return {"DWT_Localize_SSIDList_Intensity_Middle", ":/pictures/signal-middle.svg"};
    return {"DWT_Localize_SSIDList_Intensity_Low", ":/pictures/signal-low.svg"};
}

}  // namespace

void DWTMainSettingWindow::push_InfrastructureSelectSSID() {
    if (!dataManager_Object) dataManager_Object = make<DWTDataManager>();
    array_SSIDList.clear();
    if (wireless_ViewObject->wirelessCommunicateMode() != infrastructureMode) {
        showStandardAlert("DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID",
                          "DWT_Localize_Alert_MessageText_Warning",
                          "DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr");
        return;
    }
    {
        const WaitSheet waiting = wait(window_Main);
        array_SSIDList = dataManager_Object->SSIDList().value_or(QList<SSIDEntry>());
    }
    const auto stronger = [](const SSIDEntry &a, const SSIDEntry &b) {
        return integerValue(a, DWT_SSIDList_SignalStrength) >
               integerValue(b, DWT_SSIDList_SignalStrength);
    };
    std::stable_sort(array_SSIDList.begin(), array_SSIDList.end(), stronger);
    tableView_SelectSSIDWindow->deselectAll();
    tableView_SelectSSIDWindow->reloadData();
    button_SelectSSIDWindowOK->setEnabled(false);
    tableView_SelectSSIDWindow->setFocus();
    Modal::run(window_SelectSSID);
}

int DWTMainSettingWindow::numberOfRowsInTableView(TableView *) {
    return int(array_SSIDList.size());
}

QVariant DWTMainSettingWindow::objectValueForTableColumn(TableView *, const QString &column,
                                                         int row) {
    const SSIDEntry network = array_SSIDList.value(row);
    if (column == QStringLiteral("SSID")) return textValue(network, DWT_SSIDList_SSID_String);
    if (column == QStringLiteral("Security"))
        return localized(integerValue(network, DWT_SSIDList_Encryption) != 0
                             ? QStringLiteral("DWT_Localize_SSIDList_Security_YES")
                             : QStringLiteral("DWT_Localize_SSIDList_Security_NO"));
    if (column == QStringLiteral("Intensity"))
        return localized(QLatin1String(intensityOf(network).key));
    return {};
}

QIcon DWTMainSettingWindow::iconForTableColumn(TableView *, const QString &column, int row) {
    if (column != QStringLiteral("Intensity")) return {};
    return QIcon(QLatin1String(intensityOf(array_SSIDList.value(row)).picture));
}

bool DWTMainSettingWindow::selectionShouldChangeInTableView(TableView *) {
    return true;
}

void DWTMainSettingWindow::tableViewSelectionDidChange(TableView *table) {
    button_SelectSSIDWindowOK->setEnabled(table->selectedRow() >= 0);
}

void DWTMainSettingWindow::MSW_DoubleAction(int clickedRow) {
    if (clickedRow >= 0) MSW_SetSelectSSID();
}

void DWTMainSettingWindow::push_SelectSSIDWindowOK() {
    MSW_SetSelectSSID();
}

void DWTMainSettingWindow::push_SelectSSIDWindowCancel() {
    Modal::stop(window_SelectSSID);
    window_SelectSSID->hide();
}

// Taking a network over counts as a change, whatever the page held before.
void DWTMainSettingWindow::MSW_SetSelectSSID() {
    const int row = tableView_SelectSSIDWindow->selectedRow();
    if (row < 0) return;
    infrastructure_ViewObject->showSSIDFromSelectSSID(array_SSIDList.at(row));
    MSW_SendButtonEnable();
    Modal::stop(window_SelectSSID);
    window_SelectSSID->hide();
}

void DWTMainSettingWindow::push_InfrastructureWPSGuide() {
    MSW_WPSUISelector(DWT_View_Key_Main_WPS1);
    Modal::run(window_WPSGuide);
}

void DWTMainSettingWindow::MSW_WPSUISelector(const QString &viewKey) {
    if (viewKey == DWT_View_Key_Main_WPS2) setWPSPicture(*this);
    m_wpsViews->select(viewKey);
    m_wpsViews->focusFirstControl();
}

void DWTMainSettingWindow::push_WPSGuide1Next() {
    MSW_WPSUISelector(DWT_View_Key_Main_WPS2);
}

void DWTMainSettingWindow::push_WPSGuide1Exit() {
    closeWPSGuide();
}

void DWTMainSettingWindow::push_WPSGuide2Next() {
    closeWPSGuide();
}

void DWTMainSettingWindow::push_WPSGuide2Exit() {
    closeWPSGuide();
}

void DWTMainSettingWindow::closeWPSGuide() {
    Modal::stop(window_WPSGuide);
    window_WPSGuide->hide();
}
