#include "pages/DWTWirelessView.h"

#include "platform/ui/RadioGroup.h"

bool DWTWirelessView::NWL_Init() {
    SetViewKey(DWT_View_Key_Wireless);
    setupUi(view_Base);
    addField(radioButton_WirelessCommunicateMode, DWT_SaveData_Wireless_CommunicateMode);
    addShown(textField_WirelessInfrastructureMACAddress,
             DWT_SaveData_Wireless_InfrastructureMACAddress);
    addShown(textField_WirelessSimpleAPMACAddress, DWT_SaveData_Wireless_SampleAPMACAddress);
    connect(radioButton_WirelessCommunicateMode, &RadioGroup::selected, this,
            &DWTWirelessView::select_WirelessCommunicateMode);
    return true;
}

void DWTWirelessView::select_WirelessCommunicateMode() {
    itemSetToDataManager();
    sendNotificationSendOK();
}

void DWTWirelessView::NWL_Dealloc() {}
