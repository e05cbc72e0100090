#include "pages/DWTSimpleAPView.h"

#include "platform/core/PropertyList.h"

bool DWTSimpleAPView::SAP_Init() {
    SetViewKey(DWT_View_Key_SimpleAP);
    setupUi(view_Base);
    addShown(textField_SimpleAPWirelessLanMode, DWT_SaveData_SimpleAP_WirelessMode, Kind::Choice,
             &array_textField_WirelessMode);
    addShown(textField_SimpleAPDHCPServer, {});
    addShown(textField_SimpleAPStartIpAddress, DWT_SaveData_SimpleAP_StartIPAddress, Kind::Address);
    addShown(textField_SimpleAPIpAddress, DWT_SaveData_SimpleAP_IPAddress, Kind::Address);
    addShown(textField_SimpleAPSubnetMask, DWT_SaveData_SimpleAP_Subnetmask, Kind::Address);
    addShown(textField_SimpleAPAuthentic, DWT_SaveData_SimpleAP_Authentic, Kind::Choice,
             &array_textField_Authentic);
    addShown(textField_SimpleAPEncryption, DWT_SaveData_SimpleAP_Encryption, Kind::Choice,
             &array_textField_Encryption);
    addField({textField_SimpleAPSSID, DWT_SaveData_SimpleAP_SSID, Kind::Text,
              &bool_SimpleAPSSIDInput, [this] { return itemInputCheckSimpleAPSSID(); }});
    addField({textField_SimpleAPPSK, DWT_SaveData_SimpleAP_PSK, Kind::Text, &bool_SimpleAPPSKInput,
              [this] { return itemInputCheckSimpleAPPSK(); }});
    return true;
}

void DWTSimpleAPView::SAP_Dealloc() {
    mutableDictionary_ViewSettings.clear();
}

void DWTSimpleAPView::initializeUI() {
    DWTBaseView::initializeUI();
    dictionary_itemData =
        PropertyList::dictionary(QStringLiteral("SimpleAPItemData"), QStringLiteral("plist"));
    array_textField_WirelessMode =
        itemList(dictionary_itemData, "DWT_Item_Key_SimpleAP_WirelessMode");
    array_textField_Authentic = itemList(dictionary_itemData, "DWT_Item_Key_SimpleAP_Authentic");
    array_textField_Encryption = itemList(dictionary_itemData, "DWT_Item_Key_SimpleAP_Encryption");
    notificationManager();
}

void DWTSimpleAPView::fill(const Field &field) {
    if (field.edited)
        fillText(field, readableText(textValue(mutableDictionary_ViewSettings, field.key)));
    else
        DWTBaseView::fill(field);
}
