#include "pages/DWTSimpleAPView.h"

#include "platform/ui/FieldLooks.h"

bool DWTSimpleAPView::SAP_Init() {
    SetViewKey(DWT_View_Key_SimpleAP);
    setupUi(view_Base);
    showAsValue(textField_SimpleAPDHCPServer);
    addShown(textField_SimpleAPWirelessLanMode, DWT_SaveData_SimpleAP_WirelessMode);
    addShown(textField_SimpleAPStartIpAddress, DWT_SaveData_SimpleAP_StartIPAddress);
    addShown(textField_SimpleAPIpAddress, DWT_SaveData_SimpleAP_IPAddress);
    addShown(textField_SimpleAPSubnetMask, DWT_SaveData_SimpleAP_Subnetmask);
    addShown(textField_SimpleAPAuthentic, DWT_SaveData_SimpleAP_Authentic);
    addShown(textField_SimpleAPEncryption, DWT_SaveData_SimpleAP_Encryption);
    addField(textField_SimpleAPSSID, DWT_SaveData_SimpleAP_SSID, &bool_SimpleAPSSIDInput,
             [this] { return itemInputCheckSimpleAPSSID(); });
    addField(textField_SimpleAPPSK, DWT_SaveData_SimpleAP_PSK, &bool_SimpleAPPSKInput,
             [this] { return itemInputCheckSimpleAPPSK(); });
    return true;
}

void DWTSimpleAPView::SAP_Dealloc() {}

void DWTSimpleAPView::fill(const Field &field) {
    if (field.edited)
        field.showText(readableText(textValue(mutableDictionary_ViewSettings, field.key())));
    else
        DWTBaseView::fill(field);
}
