#include "pages/DWTEthernetView.h"

#include "platform/ui/FieldLooks.h"

void DWTEthernetView::initializeUI() {
    InterfaceView::initializeUI();
    showAsDigits(textField_EthernetMACAddress);
}

bool DWTEthernetView::ETV_Init() {
    SetViewKey(DWT_View_Key_Ethernet);
    setupUi(view_Base);
    addShown(textField_EthernetMACAddress, DWT_SaveData_Ethernet_MACAddress);
    addField({radioButton_EthernetIPAddressSetting, DWT_SaveData_Ethernet_IPAddressSetting,
              Kind::Choice, "DWT_Localize_Ethernet_Box_IPAddressSetup"});
    addField({textField_EthernetIpAddress, DWT_SaveData_Ethernet_IPAddress, Kind::Address,
              "DWT_Localize_Alert_MessageText_Ethernet_IpAddress",
              "DWT_Localize_Alert_InfoText_IpAddress_InputErr", &bool_EthernetIPAddressInput,
              [this] { return itemInputCheckEthernetIpAddress(); }});
    addField({textField_EthernetSubnetMask, DWT_SaveData_Ethernet_Subnetmask, Kind::Address,
              "DWT_Localize_Alert_MessageText_Ethernet_SubnetMask",
              "DWT_Localize_Alert_InfoText_Subnetmask_InputErr", &bool_EthernetSubnetMaskInput,
              [this] { return itemInputCheckEthernetSubnetMask(); }});
    addField({textField_EthernetDefaultGateway, DWT_SaveData_Ethernet_Gateway, Kind::Address,
              "DWT_Localize_Alert_MessageText_Ethernet_Gateway",
              "DWT_Localize_Alert_InfoText_Router_InputErr", &bool_EthernetGatewayInput,
              [this] { return itemInputCheckEthernetGateway(); }});
    setControls({radioButton_EthernetIPAddressSetting, textField_EthernetIpAddress,
                 textField_EthernetSubnetMask, textField_EthernetDefaultGateway,
                 textField_EthernetConnection, button_EthernetConnect,
                 "DWT_Localize_Ethernet_Text_Connection_Online",
                 "DWT_Localize_Ethernet_Text_Connection_Offline"});
    connect(radioButton_EthernetIPAddressSetting, &RadioGroup::selected, this,
            &DWTEthernetView::select_EthernetAddressSetup);
    return true;
}
