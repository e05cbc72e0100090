#include "pages/DWTEthernetView.h"

bool DWTEthernetView::ETV_Init() {
    SetViewKey(DWT_View_Key_Ethernet);
    setupUi(view_Base);
    addShown(textField_EthernetMACAddress, DWT_SaveData_Ethernet_MACAddress);
    addField(radioButton_EthernetIPAddressSetting, DWT_SaveData_Ethernet_IPAddressSetting);
    addAddress(textField_EthernetIpAddress, DWT_SaveData_Ethernet_IPAddress,
               DWT_SaveData_Connect_IPAddress, &bool_EthernetIPAddressInput,
               [this] { return itemInputCheckEthernetIpAddress(); });
    addAddress(textField_EthernetSubnetMask, DWT_SaveData_Ethernet_Subnetmask,
               DWT_SaveData_Connect_Subnetmask, &bool_EthernetSubnetMaskInput,
               [this] { return itemInputCheckEthernetSubnetMask(); });
    addAddress(textField_EthernetDefaultGateway, DWT_SaveData_Ethernet_Gateway,
               DWT_SaveData_Connect_Gateway, &bool_EthernetGatewayInput,
               [this] { return itemInputCheckEthernetGateway(); });
    setControls({radioButton_EthernetIPAddressSetting, textField_EthernetIpAddress,
                 textField_EthernetConnection, button_EthernetConnect, textField_EthernetWhyNot,
                 "DWT_Localize_Ethernet_Text_Connection_Online",
                 "DWT_Localize_Ethernet_Text_Connection_Offline"});
    connect(radioButton_EthernetIPAddressSetting, &RadioGroup::selected, this,
            &DWTEthernetView::select_EthernetAddressSetup);
    return true;
}

void DWTEthernetView::ETV_Dealloc() {}
