<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>nicht verwendbar</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>Druckername</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>1 bis 31 Zeichen: Buchstaben A bis Z und a bis z, Ziffern und Bindestriche, keine Leerzeichen.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Bonjour-Name</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>1 bis 25 Zeichen: Buchstaben A bis Z und a bis z, Ziffern und Bindestriche, keine Leerzeichen.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Bonjour-Dienstname</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>1 bis 31 Zeichen: Buchstaben A bis Z und a bis z, Ziffern, Leerzeichen, Sonderzeichen einer US-Tastatur.</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>Druckername</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Bonjour-Name:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>Dienstname:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>Der Name, unter dem Computer im Netzwerk den Drucker erreichen.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>Der Name, den Druckerlisten anzeigen.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>Der eigene Name des Druckers.</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>WLAN</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>Betriebsart:</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>&amp;Infrastruktur: einem vorhandenen WLAN beitreten</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>&amp;Zugangspunkt: Computer treten dem Netzwerk des Druckers bei</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>A&amp;us: kein WLAN</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>MAC-Adresse (Infrastruktur):</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>MAC-Adresse (Zugangspunkt):</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>Software</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>Firmware-Version:</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>Zeitlimit beim Drucken</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>Sekunden (30 bis 300)</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>Auf %1 gesetzt, den kleinsten Wert.</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>Auf %1 gesetzt, den größten Wert.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>Neues Administrator&amp;passwort festlegen</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>Passwort &amp;entfernen</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>Administratorpasswort</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>Neues Passwort:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>Passwort bestätigen:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>Ist ein Administratorpasswort festgelegt, lassen sich Einstellungen erst nach der Anmeldung ändern.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>Der Drucker hat derzeit ein Administratorpasswort.</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>Der Drucker hat derzeit kein Administratorpasswort.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>Es ist nicht bekannt, ob der Drucker derzeit ein Administratorpasswort hat.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>Notieren Sie ein neues Passwort: Es kann nicht aus dem Drucker gelesen werden.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>Das Passwort, nach dem gefragt wird, bevor Einstellungen geändert werden.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>Noch einmal dasselbe Passwort.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>Neues Passwort</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>Passwortbestätigung</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>Höchstens 8 Zeichen, keine Leerzeichen: Buchstaben A bis Z und a bis z, Ziffern und ! " # $ % &amp; ' ( ) * + , - . / { | } ~</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>Die Passwörter stimmen nicht überein. Geben Sie in beiden Feldern dasselbe Passwort ein.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>Geben Sie das neue Passwort ein, oder wählen Sie „Passwort entfernen“.</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>Höchstens 8 Zeichen: Der Rest wird nicht übernommen.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>Noch nicht geprüft</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>Der Drucker antwortet</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>Der Drucker antwortet nicht</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>&amp;Verbindung prüfen</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>Eine Prüfung ist möglich, sobald die Änderungen gesendet oder zurückgenommen sind.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>LAN-Verbindung</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>Status:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>LAN-Anschluss</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>MAC-Adresse:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>A&amp;utomatisch (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>F&amp;este Adresse</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>IP-Adresse:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>Subnetzmaske:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>Standardgateway:</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>Die eigene Adresse des Druckers: vier Zahlen mit Punkten dazwischen, etwa 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>Legt fest, welche Adressen zum Netzwerk des Druckers gehören.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>Die Adresse des Routers.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>Subnetzmaske</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>Standardgateway</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>Eine Adresse von 0.0.0.1 bis 255.255.255.254, nicht 127.0.0.1.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>Eine Maske von 0.0.0.1 bis 255.255.255.254, etwa 255.255.255.0.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>Eine Adresse von 0.0.0.1 bis 255.255.255.254.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>WLAN-Verbindung</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>Status:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>Noch nicht geprüft</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>Der Drucker antwortet</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>Der Drucker antwortet nicht</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>&amp;Verbindung prüfen</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>WLAN-Standard:</translation>
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
        <translation>Signalstärke:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>A&amp;utomatisch (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>F&amp;este Adresse</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>IP-Adresse:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>Subnetzmaske:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>Standardgateway:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>Die eigene Adresse des Druckers: vier Zahlen mit Punkten dazwischen, etwa 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>Legt fest, welche Adressen zum Netzwerk des Druckers gehören.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>Die Adresse des Routers.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>Netzwerk und Sicherheit</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>Authentifizierung:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>Verschlüsselung:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>Offenes System</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>Gemeinsamer Schlüssel</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>Keine</translation>
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
        <translation>Schlüssel 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>Schlüssel 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>Schlüssel 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>Schlüssel 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>W&amp;PS-Anleitung</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>Netzwerkname (SSID):</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>Der Name des WLANs.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>Aus&amp;wählen …</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>WPA-Schlüssel:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>Der Netzwerkschlüssel (Passwort).</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>WEP-Schlüssel:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>Der WEP-Schlüssel des Netzwerks.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>WEP-Schlüsselnummer:</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>Subnetzmaske</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>Standardgateway</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>Netzwerkname (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>1 bis 32 Zeichen: Buchstaben A bis Z und a bis z, Ziffern, Leerzeichen, Sonderzeichen einer US-Tastatur. Ein Netzwerk mit anderem Namen lässt sich aus der Liste wählen.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>WPA-Schlüssel</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>8 bis 63 Zeichen: Buchstaben A bis Z und a bis z, Ziffern, Leerzeichen, Sonderzeichen einer US-Tastatur.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>WEP-Schlüssel</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 oder 13 Zeichen (Buchstaben, Ziffern, Leerzeichen, Sonderzeichen einer US-Tastatur) oder 10 oder 26 Hexadezimalziffern (0 bis 9, A bis F).</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>Zugangspunkt</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>WLAN-Standard:</translation>
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
        <translation>Adressvergabe</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>DHCP-Server:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>Ein: Der Drucker vergibt Adressen</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>Erste vergebene Adresse:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>Adresse des Druckers:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>Subnetzmaske:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>Netzwerk und Sicherheit</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>Authentifizierung:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>Offenes System</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>Gemeinsamer Schlüssel</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>Verschlüsselung:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>Keine</translation>
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
        <translation>Netzwerkname (SSID):</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>WPA-Schlüssel:</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>Der Teil des Netzwerknamens nach „DIRECT-“.</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>Der Schlüssel (Passwort), mit dem Computer beitreten.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>Netzwerkname (SSID) des Zugangspunkts</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>1 bis 25 Zeichen: Buchstaben A bis Z und a bis z, Ziffern, Leerzeichen, Sonderzeichen einer US-Tastatur.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>WPA-Schlüssel des Zugangspunkts</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>Netzwerkeinstellungen für Drucker</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – Netzwerkeinstellungen für Drucker</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>Senden an %1</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>Nicht gesendete Änderungen von %1</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>Von %1 gefundene Netzwerke</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>WPS-Anleitung für %1</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>Das Programm läuft bereits, antwortet aber nicht. Beenden Sie es und starten Sie es dann erneut.</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>Bitte warten …</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>An Drucker &amp;senden …</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>S&amp;chließen</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>Hi&amp;lfe</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>Drucker:</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>Dieser Drucker ist über das Netzwerk verbunden; seine Einstellungen können nur angezeigt werden. Um sie zu ändern, schließen Sie den Drucker über USB an.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>Nicht alle Einstellungen konnten gelesen werden, daher lässt sich nichts ändern. Prüfen Sie, ob der Drucker eingeschaltet und angeschlossen ist, und wählen Sie dann „Neu einlesen“.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>Diese Einstellungen hat der Drucker nicht mitgeteilt; sie werden erst gesendet, wenn Sie etwas dafür eingeben: %1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>gelesen um %1</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>keine Adresse</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>Die gezeigten Werte wurden um %1 gelesen.</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>Kategorien</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>Druckereinstellungen</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>Gerät</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>Namen</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>LAN (Kabel)</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>WLAN</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>Infrastruktur</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>Zugangspunkt</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>Passwort</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>Verbindung zum Drucker</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– bitte beachten</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>Die Einstellungen des Druckers konnten nicht gelesen werden. Prüfen Sie, ob der Drucker eingeschaltet ist, ob sein Kabel eingesteckt ist und ob kein anderes Programm ihn verwendet, und versuchen Sie es dann erneut.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>Sie haben einen Namen oder eine Adresse geändert, unter der der Drucker erreichbar ist. Nach dem Senden der Einstellungen finden Computer, die noch die alten Angaben verwenden, den Drucker nicht mehr.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>Liste der Netzwerke</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>Der Drucker kann nur in der Betriebsart Infrastruktur nach Netzwerken suchen. Wählen Sie zuerst auf der Seite „WLAN“ die Betriebsart „Infrastruktur“.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>Einige Änderungen wurden noch nicht an den Drucker gesendet.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>&amp;Senden</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>&amp;Ohne Senden schließen</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>Änderungen vor dem Schließen senden?</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>Einige Änderungen wurden noch nicht an den Drucker gesendet. Beim erneuten Einlesen gehen sie verloren.</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>&amp;Verwerfen und neu einlesen</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>Schalten Sie den Drucker während des Sendens nicht aus und ziehen Sie das Kabel nicht ab.</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>&amp;Senden</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>Diese Änderungen an %1 senden?</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>Schalten Sie den Drucker nicht aus und ziehen Sie das Kabel nicht ab.</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>Senden an %1</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1 – seit %2 s keine Antwort</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>Der Drucker hat die Einstellungen angenommen.</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>An %1 gesendet</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>Gesendet und geprüft</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>An %1 gesendet, aber nicht geprüft</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 hat nicht alle Einstellungen übernommen</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>Es wurde nichts an %1 gesendet</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>Die Verbindung zu %1 ist abgebrochen</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>Einstellungen, die der Drucker nicht übernommen hat</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>Von Ihnen nicht geändert</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>abgelehnt (Code %1)</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>nicht sendbar</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>keine Antwort</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>weicht ab</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>Geben Sie das Administratorpasswort des Druckers ein.</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 ist geschützt</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>Passwort:</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>A&amp;nmelden</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>Der Drucker hat dieses Passwort nicht angenommen. Achten Sie auf Groß- und Kleinschreibung und auf die Feststelltaste.</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>Falsches Passwort</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>Es wurde nichts gesendet, und Ihre Änderungen bleiben erhalten. Prüfen Sie, ob der Drucker eingeschaltet und sein Kabel eingesteckt ist, und senden Sie dann erneut.</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>%1 ist nicht erreichbar</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>WLANs, die der Drucker gefunden hat.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>Netzwerkname (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>Geschützt</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>Signal</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>Ja</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>Nein</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>Stark</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>Mittel</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>Schwach</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>&amp;Netzwerk übernehmen</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>Mit WPS tritt der Drucker einem WLAN bei, ohne dass Sie einen Schlüssel eingeben. Bereiten Sie beide Geräte vor:</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>Schalten Sie den Drucker ein und stellen Sie ihn in die Nähe des WLAN-Routers.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>Suchen Sie die WPS-Taste des Routers. Sie ist oft mit WPS oder zwei gebogenen Pfeilen gekennzeichnet; die Anleitung des Routers zeigt sie.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>Ein Router ohne WPS lässt sich so nicht verwenden; geben Sie stattdessen Name und Schlüssel des Netzwerks ein.</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>&amp;Weiter</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>&amp;Zurück</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>S&amp;chließen</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>Starten Sie WPS im Menü des Druckers und drücken Sie dann innerhalb von zwei Minuten die WPS-Taste des Routers. Leuchtet die WLAN-Anzeige des Druckers dauerhaft, ist er verbunden.</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>Fer&amp;tig</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>&amp;Zurück</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>S&amp;chließen</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>Dieses Programm zeigt und ändert die Netzwerkeinstellungen eines Etikettendruckers: seine Namen, die Einstellungen für LAN und WLAN und sein Administratorpasswort. Die nächsten Schritte helfen Ihnen, den Drucker anzuschließen.</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>&amp;Weiter</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>Be&amp;enden</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>Wie möchten Sie den Drucker anschließen?</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>Über &amp;USB, um die Einstellungen hier einzugeben</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>Über W&amp;LAN, mit WPS</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>&amp;Weiter</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>Be&amp;enden</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>Verbinden Sie den Drucker über ein USB-Kabel mit diesem Computer und schalten Sie ihn ein. Wählen Sie dann „Weiter“, um ihn zu finden.</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>&amp;Weiter</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>Wählen Sie den Drucker, dessen Einstellungen Sie sehen möchten. Ändern lassen sich nur die Einstellungen eines über USB angeschlossenen Druckers.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>&amp;Öffnen</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>S&amp;chließen</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>Drucker ansch&amp;ließen …</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>Drucker</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>Verbindung</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>Netzwerk</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>&amp;Datei</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>&amp;Öffnen</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>Einstellungen &amp;speichern …</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>&amp;Datei anwenden …</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>D&amp;rucken …</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>Einstellungen (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>Die Einstellungen konnten nicht gespeichert werden</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>Die Datei kann nicht angewendet werden</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>Senden Sie zuerst die Änderungen auf den Seiten, oder setzen Sie sie zurück.</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>Der Drucker hat bereits alle Einstellungen der Datei</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… und %1 weitere</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>&amp;Beenden</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>A&amp;usschneiden</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>&amp;Kopieren</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>&amp;Einfügen</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>Seite &amp;zurücksetzen</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>&amp;Minimieren</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>S&amp;chließen</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>&amp;Über Netzwerkeinstellungen für Drucker</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>Zeigt und ändert die Netzwerkeinstellungen von Etikettendruckern.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>Es wurde kein Drucker gefunden. Prüfen Sie, ob der Drucker eingeschaltet und über ein USB-Kabel mit diesem Computer verbunden ist oder sich im selben Netzwerk befindet. Wählen Sie dann „Erneut suchen“.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 ist angeschlossen, aber Sie haben keine Berechtigung dafür. Melden Sie sich an diesem Computer selbst an, oder bitten Sie den Administrator, die USB-Regel dieses Programms zu installieren; schließen Sie den Drucker danach neu an.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>%1 wird von einem anderen Programm verwendet. Beenden Sie dieses Programm, und wählen Sie dann „Erneut suchen“.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>Diese Datei ist nicht oder nicht ganz verwendbar: %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>Drucker im Netzwerk werden nicht gefunden: Der Suchdienst (Avahi) dieses Computers läuft nicht.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>Seriennummer %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>USB-Anschluss %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>Zeigt und ändert die Netzwerkeinstellungen von Etikettendruckern.

Aufruf: %1 [-Installer] [--demo] [--help] [--version]

  -Installer  mit einer Anleitung zum Anschließen beginnen; nur USB-Drucker auflisten
  --demo      die Demodrucker auflisten, die im Programm leben
  --help      diesen Text anzeigen und beenden
  --version   die Version anzeigen und beenden</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>Ein Wert auf dieser Seite ist nicht verwendbar</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>Geändert, noch nicht gesendet</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>Geändert. Der Drucker hat: %1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>Änderung zurücknehmen: %1 (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>In der Betriebsart, die auf der Seite „WLAN“ gewählt ist, verwendet der Drucker diese Einstellungen nicht.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>höchstens 8 Zeichen</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>Was sich ändert</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>Einstellung</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>Bisher</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>Neu</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>Gesendet</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>Im Drucker</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>Ergebnis</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>neu</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>wird entfernt</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>(leer)</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>Das Netzwerk „%1“ ist geschützt, es wurde aber kein Schlüssel eingegeben. Der Drucker behält seinen alten Schlüssel.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>Die Sicherheit des Netzwerks „%1“ ist nicht bekannt. Wählen Sie seine Authentifizierung.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 ist keine übliche Subnetzmaske. Computer erreichen den Drucker möglicherweise nicht.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>Das Standardgateway %1 liegt außerhalb des Subnetzes des Druckers. Andere Netzwerke erreichen den Drucker möglicherweise nicht.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>In dieser Betriebsart ist der Drucker unter seiner jetzigen Adresse %1 nicht mehr erreichbar.</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>unverändert</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>Schlüssel von „%1“</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>Schlüssel anzeigen</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>Passwort anzeigen</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>Es wurde kein Drucker gefunden. Prüfen Sie, ob der Drucker eingeschaltet und über ein USB-Kabel mit diesem Computer verbunden ist. Wählen Sie dann „Erneut suchen“.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>Über USB wurde kein Drucker gefunden, und im Netzwerk kann nicht gesucht werden. Prüfen Sie, ob der Drucker eingeschaltet und über ein USB-Kabel mit diesem Computer verbunden ist. Wählen Sie dann „Erneut suchen“.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>Der Katalog enthält keine Drucker. Tragen Sie Drucker in die Datei ein, die ZMLIB_PRINTERS nennt, und starten Sie das Programm danach neu.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>Zurzeit ist kein Drucker verwendbar. Die Meldungen unten nennen den Grund.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>Kein Drucker passt zum Filter.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>Nach Name, Modell oder Adresse filtern</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>Der Drucker hat kein WLAN gefunden. Drücken Sie F5, um erneut zu suchen.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>Der Drucker war nicht erreichbar. Drücken Sie F5, um erneut zu suchen.</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>Sortieren (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>Leeren</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>D&amp;rucker</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>An Drucker &amp;senden …</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>&amp;Verbindung testen</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>Netz&amp;werk wählen …</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>&amp;Druckerliste</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>&amp;Drucker anschließen …</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>Fehler melden Sie bitte an %1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>&amp;Fenster anzeigen</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>Das Programm läuft ohne Fenster weiter.</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>Drucker anzeigen</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>Fortschritt</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>%1 wird gelesen, %2 von %3</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>WLANs werden gesucht, noch etwa %1 s</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>Das Einlesen wurde abgebrochen, daher lässt sich nichts ändern. Wählen Sie „Neu einlesen“, um fortzufahren.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>Die Suche wurde abgebrochen. Drücken Sie F5, um erneut zu suchen.</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>Alle Ein&amp;stellungen kopieren</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>Adresszuweisung</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>Zeichnung: ein Etikettendrucker, der über Funk verbunden ist</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>Zeichnung: ein Drucker, mit einem Computer über ein USB-Kabel und mit einem WLAN-Router über Funk verbunden</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>Zeichnung: ein USB-Kabel zwischen einem Computer und einem Drucker</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>Zeichnung: ein Drucker neben einem WLAN-Router, dessen WPS-Taste hervorgehoben ist</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>Zeichnung: Ein Pfeil zeigt auf die WPS-Taste eines WLAN-Routers; Drucker und Router tauschen Funksignale aus</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>Liest und ändert die Netzwerkeinstellungen von Etikettendruckern.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>Die Drucker an USB und im Netzwerk auflisten.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>Alle Einstellungen eines Druckers zeigen, außer Schlüsseln und Passwörtern.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>Die Werte einzelner Einstellungen eines Druckers zeigen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>Die Namen aller Einstellungen auflisten, und was sie sein können.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>Zeigen, in welchen Einstellungen sich zwei Drucker oder Dateien unterscheiden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>Alles nennen, was an einer Datei mit Einstellungen oder einer Tabelle falsch ist.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>Einen Drucker nach einer Datei mit Einstellungen ändern.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>Einzelne Einstellungen eines Druckers ändern.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>Jeden Drucker an USB ändern, der eine Zeile in einer Tabelle hat.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>Einen Drucker drahtlose Netzwerke suchen lassen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>Zeigen, was das Programm oder ein Befehl kann.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>Beispiel:</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER: Name des Druckers, Seriennummer, MAC- oder IP-Adresse oder URI der Liste. FILE: Einstellungen in JSON; „-“ ist die Standardeingabe.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>Endet mit 0 fertig, 1 falscher Aufruf, 2 Eingabe abgelehnt, 3 Drucker nicht gefunden oder erreicht, 4 Anmeldung abgelehnt, 5 Einstellungen nicht übernommen, 6 abgebrochen, 7 würde sich ändern (mit --exit-code).</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>„network-setting COMMAND --help“ zeigt die Optionen eines Befehls.</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>JSON ausgeben</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>nur was sich ändern lässt, mit den Namen der Dateien</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>nur sagen, was sich ändern würde</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>mit 7 enden, wenn sich etwas ändern würde</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>vor dem Ändern nicht fragen</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>nur diese Einstellungen oder Gruppen: wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>diese Einstellungen oder Gruppen auslassen: names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>nur Drucker, die jetzt angeschlossen sind; Vorgabe ohne Terminal</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>höchstens so lange auf Drucker warten, die nicht da sind</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>Netzwerkschlüssel immer senden (always) oder nur, wenn sich das Netzwerk oder seine Sicherheit ändert (when-changed, Vorgabe)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>die erste Zeile von F ist das Administratorpasswort</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>Einstellungen für jeden Drucker der Tabelle</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>für jeden Drucker eine Zeile an diese Datei anhängen</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>einen Drucker, der wieder angeschlossen wird, noch einmal bearbeiten</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>„network-setting --help“ zeigt, was möglich ist.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>„network-setting %1 --help“ zeigt, was dazugehört.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>Es ist kein Befehl angegeben.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>Ist „%1“ gemeint?</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>Die dieser Gruppe sind: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>„%1“ hat keinen Wert.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>„--keys“ kann nicht „%1“ sein. Erwartet wird eines von: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>„--timeout“ braucht eine Zahl von Sekunden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>„%1“ braucht %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>„%1“ erwartet kein weiteres Argument: „%2“.</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>Verwendete IP-Adresse</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>Verwendete Subnetzmaske</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>Verwendetes Standardgateway</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>Zeile %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>Spalte %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>Hier ist dies kein gültiges JSON.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>Das ist für Einstellungen zu tief verschachtelt.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>Der Text ist nicht in UTF-8. Speichern Sie die Datei als UTF-8.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>Hier ist dies kein gültiges CSV: Ein Anführungszeichen fehlt oder ist zu viel.</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>Nicht aufgeführte Fehler: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 ist länger als %2 MiB.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>Es gibt keine Einstellung mit diesem Namen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>Es gibt keine Einstellung mit diesem Namen, und er ist nicht mac, serial oder name.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>Diese Einstellung kann nicht geändert werden.</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>Nur zur Anzeige; nicht änderbar.</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>„%1“ wird nie gezeigt.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>Dieser Name ist zweimal angegeben.</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>Ein Schlüssel oder Passwort ist kein Argument, da andere es sehen könnten. „NAME=@DATEI“ nimmt die erste Zeile einer Datei.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>Erwartet wird NAME=WERT.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>Hier wird ein Objekt mit Einstellungen erwartet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>Ein Text in Anführungszeichen wird erwartet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>Ein Text in Anführungszeichen oder {"file": "..."} wird erwartet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>Erwartet werden 2 bis 64 hexadezimale Ziffern, zwei je Byte.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>Eine ganze Zahl von %1 bis %2 wird erwartet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>Eines davon wird erwartet: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>Eine MAC-Adresse aus 12 hexadezimalen Ziffern wird erwartet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>Diese Zeile soll %1 Zellen haben; sie hat %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>Eine der Spalten mac, serial und name muss sagen, für welchen Drucker eine Zeile ist.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>Diese Zeile sagt nicht, für welchen Drucker sie ist: mac, serial und name sind leer.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>Die Tabelle hat keine Zeilen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>Dieser Drucker steht schon in Zeile %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>Diese Adresse steht schon in Zeile %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>Die Verschlüsselung %1 passt nicht zur Authentifizierung %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>Mit der Verschlüsselung %1 wird dieser Schlüssel nicht verwendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>Die Nummer eines WEP-Schlüssels kann nur zusammen mit wireless.wepKey angegeben werden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>Diese Adresse wird nur mit „fixed“ als mode verwendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>Es wurde kein Drucker gefunden.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>Der Drucker hat kein WLAN gefunden.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>Es gibt keinen Drucker „%1“. „network-setting list“ zeigt die Drucker.</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>„%1“ steht für mehrere Drucker. Geben Sie die URI von einem an:</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 ist im Netzwerk. Einstellungen können nur bei einem Drucker geändert werden, der über USB angeschlossen ist.</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>%1 wird von einem anderen Programm verwendet. Schließen Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>%1 ist nicht erreichbar. Prüfen Sie, ob der Drucker eingeschaltet und sein Kabel angeschlossen ist.</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 hat aufgehört zu antworten, bevor alles gelesen war.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 hat diese Einstellungen nicht mitgeteilt: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>(nicht gemeldet)</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>Weggelassen, da nicht änderbar: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>Ausgelassen, da der Drucker seine Adresse automatisch bezieht: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>Nicht noch einmal gesendet, da das Netzwerk gleich bleibt („--keys always“ sendet es): %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>Ohne Terminal und mit --json wird nur mit --yes etwas geändert.</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>In %1 wird sich ändern:</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1, aus %2</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 würde geändert.</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 hat diese Einstellungen schon. Es wurde nichts gesendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>Ändern? [j/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>j ja y yes</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>Administratorpasswort von %1:</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 hat ein Administratorpasswort, und es wurde keines angegeben. Es wurde nichts gesendet.</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 hat das Passwort nicht angenommen. Es wurde nichts gesendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>Senden an %1</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>Die Verbindung zu %1 ging verloren. Es wurde nichts übernommen.</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 hat diese Einstellungen nicht angenommen: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>Es ist nicht sicher, ob %1 diese Einstellungen übernommen hat: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 enthält andere Werte, als gesendet wurden.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>Die Einstellungen wurden an %1 gesendet, aber der Drucker konnte nicht noch einmal gelesen werden. Ob er sie hat, ist nicht geprüft.</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 wurde als %2 gesendet und als %3 zurückgelesen.</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 wurde nicht so zurückgelesen, wie es gesendet wurde.</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 wurde geändert und hat die neuen Einstellungen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>Abgebrochen. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>Abgebrochen, bevor etwas an %1 gesendet wurde.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>Wird abgebrochen. Was gerade gesendet wird, wird noch zu Ende gebracht.</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>Warten auf Drucker, die über USB angeschlossen werden. Strg+C beendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 hat keine Zeile in der Tabelle und wurde nicht verändert.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 hat mehrere Zeilen in der Tabelle und wurde nicht verändert: Zeilen %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>Mehrere Drucker heißen %1, wie in Zeile %2. Sie wurden nicht verändert.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 wurde nicht verändert: Zeile %2 wurde für einen anderen Drucker verwendet.</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 wurde schon bearbeitet und nicht noch einmal verändert.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>Diese Drucker der Tabelle waren nicht da: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>Und %1 weitere.</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>Mehrere Zeilen geben denselben Druckernamen: Zeilen %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>Ein anderer Drucker heißt bereits %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 hat die Adresse %1 bereits.</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>Es ist eine der Dateien, die gelesen werden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>Ein anderer Lauf schreibt gerade hinein.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>Es ist keine Datei mit Ergebnissen.</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>Es wird kein weiterer Drucker begonnen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>In der ersten Zeile von %1 steht kein Schlüssel oder Passwort.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 teilt diese Einstellungen nicht mit; sie wurden angenommen, aber nicht verglichen: %2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>Ihre Änderungen bleiben erhalten.</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>Die Einstellungen werden zum Vergleich zurückgelesen…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 wurde geändert. Jede Einstellung, die der Drucker mitteilt, wurde so zurückgelesen, wie sie gesendet wurde.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>Drucker im Netzwerk werden nicht gefunden: Der Suchdienst (Avahi) dieses Computers antwortet nicht.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>Im Netzwerk angekündigte Drucker, deren Adresse noch nicht bekannt ist: %1.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>Im Netzwerk melden sich mehr als %1 Drucker. Mit seinen üblichen Einstellungen merkt sich der Erkennungsdienst (Avahi) nicht alle; einige können fehlen.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 ist angeschlossen, wird aber nicht aufgeführt, weil das Programm dieses Modell nicht kennt.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>Name wird abgefragt …</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>Antwortet nicht</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>Die Suche nach WLANs ist fehlgeschlagen: %1 hat kein Ergebnis gemeldet.</translation>
    </message>
</context>
</TS>
