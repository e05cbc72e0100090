<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>– 无法使用</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>打印机名称</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>1 到 31 个字符：字母 A 到 Z 和 a 到 z、数字和连字符，不含空格。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Bonjour 名称</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>1 到 25 个字符：字母 A 到 Z 和 a 到 z、数字和连字符，不含空格。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Bonjour 服务名称</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>1 到 31 个字符：字母 A 到 Z 和 a 到 z、数字、空格、美式键盘上的标点符号。</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>打印机名称</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Bonjour 名称：</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>服务名称：</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>网络上的计算机访问打印机所用的名称。</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>打印机列表中显示的名称。</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>打印机自身的名称。</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>无线网络</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>通信模式：</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>基础结构：加入现有的无线网络(&amp;I)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>接入点：计算机加入打印机自己的网络(&amp;J)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>关闭：不使用无线网络(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>MAC 地址（基础结构）：</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>MAC 地址（接入点）：</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>软件</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>固件版本：</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>打印超时</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>秒（30 到 300）</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>已设为最小值 %1。</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>已设为最大值 %1。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>设置新的管理员密码(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>删除密码(&amp;D)</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>管理员密码</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>新密码：</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>确认密码：</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>设置管理员密码后，必须登录才能更改设置。</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>打印机目前设有管理员密码。</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>打印机目前未设管理员密码。</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>目前不清楚打印机是否设有管理员密码。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>请记下新密码：无法从打印机读取密码。</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>更改设置前需要输入的密码。</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>再次输入相同的密码。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>新密码</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>确认密码</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>最多 8 个字符，不含空格：字母 A 到 Z 和 a 到 z、数字以及 ! " # $ % &amp; ' ( ) * + , - . / { | } ~</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>两次输入的密码不一致。请在两个输入框中输入相同的密码。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>请输入新密码，或选择“删除密码”。</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>最多 8 个字符：多余的字符不会被接受。</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>尚未测试</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>打印机有响应</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>打印机无响应</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>发送或撤消更改后即可测试。</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>有线连接</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>状态：</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>有线接口</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>MAC 地址：</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>IP 地址</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>自动 (DHCP)(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>固定地址(&amp;X)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>IP 地址：</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>子网掩码：</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>默认网关：</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>打印机自身的地址：用点分隔的四个数字，例如 192.168.0.10。</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>说明哪些地址属于打印机所在的网络。</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>路由器的地址。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>IP 地址</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>子网掩码</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>默认网关</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>0.0.0.1 到 255.255.255.254 的地址，127.0.0.1 除外。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>0.0.0.1 到 255.255.255.254 的掩码，例如 255.255.255.0。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>0.0.0.1 到 255.255.255.254 的地址。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>无线连接</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>状态：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>尚未测试</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>打印机有响应</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>打印机无响应</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>无线标准：</translation>
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
        <translation>信号强度：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>IP 地址</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>自动 (DHCP)(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>固定地址(&amp;X)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>IP 地址：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>子网掩码：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>默认网关：</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>打印机自身的地址：用点分隔的四个数字，例如 192.168.0.10。</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>说明哪些地址属于打印机所在的网络。</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>路由器的地址。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>网络和安全</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>身份验证：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>加密：</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>开放系统</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>共享密钥</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-个人</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-个人</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>无</translation>
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
        <translation>密钥 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>密钥 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>密钥 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>密钥 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>WPS 指南(&amp;G)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>网络名称 (SSID)：</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>无线网络的名称。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>选择(&amp;O)…</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>WPA 密钥：</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>网络的预共享密钥（密码）。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>WEP 密钥：</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>网络的 WEP 密钥。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>WEP 密钥编号：</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>IP 地址</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>子网掩码</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>默认网关</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>网络名称 (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>1 到 32 个字符：字母 A 到 Z 和 a 到 z、数字、空格、美式键盘上的标点符号。名称含有其他字符的网络可从列表中选择。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>WPA 密钥</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>8 到 63 个字符：字母 A 到 Z 和 a 到 z、数字、空格、美式键盘上的标点符号。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>WEP 密钥</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 个或 13 个字符（字母、数字、空格、美式键盘上的标点符号），或者 10 位或 26 位十六进制数字（0 到 9、A 到 F）。</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>接入点</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>无线标准：</translation>
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
        <translation>地址分配</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>DHCP 服务器：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>开启：由打印机分配地址</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>IP 地址</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>起始分配地址：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>打印机的地址：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>子网掩码：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>网络和安全</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>身份验证：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>开放系统</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>共享密钥</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-个人</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-个人</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>加密：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>无</translation>
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
        <translation>网络名称 (SSID)：</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>WPA 密钥：</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>网络名称中 DIRECT- 之后的部分。</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>计算机加入时使用的密钥（密码）。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>接入点的网络名称 (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>1 到 25 个字符：字母 A 到 Z 和 a 到 z、数字、空格、美式键盘上的标点符号。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>接入点的 WPA 密钥</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>网络设置工具</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – 网络设置工具</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>发送到 %1</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>%1 未发送的更改</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>%1 搜索到的网络</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>%1 的 WPS 指南</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>此工具已在运行，但没有响应。请先结束它，然后重新启动。</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>请稍候…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>发送到打印机(&amp;S)…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>帮助(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>打印机：</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>此打印机通过网络连接，其设置仅供查看；要更改设置，请用 USB 连接打印机。</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>有些设置无法读取，因此无法更改任何设置。请检查打印机是否已开机并连接，然后选择“重新读取”。</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>打印机未提供以下设置；在您输入内容之前不会发送它们：%1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>读取于 %1</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1：%2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>无地址</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>显示的是 %1 读取的值。</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>类别</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>打印机设置</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>设备</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>名称</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>有线网络</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>无线网络</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>基础结构</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>接入点</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>密码</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>与打印机的连接</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– 请注意</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>无法读取打印机的设置。请检查打印机是否已开机、电缆是否已插好、是否有其他程序正在使用它，然后重试。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>您更改了访问打印机所用的名称或地址。发送设置后，仍使用旧名称或旧地址的计算机将找不到打印机。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>网络列表</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>打印机只有在基础结构模式下才能搜索网络。请先在“无线网络”页面上选择“基础结构”。</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>有更改尚未发送到打印机。</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>发送(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>关闭且不发送(&amp;W)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>关闭前是否发送更改？</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>有更改尚未发送到打印机。重新读取设置会放弃这些更改。</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>放弃更改并重新读取(&amp;D)</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>是否放弃更改？</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>发送期间请勿关闭打印机或拔下电缆。</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>发送(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>要将这些更改发送到 %1 吗？</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>请勿关闭打印机或拔下电缆。</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>正在发送到 %1</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1 – 已 %2 秒没有应答</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>打印机已接受这些设置。</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>已发送到 %1</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>已发送并核实</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>已发送到 %1，但未能核实</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 未采用全部设置</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>未向 %1 发送任何内容</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>与 %1 的连接已断开</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>打印机未采用的设置</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>您未更改的设置</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>被拒绝（代码 %1）</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>无法发送</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>没有应答</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>不同</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>请输入打印机的管理员密码。</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 受保护</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>密码：</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>登录(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>打印机不接受此密码。密码区分大小写，请检查 Caps Lock。</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>密码错误</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>重试(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>未发送任何内容，您的更改已保留。请检查打印机是否已开机、电缆是否已插好，然后重新发送。</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>无法连接 %1</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>打印机搜索到的无线网络。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>网络名称 (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>受保护</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>信号</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>是</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>否</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>强</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>中</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>弱</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>使用此网络(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>使用 WPS，打印机无需输入密钥即可加入无线网络。请准备好两台设备：</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>接通打印机电源，并将其放在无线路由器附近。</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>找到路由器的 WPS 按钮。它通常标有 WPS 或两个弯曲的箭头；请参阅路由器的说明书。</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>没有 WPS 的路由器不能使用此方法；请改为输入网络名称和密钥。</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>下一步(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>上一步(&amp;B)</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>在打印机的菜单中启动 WPS，然后在两分钟内按下路由器的 WPS 按钮。打印机的无线指示灯常亮时，表示已连接。</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>完成(&amp;F)</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>上一步(&amp;B)</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>此工具用于查看和更改标签打印机的网络设置：名称、有线和无线网络以及管理员密码。接下来的步骤将帮助您连接打印机。</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>继续(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>您想如何连接打印机？</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>通过 USB，在此工具中输入设置(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>通过 WPS 连接到无线网络(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>下一步(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>请用 USB 电缆将打印机连接到此计算机，并打开打印机电源，然后选择“下一步”搜索打印机。</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>下一步(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>请选择要查看其设置的打印机。只有通过 USB 连接的打印机才能更改设置。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>重新搜索(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>连接打印机(&amp;N)…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>打印机</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>连接</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>网络</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>文件(&amp;F)</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>重新搜索(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>保存设置(&amp;S)…</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>应用文件(&amp;A)…</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>打印(&amp;P)…</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>设置 (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>无法保存设置</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>无法应用此文件</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>请先发送或还原页面上的更改。</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>打印机已具有文件中的所有设置</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… 以及另外 %1 项</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>编辑(&amp;E)</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>剪切(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>复制(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>全选(&amp;A)</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>还原此页(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>查看(&amp;V)</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>最小化(&amp;M)</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>关于网络设置工具(&amp;A)</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>查看和更改标签打印机的网络设置。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>未找到打印机。请检查打印机是否已开机，并已用 USB 电缆连接到此计算机，或与此计算机处于同一网络。然后选择“重新搜索”。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>正在搜索打印机…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 已连接，但您没有使用权限。请直接在此计算机上登录，或请管理员安装本工具的 USB 规则，然后重新插入打印机。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>%1 正被其他程序使用。请关闭该程序，然后选择“重新搜索”。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>此文件全部或部分无法使用：%1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>找不到网络上的打印机：此计算机的发现服务 (Avahi) 未运行。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>序列号 %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>USB 端口 %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>查看和更改标签打印机的网络设置。

用法：%1 [-Installer] [--demo] [--help] [--version]

  -Installer  从连接指南开始；仅列出 USB 打印机
  --demo      列出程序内置的演示打印机
  --help      显示此说明并退出
  --version   显示版本并退出</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>此页面上有无法使用的值</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>已更改，尚未发送</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>已更改。打印机中的值：%1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>撤消对“%1”的更改 (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>在“无线网络”页面上选择的通信模式下，打印机不使用这些设置。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>最多 8 个字符</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>将要更改的内容</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>设置</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>当前</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>新值</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>已发送</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>打印机中的值</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>结果</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>新</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>删除</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>（空）</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>网络“%1”受保护，但未输入密钥。打印机将保留原来的密钥。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>网络“%1”的安全设置未知。请选择其身份验证方式。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 不是常用的子网掩码。计算机可能无法访问打印机。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>默认网关 %1 不在打印机的子网内。其他网络可能无法访问打印机。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>在此通信模式下，将无法再通过打印机的当前地址 %1 访问它。</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>不更改</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>“%1”的密钥</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>显示密钥</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>显示密码</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>未找到打印机。请检查打印机是否已开机，并已用 USB 电缆连接到此计算机。然后选择“重新搜索”。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>未找到通过 USB 连接的打印机，且无法搜索网络上的打印机。请检查打印机是否已开机，并已用 USB 电缆连接到此计算机。然后选择“重新搜索”。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>目录中没有打印机。请在 ZMLIB_PRINTERS 指定的文件中添加打印机，然后重新启动本工具。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>目前没有可用的打印机。原因请见下方的消息。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>没有符合筛选条件的打印机。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>按名称、型号或地址筛选</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>打印机未找到无线网络。按 F5 键可重新搜索。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>无法连接打印机。按 F5 键可重新搜索。</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>排序 (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>清除</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>打印机(&amp;P)</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>发送到打印机…(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>选择网络(&amp;C)…</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>打印机列表(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>连接打印机…(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>问题反馈：%1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>显示窗口(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>工具在没有窗口的情况下继续运行。</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>显示打印机</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>进度</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>正在读取 %1，%2/%3</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>正在搜索无线网络，约剩 %1 秒</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>读取已取消，因此无法更改任何设置。要继续，请选择“重新读取”。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>搜索已取消。按 F5 键可重新搜索。</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>复制所有设置(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1：%2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>地址分配方式</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>图：通过无线方式连接的标签打印机</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>图：用 USB 电缆连接到计算机、通过无线信号连接到无线路由器的打印机</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>图：连接计算机和打印机的 USB 电缆</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>图：打印机，旁边是突出显示 WPS 按钮的无线路由器</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>图：箭头指向无线路由器的 WPS 按钮，打印机与路由器交换无线信号</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>查看和更改标签打印机的网络设置。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>列出 USB 和网络上的打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>显示打印机的所有设置（密钥和密码除外）。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>显示打印机部分设置的值。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>列出所有设置的名称及其允许的值。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>显示两台打印机或两个文件的设置差异。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>列出设置文件或表中的所有错误。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>按设置文件更改一台打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>更改一台打印机的部分设置。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>更改表中有对应行的每台 USB 打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>让打印机搜索无线网络。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>显示程序或命令的用法。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>示例：</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER 是打印机名称、序列号、MAC 或 IP 地址，或列表中的 URI。FILE 是 JSON 格式的设置；“-”表示标准输入。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>退出码：0 完成，1 用法错误，2 输入有误，3 找不到或无法连接打印机，4 登录被拒绝，5 设置未生效，6 已停止，7 将会更改（使用 --exit-code 时）。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>“network-setting COMMAND --help”显示命令的选项。</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>以 JSON 输出</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>仅显示可更改的设置，使用文件中的名称</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>只显示将要更改的内容</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>有内容将会更改时以 7 退出</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>更改之前不询问</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>仅限这些设置或组：wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>省略这些设置或组：names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>仅处理当前已连接的打印机；没有终端时为默认</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>最多等待未连接的打印机多少秒</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>总是发送网络密钥 (always)，或仅在网络或其安全设置更改时发送 (when-changed，默认)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>管理员密码是 F 的第一行</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>表中每台打印机共用的设置</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>为每台打印机向此文件添加一行</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>再次处理重新插入的打印机</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>“network-setting --help”显示可以执行的操作。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>“network-setting %1 --help”显示其用法。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>没有指定命令。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>没有命令“%1”。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>没有选项“%1”。</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>您是指“%1”吗？</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>该组的设置有：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>“%1”没有值。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>“--keys”不能是“%1”。应为以下之一：%2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>“--timeout”需要秒数。</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>“%1”需要 %2。</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>“%1”没有更多参数：“%2”。</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>无法写入输出。</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>正在使用的 IP 地址</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>正在使用的子网掩码</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>正在使用的默认网关</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>第 %1 行</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>列 %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>此处不是有效的 JSON。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>对于设置来说嵌套过深。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>文本不是 UTF-8。请将文件保存为 UTF-8。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>此处不是有效的 CSV：缺少或多出引号。</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>未列出的错误：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>无法读取 %1：%2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 超过 %2 MiB。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>没有此名称的设置。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>没有此名称的设置，它也不是 mac、serial 或 name。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>此设置无法更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>仅供显示，不能更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>“%1”从不显示。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>此名称指定了两次。</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>密钥或密码不能作为参数给出，因为他人可能看到。“名称=@文件”使用文件的第一行。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>应为 名称=值。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>此处应为包含设置的对象。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>应为带引号的文本。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>应为带引号的文本或 {"file": "..."}。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>应为 2 到 64 位十六进制数字，每字节两位。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>应为 %1 到 %2 的整数。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>应为以下之一：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>应为由 12 位十六进制数字组成的 MAC 地址。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>此行应有 %1 个单元格，实际有 %2 个。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>必须有 mac、serial、name 中的一列来说明某行用于哪台打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>此行没有说明用于哪台打印机：mac、serial 和 name 都为空。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>表中没有行。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>此打印机已在第 %1 行中。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>此地址已在第 %1 行中。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>加密 %1 不能与身份验证 %2 一起使用。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>使用加密 %1 时不使用此密钥。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>WEP 密钥的编号只能与 wireless.wepKey 一起指定。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>只有 mode 为“fixed”时才使用此地址。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>没有找到打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>打印机未找到无线网络。</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>没有打印机“%1”。“network-setting list”显示打印机列表。</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>“%1”对应多台打印机。请指定其中一台的 URI：</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 在网络上。只能更改通过 USB 连接的打印机的设置。</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>%1 正由其他程序使用。请关闭该程序，然后重试。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>无法连接 %1。请检查打印机是否已开机、电缆是否已插好。</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 在读取完成之前停止了响应。</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 没有提供以下设置：%2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>（未报告）</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>以下项目无法更改，已略过：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>已省略，因为打印机自动获取地址：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>网络不变，因此不再发送（“--keys always”会发送）：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>没有终端时，以及使用 --json 时，必须给出 --yes 才会更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>%1 将更改以下设置：</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1，来自 %2</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 将会被更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 已经是这些设置。没有发送任何内容。</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>要更改吗？[y/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>y yes 是</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>%1 的管理员密码：</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 设有管理员密码，但没有提供密码。没有发送任何内容。</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 没有接受密码。没有发送任何内容。</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>正在发送到 %1</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>与 %1 的连接已断开。没有任何设置生效。</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 没有接受以下设置：%2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>不清楚 %1 是否采用了以下设置：%2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 中的值与发送的值不同。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>设置已发送到 %1，但无法再次读取打印机。尚未确认设置是否生效。</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 发送的是 %2，读回的是 %3。</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 读回的内容与发送的不同。</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 已更改，新设置已确认。</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>已停止。没有再发送任何内容。</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>在向 %1 发送任何内容之前已停止。</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>正在停止。先完成正在进行的发送。</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>正在等待通过 USB 插入打印机。按 Ctrl+C 结束。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 在表中没有对应的行，未作更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 在表中有多行，未作更改：第 %2 行。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>有多台打印机名为 %1（见第 %2 行），均未作更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 未作更改：第 %2 行已用于另一台打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 已处理过，未再更改。</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>表中的以下打印机不在：%1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>另外还有 %1 台。</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>多行给出同一个打印机名称：第 %1 行</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>另一台打印机已名为 %1。</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 已使用地址 %1。</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>无法写入 %1：%2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>它是要读取的文件之一。</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>另一次运行正在写入。</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>它不是结果文件。</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>不再处理其他打印机。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>%1 的第一行没有密钥或密码。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 不报告以下设置；它们已被接受，但未经核对：%2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>您的更改已保留。</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>正在读回设置以进行核对…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 已更改。它报告的每项设置读回的都与发送的一致。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>找不到网络上的打印机：此计算机的发现服务 (Avahi) 无响应。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>网络上已发现但地址尚未知的打印机：%1 台。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>网络上通告的打印机超过 %1 台。发现服务 (Avahi) 在常用设置下无法保留全部，因此可能缺少部分打印机。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 已连接，但本工具不支持此型号，因此未列出。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>正在获取名称…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>无响应</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>搜索无线网络失败：%1 未返回结果。</translation>
    </message>
</context>
</TS>
