<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>cannot be used</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>Printer name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>1 to 31 characters: letters A to Z and a to z, digits and hyphens, no spaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Bonjour name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>1 to 25 characters: letters A to Z and a to z, digits and hyphens, no spaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Bonjour service name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>1 to 31 characters: letters A to Z and a to z, digits, spaces, punctuation of a US keyboard.</translation>
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
        <translation>The name under which computers on the network reach the printer.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>The name that lists of printers show.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>The printer’s own name.</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>Wireless network</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>Communication mode:</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>&amp;Infrastructure: join an existing wireless network</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>Access point: computers &amp;join the printer’s own network</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>&amp;Off: no wireless network</translation>
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
        <translation>Print timeout</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>seconds (30 to 300)</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>Set to %1, the least.</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>Set to %1, the most.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>Set a &amp;new administrator password</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>Re&amp;move the password</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>Administrator password</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>New password:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>Confirm password:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>When an administrator password is set, settings can be changed only after logging in.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>The printer has an administrator password now.</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>The printer has no administrator password now.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>It is not known whether the printer has an administrator password now.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>Keep a note of a new password: it cannot be read from the printer.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>The password that will be asked for before settings are changed.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>The same password again.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>New password</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>Password confirmation</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>At most 8 characters, no spaces: letters A to Z and a to z, digits and ! " # $ % &amp; ' ( ) * + , - . / { | } ~</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>The passwords do not match. Type the same password in both fields.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>Enter the new password, or choose “Remove the password”.</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>8 characters at most: the rest is not taken.</translation>
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
        <translation>&amp;Test connection</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>A test is possible once the changes are sent or undone.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>Wired connection</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>Status:</translation>
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
        <translation>A&amp;utomatic (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>Fi&amp;xed address</translation>
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
        <translation>The printer’s own address, four numbers with dots between them, such as 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>Says which addresses belong to the printer’s network.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>The router’s address.</translation>
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
        <translation>An address from 0.0.0.1 to 255.255.255.254, but not 127.0.0.1.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>A mask from 0.0.0.1 to 255.255.255.254, such as 255.255.255.0.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>An address from 0.0.0.1 to 255.255.255.254.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>Wireless connection</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>Status:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>Not tested yet</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>The printer answers</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>The printer does not answer</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>&amp;Test connection</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>Wireless standard:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_B">
        <translation>IEEE 802.11b</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_BG">
        <translation>IEEE 802.11b/g</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_BGN">
        <translation>IEEE 802.11b/g/n</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_FieldIntensity_Label">
        <translation>Signal strength:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>IP address</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>A&amp;utomatic (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>Fi&amp;xed address</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>IP address:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>Subnet mask:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>Default gateway:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>The printer’s own address, four numbers with dots between them, such as 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>Says which addresses belong to the printer’s network.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>The router’s address.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>Network and security</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>Authentication:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>Encryption:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>Open system</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>Shared key</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>None</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_WEP">
        <translation>WEP</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_TKIP">
        <translation>TKIP</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_AES">
        <translation>AES</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_1">
        <translation>Key 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>Key 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>Key 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>Key 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>WPS &amp;guide</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>Network name (SSID):</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>The name of the wireless network.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>Ch&amp;oose…</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>WPA key:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>The network’s pre-shared key (password).</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>WEP key:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>The network’s WEP key.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>WEP key number:</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>IP address</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>Subnet mask</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>Default gateway</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>Network name (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>1 to 32 characters: letters A to Z and a to z, digits, spaces, punctuation of a US keyboard. A network with another name can be chosen from the list.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>WPA key</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>8 to 63 characters: letters A to Z and a to z, digits, spaces, punctuation of a US keyboard.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>WEP key</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 or 13 characters (letters, digits, spaces, punctuation of a US keyboard), or 10 or 26 hexadecimal digits (0 to 9, A to F).</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>Access point</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>Wireless standard:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessMode_B">
        <translation>IEEE 802.11b</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessMode_BG">
        <translation>IEEE 802.11b/g</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessMode_BGN">
        <translation>IEEE 802.11b/g/n</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_DHCPSetup">
        <translation>Address assignment</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>DHCP server:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>On: the printer assigns addresses</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>IP address</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>First address assigned:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>Printer’s address:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>Subnet mask:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>Network and security</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>Authentication:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>Open system</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>Shared key</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>Encryption:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>None</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_WEP">
        <translation>WEP</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_TKIP">
        <translation>TKIP</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_AES">
        <translation>AES</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SSID_Label">
        <translation>Network name (SSID):</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>WPA key:</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>What follows DIRECT- in the network’s name.</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>The key (password) with which computers join.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>Network name (SSID) of the access point</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>1 to 25 characters: letters A to Z and a to z, digits, spaces, punctuation of a US keyboard.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>WPA key of the access point</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>Network Setting Tool</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – Network Setting Tool</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>Send to %1</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>Unsent changes of %1</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>Networks found by %1</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>WPS guide for %1</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>The tool is running already, but does not answer. End it, then start it again.</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>Please wait…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>&amp;Send to printer…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>&amp;Close</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>&amp;Read again</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>He&amp;lp</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>Printer:</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>This printer is connected over the network, so its settings can only be viewed. To change them, connect the printer over USB.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>Not every setting could be read, so nothing can be changed. Check that the printer is switched on and connected, then choose “Read again”.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>The printer did not report these settings; they are not sent until you enter something for them: %1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>read at %1</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>no address</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>The values shown are those read at %1.</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>Categories</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>Printer settings</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>Device</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>Names</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>Wired network</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>Wireless network</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>Infrastructure</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>Access point</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>Password</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>Connection to the printer</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– please note</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>The printer’s settings could not be read. Check that it is switched on, that its cable is plugged in, and that no other program is using it, then try again.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>You have changed a name or an address by which the printer is reached. Once the settings have been sent, computers that still use the old one will no longer find the printer.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>List of networks</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>The printer can look for networks only in infrastructure mode. Choose “Infrastructure” on the “Wireless network” page first.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>Some changes have not been sent to the printer.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>&amp;Send</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>Close &amp;without sending</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>Send the changes before closing?</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>Some changes have not been sent to the printer. Reading the settings again discards them.</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>&amp;Discard and read again</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>Discard the changes?</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>Do not switch the printer off or unplug it while the changes are sent.</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>&amp;Send</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>Send these changes to %1?</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>Do not switch the printer off or unplug it.</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>Sending to %1</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1 – not answered for %2 s</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>The printer has accepted the settings.</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>Sent to %1</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>Sent and verified</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>Sent to %1, but not verified</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 did not take every setting</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>Nothing was sent to %1</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>The connection to %1 was lost</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>Settings that the printer did not take</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>Not changed by you</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>refused (code %1)</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>cannot be sent</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>no answer</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>different</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>Enter the administrator password of the printer.</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 is protected</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>Password:</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>&amp;Log in</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>The printer did not accept this password. Passwords are case-sensitive: check Caps Lock.</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>Wrong password</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>&amp;Try again</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>Nothing was sent, and your changes are kept. Check that the printer is switched on and that its cable is plugged in, then send again.</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>%1 cannot be reached</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>Wireless networks found by the printer.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>Network name (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>Protected</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>Signal</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>Yes</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>No</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>Strong</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>Medium</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>Weak</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>&amp;Use this network</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>With WPS, the printer joins a wireless network without entering a key. Prepare both devices:</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>Switch the printer on, and place it near the wireless router.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>Find the WPS button of the router. It is often marked WPS or with two curved arrows; the router’s manual shows it.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>A router without WPS cannot be used in this way; enter the network’s name and key instead.</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>&amp;Next</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>&amp;Back</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>&amp;Close</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>Start WPS in the printer’s own menu, then press the WPS button of the router within two minutes. When the printer’s wireless light stays on, it is connected.</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>&amp;Finish</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>&amp;Back</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>&amp;Close</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>This tool reads and changes the network settings of a label printer: its names, its wired and wireless network, and its administrator password. The next steps help you to connect the printer.</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>&amp;Continue</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>&amp;Quit</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>How do you want to connect the printer?</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>Over &amp;USB, to enter its settings in this tool</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>&amp;To a wireless network, with WPS</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>&amp;Next</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>&amp;Quit</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>Connect the printer to this computer with a USB cable and switch it on. Then choose “Next” to find it.</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>&amp;Next</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>Choose the printer whose settings you want to see. Settings can be changed only on a printer that is connected over USB.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>&amp;Open</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>&amp;Look again</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>&amp;Close</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>Co&amp;nnect a printer…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>Printer</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>Connection</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>Network</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>&amp;File</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>&amp;Open</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>&amp;Look again</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>&amp;Save settings…</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>&amp;Apply a file…</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>&amp;Print…</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>Settings (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>The settings could not be saved</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>The file cannot be applied</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>Send or revert the changes on the pages first.</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>The printer already has all settings of the file</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… and %1 more</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>&amp;Quit</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>&amp;Edit</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>Cu&amp;t</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>&amp;Copy</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>&amp;Paste</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>Select &amp;all</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>&amp;Revert page</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>&amp;View</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>&amp;Minimize</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>&amp;Close</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>&amp;Help</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>&amp;About Network Setting Tool</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>Reads and changes the network settings of label printers.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>No printer was found. Check that the printer is switched on and connected to this computer with a USB cable, or that it is on the same network. Then choose “Look again”.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>Looking for printers…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 is connected, but you have no permission to use it. Log in at this computer itself, or ask its administrator to install the USB rule of this tool; then plug the printer in again.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>%1 is in use by another program. Close that program, then choose “Look again”.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>This file cannot be used, at least not all of it: %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>Printers on the network are not found: the discovery service (Avahi) of this computer is not running.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>serial number %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>USB port %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>Reads and changes the network settings of label printers.

Usage: %1 [-Installer] [--demo] [--help] [--version]

  -Installer  begin with a guide to connecting a printer; list USB printers only
  --demo      list the demo printers, which live inside the program
  --help      show this text and exit
  --version   show the version and exit</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>A value on this page cannot be used</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>Changed, not sent yet</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>Changed. The printer has: %1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>Undo the change of %1 (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>The printer does not use these settings in the communication mode that is chosen on the “Wireless network” page.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>at most 8 characters</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>What will change</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>Setting</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>Now</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>New</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>Sent</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>In the printer</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>Result</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>new</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>removed</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>(empty)</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>The network “%1” is protected, but no key was entered. The printer keeps its old key.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>The security of the network “%1” is not known. Choose its authentication.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 is not a usual subnet mask. Computers may not reach the printer.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>The default gateway %1 is outside the printer’s subnet. Other networks may not reach the printer.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>In this communication mode, the printer can no longer be reached at its current address %1.</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>unchanged</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>Key of “%1”</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>Show the key</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>Show the password</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>No printer was found. Check that the printer is switched on and connected to this computer with a USB cable. Then choose “Look again”.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>No printer was found over USB, and printers on the network cannot be looked for. Check that the printer is switched on and connected to this computer with a USB cable. Then choose “Look again”.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>The catalogue lists no printers. Enter printers in the file that ZMLIB_PRINTERS names, then start this tool again.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>No printer can be used at the moment. The messages below say why.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>No printer matches the filter.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>Filter by name, model or address</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>The printer found no wireless network. Press F5 to search again.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>The printer could not be reached. Press F5 to search again.</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>Sort (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>Clear</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>&amp;Printer</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>&amp;Send to printer…</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>&amp;Read again</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>&amp;Test connection</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>&amp;Choose a network…</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>Printer &amp;list</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>&amp;Connect a printer…</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>Report faults to %1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>&amp;Show window</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>The tool keeps running without a window.</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>Show the printers</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>&amp;Cancel</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>Progress</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>Reading %1, %2 of %3</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>Searching for networks, about %1 s left</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>Reading was cancelled, so nothing can be changed. Choose “Read again” to go on.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>The search was cancelled. Press F5 to search again.</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>Copy all &amp;settings</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>Address assignment</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>Drawing: a label printer that is connected wirelessly</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>Drawing: a printer, connected to a computer with a USB cable and to a wireless router by radio</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>Drawing: a USB cable between a computer and a printer</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>Drawing: a printer beside a wireless router, whose WPS button stands out</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>Drawing: an arrow points to the WPS button of a wireless router, and printer and router exchange radio signals</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>Reads and changes the network settings of label printers.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>List the printers on USB and on the network.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>Show every setting of a printer but keys and passwords.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>Show the values of some settings of a printer.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>List the names of all settings, and what each may be.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>Show in which settings two printers or files differ.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>Say everything that is wrong with a file of settings or a table.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>Change one printer by a file of settings.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>Change some settings of one printer.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>Change every printer on USB that has a row in a table.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>Let a printer look for wireless networks.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>Show what the program, or a command, can do.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>Example:</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER is a printer’s name, serial number, MAC or IP address, or a URI of the list. FILE holds settings in JSON; “-” is standard input.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>Ends with 0 done, 1 used wrongly, 2 input refused, 3 printer not found or not reached, 4 login refused, 5 settings not taken over, 6 stopped, 7 would change (with --exit-code).</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>“network-setting COMMAND --help” shows the options of a command.</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>print JSON</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>only what can be changed, by the names of files</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>only say what would change</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>end with 7 when something would change</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>do not ask before changing</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>only these settings or groups: wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>leave out these settings or groups: names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>only printers that are plugged in now; the default without a terminal</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>wait at most so long for printers that are not there</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>send network keys always, or when-changed: only with the network or its security (the default)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>the administrator password is the first line of F</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>settings for every printer of the table</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>add a row for each printer to this file</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>do a printer again that is plugged in again</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>“network-setting --help” shows what can be done.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>“network-setting %1 --help” shows what it takes.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>Which command? None is given.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>There is no command “%1”.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>There is no option “%1”.</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>Is “%1” meant?</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>Those of this group are: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>“%1” takes no value.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>“--keys” cannot be “%1”. One of these is expected: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>“--timeout” needs a number of seconds.</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>“%1” needs %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>“%1” takes no further argument: “%2”.</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>The output could not be written.</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>IP address in use</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>Subnet mask in use</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>Default gateway in use</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>line %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>column %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>This is not valid JSON here.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>This is nested too deep for settings.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>The text is not UTF-8. Save the file as UTF-8.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>This is not valid CSV here: a quotation mark is missing or too many.</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>Faults that are not listed: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 is longer than %2 MiB.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>There is no setting of this name.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>There is no setting of this name, and it is none of mac, serial and name.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>This setting cannot be changed.</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>Only shown; it cannot be changed.</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>“%1” is never shown.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>This name is given twice.</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>A key or password is no argument, which others could see. “NAME=@FILE” takes the first line of a file.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>NAME=VALUE is expected.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>An object with settings is expected here.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>A text in quotation marks is expected.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>A text in quotation marks or {"file": "..."} is expected.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>2 to 64 hexadecimal digits are expected, two a byte.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>A whole number from %1 to %2 is expected.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>One of these is expected: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>A MAC address of 12 hexadecimal digits is expected.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>This row should have %1 cells; it has %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>One of the columns mac, serial and name must tell which printer a row is for.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>This row does not tell which printer it is for: mac, serial and name are empty.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>The table has no rows.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>This printer is in line %1 already.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>This address is in line %1 already.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>The encryption %1 does not go with the authentication %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>This key is not used with the encryption %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>The number of a WEP key can be given only together with wireless.wepKey.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>This address is used only with the mode “fixed”.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>No printer was found.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>The printer found no wireless network.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>There is no printer “%1”. “network-setting list” shows the printers.</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>“%1” stands for several printers. Give the URI of one of these:</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 is on the network. Settings can be changed only on a printer that is connected over USB.</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>%1 is in use by another program. Close that program, then try again.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>%1 cannot be reached. Check that it is switched on and that its cable is plugged in.</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 stopped answering before everything was read.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 did not report these settings: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>(not reported)</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>Left out, since these cannot be changed: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>Left out, since the printer gets its address automatically: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>Not sent again, since the network stays the same (“--keys always” sends it): %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>Without a terminal, and with --json, nothing is changed unless --yes is given.</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>In %1, this will change:</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1, from %2</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 would be changed.</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 has these settings already. Nothing was sent.</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>Change it? [y/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>y yes</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>Administrator password of %1:</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 has an administrator password, and none was given. Nothing was sent.</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 did not accept the password. Nothing was sent.</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>Sending to %1</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>The connection to %1 was lost. Nothing was applied.</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 did not accept these settings: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>It is not clear whether %1 took these settings: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 holds other values than were sent.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>The settings were sent to %1, but it could not be read again. It is not verified that it has them.</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 was sent as %2, and read back as %3.</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 was not read back as it was sent.</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 was changed, and has the new settings.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>Stopped. Nothing more was sent.</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>Stopped before anything was sent to %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>Stopping. What is being sent is finished first.</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>Waiting for printers to be plugged in over USB. Ctrl+C ends.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 has no row in the table, and was left alone.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 has several rows in the table, and was left alone: lines %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>Several printers are called %1, as in line %2. They were left alone.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 was left alone: the row of line %2 was used for another printer.</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 was done before, and was left alone.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>These printers of the table were not there: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>And %1 more.</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>Several rows give one printer name: lines %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>Another printer is called %1 already.</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 has the address %1 already.</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>It is one of the files that are read.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>Another run is writing to it.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>It is not a file of results.</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>No further printer is begun.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>The first line of %1 holds no key or password.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 does not report these settings; they were accepted, but not compared: %2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>Your changes are kept.</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>Reading the settings back to compare them…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 was changed. Every setting that it reports was read back as it was sent.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>Printers on the network are not found: the discovery service (Avahi) of this computer does not answer.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>Printers announced on the network whose address is not known yet: %1.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>More than %1 printers are announced on the network. With its usual settings, the discovery service (Avahi) does not keep all of them, so some may be missing.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 is connected, but not listed: the tool does not know this model.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>Asking for the name…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>Does not answer</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>The search for wireless networks failed: %1 reported no result.</translation>
    </message>
</context>
</TS>
