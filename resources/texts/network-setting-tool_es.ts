<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>&amp;Aceptar</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>– no se puede usar</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>Nombre de la impresora</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>De 1 a 31 caracteres: letras sin tilde ni ñ (A-Z, a-z), números y guiones, sin espacios.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Nombre Bonjour</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>De 1 a 25 caracteres: letras sin tilde ni ñ (A-Z, a-z), números y guiones, sin espacios.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Nombre del servicio Bonjour</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>De 1 a 31 caracteres: letras sin tilde ni ñ (A-Z, a-z), números, espacios, signos de un teclado estadounidense.</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>Nombre de la impresora</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Nombre Bonjour:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>Nombre del servicio:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>Nombre con el que los equipos de la red encuentran la impresora.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>Nombre que muestran las listas de impresoras.</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>Nombre propio de la impresora.</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>Modo de comunicación:</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>&amp;Infraestructura: unirse a una red Wi-Fi existente</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>&amp;Punto de acceso: los equipos se unen a la red de la impresora</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>&amp;Desactivado: sin Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>Dirección MAC (infraestructura):</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>Dirección MAC (punto de acceso):</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>Software</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>Versión del firmware:</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>Tiempo de espera de impresión</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>segundos (de 30 a 300)</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>Ajustado a %1, el mínimo.</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>Ajustado a %1, el máximo.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>E&amp;stablecer una nueva contraseña de administrador</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>&amp;Quitar la contraseña</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>Contraseña de administrador</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>Nueva contraseña:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>Confirmar contraseña:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>Con una contraseña de administrador, los ajustes solo se pueden cambiar tras iniciar sesión.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>La impresora tiene ahora una contraseña de administrador.</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>La impresora no tiene ahora ninguna contraseña de administrador.</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>No se sabe si la impresora tiene ahora una contraseña de administrador.</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>Anote la contraseña nueva: no se puede leer de la impresora.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>Contraseña que se pedirá antes de cambiar ajustes.</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>La misma contraseña otra vez.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>Nueva contraseña</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>Confirmación de la contraseña</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>8 caracteres como máximo, sin espacios: letras sin tilde ni ñ (A-Z, a-z), números y ! " # $ % &amp; ' ( ) * + , - . / { | } ~</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>Las contraseñas no coinciden. Escriba la misma contraseña en ambos campos.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>Escriba la contraseña nueva o elija «Quitar la contraseña».</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>8 caracteres como máximo: el resto no se acepta.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>Aún sin probar</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>La impresora responde</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>La impresora no responde</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>&amp;Probar conexión</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>Se puede probar cuando los cambios se hayan enviado o deshecho.</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>Conexión cableada</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>Estado:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>Interfaz cableada</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>Dirección MAC:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>Dirección IP</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>Automá&amp;tica (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>Dirección &amp;fija</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>Dirección IP:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>Máscara de subred:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>Puerta de enlace:</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>Dirección de la impresora: cuatro números separados por puntos, por ejemplo 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>Indica qué direcciones pertenecen a la red de la impresora.</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>La dirección del router.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>Dirección IP</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>Máscara de subred</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>Puerta de enlace</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>Una dirección de 0.0.0.1 a 255.255.255.254, salvo 127.0.0.1.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>Una máscara de 0.0.0.1 a 255.255.255.254, como 255.255.255.0.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>Una dirección de 0.0.0.1 a 255.255.255.254.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>Conexión Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>Estado:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>Aún sin probar</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>La impresora responde</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>La impresora no responde</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>&amp;Probar conexión</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>Estándar Wi-Fi:</translation>
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
        <translation>Intensidad de la señal:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>Dirección IP</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>Automá&amp;tica (DHCP)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>Dirección &amp;fija</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>Dirección IP:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>Máscara de subred:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>Puerta de enlace:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>Dirección de la impresora: cuatro números separados por puntos, por ejemplo 192.168.0.10.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>Indica qué direcciones pertenecen a la red de la impresora.</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>La dirección del router.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>Red y seguridad</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>Autenticación:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>Cifrado:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>Sistema abierto</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>Clave compartida</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>Ninguno</translation>
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
        <translation>Clave 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>Clave 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>Clave 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>Clave 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>Guía de &amp;WPS</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>Nombre de red (SSID):</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>Nombre de la red Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>Ele&amp;gir…</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>Clave WPA:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>Clave precompartida de la red (contraseña).</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>Clave WEP:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>Clave WEP de la red.</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>Número de clave WEP:</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>Dirección IP</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>Máscara de subred</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>Puerta de enlace</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>Nombre de red (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>De 1 a 32 caracteres: letras sin tilde ni ñ (A-Z, a-z), números, espacios, signos de un teclado estadounidense. Una red con otro nombre se puede elegir de la lista.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>Clave WPA</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>De 8 a 63 caracteres: letras sin tilde ni ñ (A-Z, a-z), números, espacios, signos de un teclado estadounidense.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>Clave WEP</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 o 13 caracteres (letras, números, espacios, signos de un teclado estadounidense), o bien 10 o 26 dígitos hexadecimales (0 a 9, A a F).</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>Punto de acceso</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>Estándar Wi-Fi:</translation>
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
        <translation>Asignación de direcciones</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>Servidor DHCP:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>Activado: la impresora asigna las direcciones</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>Dirección IP</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>Primera dirección asignada:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>Dirección de la impresora:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>Máscara de subred:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>Red y seguridad</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>Autenticación:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>Sistema abierto</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>Clave compartida</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-Personal</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>Cifrado:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>Ninguno</translation>
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
        <translation>Nombre de red (SSID):</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>Clave WPA:</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>Lo que sigue a DIRECT- en el nombre de la red.</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>Clave (contraseña) con la que se unen los equipos.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>Nombre de red (SSID) del punto de acceso</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>De 1 a 25 caracteres: letras sin tilde ni ñ (A-Z, a-z), números, espacios, signos de un teclado estadounidense.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>Clave WPA del punto de acceso</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>Ajustes de red de impresoras</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – Ajustes de red de impresoras</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>Enviar a %1</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>Cambios sin enviar de %1</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>Redes detectadas por %1</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>Guía WPS para %1</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>El programa ya se está ejecutando, pero no responde. Ciérrelo y vuelva a iniciarlo.</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>Espere…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>E&amp;nviar a la impresora…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>Volver a &amp;leer</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>Ay&amp;uda</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>Impresora:</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>Esta impresora está conectada a través de la red. Sus ajustes solo se pueden consultar; para cambiarlos, conéctela por USB.</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>No se pudieron leer todos los ajustes, por lo que no se puede cambiar nada. Compruebe que la impresora está encendida y conectada y elija «Volver a leer».</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>La impresora no ha comunicado estos ajustes; no se envían hasta que introduzca algo en ellos: %1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>leído a las %1</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>sin dirección</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>Los valores mostrados se leyeron a las %1.</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>Categorías</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>Ajustes de la impresora</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>Dispositivo</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>Nombres</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>Red cableada</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>Red Wi-Fi</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>Infraestructura</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>Punto de acceso</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>Contraseña</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>Conexión con la impresora</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– aviso</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>No se pudieron leer los ajustes de la impresora. Compruebe que está encendida, que su cable está conectado y que ningún otro programa la usa, e inténtelo de nuevo.</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>Ha cambiado un nombre o una dirección con los que se accede a la impresora. Cuando se envíen los ajustes, los equipos que usen los anteriores dejarán de encontrarla.</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>Lista de redes</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>La impresora solo puede buscar redes en modo infraestructura. Elija primero «Infraestructura» en la página «Red Wi-Fi».</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>Hay cambios que no se han enviado a la impresora.</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>&amp;Enviar</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>Cerrar &amp;sin enviar</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>¿Enviar los cambios antes de cerrar?</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>Hay cambios que no se han enviado a la impresora. Si vuelve a leer los ajustes, se perderán.</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>&amp;Descartar y volver a leer</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>¿Descartar los cambios?</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>No apague ni desconecte la impresora durante el envío.</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>&amp;Enviar</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>¿Enviar estos cambios a %1?</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>No apague ni desconecte la impresora.</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>Enviando a %1</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1: sin respuesta desde hace %2 s</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>La impresora ha aceptado los ajustes.</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>Enviado a %1</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>Enviado y comprobado</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>Enviado a %1, pero sin comprobar</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 no ha aplicado todos los ajustes</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>No se ha enviado nada a %1</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>Se ha perdido la conexión con %1</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>Ajustes que la impresora no ha aplicado</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>Sin cambios por su parte</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>rechazado (código %1)</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>no se puede enviar</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>sin respuesta</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>distinto</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>&amp;Aceptar</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>Escriba la contraseña de administrador de la impresora.</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 está protegida</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>Contraseña:</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>&amp;Iniciar sesión</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>La impresora no ha aceptado esta contraseña. Se distinguen mayúsculas y minúsculas: compruebe Bloq Mayús.</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>Contraseña incorrecta</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>&amp;Reintentar</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>No se ha enviado nada y sus cambios se conservan. Compruebe que la impresora está encendida y que su cable está conectado, y vuelva a enviar.</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>No se puede acceder a %1</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>&amp;Aceptar</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>Redes Wi-Fi detectadas por la impresora.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>Nombre de red (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>Protegida</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>Señal</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>Sí</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>No</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>Fuerte</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>Media</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>Débil</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>&amp;Usar esta red</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>Con WPS, la impresora se une a una red Wi-Fi sin que usted tenga que escribir ninguna clave. Prepare ambos dispositivos:</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>Encienda la impresora y colóquela cerca del router Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>Localice el botón WPS del router. Suele llevar la marca WPS o dos flechas curvas; el manual del router lo muestra.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>Un router sin WPS no sirve para esto; escriba en su lugar el nombre y la clave de la red.</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>Si&amp;guiente</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>A&amp;trás</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>Inicie WPS en el menú de la impresora y pulse el botón WPS del router en menos de dos minutos. Cuando el indicador Wi-Fi de la impresora permanezca encendido, la impresora estará conectada.</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>&amp;Finalizar</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>A&amp;trás</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>Esta herramienta muestra y cambia los ajustes de red de una impresora de etiquetas: sus nombres, sus redes cableada y Wi-Fi y su contraseña de administrador. Los pasos siguientes le ayudan a conectar la impresora.</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>&amp;Continuar</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>&amp;Salir</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>¿Cómo quiere conectar la impresora?</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>Por &amp;USB, para introducir sus ajustes aquí</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>Por &amp;Wi-Fi, con WPS</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>Si&amp;guiente</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>&amp;Salir</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>Conecte la impresora a este equipo con un cable USB y enciéndala. Elija después «Siguiente» para encontrarla.</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>Si&amp;guiente</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>Elija la impresora cuyos ajustes quiere ver. Solo se pueden cambiar los ajustes de una impresora conectada por USB.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>A&amp;brir</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>Buscar de &amp;nuevo</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>Co&amp;nectar una impresora…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>Impresora</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>Conexión</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>Red</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>&amp;Archivo</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>&amp;Abrir</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>&amp;Guardar los ajustes…</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>A&amp;plicar un archivo…</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>&amp;Imprimir…</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>Ajustes (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>No se han podido guardar los ajustes</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>No se puede aplicar el archivo</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>Primero envíe o deshaga los cambios de las páginas.</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>La impresora ya tiene todos los ajustes del archivo</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… y %1 más</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>&amp;Salir</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>&amp;Edición</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>Cor&amp;tar</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>&amp;Copiar</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>&amp;Pegar</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>Seleccionar t&amp;odo</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>&amp;Restablecer la página</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>&amp;Ver</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>&amp;Minimizar</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>A&amp;yuda</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>&amp;Acerca de Ajustes de red de impresoras</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>Muestra y cambia los ajustes de red de impresoras de etiquetas.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>No se encontró ninguna impresora. Compruebe que la impresora está encendida y conectada a este equipo con un cable USB, o que está en la misma red. Elija después «Buscar de nuevo».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>Buscando impresoras…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 está conectada, pero usted no tiene permiso para usarla. Inicie sesión en este mismo equipo o pida al administrador que instale la regla USB de esta herramienta; después, vuelva a conectar la impresora.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>Otro programa está usando %1. Cierre ese programa y, después, elija «Buscar de nuevo».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>Este archivo no se puede usar, al menos no por completo: %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>No se encuentran las impresoras de la red: el servicio de detección (Avahi) de este equipo no está en marcha.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>número de serie %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>puerto USB %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>Muestra y cambia los ajustes de red de impresoras de etiquetas.

Uso: %1 [-Installer] [--demo] [--help] [--version]

  -Installer  empezar con una guía de conexión; mostrar solo impresoras USB
  --demo      mostrar las impresoras de demostración, internas al programa
  --help      mostrar este texto y salir
  --version   mostrar la versión y salir</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>Un valor de esta página no se puede usar</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>Modificado, aún sin enviar</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>Modificado. La impresora tiene: %1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>Deshacer el cambio de %1 (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>La impresora no usa estos ajustes en el modo de comunicación elegido en la página «Red Wi-Fi».</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>8 caracteres como máximo</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>Qué cambiará</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>Ajuste</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>Ahora</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>Nuevo</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>Enviado</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>En la impresora</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>Resultado</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>nueva</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>se quita</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>(vacío)</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>La red «%1» está protegida, pero no se ha escrito ninguna clave. La impresora conserva su clave anterior.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>No se conoce la seguridad de la red «%1». Elija su autenticación.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 no es una máscara de subred habitual. Es posible que los equipos no puedan acceder a la impresora.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>La puerta de enlace %1 está fuera de la subred de la impresora. Es posible que otras redes no puedan acceder a la impresora.</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>En este modo de comunicación ya no se podrá acceder a la impresora en su dirección actual %1.</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>sin cambios</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>Clave de «%1»</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>Mostrar la clave</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>Mostrar la contraseña</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>No se encontró ninguna impresora. Compruebe que la impresora está encendida y conectada a este equipo con un cable USB. Elija después «Buscar de nuevo».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>No se encontró ninguna impresora por USB y no es posible buscar en la red. Compruebe que la impresora está encendida y conectada a este equipo con un cable USB. Elija después «Buscar de nuevo».</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>El catálogo no contiene ninguna impresora. Añada impresoras al archivo que indica ZMLIB_PRINTERS y vuelva a iniciar esta herramienta.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>En este momento no se puede usar ninguna impresora. Los mensajes de abajo explican el motivo.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>Ninguna impresora coincide con el filtro.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>Filtrar por nombre, modelo o dirección</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>La impresora no encontró ninguna red Wi-Fi. Pulse F5 para buscar de nuevo.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>No se pudo acceder a la impresora. Pulse F5 para buscar de nuevo.</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>Ordenar (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>Borrar</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>Impres&amp;ora</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>&amp;Enviar a la impresora…</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>&amp;Volver a leer</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>&amp;Probar la conexión</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>Elegir una &amp;red…</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>&amp;Lista de impresoras</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>&amp;Conectar una impresora…</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>Para informar de un problema: %1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>&amp;Mostrar la ventana</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>La herramienta sigue en ejecución sin ventana.</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>Mostrar las impresoras</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>Progreso</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>Leyendo %1, %2 de %3</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>Buscando redes, quedan unos %1 s</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>Se canceló la lectura, por lo que no se puede cambiar nada. Elija «Volver a leer» para continuar.</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>Se canceló la búsqueda. Pulse F5 para buscar de nuevo.</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>Copiar todos los &amp;ajustes</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>Asignación de la dirección</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>Dibujo: una impresora de etiquetas conectada sin cables</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>Dibujo: una impresora conectada a un equipo con un cable USB y a un router Wi-Fi por radio</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>Dibujo: un cable USB entre un equipo y una impresora</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>Dibujo: una impresora junto a un router Wi-Fi cuyo botón WPS está resaltado</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>Dibujo: una flecha señala el botón WPS de un router Wi-Fi; la impresora y el router intercambian señales de radio</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>Lee y cambia los ajustes de red de impresoras de etiquetas.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>Listar las impresoras USB y de la red.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>Mostrar todos los ajustes de una impresora, salvo claves y contraseñas.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>Mostrar los valores de algunos ajustes de una impresora.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>Listar los nombres de todos los ajustes y lo que admiten.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>Mostrar en qué ajustes difieren dos impresoras o archivos.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>Decir todo lo que está mal en un archivo de ajustes o una tabla.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>Cambiar una impresora según un archivo de ajustes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>Cambiar algunos ajustes de una impresora.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>Cambiar cada impresora USB que tiene una fila en una tabla.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>Hacer que una impresora busque redes inalámbricas.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>Mostrar lo que puede hacer el programa, o una orden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>Ejemplo:</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER: nombre de la impresora, número de serie, dirección MAC o IP, o URI de la lista. FILE: ajustes en JSON; «-» es la entrada estándar.</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>Termina con 0 hecho, 1 uso incorrecto, 2 entrada rechazada, 3 impresora no encontrada o sin acceso, 4 inicio de sesión rechazado, 5 ajustes no aceptados, 6 detenido, 7 cambiaría (con --exit-code).</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>«network-setting COMMAND --help» muestra las opciones de una orden.</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>escribir JSON</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>solo lo que se puede cambiar, con los nombres de los archivos</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>decir solo qué cambiaría</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>terminar con 7 si algo cambiaría</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>no preguntar antes de cambiar</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>solo estos ajustes o grupos: wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>omitir estos ajustes o grupos: names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>solo impresoras conectadas ahora; lo predeterminado sin terminal</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>esperar como máximo este tiempo a las impresoras que faltan</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>enviar las claves de red siempre (always) o solo si cambia la red o su seguridad (when-changed, lo predeterminado)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>la contraseña de administrador es la primera línea de F</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>ajustes para cada impresora de la tabla</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>añadir a este archivo una fila por impresora</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>repetir una impresora que se vuelve a conectar</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>«network-setting --help» muestra lo que se puede hacer.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>«network-setting %1 --help» muestra lo que admite.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>No se ha indicado ninguna orden.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>No existe la orden «%1».</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>No existe la opción «%1».</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>¿Se refiere a «%1»?</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>Los de este grupo son: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>«%1» no admite ningún valor.</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>«--keys» no puede ser «%1». Se espera uno de estos: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>«--timeout» necesita un número de segundos.</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>«%1» necesita %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>«%1» no admite más argumentos: «%2».</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>No se ha podido escribir la salida.</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>Dirección IP en uso</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>Máscara de subred en uso</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>Puerta de enlace en uso</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>línea %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>columna %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>Aquí, esto no es JSON válido.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>Esto está anidado con demasiada profundidad para ajustes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>El texto no está en UTF-8. Guarde el archivo como UTF-8.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>Aquí, esto no es CSV válido: falta o sobra una comilla.</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>Errores que no se muestran: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 supera los %2 MiB.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>No hay ningún ajuste con este nombre.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>No hay ningún ajuste con este nombre, y no es mac, serial ni name.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>Este ajuste no se puede cambiar.</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>Solo se muestra; no se puede cambiar.</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>«%1» no se muestra nunca.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>Este nombre está indicado dos veces.</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>Una clave o contraseña no se da como argumento, pues otros podrían verla. «NOMBRE=@ARCHIVO» toma la primera línea de un archivo.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>Se espera NOMBRE=VALOR.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>Aquí se espera un objeto con ajustes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>Se espera un texto entre comillas.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>Se espera un texto entre comillas o {"file": "..."}.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>Se esperan de 2 a 64 dígitos hexadecimales, dos por byte.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>Se espera un número entero de %1 a %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>Se espera uno de estos: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>Se espera una dirección MAC de 12 dígitos hexadecimales.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>Esta fila debería tener %1 celdas; tiene %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>Una de las columnas mac, serial y name debe decir para qué impresora es una fila.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>Esta fila no dice para qué impresora es: mac, serial y name están vacíos.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>La tabla no tiene filas.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>Esta impresora ya está en la línea %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>Esta dirección ya está en la línea %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>El cifrado %1 no es compatible con la autenticación %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>Esta clave no se usa con el cifrado %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>El número de una clave WEP solo se puede indicar junto con wireless.wepKey.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>Esta dirección solo se usa con el modo «fixed».</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>No se ha encontrado ninguna impresora.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>La impresora no encontró ninguna red Wi-Fi.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>No hay ninguna impresora «%1». «network-setting list» muestra las impresoras.</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>«%1» corresponde a varias impresoras. Indique el URI de una de ellas:</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 está en la red. Los ajustes solo se pueden cambiar en una impresora conectada por USB.</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>Otro programa está usando %1. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>No se puede acceder a %1. Compruebe que la impresora está encendida y que su cable está conectado.</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 dejó de responder antes de que se leyera todo.</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 no comunicó estos ajustes: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>(no comunicado)</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>Omitidos, porque no se pueden cambiar: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>Se omite porque la impresora obtiene su dirección automáticamente: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>No se envía de nuevo porque la red no cambia («--keys always» lo envía): %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>Sin terminal, y con --json, no se cambia nada sin --yes.</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>En %1 cambiará lo siguiente:</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1, de %2</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 se cambiaría.</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 ya tiene estos ajustes. No se ha enviado nada.</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>¿Cambiarlo? [s/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>s sí si y yes</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>Contraseña de administrador de %1:</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 tiene una contraseña de administrador y no se ha indicado ninguna. No se ha enviado nada.</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 no aceptó la contraseña. No se ha enviado nada.</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>Enviando a %1</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>Se perdió la conexión con %1. No se ha aplicado nada.</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 no aceptó estos ajustes: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>No está claro si %1 tomó estos ajustes: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 tiene valores distintos de los enviados.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>Los ajustes se enviaron a %1, pero la impresora no se pudo volver a leer. No se ha comprobado que los tenga.</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 se envió como %2 y se leyó como %3.</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 no se leyó tal como se envió.</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 se ha cambiado y tiene los nuevos ajustes.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>Detenido. No se ha enviado nada más.</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>Detenido antes de enviar nada a %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>Deteniendo. Antes se termina lo que se está enviando.</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>Esperando impresoras que se conecten por USB. Ctrl+C termina.</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 no tiene fila en la tabla y no se ha tocado.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 tiene varias filas en la tabla y no se ha tocado: líneas %2.</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>Varias impresoras se llaman %1, como en la línea %2. No se han tocado.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 no se ha tocado: la línea %2 se usó para otra impresora.</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 ya se había hecho y no se ha vuelto a tocar.</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>Estas impresoras de la tabla no estaban: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>Y %1 más.</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>Varias filas dan el mismo nombre de impresora: líneas %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>Otra impresora ya se llama %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 ya tiene la dirección %1.</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>Es uno de los archivos que se leen.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>Otra ejecución está escribiendo en él.</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>No es un archivo de resultados.</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>No se empieza ninguna otra impresora.</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>La primera línea de %1 no contiene ninguna clave ni contraseña.</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 no comunica estos ajustes; se aceptaron, pero no se compararon: %2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>Sus cambios se conservan.</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>Volviendo a leer los ajustes para compararlos…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 se ha cambiado. Todos los ajustes que comunica se leyeron tal como se enviaron.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>No se encuentran las impresoras de la red: el servicio de detección (Avahi) de este equipo no responde.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>Impresoras anunciadas en la red cuya dirección aún no se conoce: %1.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>En la red se anuncian más de %1 impresoras. Con sus ajustes habituales, el servicio de detección (Avahi) no las conserva todas; pueden faltar algunas.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 está conectada, pero no aparece en la lista: la herramienta no conoce este modelo.</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>Consultando el nombre…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>No responde</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>La búsqueda de redes Wi-Fi falló: %1 no comunicó ningún resultado.</translation>
    </message>
</context>
</TS>
