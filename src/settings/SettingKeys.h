#pragma once

#include "platform/core/Key.h"

// Every key of the setting record, of SSID entries and of the send notifications.

// Categories of the record, which are the pages that show them.
DWT_KEY(DWT_View_Key_Network);
DWT_KEY(DWT_View_Key_Wireless);
DWT_KEY(DWT_View_Key_Infrastructure);
DWT_KEY(DWT_View_Key_SimpleAP);
DWT_KEY(DWT_View_Key_Ethernet);
DWT_KEY(DWT_View_Key_Firmware);
DWT_KEY(DWT_View_Key_Password);

// Values of the categories.
DWT_KEY(DWT_SaveData_Network_Printer);
DWT_KEY(DWT_SaveData_Network_Bonjour);
DWT_KEY(DWT_SaveData_Network_BonjourService);
DWT_KEY(DWT_SaveData_Wireless_CommunicateMode);
DWT_KEY(DWT_SaveData_Wireless_InfrastructureMACAddress);
DWT_KEY(DWT_SaveData_Wireless_SampleAPMACAddress);
DWT_KEY(DWT_SaveData_Infrastructure_IPAddressSetting);
DWT_KEY(DWT_SaveData_Infrastructure_IPAddress);
DWT_KEY(DWT_SaveData_Infrastructure_Subnetmask);
DWT_KEY(DWT_SaveData_Infrastructure_Gateway);
DWT_KEY(DWT_SaveData_Connect_IPAddress);
DWT_KEY(DWT_SaveData_Connect_Subnetmask);
DWT_KEY(DWT_SaveData_Connect_Gateway);
DWT_KEY(DWT_SaveData_Infrastructure_WirelessMode);
DWT_KEY(DWT_SaveData_Infrastructure_Authentic);
DWT_KEY(DWT_SaveData_Infrastructure_Encryption);
DWT_KEY(DWT_SaveData_Infrastructure_SSID);
DWT_KEY(DWT_SaveData_Infrastructure_SSIDList_SSID);
DWT_KEY(DWT_SaveData_Infrastructure_WEPKey);
DWT_KEY(DWT_SaveData_Infrastructure_WEPKeyIndex);
DWT_KEY(DWT_SaveData_Infrastructure_PSK);
DWT_KEY(DWT_SaveData_SimpleAP_WirelessMode);
DWT_KEY(DWT_SaveData_SimpleAP_StartIPAddress);
DWT_KEY(DWT_SaveData_SimpleAP_IPAddress);
DWT_KEY(DWT_SaveData_SimpleAP_Subnetmask);
DWT_KEY(DWT_SaveData_SimpleAP_Authentic);
DWT_KEY(DWT_SaveData_SimpleAP_Encryption);
DWT_KEY(DWT_SaveData_SimpleAP_SSID);
DWT_KEY(DWT_SaveData_SimpleAP_PSK);
DWT_KEY(DWT_SaveData_Ethernet_MACAddress);
DWT_KEY(DWT_SaveData_Ethernet_IPAddressSetting);
DWT_KEY(DWT_SaveData_Ethernet_IPAddress);
DWT_KEY(DWT_SaveData_Ethernet_Subnetmask);
DWT_KEY(DWT_SaveData_Ethernet_Gateway);
DWT_KEY(DWT_SaveData_Firmware);
DWT_KEY(DWT_SaveData_Firmware_Timeout);
DWT_KEY(DWT_SaveData_Password_Change);
DWT_KEY(DWT_SaveData_Password_Password);

// Values of one network found by the printer: bytes, text, and four integers (the strength signed).
DWT_KEY(DWT_SSIDList_SSID);
DWT_KEY(DWT_SSIDList_SSID_String);
DWT_KEY(DWT_SSIDList_WirelessMode);
DWT_KEY(DWT_SSIDList_Authentic);
DWT_KEY(DWT_SSIDList_Encryption);
DWT_KEY(DWT_SSIDList_SignalStrength);

// Notifications of a send, and the floating-point numbers of their user information.
DWT_KEY(DWT_DataSend_Start_Message);
DWT_KEY(DWT_DataSend_Progress_Message);
// Before an item is written; DWT_DataSend_Setting names it beside the progress.
DWT_KEY(DWT_DataSend_Item_Message);
DWT_KEY(DWT_DataSend_Setting);
DWT_KEY(DWT_DataSend_Stop_Message);
DWT_KEY(MSW_Searching_Value_Minimum);
DWT_KEY(MSW_Searching_Value_Maximum);
DWT_KEY(MSW_Searching_Value_Current);
