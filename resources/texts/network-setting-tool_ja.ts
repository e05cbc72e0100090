<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="DWT_Localize_Alert_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Alert_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Error">
        <translation>– 使用できません</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_PrinterName">
        <translation>プリンター名</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PrinterName_InputErr">
        <translation>1～31 文字。半角の英字 (A～Z、a～z)、数字、ハイフンを使用できます。スペースは使用できません。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourName">
        <translation>Bonjour 名</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourName_InputErr">
        <translation>1～25 文字。半角の英字 (A～Z、a～z)、数字、ハイフンを使用できます。スペースは使用できません。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Network_BonjourServiceName">
        <translation>Bonjour サービス名</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr">
        <translation>1～31 文字。半角の英字 (A～Z、a～z)、数字、スペース、US キーボードの記号を使用できます。</translation>
    </message>
    <message id="DWT_Localize_Network_Box_PrinterName">
        <translation>プリンター名</translation>
    </message>
    <message id="DWT_Localize_Network_Box_BonjourName">
        <translation>Bonjour</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjour_Label">
        <translation>Bonjour 名:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_NetworkBonjourService_Label">
        <translation>サービス名:</translation>
    </message>
    <message id="DWT_Localize_Network_Text_BonjourLocal">
        <translation>.local</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjour">
        <translation>ネットワーク上のコンピューターがプリンターに接続するときの名前です。</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkBonjourService">
        <translation>プリンターの一覧に表示される名前です。</translation>
    </message>
    <message id="DWT_ToolChip_Network_Text_NetworkHostName">
        <translation>プリンター自体の名前です。</translation>
    </message>
    <message id="DWT_Localize_Wireless_Box_WirelessLANInfomation">
        <translation>無線 LAN</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_CommunicateMode_Label">
        <translation>通信モード:</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_Infrastructure_Label">
        <translation>インフラストラクチャ: 既存の無線 LAN に参加する(&amp;I)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAP_Label">
        <translation>アクセスポイント: コンピューターがプリンターのネットワークに参加する(&amp;J)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_WifiNothing_Label">
        <translation>オフ: 無線 LAN を使用しない(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label">
        <translation>MAC アドレス (インフラストラクチャ):</translation>
    </message>
    <message id="DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label">
        <translation>MAC アドレス (アクセスポイント):</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_SoftwareInfomation">
        <translation>ソフトウェア</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Firmware_Label">
        <translation>ファームウェアのバージョン:</translation>
    </message>
    <message id="DWT_Localize_Firmware_Box_PrintTimeOut">
        <translation>印刷タイムアウト</translation>
    </message>
    <message id="DWT_Localize_Firmware_Text_Second_Label">
        <translation>秒 (30～300)</translation>
    </message>
    <message id="DWT_Localize_Field_Least">
        <translation>最小値の %1 に設定しました。</translation>
    </message>
    <message id="DWT_Localize_Field_Most">
        <translation>最大値の %1 に設定しました。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordChange_Label">
        <translation>新しい管理者パスワードを設定する(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Remove_Label">
        <translation>パスワードを削除する(&amp;D)</translation>
    </message>
    <message id="DWT_Localize_Password_Box_AdministratorPassword">
        <translation>管理者パスワード</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Password_Label">
        <translation>新しいパスワード:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Reinput_Label">
        <translation>パスワードの確認:</translation>
    </message>
    <message id="DWT_Localize_Password_Text_PasswordInfomation">
        <translation>管理者パスワードを設定すると、ログインしないと設定を変更できません。</translation>
    </message>
    <message id="DWT_Localize_Password_State_Set">
        <translation>現在、管理者パスワードが設定されています。</translation>
    </message>
    <message id="DWT_Localize_Password_State_NotSet">
        <translation>現在、管理者パスワードは設定されていません。</translation>
    </message>
    <message id="DWT_Localize_Password_State_Unknown">
        <translation>現在、管理者パスワードが設定されているかどうかは不明です。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Cautions_Label">
        <translation>新しいパスワードは控えておいてください。プリンターから読み出すことはできません。</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Password">
        <translation>設定を変更する前に要求されるパスワードです。</translation>
    </message>
    <message id="DWT_ToolChip_Password_Text_Reinput">
        <translation>同じパスワードをもう一度入力します。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Password">
        <translation>新しいパスワード</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Password_Reinput">
        <translation>パスワードの確認</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_InputErr">
        <translation>8 文字以内。半角の英字 (A～Z、a～z)、数字、および ! " # $ % &amp; ' ( ) * + , - . / { | } ~ を使用できます。スペースは使用できません。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_MatchingErr">
        <translation>2 つのパスワードが一致しません。両方の欄に同じパスワードを入力してください。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Password_Missing">
        <translation>新しいパスワードを入力するか、[パスワードを削除する] を選択してください。</translation>
    </message>
    <message id="DWT_Localize_Password_TooLong">
        <translation>8 文字までです。それ以上は入力されません。</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Nolook">
        <translation>未テスト</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Online">
        <translation>プリンターは応答しています</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Offline">
        <translation>プリンターが応答しません</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Button_Connect">
        <translation>接続テスト(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Connect_Unsent">
        <translation>変更を送信するか元に戻すと、テストできます。</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredConnection">
        <translation>有線接続</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Connection_Label">
        <translation>状態:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_WiredLANMACAddress">
        <translation>有線インターフェイス</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_WiredMACAddress_Label">
        <translation>MAC アドレス:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Box_IPAddressSetup">
        <translation>IP アドレス</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Auto">
        <translation>自動 (DHCP)(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_ButtonCell_Manual">
        <translation>固定アドレス(&amp;X)</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_IPAddress_Label">
        <translation>IP アドレス:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_SubnetMask_Label">
        <translation>サブネットマスク:</translation>
    </message>
    <message id="DWT_Localize_Ethernet_Text_Gateway_Label">
        <translation>デフォルトゲートウェイ:</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_IPAddress">
        <translation>プリンター自体のアドレスです。数値 4 個をピリオドで区切ります。例: 192.168.0.10</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_SubnetMask">
        <translation>プリンターと同じネットワークに属するアドレスの範囲を示します。</translation>
    </message>
    <message id="DWT_ToolChip_Ethernet_Text_Gateway">
        <translation>ルーターのアドレスです。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_IpAddress">
        <translation>IP アドレス</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_SubnetMask">
        <translation>サブネットマスク</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Ethernet_Gateway">
        <translation>デフォルトゲートウェイ</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_IpAddress_InputErr">
        <translation>0.0.0.1～255.255.255.254 のアドレス (127.0.0.1 を除く)。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Subnetmask_InputErr">
        <translation>0.0.0.1～255.255.255.254 のマスク (例: 255.255.255.0)。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Router_InputErr">
        <translation>0.0.0.1～255.255.255.254 のアドレス。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_WirelessConnection">
        <translation>無線 LAN 接続</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Label">
        <translation>状態:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Nolook">
        <translation>未テスト</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Online">
        <translation>プリンターは応答しています</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Connection_Offline">
        <translation>プリンターが応答しません</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_Connect">
        <translation>接続テスト(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WirelessMode_Label">
        <translation>無線 LAN 規格:</translation>
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
        <translation>電波強度:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_IPAddressSetup">
        <translation>IP アドレス</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Auto">
        <translation>自動 (DHCP)(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_ButtonCell_Manual">
        <translation>固定アドレス(&amp;X)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_IPAddress_Label">
        <translation>IP アドレス:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SubnetMask_Label">
        <translation>サブネットマスク:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Gateway_Label">
        <translation>デフォルトゲートウェイ:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_IPAddress">
        <translation>プリンター自体のアドレスです。数値 4 個をピリオドで区切ります。例: 192.168.0.10</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SubnetMask">
        <translation>プリンターと同じネットワークに属するアドレスの範囲を示します。</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_Gateway">
        <translation>ルーターのアドレスです。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Box_Security">
        <translation>ネットワークとセキュリティ</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Authentic_Label">
        <translation>認証方式:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_Encryption_Label">
        <translation>暗号化方式:</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Open">
        <translation>オープンシステム</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_Shared">
        <translation>共有キー</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA">
        <translation>WPA-パーソナル</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Authentic_WPA2">
        <translation>WPA2-パーソナル</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_Encryption_Nothing">
        <translation>なし</translation>
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
        <translation>キー 1</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_2">
        <translation>キー 2</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_3">
        <translation>キー 3</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Popup_WEPKey_4">
        <translation>キー 4</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_WPSFunction">
        <translation>WPS ガイド(&amp;G)</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SSID_Label">
        <translation>ネットワーク名 (SSID):</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_SSID">
        <translation>無線 LAN の名前です。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Button_SelectSSID">
        <translation>選択(&amp;O)…</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_PSK_Label">
        <translation>WPA キー:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_PSK">
        <translation>ネットワークの事前共有キー (パスワード) です。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_WEPKey_Label">
        <translation>WEP キー:</translation>
    </message>
    <message id="DWT_ToolChip_Infrastructure_Text_WEPKey">
        <translation>ネットワークの WEP キーです。</translation>
    </message>
    <message id="DWT_Localize_Infrastructure_Text_SelectWEPKey_Label">
        <translation>WEP キー番号:</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_IpAddress">
        <translation>IP アドレス</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask">
        <translation>サブネットマスク</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_Gateway">
        <translation>デフォルトゲートウェイ</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SSID">
        <translation>ネットワーク名 (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr">
        <translation>1～32 文字。半角の英字 (A～Z、a～z)、数字、スペース、US キーボードの記号を使用できます。その他の名前のネットワークは一覧から選択できます。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_PSK">
        <translation>WPA キー</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_PSK_InputErr">
        <translation>8～63 文字。半角の英字 (A～Z、a～z)、数字、スペース、US キーボードの記号を使用できます。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_WEPKey">
        <translation>WEP キー</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_WEPKey_InputErr">
        <translation>5 文字または 13 文字 (半角の英字、数字、スペース、US キーボードの記号)、あるいは 16 進数 (0～9、A～F) で 10 桁または 26 桁。</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_WirelessLANMode">
        <translation>アクセスポイント</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_WirelessLANMode_Label">
        <translation>無線 LAN 規格:</translation>
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
        <translation>アドレスの割り当て</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCPServer_Label">
        <translation>DHCP サーバー:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DHCP">
        <translation>オン: プリンターがアドレスを割り当てる</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_IPAddressSetup">
        <translation>IP アドレス</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_StartIpAddress_Label">
        <translation>割り当てを開始するアドレス:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_IpAddress_Label">
        <translation>プリンターのアドレス:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_SubnetMask_Label">
        <translation>サブネットマスク:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Box_Security">
        <translation>ネットワークとセキュリティ</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Label">
        <translation>認証方式:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Open">
        <translation>オープンシステム</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_Shared">
        <translation>共有キー</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA">
        <translation>WPA-パーソナル</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Authentic_WPA2">
        <translation>WPA2-パーソナル</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Label">
        <translation>暗号化方式:</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_Encryption_Nothing">
        <translation>なし</translation>
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
        <translation>ネットワーク名 (SSID):</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_DIRECT_Label">
        <translation>DIRECT-</translation>
    </message>
    <message id="DWT_Localize_SimpleAP_Text_PSK_Label">
        <translation>WPA キー:</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_SSID">
        <translation>ネットワーク名の DIRECT- に続く部分です。</translation>
    </message>
    <message id="DWT_ToolChip_SimpleAP_Text_PSK">
        <translation>コンピューターが参加するときのキー (パスワード) です。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_SSID">
        <translation>アクセスポイントのネットワーク名 (SSID)</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr">
        <translation>1～25 文字。半角の英字 (A～Z、a～z)、数字、スペース、US キーボードの記号を使用できます。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_SimpleAP_PSK">
        <translation>アクセスポイントの WPA キー</translation>
    </message>
    <message id="DWT_Localize_App_Name">
        <translation>ネットワーク設定ツール</translation>
    </message>
    <message id="DWT_Localize_App_Title">
        <translation>%1 – ネットワーク設定ツール</translation>
    </message>
    <message id="DWT_Localize_Title_Send">
        <translation>%1 に送信</translation>
    </message>
    <message id="DWT_Localize_Title_Unsent">
        <translation>%1 の未送信の変更</translation>
    </message>
    <message id="DWT_Localize_Title_Networks">
        <translation>%1 が検出したネットワーク</translation>
    </message>
    <message id="DWT_Localize_Title_WPS">
        <translation>%1 の WPS ガイド</translation>
    </message>
    <message id="DWT_Localize_App_Hangs">
        <translation>このツールはすでに起動していますが、応答がありません。終了してからもう一度起動してください。</translation>
    </message>
    <message id="DWT_Localize_Wait_TextField">
        <translation>お待ちください…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Send">
        <translation>プリンターに送信(&amp;S)…</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Cancel">
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_NewSetting">
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Button_Help">
        <translation>ヘルプ(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_SelectPrinter_Label">
        <translation>プリンター:</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Network">
        <translation>このプリンターはネットワーク経由で接続されています。設定は表示のみです。変更するには、プリンターを USB で接続してください。</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_NotRead">
        <translation>読み込めなかった設定があるため、設定を変更できません。プリンターの電源と接続を確認してから、［再読み込み］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotReported">
        <translation>次の設定はプリンターから取得できませんでした。入力するまで送信されません: %1</translation>
    </message>
    <message id="DWT_Localize_State_ReadAt">
        <translation>%1 に読み込み</translation>
    </message>
    <message id="DWT_Localize_State_Address">
        <translation>%1：%2</translation>
    </message>
    <message id="DWT_Localize_State_NoAddress">
        <translation>アドレスなし</translation>
    </message>
    <message id="DWT_Localize_State_AsRead">
        <translation>表示されている値は %1 に読み込んだものです。</translation>
    </message>
    <message id="DWT_Localize_Outline_Name">
        <translation>カテゴリー</translation>
    </message>
    <message id="DWT_Localize_Outline_Printer">
        <translation>プリンターの設定</translation>
    </message>
    <message id="DWT_Localize_Outline_Firmware">
        <translation>本体</translation>
    </message>
    <message id="DWT_Localize_Outline_Network">
        <translation>名前</translation>
    </message>
    <message id="DWT_Localize_Outline_Ethernet">
        <translation>有線ネットワーク</translation>
    </message>
    <message id="DWT_Localize_Outline_Wireless">
        <translation>無線 LAN</translation>
    </message>
    <message id="DWT_Localize_Outline_Infrastructure">
        <translation>インフラストラクチャ</translation>
    </message>
    <message id="DWT_Localize_Outline_SimpleAP">
        <translation>アクセスポイント</translation>
    </message>
    <message id="DWT_Localize_Outline_Password">
        <translation>パスワード</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Dowline">
        <translation>プリンターとの接続</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Warning">
        <translation>– ご注意ください</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_Printer_ConnectErr">
        <translation>プリンターの設定を読み込めませんでした。電源が入っていること、ケーブルが接続されていること、ほかのプログラムが使用していないことを確認して、もう一度お試しください。</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_ChangeSetting_Warning">
        <translation>プリンターへの接続に使われる名前またはアドレスが変更されています。設定を送信すると、以前の名前やアドレスを使用しているコンピューターからは接続できなくなります。</translation>
    </message>
    <message id="DWT_Localize_Alert_MessageText_Infrastructure_SelectSSID">
        <translation>ネットワークの一覧</translation>
    </message>
    <message id="DWT_Localize_Alert_InfoText_SSIDList_CommunicateModeErr">
        <translation>プリンターがネットワークを検索できるのは、インフラストラクチャモードのときだけです。先に「無線 LAN」ページで「インフラストラクチャ」を選択してください。</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_TextField_Cancel">
        <translation>プリンターに送信していない変更があります。</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Reflect">
        <translation>送信(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_NoReflect">
        <translation>送信せずに閉じる(&amp;W)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_ChangeCheck_Heading">
        <translation>閉じる前に変更を送信しますか?</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_TextField_UpDate">
        <translation>プリンターに送信していない変更があります。再読み込みすると、変更は破棄されます。</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_OK">
        <translation>破棄して再読み込み(&amp;D)</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_UpdateCheck_Heading">
        <translation>変更を破棄しますか?</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_TextField">
        <translation>送信中は、プリンターの電源を切ったり、ケーブルを抜いたりしないでください。</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Send">
        <translation>送信(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Heading">
        <translation>これらの変更を %1 に送信しますか?</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_TextField">
        <translation>プリンターの電源を切ったり、ケーブルを抜いたりしないでください。</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Heading">
        <translation>%1 に送信中</translation>
    </message>
    <message id="DWT_Localize_Send_Progress_Late">
        <translation>%1 – %2 秒間応答がありません</translation>
    </message>
    <message id="DWT_Localize_Send_End_TextField">
        <translation>プリンターは設定を受け付けました。</translation>
    </message>
    <message id="DWT_Localize_Send_Sent_Heading">
        <translation>%1 に送信しました</translation>
    </message>
    <message id="DWT_Localize_Send_Verified_Heading">
        <translation>送信と確認が完了しました</translation>
    </message>
    <message id="DWT_Localize_Send_Unverified_Heading">
        <translation>%1 に送信しましたが、確認できませんでした</translation>
    </message>
    <message id="DWT_Localize_Send_NotTaken_Heading">
        <translation>%1 に反映されなかった設定があります</translation>
    </message>
    <message id="DWT_Localize_Send_NotSent_Heading">
        <translation>%1 には何も送信されていません</translation>
    </message>
    <message id="DWT_Localize_Send_Lost_Heading">
        <translation>%1 との接続が切れました</translation>
    </message>
    <message id="DWT_Localize_Send_End_Differences">
        <translation>反映されなかった設定</translation>
    </message>
    <message id="DWT_Localize_Send_End_Untouched">
        <translation>変更していない設定</translation>
    </message>
    <message id="DWT_Localize_Send_End_Refused">
        <translation>拒否（コード %1）</translation>
    </message>
    <message id="DWT_Localize_Send_End_TooLong">
        <translation>送信できません</translation>
    </message>
    <message id="DWT_Localize_Send_End_NoAnswer">
        <translation>応答なし</translation>
    </message>
    <message id="DWT_Localize_Send_End_Different">
        <translation>相違</translation>
    </message>
    <message id="DWT_Localize_Send_End_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_Send_Login_TextField">
        <translation>プリンターの管理者パスワードを入力してください。</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Heading">
        <translation>%1 は保護されています</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Password_Label">
        <translation>パスワード:</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_OK">
        <translation>ログイン(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Send_Login_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_TextField">
        <translation>プリンターはこのパスワードを受け付けませんでした。大文字と小文字は区別されます。Caps Lock を確認してください。</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Heading">
        <translation>パスワードが違います</translation>
    </message>
    <message id="DWT_Localize_Send_LoginErr_Button_OK">
        <translation>再試行(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_TextField">
        <translation>何も送信されていません。変更内容は保持されています。プリンターの電源が入っていること、ケーブルが接続されていることを確認して、もう一度送信してください。</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Heading">
        <translation>%1 に接続できません</translation>
    </message>
    <message id="DWT_Localize_Send_ConnectErr_Button_OK">
        <translation>&amp;OK</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TextField">
        <translation>プリンターが検出した無線 LAN ネットワークです。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_SSID">
        <translation>ネットワーク名 (SSID)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Security">
        <translation>保護</translation>
    </message>
    <message id="DWT_Localize_SSIDList_TableView_Column_Intensity">
        <translation>電波</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_YES">
        <translation>あり</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Security_NO">
        <translation>なし</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Strong">
        <translation>強</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Middle">
        <translation>中</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Intensity_Low">
        <translation>弱</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_OK_Key">
        <translation>このネットワークを使用(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Button_Cancel_Key">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField">
        <translation>WPS を使うと、キーを入力せずにプリンターを無線 LAN に参加させることができます。両方の機器を準備してください。</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a1">
        <translation>1.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_a">
        <translation>プリンターの電源を入れ、無線 LAN ルーターの近くに置きます。</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b2">
        <translation>2.</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_b">
        <translation>ルーターの WPS ボタンを確認します。多くの場合、WPS または 2 本の曲がった矢印の印が付いています。ルーターの説明書をご覧ください。</translation>
    </message>
    <message id="DWT_Localize_WPS1_TextField_c">
        <translation>WPS のないルーターではこの方法を使用できません。代わりにネットワーク名とキーを入力してください。</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Next_Key">
        <translation>次へ(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Back_Key">
        <translation>戻る(&amp;B)</translation>
    </message>
    <message id="DWT_Localize_WPS1_Button_Exit_Key">
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_WPS2_TextField">
        <translation>プリンターのメニューで WPS を開始し、2 分以内にルーターの WPS ボタンを押します。プリンターの無線 LAN ランプが点灯したままになると、接続は完了です。</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Next_Key">
        <translation>完了(&amp;F)</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Back_Key">
        <translation>戻る(&amp;B)</translation>
    </message>
    <message id="DWT_Localize_WPS2_Button_Exit_Key">
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_TextField">
        <translation>このツールは、ラベルプリンターのネットワーク設定 (名前、有線ネットワーク、無線 LAN、管理者パスワード) を表示・変更します。次の手順でプリンターを接続します。</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_OK_Key">
        <translation>続行(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_ToolPerform_Button_Exit_Key">
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_TextField">
        <translation>プリンターをどのように接続しますか?</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_USB_Key">
        <translation>USB で接続し、このツールで設定を入力する(&amp;U)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Matrix_WSP_Key">
        <translation>WPS で無線 LAN に接続する(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Next_Key">
        <translation>次へ(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_ChooseConnect_Button_Exit_Key">
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_USBConnect_TextField">
        <translation>プリンターを USB ケーブルでこのコンピューターに接続し、電源を入れてください。［次へ］をクリックするとプリンターを検索します。</translation>
    </message>
    <message id="DWT_Localize_USBConnect_Button_Next_Key">
        <translation>次へ(&amp;N)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TextField">
        <translation>設定を表示するプリンターを選択してください。設定を変更できるのは、USB で接続されたプリンターだけです。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_OK_Key">
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Reload_Key">
        <translation>再検索(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Exit_Key">
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Button_Connect">
        <translation>プリンターを接続(&amp;N)…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Name_Column">
        <translation>プリンター</translation>
    </message>
    <message id="DWT_Localize_PrinterList_TableView_Service_Column">
        <translation>接続</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_Network">
        <translation>ネットワーク</translation>
    </message>
    <message id="DWT_Localize_PrinterList_BonjourService_USB">
        <translation>USB</translation>
    </message>
    <message id="DWT_Localize_Menu_File">
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message id="DWT_Localize_Menu_Open">
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="DWT_Localize_Menu_LookAgain">
        <translation>再検索(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Menu_SaveSettings">
        <translation>設定を保存(&amp;S)…</translation>
    </message>
    <message id="DWT_Localize_Menu_ApplyFile">
        <translation>ファイルを適用(&amp;A)…</translation>
    </message>
    <message id="DWT_Localize_Menu_Print">
        <translation>印刷(&amp;P)…</translation>
    </message>
    <message id="DWT_Localize_Files_Settings">
        <translation>設定 (*.json)</translation>
    </message>
    <message id="DWT_Localize_Files_NotSaved">
        <translation>設定を保存できませんでした</translation>
    </message>
    <message id="DWT_Localize_Files_NotApplied">
        <translation>ファイルを適用できません</translation>
    </message>
    <message id="DWT_Localize_Files_Unsent">
        <translation>先に、ページの変更を送信するか元に戻してください。</translation>
    </message>
    <message id="DWT_Localize_Files_NoChange">
        <translation>プリンターの設定はファイルの内容とすでに同じです</translation>
    </message>
    <message id="DWT_Localize_Files_More">
        <translation>… ほか %1 件</translation>
    </message>
    <message id="DWT_Localize_Menu_Quit">
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="DWT_Localize_Menu_Edit">
        <translation>編集(&amp;E)</translation>
    </message>
    <message id="DWT_Localize_Menu_Cut">
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Menu_Copy">
        <translation>コピー(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Menu_Paste">
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message id="DWT_Localize_Menu_SelectAll">
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message id="DWT_Localize_Menu_RevertPage">
        <translation>ページの変更を元に戻す(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Menu_View">
        <translation>表示(&amp;V)</translation>
    </message>
    <message id="DWT_Localize_Menu_Minimize">
        <translation>最小化(&amp;M)</translation>
    </message>
    <message id="DWT_Localize_Menu_Close">
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Menu_Help">
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="DWT_Localize_Menu_About">
        <translation>ネットワーク設定ツールについて(&amp;A)</translation>
    </message>
    <message id="DWT_Localize_About_Text">
        <translation>ラベルプリンターのネットワーク設定を表示・変更します。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty">
        <translation>プリンターが見つかりません。プリンターの電源が入っていて、USB ケーブルでこのコンピューターに接続されているか、同じネットワーク上にあることを確認してから、［再検索］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Searching">
        <translation>プリンターを検索しています…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoPermission">
        <translation>%1 は接続されていますが、使用する権限がありません。このコンピューターに直接ログインするか、このツールの USB ルールのインストールを管理者に依頼してから、プリンターを接続し直してください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_InUse">
        <translation>%1 は別のプログラムで使用中です。そのプログラムを終了してから、［再検索］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_BadFile">
        <translation>このファイルの全部または一部を使用できません: %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NoNetworkService">
        <translation>ネットワーク上のプリンターを検索できません。このコンピューターの検出サービス (Avahi) が動作していません。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_SerialNumber">
        <translation>シリアル番号 %1</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Port">
        <translation>USB ポート %1</translation>
    </message>
    <message id="DWT_Localize_CommandLine_Help">
        <translation>ラベルプリンターのネットワーク設定を表示・変更します。

使い方: %1 [-Installer] [--demo] [--help] [--version]

  -Installer  接続ガイドから始め、USB プリンターだけを一覧に表示する
  --demo      プログラム内のデモ用プリンターを一覧に表示する
  --help      この説明を表示して終了する
  --version   バージョンを表示して終了する</translation>
    </message>
    <message id="DWT_Localize_Outline_Fault">
        <translation>このページに使用できない値があります</translation>
    </message>
    <message id="DWT_Localize_Outline_Changed">
        <translation>変更あり (未送信)</translation>
    </message>
    <message id="DWT_Localize_Field_Changed">
        <translation>変更あり。プリンターの値: %1</translation>
    </message>
    <message id="DWT_Localize_Field_Reset">
        <translation>%1の変更を元に戻す (Esc)</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_NotUsed">
        <translation>「無線 LAN」ページで選択された通信モードでは、プリンターはこれらの設定を使用しません。</translation>
    </message>
    <message id="DWT_Localize_Password_Text_Range_Label">
        <translation>8 文字まで</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Changes">
        <translation>変更内容</translation>
    </message>
    <message id="DWT_Localize_Table_Setting">
        <translation>設定</translation>
    </message>
    <message id="DWT_Localize_Table_Now">
        <translation>現在</translation>
    </message>
    <message id="DWT_Localize_Table_New">
        <translation>変更後</translation>
    </message>
    <message id="DWT_Localize_Table_Sent">
        <translation>送信した値</translation>
    </message>
    <message id="DWT_Localize_Table_Held">
        <translation>プリンターの値</translation>
    </message>
    <message id="DWT_Localize_Table_Result">
        <translation>結果</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_NewSecret">
        <translation>新規</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_RemovedSecret">
        <translation>削除</translation>
    </message>
    <message id="DWT_Localize_Send_Confirm_Empty">
        <translation>(なし)</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_KeyKept">
        <translation>ネットワーク「%1」は保護されていますが、キーが入力されていません。プリンターは以前のキーをそのまま使用します。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_SecurityUnknown">
        <translation>ネットワーク「%1」のセキュリティが不明です。認証方式を選択してください。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_NotAMask">
        <translation>%1 は一般的なサブネットマスクではありません。コンピューターからプリンターに接続できない可能性があります。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_GatewayOutside">
        <translation>デフォルトゲートウェイ %1 はプリンターのサブネットの外にあります。他のネットワークからプリンターに接続できない可能性があります。</translation>
    </message>
    <message id="DWT_Localize_Send_Warning_AddressUnreachable">
        <translation>この通信モードでは、現在のアドレス %1 でプリンターに接続できなくなります。</translation>
    </message>
    <message id="DWT_Localize_Key_Unchanged">
        <translation>変更なし</translation>
    </message>
    <message id="DWT_Localize_Key_OfNetwork">
        <translation>「%1」のキー</translation>
    </message>
    <message id="DWT_Localize_Key_Show">
        <translation>キーを表示</translation>
    </message>
    <message id="DWT_Localize_Password_Show">
        <translation>パスワードを表示</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_USB">
        <translation>プリンターが見つかりません。プリンターの電源が入っていて、USB ケーブルでこのコンピューターに接続されていることを確認してから、［再検索］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_NoNetwork">
        <translation>USB で接続されたプリンターが見つかりません。ネットワーク上のプリンターは検索できません。プリンターの電源が入っていて、USB ケーブルでこのコンピューターに接続されていることを確認してから、［再検索］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Catalogue">
        <translation>カタログにプリンターが登録されていません。ZMLIB_PRINTERS で指定したファイルにプリンターを追加してから、このツールを起動し直してください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Empty_Problems">
        <translation>現在使用できるプリンターはありません。理由については、下のメッセージを確認してください。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_NoMatch">
        <translation>条件に一致するプリンターはありません。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Filter">
        <translation>名前、機種、アドレスで絞り込み</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Empty">
        <translation>無線ネットワークが見つかりませんでした。F5 キーを押すと再検索します。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_NotReached">
        <translation>プリンターに接続できませんでした。F5 キーを押すと再検索します。</translation>
    </message>
    <message id="DWT_Localize_Table_Sort">
        <translation>並べ替え (%1)</translation>
    </message>
    <message id="DWT_Localize_Field_Clear">
        <translation>クリア</translation>
    </message>
    <message id="DWT_Localize_Menu_Printer">
        <translation>プリンター(&amp;P)</translation>
    </message>
    <message id="DWT_Localize_Menu_Send">
        <translation>プリンターに送信…(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Menu_ReadAgain">
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message id="DWT_Localize_Menu_Test">
        <translation>接続テスト(&amp;T)</translation>
    </message>
    <message id="DWT_Localize_Menu_ChooseNetwork">
        <translation>ネットワークを選択(&amp;C)…</translation>
    </message>
    <message id="DWT_Localize_Menu_PrinterList">
        <translation>プリンター一覧(&amp;L)</translation>
    </message>
    <message id="DWT_Localize_Menu_Guide">
        <translation>プリンターを接続…(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_About_Report">
        <translation>不具合の報告先: %1</translation>
    </message>
    <message id="DWT_Localize_Tray_Show">
        <translation>ウィンドウを表示(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Notice_Text">
        <translation>ウィンドウを閉じても、ツールは動作を続けています。</translation>
    </message>
    <message id="DWT_Localize_Notice_Open">
        <translation>プリンターを表示</translation>
    </message>
    <message id="DWT_Localize_Wait_Button_Cancel">
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message id="DWT_Localize_Progress">
        <translation>進行状況</translation>
    </message>
    <message id="DWT_Localize_Wait_Reading">
        <translation>%1 を読み込んでいます（%2/%3）</translation>
    </message>
    <message id="DWT_Localize_Wait_Searching">
        <translation>無線ネットワークを検索しています（残り約 %1 秒）</translation>
    </message>
    <message id="DWT_Localize_MainDialog_Text_ReadOnly_Cancelled">
        <translation>読み込みをキャンセルしたため、設定を変更できません。続けるには［再読み込み］をクリックしてください。</translation>
    </message>
    <message id="DWT_Localize_SSIDList_Cancelled">
        <translation>検索をキャンセルしました。F5 キーを押すと再検索します。</translation>
    </message>
    <message id="DWT_Localize_Menu_CopyAllSettings">
        <translation>すべての設定をコピー(&amp;S)</translation>
    </message>
    <message id="DWT_Localize_Report_Line">
        <translation>%1: %2</translation>
    </message>
    <message id="DWT_Localize_AddressAssignment">
        <translation>アドレスの割り当て</translation>
    </message>
    <message id="DWT_Localize_Drawing_Printer">
        <translation>図: 無線で接続されたラベルプリンター</translation>
    </message>
    <message id="DWT_Localize_Drawing_Choice">
        <translation>図: USB ケーブルでコンピューターに、無線でルーターに接続されたプリンター</translation>
    </message>
    <message id="DWT_Localize_Drawing_USB">
        <translation>図: コンピューターとプリンターをつなぐ USB ケーブル</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPrepare">
        <translation>図: プリンターと、WPS ボタンが強調された無線 LAN ルーター</translation>
    </message>
    <message id="DWT_Localize_Drawing_WPSPress">
        <translation>図: 無線 LAN ルーターの WPS ボタンを指す矢印と、電波をやり取りするプリンターとルーター</translation>
    </message>
    <message id="DWT_Localize_Cli_Help">
        <translation>ラベルプリンターのネットワーク設定を表示・変更します。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_List">
        <translation>USB とネットワークのプリンターを一覧表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Show">
        <translation>キーとパスワードを除くプリンターの全設定を表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Get">
        <translation>プリンターの一部の設定の値を表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Settings">
        <translation>すべての設定の名前と指定できる値を一覧表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Diff">
        <translation>2 台のプリンターまたはファイルの設定の違いを表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Check">
        <translation>設定ファイルまたは表の誤りをすべて表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Apply">
        <translation>設定ファイルに従って 1 台のプリンターを変更する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Set">
        <translation>プリンターの一部の設定を変更する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Provision">
        <translation>表に行がある USB プリンターをすべて変更する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Networks">
        <translation>プリンターに無線ネットワークを検索させる。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Help">
        <translation>プログラムまたはコマンドの使い方を表示する。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Example">
        <translation>例:</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Printer">
        <translation>PRINTER はプリンター名、シリアル番号、MAC アドレス、IP アドレス、または一覧の URI です。FILE は JSON 形式の設定です。「-」は標準入力です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_Codes">
        <translation>終了コード: 0 完了、1 使い方の誤り、2 入力の誤り、3 プリンターが見つからない、または応答しない、4 ログイン拒否、5 設定が反映されない、6 中止、7 変更あり (--exit-code 指定時)。</translation>
    </message>
    <message id="DWT_Localize_Cli_Help_More">
        <translation>コマンドのオプションは「network-setting COMMAND --help」で表示できます。</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Json">
        <translation>JSON で出力する</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Settings">
        <translation>変更できる設定だけを、ファイルでの名前で表示する</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_DryRun">
        <translation>変更される内容を表示するだけにする</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_ExitCode">
        <translation>変更がある場合は 7 で終了する</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Yes">
        <translation>変更の前に確認しない</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Only">
        <translation>これらの設定またはグループだけ: wireless,device.timeout</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Without">
        <translation>これらの設定またはグループを除外する: names,*.address</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Once">
        <translation>現在接続されているプリンターだけを処理する。端末がない場合の既定</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Timeout">
        <translation>接続されていないプリンターを待つ最長時間 (秒)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Keys">
        <translation>ネットワークキーを常に送る (always)、またはネットワークかそのセキュリティが変わるときだけ送る (when-changed、既定)</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_PasswordFile">
        <translation>F の 1 行目を管理者パスワードとして使う</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Template">
        <translation>表のすべてのプリンターに共通の設定</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Result">
        <translation>プリンターごとに 1 行をこのファイルに追加する</translation>
    </message>
    <message id="DWT_Localize_Cli_Option_Again">
        <translation>もう一度接続されたプリンターをもう一度処理する</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelp">
        <translation>使い方は「network-setting --help」で表示できます。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeeHelpOf">
        <translation>使い方は「network-setting %1 --help」で表示できます。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoCommand">
        <translation>コマンドが指定されていません。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadCommand">
        <translation>「%1」というコマンドはありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadOption">
        <translation>「%1」というオプションはありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Meant">
        <translation>「%1」のことですか?</translation>
    </message>
    <message id="DWT_Localize_Cli_OfGroup">
        <translation>このグループの設定: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoValue">
        <translation>「%1」は値を取りません。</translation>
    </message>
    <message id="DWT_Localize_Cli_BadKeys">
        <translation>「--keys」に「%1」は指定できません。次のいずれかです: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_BadSeconds">
        <translation>「--timeout」には秒数が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Needs">
        <translation>「%1」には %2 が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_TooMany">
        <translation>「%1」はこれ以上の引数を取りません: 「%2」</translation>
    </message>
    <message id="DWT_Localize_Cli_Output">
        <translation>出力を書き込めませんでした。</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_IPInUse">
        <translation>使用中の IP アドレス</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_MaskInUse">
        <translation>使用中のサブネットマスク</translation>
    </message>
    <message id="DWT_Localize_Cli_Label_GatewayInUse">
        <translation>使用中のデフォルトゲートウェイ</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Line">
        <translation>%1 行目</translation>
    </message>
    <message id="DWT_Localize_Cli_Place_Column">
        <translation>列 %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotJson">
        <translation>ここが正しい JSON ではありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooDeep">
        <translation>設定としては入れ子が深すぎます。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotUtf8">
        <translation>UTF-8 のテキストではありません。UTF-8 で保存してください。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NotCsv">
        <translation>ここが正しい CSV ではありません。引用符が足りないか、多すぎます。</translation>
    </message>
    <message id="DWT_Localize_Cli_MoreFaults">
        <translation>表示していない誤り: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unreadable">
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_TooLong">
        <translation>%1 が %2 MiB を超えています。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Unknown">
        <translation>この名前の設定はありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_UnknownColumn">
        <translation>この名前の設定はなく、mac、serial、name のどれでもありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_ReadOnly">
        <translation>この設定は変更できません。</translation>
    </message>
    <message id="DWT_Localize_Cli_OnlyShown">
        <translation>表示のみです。変更できません。</translation>
    </message>
    <message id="DWT_Localize_Cli_NeverShown">
        <translation>「%1」は表示されません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Twice">
        <translation>この名前が 2 回指定されています。</translation>
    </message>
    <message id="DWT_Localize_Cli_SecretArgument">
        <translation>キーやパスワードは他人に見えるため、引数では指定できません。「名前=@ファイル」でファイルの 1 行目を使います。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSign">
        <translation>名前=値 の形で指定してください。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Group">
        <translation>ここには設定を含むオブジェクトが必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Text">
        <translation>引用符で囲んだ文字列が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Secret">
        <translation>引用符で囲んだ文字列、または {"file": "..."} が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Hex">
        <translation>2～64 桁の 16 進数字が必要です (1 バイトにつき 2 桁)。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Number">
        <translation>%1 から %2 までの整数が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Choice">
        <translation>次のどれかが必要です: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Mac">
        <translation>16 進数 12 桁の MAC アドレスが必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Cells">
        <translation>この行のセルは %1 個のはずですが、%2 個あります。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoKnownColumn">
        <translation>どのプリンターの行かを示すため、mac、serial、name のどれかの列が必要です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoPrinter">
        <translation>どのプリンターの行かわかりません。mac、serial、name がすべて空です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NoRows">
        <translation>表に行がありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SamePrinter">
        <translation>このプリンターはすでに %1 行目にあります。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_SameAddress">
        <translation>このアドレスはすでに %1 行目にあります。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_Pair">
        <translation>暗号化方式 %1 は認証方式 %2 と組み合わせられません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_KeyUnused">
        <translation>暗号化方式 %1 ではこのキーは使われません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_NumberAlone">
        <translation>WEP キーの番号は wireless.wepKey と一緒に指定してください。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_AddressUnused">
        <translation>このアドレスは mode が “fixed” のときだけ使われます。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoPrinters">
        <translation>プリンターが見つかりませんでした。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoNetworks">
        <translation>無線ネットワークが見つかりませんでした。</translation>
    </message>
    <message id="DWT_Localize_Cli_NotFound">
        <translation>プリンター「%1」はありません。「network-setting list」で一覧を表示できます。</translation>
    </message>
    <message id="DWT_Localize_Cli_Ambiguous">
        <translation>「%1」にあてはまるプリンターが複数あります。次のどれかの URI を指定してください:</translation>
    </message>
    <message id="DWT_Localize_Cli_NotUsb">
        <translation>%1 はネットワーク上にあります。設定を変更できるのは USB で接続されたプリンターだけです。</translation>
    </message>
    <message id="DWT_Localize_Cli_InUse">
        <translation>%1 はほかのプログラムが使用中です。そのプログラムを終了してから、もう一度実行してください。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReached">
        <translation>%1 に接続できません。電源が入っていること、ケーブルが接続されていることを確認してください。</translation>
    </message>
    <message id="DWT_Localize_Cli_StoppedAnswering">
        <translation>%1 は、すべてを読み取る前に応答しなくなりました。</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReported">
        <translation>%1 から次の設定を取得できませんでした: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_NotReportedValue">
        <translation>(報告なし)</translation>
    </message>
    <message id="DWT_Localize_Cli_ReadOnly">
        <translation>変更できないため、次の項目は除きました: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_Automatic">
        <translation>プリンターがアドレスを自動的に取得するため、除外しました: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_LeftOut_SameNetwork">
        <translation>ネットワークが変わらないため、再送信しません (「--keys always」で送信): %1</translation>
    </message>
    <message id="DWT_Localize_Cli_NoTerminal">
        <translation>端末がない場合と --json を指定した場合は、--yes がなければ何も変更しません。</translation>
    </message>
    <message id="DWT_Localize_Cli_WillChange">
        <translation>%1 で次の設定が変更されます:</translation>
    </message>
    <message id="DWT_Localize_Cli_FromFile">
        <translation>%1 (%2 から)</translation>
    </message>
    <message id="DWT_Localize_Cli_WouldChange">
        <translation>%1 は変更されます。</translation>
    </message>
    <message id="DWT_Localize_Cli_NothingToDo">
        <translation>%1 はすでにこの設定になっています。何も送信していません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Confirm">
        <translation>変更しますか? [y/N]</translation>
    </message>
    <message id="DWT_Localize_Cli_Yes">
        <translation>y yes はい</translation>
    </message>
    <message id="DWT_Localize_Cli_AskPassword">
        <translation>%1 の管理者パスワード:</translation>
    </message>
    <message id="DWT_Localize_Ending_NoPassword">
        <translation>%1 には管理者パスワードが設定されていますが、指定されていません。何も送信していません。</translation>
    </message>
    <message id="DWT_Localize_Ending_LoginRefused">
        <translation>%1 はパスワードを受け付けませんでした。何も送信していません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Sending">
        <translation>%1 に送信しています</translation>
    </message>
    <message id="DWT_Localize_Ending_Lost">
        <translation>%1 との接続が切れました。何も反映されていません。</translation>
    </message>
    <message id="DWT_Localize_Ending_Refused">
        <translation>%1 は次の設定を受け付けませんでした: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_Unclear">
        <translation>%1 が次の設定を反映したかどうかわかりません: %2</translation>
    </message>
    <message id="DWT_Localize_Ending_NotAsSent">
        <translation>%1 の値が、送信した値と異なります。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotReadBack">
        <translation>設定を %1 に送信しましたが、もう一度読み取ることができませんでした。反映されたかどうかは確認できていません。</translation>
    </message>
    <message id="DWT_Localize_Ending_Differs">
        <translation>%1 は %2 として送信しましたが、%3 と読み取られました。</translation>
    </message>
    <message id="DWT_Localize_Ending_SecretDiffers">
        <translation>%1 は送信したとおりに読み取られませんでした。</translation>
    </message>
    <message id="DWT_Localize_Ending_Verified">
        <translation>%1 を変更し、新しい設定になったことを確認しました。</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopped">
        <translation>中止しました。これ以上は送信していません。</translation>
    </message>
    <message id="DWT_Localize_Ending_Stopped">
        <translation>%1 に何も送信しないうちに中止しました。</translation>
    </message>
    <message id="DWT_Localize_Cli_Stopping">
        <translation>中止します。送信中のものは最後まで送信します。</translation>
    </message>
    <message id="DWT_Localize_Cli_Waiting">
        <translation>USB でプリンターが接続されるのを待っています。Ctrl+C で終了します。</translation>
    </message>
    <message id="DWT_Localize_Cli_NoRow">
        <translation>%1 は表に行がないため、変更していません。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralRows">
        <translation>%1 は表に複数の行があるため、変更していません: %2 行目。</translation>
    </message>
    <message id="DWT_Localize_Cli_SeveralPrinters">
        <translation>%1 という名前のプリンターが複数あるため (%2 行目)、変更していません。</translation>
    </message>
    <message id="DWT_Localize_Cli_RowUsed">
        <translation>%1 は変更していません。%2 行目は別のプリンターに使いました。</translation>
    </message>
    <message id="DWT_Localize_Cli_DoneBefore">
        <translation>%1 は処理済みのため、変更していません。</translation>
    </message>
    <message id="DWT_Localize_Cli_RowsLeft">
        <translation>表の次のプリンターはありませんでした: %1</translation>
    </message>
    <message id="DWT_Localize_Cli_AndMore">
        <translation>ほか %1 台。</translation>
    </message>
    <message id="DWT_Localize_Cli_SameName">
        <translation>複数の行が同じプリンター名を指定しています: %1 行目</translation>
    </message>
    <message id="DWT_Localize_Cli_NameTaken">
        <translation>別のプリンターがすでに %1 という名前です。</translation>
    </message>
    <message id="DWT_Localize_Cli_AddressTaken">
        <translation>%2 がすでにアドレス %1 を使用しています。</translation>
    </message>
    <message id="DWT_Localize_Cli_Unwritable">
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Input">
        <translation>読み込むファイルの 1 つです。</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_InUse">
        <translation>別の実行が書き込み中です。</translation>
    </message>
    <message id="DWT_Localize_Cli_Results_Foreign">
        <translation>結果のファイルではありません。</translation>
    </message>
    <message id="DWT_Localize_Cli_ResultsEnd">
        <translation>これ以降のプリンターは処理しません。</translation>
    </message>
    <message id="DWT_Localize_Cli_Fault_EmptySecret">
        <translation>%1 の 1 行目にキーまたはパスワードがありません。</translation>
    </message>
    <message id="DWT_Localize_Ending_NotComparable">
        <translation>%1 は次の設定を報告しないため、受け付けられましたが、照合していません: %2</translation>
    </message>
    <message id="DWT_Localize_Send_Kept">
        <translation>変更内容は保持されています。</translation>
    </message>
    <message id="DWT_Localize_Send_End_Comparing">
        <translation>照合のために設定を読み直しています…</translation>
    </message>
    <message id="DWT_Localize_Ending_PartlyVerified">
        <translation>%1 を変更しました。報告される設定はすべて、送信したとおりに読み取られました。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_SilentNetworkService">
        <translation>ネットワーク上のプリンターを検索できません。このコンピューターの検出サービス (Avahi) が応答しません。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_NotLocated">
        <translation>ネットワーク上で見つかったが、アドレスがまだわからないプリンター: %1 台</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_ManyAnnounced">
        <translation>ネットワーク上で %1 台を超えるプリンターが通知されています。検出サービス（Avahi）の通常の設定ではすべてを保持できないため、一部が表示されないことがあります。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Problem_UnknownModel">
        <translation>%1 が接続されていますが、対応していない機種のため一覧に表示されません。</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Asked">
        <translation>名前を取得しています…</translation>
    </message>
    <message id="DWT_Localize_PrinterList_Name_Silent">
        <translation>応答なし</translation>
    </message>
    <message id="DWT_Localize_Cli_NoSearch">
        <translation>無線ネットワークの検索に失敗しました。%1 から結果が返りませんでした。</translation>
    </message>
</context>
</TS>
