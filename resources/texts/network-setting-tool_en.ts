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
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>Not tested yet</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>The printer answers</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>The printer does not answer</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>Test connection</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>Connection</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>State:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>Wired interface</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>MAC address:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>IP address</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>Automatic</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>Manual</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>IP address:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>Subnet mask:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>Default gateway:</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>Four numbers from 0 to 255 with dots between them, such as 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>Four numbers from 0 to 255 with dots between them, such as 255.255.255.0.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>The router's address: four numbers from 0 to 255 with dots between them.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>IP address</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>Subnet mask</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>Default gateway</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>Enter the IP address as four numbers from 0 to 255 with dots between them. 0.0.0.0, 127.0.0.1 and 255.255.255.255 are not possible.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>Enter the subnet mask as four numbers from 0 to 255 with dots between them. 0.0.0.0 and 255.255.255.255 are not possible.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>Enter the default gateway as four numbers from 0 to 255 with dots between them. 0.0.0.0 and 255.255.255.255 are not possible.</translation>
    </message>
</context>
</TS>
