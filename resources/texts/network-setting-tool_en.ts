<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>OK</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>cannot be used</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>Printer name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>Enter 1 to 31 characters. A printer name consists of the letters A to Z and a to z, digits and hyphens, without spaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Bonjour name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>Enter 1 to 25 characters. A Bonjour name consists of the letters A to Z and a to z, digits and hyphens, without spaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Bonjour service name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>Enter 1 to 31 characters: letters A to Z and a to z, digits, spaces and the punctuation of a US keyboard. Accented letters are not possible.</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>Printer name</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Bonjour name:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>Service name:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>The name under which computers on the network reach the printer: 1 to 25 letters, digits and hyphens.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>The name that lists of printers show: 1 to 31 letters, digits, spaces and punctuation characters.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>The printer's own name: 1 to 31 letters, digits and hyphens.</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>Wireless LAN</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>Communication mode:</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>Infrastructure: join an existing wireless network</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>Access point: computers join the printer's own network</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>Off: no wireless LAN</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>MAC address (infrastructure):</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>MAC address (access point):</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>Software</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>Firmware version:</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>Print time-out</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>seconds (30 to 300)</translation>
    </message>
</context>
</TS>
