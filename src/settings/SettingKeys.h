#pragma once

#include <QString>

// Every key of the setting record, of SSID entries and of the send notifications. A constant has
// the name of its value, so that a key is looked for in one way everywhere.

// Categories of the record, which are the pages that show them.
inline const QString DWT_View_Key_Network = QStringLiteral("DWT_View_Key_Network");
inline const QString DWT_View_Key_Wireless = QStringLiteral("DWT_View_Key_Wireless");
inline const QString DWT_View_Key_Infrastructure = QStringLiteral("DWT_View_Key_Infrastructure");
inline const QString DWT_View_Key_SimpleAP = QStringLiteral("DWT_View_Key_SimpleAP");
inline const QString DWT_View_Key_Ethernet = QStringLiteral("DWT_View_Key_Ethernet");
inline const QString DWT_View_Key_Firmware = QStringLiteral("DWT_View_Key_Firmware");
inline const QString DWT_View_Key_Password = QStringLiteral("DWT_View_Key_Password");

// Values of the categories.
inline const QString DWT_SaveData_Network_Printer = QStringLiteral("DWT_SaveData_Network_Printer");
inline const QString DWT_SaveData_Network_Bonjour = QStringLiteral("DWT_SaveData_Network_Bonjour");
inline const QString DWT_SaveData_Network_BonjourService =
    QStringLiteral("DWT_SaveData_Network_BonjourService");
inline const QString DWT_SaveData_Wireless_CommunicateMode =
    QStringLiteral("DWT_SaveData_Wireless_CommunicateMode");
inline const QString DWT_SaveData_Wireless_InfrastructureMACAddress =
    QStringLiteral("DWT_SaveData_Wireless_InfrastructureMACAddress");
inline const QString DWT_SaveData_Wireless_SampleAPMACAddress =
    QStringLiteral("DWT_SaveData_Wireless_SampleAPMACAddress");
inline const QString DWT_SaveData_Infrastructure_IPAddressSetting =
    QStringLiteral("DWT_SaveData_Infrastructure_IPAddressSetting");
inline const QString DWT_SaveData_Infrastructure_IPAddress =
    QStringLiteral("DWT_SaveData_Infrastructure_IPAddress");
inline const QString DWT_SaveData_Infrastructure_Subnetmask =
    QStringLiteral("DWT_SaveData_Infrastructure_Subnetmask");
inline const QString DWT_SaveData_Infrastructure_Gateway =
    QStringLiteral("DWT_SaveData_Infrastructure_Gateway");
inline const QString DWT_SaveData_Connect_IPAddress =
    QStringLiteral("DWT_SaveData_Connect_IPAddress");
inline const QString DWT_SaveData_Connect_Subnetmask =
    QStringLiteral("DWT_SaveData_Connect_Subnetmask");
inline const QString DWT_SaveData_Connect_Gateway = QStringLiteral("DWT_SaveData_Connect_Gateway");
inline const QString DWT_SaveData_Infrastructure_WirelessMode =
    QStringLiteral("DWT_SaveData_Infrastructure_WirelessMode");
inline const QString DWT_SaveData_Infrastructure_Authentic =
    QStringLiteral("DWT_SaveData_Infrastructure_Authentic");
inline const QString DWT_SaveData_Infrastructure_Encryption =
    QStringLiteral("DWT_SaveData_Infrastructure_Encryption");
inline const QString DWT_SaveData_Infrastructure_SSID =
    QStringLiteral("DWT_SaveData_Infrastructure_SSID");
inline const QString DWT_SaveData_Infrastructure_SSIDList_SSID =
    QStringLiteral("DWT_SaveData_Infrastructure_SSIDList_SSID");
inline const QString DWT_SaveData_Infrastructure_WEPKey =
    QStringLiteral("DWT_SaveData_Infrastructure_WEPKey");
inline const QString DWT_SaveData_Infrastructure_WEPKeyIndex =
    QStringLiteral("DWT_SaveData_Infrastructure_WEPKeyIndex");
inline const QString DWT_SaveData_Infrastructure_PSK =
    QStringLiteral("DWT_SaveData_Infrastructure_PSK");
inline const QString DWT_SaveData_SimpleAP_WirelessMode =
    QStringLiteral("DWT_SaveData_SimpleAP_WirelessMode");
inline const QString DWT_SaveData_SimpleAP_StartIPAddress =
    QStringLiteral("DWT_SaveData_SimpleAP_StartIPAddress");
inline const QString DWT_SaveData_SimpleAP_IPAddress =
    QStringLiteral("DWT_SaveData_SimpleAP_IPAddress");
inline const QString DWT_SaveData_SimpleAP_Subnetmask =
    QStringLiteral("DWT_SaveData_SimpleAP_Subnetmask");
inline const QString DWT_SaveData_SimpleAP_Authentic =
    QStringLiteral("DWT_SaveData_SimpleAP_Authentic");
inline const QString DWT_SaveData_SimpleAP_Encryption =
    QStringLiteral("DWT_SaveData_SimpleAP_Encryption");
inline const QString DWT_SaveData_SimpleAP_SSID = QStringLiteral("DWT_SaveData_SimpleAP_SSID");
inline const QString DWT_SaveData_SimpleAP_PSK = QStringLiteral("DWT_SaveData_SimpleAP_PSK");
inline const QString DWT_SaveData_Ethernet_MACAddress =
    QStringLiteral("DWT_SaveData_Ethernet_MACAddress");
inline const QString DWT_SaveData_Ethernet_IPAddressSetting =
    QStringLiteral("DWT_SaveData_Ethernet_IPAddressSetting");
inline const QString DWT_SaveData_Ethernet_IPAddress =
    QStringLiteral("DWT_SaveData_Ethernet_IPAddress");
inline const QString DWT_SaveData_Ethernet_Subnetmask =
    QStringLiteral("DWT_SaveData_Ethernet_Subnetmask");
inline const QString DWT_SaveData_Ethernet_Gateway =
    QStringLiteral("DWT_SaveData_Ethernet_Gateway");
inline const QString DWT_SaveData_Firmware = QStringLiteral("DWT_SaveData_Firmware");
inline const QString DWT_SaveData_Firmware_Timeout =
    QStringLiteral("DWT_SaveData_Firmware_Timeout");
inline const QString DWT_SaveData_Password_Change = QStringLiteral("DWT_SaveData_Password_Change");
inline const QString DWT_SaveData_Password_Password =
    QStringLiteral("DWT_SaveData_Password_Password");

// Values of one network found by the printer: bytes, text, and four integers (the strength signed).
inline const QString DWT_SSIDList_SSID = QStringLiteral("DWT_SSIDList_SSID");
inline const QString DWT_SSIDList_SSID_String = QStringLiteral("DWT_SSIDList_SSID_String");
inline const QString DWT_SSIDList_WirelessMode = QStringLiteral("DWT_SSIDList_WirelessMode");
inline const QString DWT_SSIDList_Authentic = QStringLiteral("DWT_SSIDList_Authentic");
inline const QString DWT_SSIDList_Encryption = QStringLiteral("DWT_SSIDList_Encryption");
inline const QString DWT_SSIDList_SignalStrength = QStringLiteral("DWT_SSIDList_SignalStrength");

// Notifications of a send, and the floating-point numbers of their user information.
inline const QString DWT_DataSend_Start_Message = QStringLiteral("DWT_DataSend_Start_Message");
inline const QString DWT_DataSend_Progress_Message =
    QStringLiteral("DWT_DataSend_Progress_Message");
inline const QString DWT_DataSend_Stop_Message = QStringLiteral("DWT_DataSend_Stop_Message");
inline const QString MSW_Searching_Value_Minimum = QStringLiteral("MSW_Searching_Value_Minimum");
inline const QString MSW_Searching_Value_Maximum = QStringLiteral("MSW_Searching_Value_Maximum");
inline const QString MSW_Searching_Value_Current = QStringLiteral("MSW_Searching_Value_Current");
