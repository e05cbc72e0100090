#include "pages/DWTWirelessView.h"

#include "platform/ui/RadioGroup.h"

bool DWTWirelessView::NWL_Init() {
    SetViewKey(DWT_View_Key_Wireless);
    setupUi(view_Base);
    addChoice(radioButton_WirelessCommunicateMode, DWT_SaveData_Wireless_CommunicateMode,
              "DWT_Localize_Wireless_Text_CommunicateMode_Label");
    addShown(textField_WirelessInfrastructureMACAddress,
             DWT_SaveData_Wireless_InfrastructureMACAddress, Kind::Mac);
    addShown(textField_WirelessSimpleAPMACAddress, DWT_SaveData_Wireless_SampleAPMACAddress,
             Kind::Mac);
    connect(radioButton_WirelessCommunicateMode, &RadioGroup::selected, this,
            &DWTWirelessView::select_WirelessCommunicateMode);
    return true;
}

void DWTWirelessView::select_WirelessCommunicateMode() {
    itemSetToDataManager();
    sendNotificationSendOK();
}

void DWTWirelessView::NWL_Dealloc() {
    mutableDictionary_ViewSettings.clear();
}
