#include "pages/DWTSimpleAPView.h"

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"
#include "settings/Codes.h"

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

// The key belongs to the encryption that the printer reports; without one there is none.
void DWTSimpleAPView::showDataManager() {
    DWTBaseView::showDataManager();
    const CategoryDictionary saved = savedCategory();
    const auto encryption = saved.constFind(DWT_SaveData_SimpleAP_Encryption);
    const bool isKnown = encryption != saved.constEnd();
    const int code = integerValue(saved, DWT_SaveData_SimpleAP_Encryption);
    textField_Label_PSK->setText(localized(isKnown && code == Encryption::WEP
                                               ? "DWT_Localize_Infrastructure_Text_WEPKey_Label"
                                               : "DWT_Localize_SimpleAP_Text_PSK_Label"));
    textField_SimpleAPPSK->setAccessibleName(nameInLabel(textField_Label_PSK->text()));
    showRow(textField_SimpleAPPSK, !isKnown || code != Encryption::None);
}

void DWTSimpleAPView::fill(const Field &field) {
    if (field.edited)
        field.showText(readableText(textValue(mutableDictionary_ViewSettings, field.key())));
    else
        DWTBaseView::fill(field);
}
