<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>– utilisation impossible</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>Nom de l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>De 1 à 31 caractères : lettres A à Z et a à z, chiffres et traits d’union, sans espaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Nom Bonjour</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>De 1 à 25 caractères : lettres A à Z et a à z, chiffres et traits d’union, sans espaces.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Nom du service Bonjour</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>De 1 à 31 caractères : lettres A à Z et a à z, chiffres, espaces, ponctuation d’un clavier américain.</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>Nom de l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Nom Bonjour :</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>Nom du service :</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>Nom sous lequel les ordinateurs du réseau trouvent l’imprimante.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>Nom affiché par les listes d’imprimantes.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>Nom de l’imprimante elle-même.</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>Mode de communication :</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>I&amp;nfrastructure : rejoindre un réseau Wi-Fi existant</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>Point d’accès : les ordinateurs re&amp;joignent le réseau de l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>Dé&amp;sactivé : pas de Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>Adresse MAC (infrastructure) :</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>Adresse MAC (point d’accès) :</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>Logiciel</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>Version du micrologiciel :</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>Délai d’attente d’impression</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>secondes (de 30 à 300)</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>Réglé sur %1, le minimum.</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>Réglé sur %1, le maximum.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>Définir un nou&amp;veau mot de passe administrateur</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>&amp;Supprimer le mot de passe</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>Mot de passe administrateur</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>Nouveau mot de passe :</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>Confirmer le mot de passe :</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>Si un mot de passe administrateur est défini, les paramètres ne peuvent être modifiés qu’après identification.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>L’imprimante a actuellement un mot de passe administrateur.</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>L’imprimante n’a actuellement pas de mot de passe administrateur.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>On ignore si l’imprimante a actuellement un mot de passe administrateur.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>Notez le nouveau mot de passe : il ne peut pas être lu dans l’imprimante.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>Mot de passe demandé avant toute modification des paramètres.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>Le même mot de passe, une seconde fois.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>Nouveau mot de passe</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>Confirmation du mot de passe</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>8 caractères au plus, sans espaces : lettres A à Z et a à z, chiffres et ! " # $ % &amp; ' ( ) * + , - . / { | } ~</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>Les deux mots de passe sont différents. Saisissez le même mot de passe dans les deux champs.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>Saisissez le nouveau mot de passe, ou choisissez « Supprimer le mot de passe ».</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>8 caractères au plus : le reste n’est pas pris en compte.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>Pas encore testé</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>L’imprimante répond</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>L’imprimante ne répond pas</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>Un test est possible une fois les modifications envoyées ou annulées.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>Connexion filaire</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>État :</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>Interface filaire</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>Adresse MAC :</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>Adresse IP</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>A&amp;utomatique (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>Adresse fi&amp;xe</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>Adresse IP :</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>Masque de sous-réseau :</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>Passerelle par défaut :</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>Adresse de l’imprimante : quatre nombres séparés par des points, par exemple 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>Indique quelles adresses font partie du réseau de l’imprimante.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>Adresse du routeur.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>Adresse IP</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>Masque de sous-réseau</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>Passerelle par défaut</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>Une adresse de 0.0.0.1 à 255.255.255.254, sauf 127.0.0.1.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>Un masque de 0.0.0.1 à 255.255.255.254, tel que 255.255.255.0.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>Une adresse de 0.0.0.1 à 255.255.255.254.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>Connexion Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>État :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>Pas encore testé</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>L’imprimante répond</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>L’imprimante ne répond pas</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>Norme Wi-Fi :</translation>
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
        <translation>Force du signal :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>Adresse IP</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>A&amp;utomatique (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>Adresse fi&amp;xe</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>Adresse IP :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>Masque de sous-réseau :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>Passerelle par défaut :</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>Adresse de l’imprimante : quatre nombres séparés par des points, par exemple 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>Indique quelles adresses font partie du réseau de l’imprimante.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>Adresse du routeur.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>Réseau et sécurité</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>Authentification :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>Chiffrement :</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>Système ouvert</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>Clé partagée</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-Personnel</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-Personnel</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>Aucun</translation>
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
        <translation>Clé 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>Clé 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>Clé 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>Clé 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>&amp;Guide WPS</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>Nom du réseau (SSID) :</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>Nom du réseau Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>&amp;Choisir…</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>Clé WPA :</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>Clé prépartagée du réseau (mot de passe).</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>Clé WEP :</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>Clé WEP du réseau.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>Numéro de clé WEP :</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>Adresse IP</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>Masque de sous-réseau</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>Passerelle par défaut</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>Nom du réseau (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>De 1 à 32 caractères : lettres A à Z et a à z, chiffres, espaces, ponctuation d’un clavier américain. Un réseau d’un autre nom peut être choisi dans la liste.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>Clé WPA</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>De 8 à 63 caractères : lettres A à Z et a à z, chiffres, espaces, ponctuation d’un clavier américain.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>Clé WEP</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 ou 13 caractères (lettres, chiffres, espaces, ponctuation d’un clavier américain), ou bien 10 ou 26 chiffres hexadécimaux (0 à 9, A à F).</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>Point d’accès</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>Norme Wi-Fi :</translation>
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
        <translation>Attribution des adresses</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>Serveur DHCP :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>Activé : l’imprimante attribue les adresses</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>Adresse IP</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>Première adresse attribuée :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>Adresse de l’imprimante :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>Masque de sous-réseau :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>Réseau et sécurité</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>Authentification :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>Système ouvert</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>Clé partagée</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-Personnel</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-Personnel</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>Chiffrement :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>Aucun</translation>
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
        <translation>Nom du réseau (SSID) :</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>Clé WPA :</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>Partie du nom du réseau après « DIRECT- ».</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>Clé (mot de passe) avec laquelle les ordinateurs se connectent.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>Nom du réseau (SSID) du point d’accès</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>De 1 à 25 caractères : lettres A à Z et a à z, chiffres, espaces, ponctuation d’un clavier américain.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>Clé WPA du point d’accès</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>Paramètres réseau des imprimantes</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – Paramètres réseau des imprimantes</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>Envoyer à %1</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>Modifications non envoyées de %1</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>Réseaux détectés par %1</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>Guide WPS pour %1</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>Le programme est déjà lancé, mais ne répond pas. Arrêtez-le, puis relancez-le.</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>Veuillez patienter…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>&amp;Envoyer à l’imprimante…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>Fer&amp;mer</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>&amp;Relire les paramètres</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>Ai&amp;de</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>Imprimante :</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>Cette imprimante est connectée par le réseau : ses paramètres peuvent seulement être consultés. Pour les modifier, connectez-la par USB.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>Certains paramètres n’ont pas pu être lus ; rien ne peut donc être modifié. Vérifiez que l’imprimante est allumée et connectée, puis choisissez « Relire les paramètres ».</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>L’imprimante n’a pas communiqué ces paramètres ; ils ne sont envoyés que si vous y saisissez quelque chose : %1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>lus à %1</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1 : %2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>aucune adresse</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>Les valeurs affichées ont été lues à %1.</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>Catégories</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>Paramètres de l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>Appareil</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>Noms</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>Réseau filaire</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>Réseau Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>Infrastructure</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>Point d’accès</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>Mot de passe</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>Connexion à l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– à noter</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>Les paramètres de l’imprimante n’ont pas pu être lus. Vérifiez qu’elle est allumée, que son câble est branché et qu’aucun autre programme ne l’utilise, puis réessayez.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>Vous avez modifié un nom ou une adresse qui permet de joindre l’imprimante. Une fois les paramètres envoyés, les ordinateurs qui utilisent encore l’ancien nom ou l’ancienne adresse ne la trouveront plus.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>Liste des réseaux</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>L’imprimante ne peut rechercher des réseaux qu’en mode infrastructure. Choisissez d’abord « Infrastructure » sur la page « Réseau Wi-Fi ».</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>Certaines modifications n’ont pas été envoyées à l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>&amp;Envoyer</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>Fermer &amp;sans envoyer</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>Envoyer les modifications avant de fermer ?</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>Certaines modifications n’ont pas été envoyées à l’imprimante. Elles seront perdues si vous relisez les paramètres.</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>A&amp;bandonner et relire</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>Abandonner les modifications ?</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>N’éteignez pas et ne débranchez pas l’imprimante pendant l’envoi.</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>&amp;Envoyer</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>Envoyer ces modifications à %1 ?</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>N’éteignez pas et ne débranchez pas l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>Envoi à %1</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1 – sans réponse depuis %2 s</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>L’imprimante a accepté les paramètres.</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>Envoyé à %1</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>Envoyé et vérifié</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>Envoyé à %1, mais non vérifié</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 n’a pas pris tous les paramètres</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>Rien n’a été envoyé à %1</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>La connexion à %1 a été perdue</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>Paramètres que l’imprimante n’a pas pris</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>Non modifiés par vous</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>refusé (code %1)</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>ne peut pas être envoyé</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>sans réponse</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>différent</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>Saisissez le mot de passe administrateur de l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 est protégée</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>Mot de passe :</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>S’&amp;identifier</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>L’imprimante n’a pas accepté ce mot de passe. Respectez les majuscules et les minuscules, et vérifiez Verr. Maj.</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>Mot de passe incorrect</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>&amp;Réessayer</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>Rien n’a été envoyé, et vos modifications sont conservées. Vérifiez que l’imprimante est allumée et que son câble est branché, puis recommencez l’envoi.</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>%1 est injoignable</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>Réseaux Wi-Fi détectés par l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>Nom du réseau (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>Protégé</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>Signal</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>Oui</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>Non</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>Fort</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>Moyen</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>Faible</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>&amp;Utiliser ce réseau</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>Avec WPS, l’imprimante rejoint un réseau Wi-Fi sans que vous saisissiez de clé. Préparez les deux appareils :</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>Allumez l’imprimante et placez-la près du routeur Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>Repérez le bouton WPS du routeur. Il porte souvent l’inscription WPS ou deux flèches courbes ; le manuel du routeur l’indique.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>Un routeur sans WPS ne convient pas ; saisissez alors le nom et la clé du réseau.</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>&amp;Suivant</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>&amp;Retour</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>Fer&amp;mer</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>Lancez WPS dans le menu de l’imprimante, puis appuyez sur le bouton WPS du routeur dans les deux minutes. Lorsque le voyant Wi-Fi de l’imprimante reste allumé, elle est connectée.</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>&amp;Terminer</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>&amp;Retour</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>Fer&amp;mer</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>Cet outil affiche et modifie les paramètres réseau d’une imprimante d’étiquettes : ses noms, son réseau filaire et Wi-Fi et son mot de passe administrateur. Les étapes suivantes vous aident à connecter l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>&amp;Continuer</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>&amp;Quitter</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>Comment voulez-vous connecter l’imprimante ?</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>Par &amp;USB, pour saisir ses paramètres ici</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>Par &amp;Wi-Fi, avec WPS</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>&amp;Suivant</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>&amp;Quitter</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>Reliez l’imprimante à cet ordinateur par un câble USB et allumez-la. Choisissez ensuite « Suivant » pour la trouver.</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>&amp;Suivant</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>Choisissez l’imprimante dont vous voulez voir les paramètres. Seuls les paramètres d’une imprimante connectée par USB peuvent être modifiés.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>Fer&amp;mer</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>Co&amp;nnecter une imprimante…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>Imprimante</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>Connexion</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>Réseau</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>&amp;Fichier</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>&amp;Enregistrer les paramètres…</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>&amp;Appliquer un fichier…</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>&amp;Imprimer…</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>Paramètres (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>Les paramètres n’ont pas pu être enregistrés</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>Le fichier ne peut pas être appliqué</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>Envoyez ou annulez d’abord les modifications des pages.</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>L’imprimante a déjà tous les paramètres du fichier</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… et %1 de plus</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>&amp;Quitter</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>&amp;Édition</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>C&amp;ouper</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>&amp;Copier</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>Co&amp;ller</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>&amp;Rétablir la page</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>&amp;Affichage</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>&amp;Réduire</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>&amp;Fermer</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>A&amp;ide</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>À &amp;propos de Paramètres réseau des imprimantes</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>Affiche et modifie les paramètres réseau des imprimantes d’étiquettes.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>Aucune imprimante trouvée. Vérifiez que l’imprimante est allumée et reliée à cet ordinateur par un câble USB, ou qu’elle est sur le même réseau. Choisissez ensuite « Rechercher à nouveau ».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 est connectée, mais vous n’avez pas l’autorisation de l’utiliser. Ouvrez une session sur cet ordinateur même, ou demandez à l’administrateur d’installer la règle USB de cet outil ; rebranchez ensuite l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>%1 est utilisée par un autre programme. Fermez ce programme, puis choisissez « Rechercher à nouveau ».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>Ce fichier est inutilisable, au moins en partie : %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>Les imprimantes du réseau ne sont pas trouvées : le service de découverte (Avahi) de cet ordinateur n’est pas en marche.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>numéro de série %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>port USB %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>Affiche et modifie les paramètres réseau des imprimantes d’étiquettes.

Utilisation : %1 [-Installer] [--demo] [--help] [--version]

  -Installer  commencer par un guide de connexion ; ne lister que les imprimantes USB
  --demo      lister les imprimantes de démonstration, internes au programme
  --help      afficher ce texte et quitter
  --version   afficher la version et quitter</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>Une valeur de cette page est inutilisable</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>Modifié, pas encore envoyé</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>Modifié. L’imprimante a : %1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>Annuler la modification : %1 (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>L’imprimante n’utilise pas ces paramètres dans le mode de communication choisi sur la page « Réseau Wi-Fi ».</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>8 caractères au plus</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>Ce qui change</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>Paramètre</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>Actuel</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>Nouveau</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>Envoyé</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>Dans l’imprimante</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>Résultat</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>nouveau</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>supprimé</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>(vide)</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>Le réseau « %1 » est protégé, mais aucune clé n’a été saisie. L’imprimante garde son ancienne clé.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>La sécurité du réseau « %1 » n’est pas connue. Choisissez son authentification.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 n’est pas un masque de sous-réseau habituel. Les ordinateurs risquent de ne pas joindre l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>La passerelle par défaut %1 est hors du sous-réseau de l’imprimante. Les autres réseaux risquent de ne pas joindre l’imprimante.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>Dans ce mode de communication, l’imprimante n’est plus joignable à son adresse actuelle %1.</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>inchangée</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>Clé de « %1 »</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>Afficher la clé</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>Afficher le mot de passe</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>Aucune imprimante trouvée. Vérifiez que l’imprimante est allumée et reliée à cet ordinateur par un câble USB. Choisissez ensuite « Rechercher à nouveau ».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>Aucune imprimante trouvée par USB, et la recherche sur le réseau est impossible. Vérifiez que l’imprimante est allumée et reliée à cet ordinateur par un câble USB. Choisissez ensuite « Rechercher à nouveau ».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>Le catalogue ne contient aucune imprimante. Ajoutez des imprimantes au fichier désigné par ZMLIB_PRINTERS, puis redémarrez cet outil.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>Aucune imprimante n’est utilisable pour le moment. Les messages ci-dessous en indiquent la raison.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>Aucune imprimante ne correspond au filtre.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>Filtrer par nom, modèle ou adresse</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>L’imprimante n’a détecté aucun réseau Wi-Fi. Appuyez sur F5 pour rechercher à nouveau.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>L’imprimante était injoignable. Appuyez sur F5 pour rechercher à nouveau.</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>Trier (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>Effacer</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>Im&amp;primante</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>&amp;Envoyer à l’imprimante…</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>&amp;Relire les paramètres</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>&amp;Choisir un réseau…</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>&amp;Liste des imprimantes</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>&amp;Connecter une imprimante…</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>Pour signaler un problème : %1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>&amp;Afficher la fenêtre</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>L’outil reste actif sans fenêtre.</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>Afficher les imprimantes</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>&amp;Annuler</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>Progression</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>Lecture de %1, %2 sur %3</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>Recherche de réseaux, encore environ %1 s</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>La lecture a été annulée ; rien ne peut donc être modifié. Choisissez « Relire les paramètres » pour continuer.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>La recherche a été annulée. Appuyez sur F5 pour rechercher à nouveau.</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>Copier tous les &amp;paramètres</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1 : %2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>Attribution de l’adresse</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>Dessin : une imprimante d’étiquettes connectée sans fil</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>Dessin : une imprimante reliée à un ordinateur par un câble USB et à un routeur Wi-Fi par ondes radio</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>Dessin : un câble USB entre un ordinateur et une imprimante</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>Dessin : une imprimante à côté d’un routeur Wi-Fi dont le bouton WPS est mis en évidence</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>Dessin : une flèche indique le bouton WPS d’un routeur Wi-Fi ; l’imprimante et le routeur échangent des signaux radio</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>Lit et modifie les réglages réseau d’imprimantes d’étiquettes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>Lister les imprimantes USB et du réseau.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>Montrer tous les réglages d’une imprimante, sauf clés et mots de passe.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>Montrer les valeurs de quelques réglages d’une imprimante.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>Lister les noms de tous les réglages et ce qu’ils admettent.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>Montrer en quels réglages deux imprimantes ou fichiers diffèrent.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>Dire tout ce qui ne va pas dans un fichier de réglages ou une table.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>Modifier une imprimante d’après un fichier de réglages.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>Modifier quelques réglages d’une imprimante.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>Modifier chaque imprimante USB qui a une ligne dans une table.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>Faire chercher les réseaux sans fil par une imprimante.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>Montrer ce que peut faire le programme, ou une commande.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>Exemple :</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER : nom de l’imprimante, numéro de série, adresse MAC ou IP, ou URI de la liste. FILE : réglages en JSON ; « - » est l’entrée standard.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>Se termine par 0 fait, 1 mauvaise utilisation, 2 entrée refusée, 3 imprimante introuvable ou injoignable, 4 connexion refusée, 5 réglages non repris, 6 arrêté, 7 serait modifié (avec --exit-code).</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>« network-setting COMMAND --help » montre les options d’une commande.</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>écrire du JSON</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>seulement ce qui peut être modifié, avec les noms des fichiers</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>dire seulement ce qui changerait</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>se terminer par 7 si quelque chose serait modifié</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>ne pas demander avant de modifier</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>seulement ces réglages ou groupes : wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>laisser de côté ces réglages ou groupes : names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>seulement les imprimantes branchées maintenant ; par défaut sans terminal</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>attendre au plus ce temps les imprimantes absentes</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>envoyer les clés réseau toujours (always) ou seulement si le réseau ou sa sécurité change (when-changed, par défaut)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>le mot de passe administrateur est la première ligne de F</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>réglages pour chaque imprimante de la table</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>ajouter à ce fichier une ligne pour chaque imprimante</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>refaire une imprimante qui est rebranchée</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>« network-setting --help » montre ce qui est possible.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>« network-setting %1 --help » montre ce qu’elle accepte.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>Aucune commande n’est indiquée.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>Il n’y a pas de commande « %1 ».</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>Il n’y a pas d’option « %1 ».</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>Est-ce « %1 » ?</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>Ceux de ce groupe sont : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>« %1 » n’accepte pas de valeur.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>« --keys » ne peut pas être « %1 ». Attendu : %2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>« --timeout » a besoin d’un nombre de secondes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>« %1 » a besoin de %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>« %1 » n’accepte pas d’autre argument : « %2 ».</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>La sortie n’a pas pu être écrite.</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>Adresse IP utilisée</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>Masque de sous-réseau utilisé</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>Passerelle par défaut utilisée</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>ligne %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>colonne %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>Ici, ce n’est pas du JSON valide.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>C’est imbriqué trop profondément pour des réglages.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>Le texte n’est pas en UTF-8. Enregistrez le fichier en UTF-8.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>Ici, ce n’est pas du CSV valide : un guillemet manque ou est de trop.</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>Erreurs non affichées : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 dépasse %2 Mio.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>Il n’y a pas de réglage de ce nom.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>Il n’y a pas de réglage de ce nom, et ce n’est ni mac, ni serial, ni name.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>Ce réglage ne peut pas être modifié.</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>Affiché seulement ; ne peut pas être modifié.</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>« %1 » n’est jamais montré.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>Ce nom est indiqué deux fois.</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>Une clé ou un mot de passe n’est pas un argument, que d’autres pourraient voir. « NOM=@FICHIER » prend la première ligne d’un fichier.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>NOM=VALEUR est attendu.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>Un objet avec des réglages est attendu ici.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>Un texte entre guillemets est attendu.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>Un texte entre guillemets ou {"file": "..."} est attendu.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>2 à 64 chiffres hexadécimaux sont attendus, deux par octet.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>Un nombre entier de %1 à %2 est attendu.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>L’un d’eux est attendu : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>Une adresse MAC de 12 chiffres hexadécimaux est attendue.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>Cette ligne devrait avoir %1 cellules ; elle en a %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>L’une des colonnes mac, serial et name doit dire pour quelle imprimante est une ligne.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>Cette ligne ne dit pas pour quelle imprimante elle est : mac, serial et name sont vides.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>La table n’a pas de lignes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>Cette imprimante est déjà à la ligne %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>Cette adresse est déjà à la ligne %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>Le chiffrement %1 ne va pas avec l’authentification %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>Cette clé n’est pas utilisée avec le chiffrement %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>Le numéro d’une clé WEP ne peut être indiqué qu’avec wireless.wepKey.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>Cette adresse n’est utilisée qu’avec le mode « fixed ».</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>Aucune imprimante n’a été trouvée.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>L’imprimante n’a détecté aucun réseau Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>Il n’y a pas d’imprimante « %1 ». « network-setting list » montre les imprimantes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>« %1 » désigne plusieurs imprimantes. Indiquez l’URI de l’une d’elles :</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 est sur le réseau. Les réglages ne peuvent être modifiés que sur une imprimante connectée en USB.</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>%1 est utilisée par un autre programme. Fermez-le, puis réessayez.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>%1 est injoignable. Vérifiez que l’imprimante est allumée et que son câble est branché.</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 a cessé de répondre avant que tout soit lu.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 n’a pas communiqué ces réglages : %2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>(non signalé)</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>Laissés de côté, car ils ne peuvent pas être modifiés : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>Laissé de côté, car l’imprimante obtient son adresse automatiquement : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>Non renvoyé, car le réseau reste le même (« --keys always » l’envoie) : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>Sans terminal, et avec --json, rien n’est modifié sans --yes.</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>Dans %1, ceci changera :</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1, de %2</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 serait modifiée.</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 a déjà ces réglages. Rien n’a été envoyé.</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>Modifier ? [o/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>o oui y yes</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>Mot de passe administrateur de %1 :</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 a un mot de passe administrateur, et aucun n’a été indiqué. Rien n’a été envoyé.</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 n’a pas accepté le mot de passe. Rien n’a été envoyé.</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>Envoi à %1</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>La connexion à %1 a été perdue. Rien n’a été appliqué.</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 n’a pas accepté ces réglages : %2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>Il n’est pas certain que %1 ait repris ces réglages : %2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 contient d’autres valeurs que celles qui ont été envoyées.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>Les réglages ont été envoyés à %1, mais l’imprimante n’a pas pu être relue. Il n’est pas vérifié qu’elle les a.</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 a été envoyé comme %2 et relu comme %3.</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 n’a pas été relu tel qu’il a été envoyé.</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 a été modifiée et a les nouveaux réglages.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>Arrêté. Rien d’autre n’a été envoyé.</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>Arrêté avant que quoi que ce soit ait été envoyé à %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>Arrêt en cours. Ce qui est en train d’être envoyé est d’abord terminé.</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>En attente d’imprimantes branchées en USB. Ctrl+C termine.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 n’a pas de ligne dans la table et n’a pas été modifiée.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 a plusieurs lignes dans la table et n’a pas été modifiée : lignes %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>Plusieurs imprimantes s’appellent %1, comme à la ligne %2. Elles n’ont pas été modifiées.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 n’a pas été modifiée : la ligne %2 a servi à une autre imprimante.</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 a déjà été faite et n’a pas été modifiée de nouveau.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>Ces imprimantes de la table n’étaient pas là : %1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>Et %1 de plus.</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>Plusieurs lignes donnent le même nom d’imprimante : lignes %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>Une autre imprimante s’appelle déjà %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 a déjà l’adresse %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>C’est un des fichiers lus.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>Une autre exécution y écrit.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>Ce n’est pas un fichier de résultats.</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>Aucune autre imprimante n’est commencée.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>La première ligne de %1 ne contient ni clé ni mot de passe.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 ne communique pas ces réglages ; ils ont été acceptés, mais pas comparés : %2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>Vos modifications sont conservées.</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>Relecture des paramètres pour les comparer…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 a été modifiée. Tous les réglages qu’elle communique ont été relus tels qu’ils ont été envoyés.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>Les imprimantes du réseau ne sont pas trouvées : le service de découverte (Avahi) de cet ordinateur ne répond pas.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>Imprimantes annoncées sur le réseau dont l’adresse n’est pas encore connue : %1.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>Plus de %1 imprimantes s’annoncent sur le réseau. Avec ses réglages habituels, le service de détection (Avahi) ne les garde pas toutes ; certaines peuvent manquer.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 est connectée, mais n’est pas affichée : l’outil ne connaît pas ce modèle.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>Lecture du nom…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>Ne répond pas</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>La recherche de réseaux Wi-Fi a échoué : %1 n’a communiqué aucun résultat.</translation>
    </message>
</context>
</TS>
