#include "settings/SentItems.h"

#include <algorithm>

#include "settings/SettingKeys.h"

// Made at the first look-up, when every key exists.
const QList<SentItem> &sentItems() {
    using Kind = SentItem::Kind;
    static const QList<SentItem> items{
        {0x1003, Kind::Text, DWT_View_Key_Password, {DWT_SaveData_Password_Password}, false},
        {0x1004, Kind::Text, DWT_View_Key_Network, {DWT_SaveData_Network_Bonjour}},
        {0x1005, Kind::Text, DWT_View_Key_Network, {DWT_SaveData_Network_BonjourService}},
        {0x1006, Kind::Text, DWT_View_Key_Network, {DWT_SaveData_Network_Printer}},
        {0x2001,
         Kind::Interface,
         DWT_View_Key_Ethernet,
         {DWT_SaveData_Ethernet_IPAddressSetting, DWT_SaveData_Ethernet_IPAddress,
          DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Ethernet_Gateway}},
        {0x3000, Kind::Integer, DWT_View_Key_Wireless, {DWT_SaveData_Wireless_CommunicateMode}},
        {0x3102,
         Kind::Integer,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_Authentic}},
        {0x3103,
         Kind::Integer,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_Encryption}},
        {0x3104,
         Kind::CountedText,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_SSID}},
        {0x3105,
         Kind::CountedText,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_PSK},
         false},
        {0x3106,
         Kind::WEPKey,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_WEPKeyIndex, DWT_SaveData_Infrastructure_WEPKey},
         false},
        {0x3108,
         Kind::Interface,
         DWT_View_Key_Infrastructure,
         {DWT_SaveData_Infrastructure_IPAddressSetting, DWT_SaveData_Infrastructure_IPAddress,
          DWT_SaveData_Infrastructure_Subnetmask, DWT_SaveData_Infrastructure_Gateway}},
        {0x3201, Kind::CountedText, DWT_View_Key_SimpleAP, {DWT_SaveData_SimpleAP_SSID}},
        {0x3202, Kind::CountedText, DWT_View_Key_SimpleAP, {DWT_SaveData_SimpleAP_PSK}},
        {0x1007, Kind::Integer, DWT_View_Key_Firmware, {DWT_SaveData_Firmware_Timeout}}};
    return items;
}

const SentItem *sentItem(ItemCode code) {
    const auto found = std::find_if(sentItems().begin(), sentItems().end(),
                                    [code](const SentItem &item) { return item.code == code; });
    return found == sentItems().end() ? nullptr : &*found;
}
