#include "pages/DWTWirelessView.h"

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

DWTWirelessView::~DWTWirelessView() {
    NWL_Dealloc();
}

bool DWTWirelessView::init() {
    return DWTBaseView::init() && NWL_Init();
}

void DWTWirelessView::initializeUI() {
    box_WirelessLANInfomation->setTitle(
        localized(QStringLiteral("DWT_Localize_Wireless_Box_WirelessLANInfomation")));
    textField_Label_WirelessCommunicateMode->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_CommunicateMode_Label")));
    buttonCell_WirelessInfrastructure->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_Infrastructure_Label")));
    buttonCell_WirelessSimpleA->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_SimpleAP_Label")));
    buttonCell_WirelessWifiNothing->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_WifiNothing_Label")));
    textField_Label_WirelessInfrastructureMACAddress->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label")));
    textField_Label_WirelessSimpleAPMACAddress->setText(
        localized(QStringLiteral("DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label")));
    showAsDigits(textField_WirelessInfrastructureMACAddress);
    showAsDigits(textField_WirelessSimpleAPMACAddress);
}

void DWTWirelessView::showDataManager() {
    const CategoryDictionary saved = savedCategory();
    if (saved.isEmpty()) return;
    radioButton_WirelessCommunicateMode->selectTag(
        integerValue(saved, DWT_SaveData_Wireless_CommunicateMode));
    if (saved.contains(DWT_SaveData_Wireless_InfrastructureMACAddress))
        textField_WirelessInfrastructureMACAddress->setText(
            textValue(saved, DWT_SaveData_Wireless_InfrastructureMACAddress));
    if (saved.contains(DWT_SaveData_Wireless_SampleAPMACAddress))
        textField_WirelessSimpleAPMACAddress->setText(
            textValue(saved, DWT_SaveData_Wireless_SampleAPMACAddress));
}

void DWTWirelessView::enableAllItems(bool enabled) {
    radioButton_WirelessCommunicateMode->setEnabled(enabled);
}

bool DWTWirelessView::itemInputCheck() {
    return true;
}

void DWTWirelessView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTWirelessView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

int DWTWirelessView::wirelessCommunicateMode() const {
    return radioButton_WirelessCommunicateMode->selectedTag();
}

bool DWTWirelessView::NWL_Init() {
    SetViewKey(DWT_View_Key_Wireless);
    view_Base = new QWidget;
    setupUi(view_Base);
    connect(radioButton_WirelessCommunicateMode, &RadioGroup::selected, this,
            &DWTWirelessView::select_WirelessCommunicateMode);
    return true;
}

// The page holds nothing of its own.
void DWTWirelessView::NWL_Dealloc() {}

void DWTWirelessView::select_WirelessCommunicateMode() {
    itemSetToDataManager();
    sendNotificationSendOK();
}

// The saved category with the mode that is chosen now. A code that no choice stands for stays.
CategoryDictionary DWTWirelessView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    const int mode = wirelessCommunicateMode();
    if (mode >= 0) category.insert(DWT_SaveData_Wireless_CommunicateMode, mode);
    return category;
}
