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
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>Set a new administrator password</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>Administrator password</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>New password:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>Repeat it:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>With an administrator password, settings can be changed only after a login.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>Leave both fields empty to remove the password. Keep a note of a new one: it cannot be read from the printer.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>Up to 8 letters, digits and punctuation characters; no spaces.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>The same password again.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>New password</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>Repeated password</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>Enter at most 8 characters: letters A to Z and a to z, digits and ! &quot; # $ % &amp; ' ( ) * + , - . / { | } ~ , without spaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>The two passwords differ. Type the same password in both fields.</translation>
    </message>
</context>
</TS>
