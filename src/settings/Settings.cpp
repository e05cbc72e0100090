#include "settings/Settings.h"

#include <algorithm>

#include "platform/core/PropertyList.h"
#include "settings/SettingKeys.h"
#include "zmlib/ZMLib.h"

using namespace Qt::StringLiterals;

namespace {

using Access = Setting::Access;
using Kind = Setting::Kind;
using Layout = Item::Layout;
using Rules::Rule;

// The numbers of WEP keys.
constexpr int firstWEPKey = 1, lastWEPKey = 4;

// --- Rules ---------------------------------------------------------------------------------------

Rule text(const char *nameKey, const char *ruleKey, const QString &characters, int min, int max) {
    return {Rule::Kind::Text, nameKey, ruleKey, characters, min, max};
}

Rule secret(Rule rule) {
    rule.secret = true;
    return rule;
}

Rule psk(const char *nameKey) {
    return secret(text(nameKey, "DWT_Localize_Alert_InfoText_PSK_InputErr",
                       Rules::printableCharacters, Rules::shortestPSK, Rules::longestPSK));
}

// Of the addresses of an interface, only its own may not be 127.0.0.1.
Rule address(const char *nameKey, const char *ruleKey, bool loopback) {
    return {Rule::Kind::Address, nameKey, ruleKey, Rules::addressCharacters, 0, 0, loopback};
}

// --- Rows ----------------------------------------------------------------------------------------

// The texts of the codes of a choice, from the property lists of the pages.
QStringList itemTexts(const QString &list, const QString &key) {
    return PropertyList::dictionary(list, u"plist"_s).value(key).toStringList();
}

// What the printer alone says, unless its item is written.
Setting shown(const QString &name, const QString &viewKey, const QString &key,
              const QString &labelKey, const Item &item, Kind kind = Kind::Text) {
    return {name,     viewKey, key, kind, item.sendTurn > 0 ? Access::Change : Access::Read,
            labelKey, item};
}

// What a user can type.
Setting entered(const QString &name, const QString &viewKey, const QString &key, const Rule &rule,
                const Item &item) {
    Setting setting = shown(name, viewKey, key, QLatin1String(rule.nameKey), item);
    if (rule.kind == Rule::Kind::Address) setting.kind = Kind::Address;
    if (rule.kind == Rule::Kind::Number) setting.kind = Kind::Number;
    if (rule.secret) setting.access = Access::Enter;
    setting.min = rule.min;
    setting.max = rule.max;
    setting.rule = rule;
    return setting;
}

Setting choice(const QString &name, const QString &viewKey, const QString &key,
               const QString &labelKey, const Item &item, const QStringList &codes,
               const QStringList &texts) {
    Setting setting = shown(name, viewKey, key, labelKey, item, Kind::Choice);
    setting.codes = codes;
    setting.codeTexts = texts;
    return setting;
}

// What the record keeps for a page, beside what is sent and read.
Setting kept(const QString &viewKey, const QString &key, Kind kind) {
    return {{}, viewKey, key, kind, Access::Enter, {}};
}

// The addresses of an interface, "wired" or "wireless". `keys`: of the configured mode, address,
// mask and gateway; `rules`: of the last three.
QList<Setting> addressSetup(const QString &interface, const QString &page, const QStringList &keys,
                            const QList<Rule> &rules, const Item &configured, const Item &inUse) {
    const QString address = interface + u".address."_s, used = interface + u".inUse."_s;
    return {choice(address + u"mode"_s, page, keys[0], u"DWT_Localize_AddressAssignment"_s,
                   configured, {u"automatic"_s, u"fixed"_s},
                   {u"DWT_Localize_Ethernet_ButtonCell_Auto"_s,
                    u"DWT_Localize_Ethernet_ButtonCell_Manual"_s}),
            entered(address + u"ip"_s, page, keys[1], rules[0], configured),
            entered(address + u"mask"_s, page, keys[2], rules[1], configured),
            entered(address + u"gateway"_s, page, keys[3], rules[2], configured),
            shown(used + u"ip"_s, page, DWT_SaveData_Connect_IPAddress,
                  u"DWT_Localize_Cli_Label_IPInUse"_s, inUse, Kind::Address),
            shown(used + u"mask"_s, page, DWT_SaveData_Connect_Subnetmask,
                  u"DWT_Localize_Cli_Label_MaskInUse"_s, inUse, Kind::Address),
            shown(used + u"gateway"_s, page, DWT_SaveData_Connect_Gateway,
                  u"DWT_Localize_Cli_Label_GatewayInUse"_s, inUse, Kind::Address)};
}

const char *const addressRule = "DWT_Localize_Alert_InfoText_IpAddress_InputErr";
const char *const maskRule = "DWT_Localize_Alert_InfoText_Subnetmask_InputErr";
const char *const gatewayRule = "DWT_Localize_Alert_InfoText_Router_InputErr";
const QStringList standards{u"b"_s, u"bg"_s, u"bgn"_s};
const QStringList authentications{u"open"_s, u"shared"_s, u"wpa"_s, u"wpa2"_s};
const QStringList encryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s};

// --- Pages ---------------------------------------------------------------------------------------
// Numbers of a row: code, layout, turn in a reading, turn in a send.

QList<Setting> listedPrinter() {
    const auto row = [](const QString &name, const QString &key) {
        return shown(u"printer."_s + name, {}, key, {}, {});
    };
    return {row(u"uri"_s, PrinterKey::DeviceURI),
            row(u"model"_s, PrinterKey::ProductName),
            row(u"connection"_s, PrinterKey::ConnectionType),
            row(u"name"_s, PrinterKey::MachineName),
            row(u"announced"_s, PrinterKey::BonjourServiceName),
            row(u"serial"_s, PrinterKey::SerialNumber),
            row(u"port"_s, PrinterKey::Port),
            row(u"address"_s, PrinterKey::Address)};
}

QList<Setting> devicePage() {
    const QString &page = DWT_View_Key_Firmware;
    const Rule timeOut{Rule::Kind::Number,
                       "DWT_Localize_Firmware_Box_PrintTimeOut",
                       nullptr,
                       Rules::digits,
                       Rules::shortestTimeOut,
                       Rules::longestTimeOut};
    return {shown(u"device.firmware"_s, page, DWT_SaveData_Firmware,
                  u"DWT_Localize_Firmware_Text_Firmware_Label"_s, {0x1008, Layout::Version, 23}),
            entered(u"device.timeout"_s, page, DWT_SaveData_Firmware_Timeout, timeOut,
                    {0x1007, Layout::Integer, 24, 15})};
}

QList<Setting> namesPage() {
    const QString &page = DWT_View_Key_Network;
    return {entered(u"names.printer"_s, page, DWT_SaveData_Network_Printer,
                    text("DWT_Localize_Alert_MessageText_Network_PrinterName",
                         "DWT_Localize_Alert_InfoText_PrinterName_InputErr",
                         Rules::hostNameCharacters, 1, Rules::longestPrinterName),
                    {0x1006, Layout::Text, 1, 4}),
            entered(u"names.bonjour"_s, page, DWT_SaveData_Network_Bonjour,
                    text("DWT_Localize_Alert_MessageText_Network_BonjourName",
                         "DWT_Localize_Alert_InfoText_BonjourName_InputErr",
                         Rules::hostNameCharacters, 1, Rules::longestBonjourName),
                    {0x1004, Layout::Text, 2, 2}),
            entered(u"names.service"_s, page, DWT_SaveData_Network_BonjourService,
                    text("DWT_Localize_Alert_MessageText_Network_BonjourServiceName",
                         "DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr",
                         Rules::printableCharacters, 1, Rules::longestServiceName),
                    {0x1005, Layout::Text, 3, 3})};
}

QList<Setting> wiredPage() {
    const QString &page = DWT_View_Key_Ethernet;
    return QList<Setting>{shown(u"wired.mac"_s, page, DWT_SaveData_Ethernet_MACAddress,
                                u"DWT_Localize_Ethernet_Text_WiredMACAddress_Label"_s,
                                {0x2000, Layout::Mac, 22}, Kind::Mac)} +
           addressSetup(
               u"wired"_s, page,
               {DWT_SaveData_Ethernet_IPAddressSetting, DWT_SaveData_Ethernet_IPAddress,
                DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Ethernet_Gateway},
               {address("DWT_Localize_Alert_MessageText_Ethernet_IpAddress", addressRule, false),
                address("DWT_Localize_Alert_MessageText_Ethernet_SubnetMask", maskRule, true),
                address("DWT_Localize_Alert_MessageText_Ethernet_Gateway", gatewayRule, true)},
               {0x2001, Layout::IntegerAndAddresses, 20, 5}, {0x2002, Layout::Addresses, 21});
}

QList<Setting> wirelessPage() {
    const QString &page = DWT_View_Key_Wireless;
    return {
        choice(u"wireless.mode"_s, page, DWT_SaveData_Wireless_CommunicateMode,
               u"DWT_Localize_Wireless_Text_CommunicateMode_Label"_s,
               {0x3000, Layout::Integer, 4, 6}, {u"off"_s, u"infrastructure"_s, u"access-point"_s},
               {u"DWT_Localize_Wireless_Text_WifiNothing_Label"_s,
                u"DWT_Localize_Wireless_Text_Infrastructure_Label"_s,
                u"DWT_Localize_Wireless_Text_SimpleAP_Label"_s}),
        shown(u"wireless.mac"_s, page, DWT_SaveData_Wireless_InfrastructureMACAddress,
              u"DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label"_s,
              {0x3100, Layout::Mac, 5}, Kind::Mac),
        shown(u"accessPoint.mac"_s, page, DWT_SaveData_Wireless_SampleAPMACAddress,
              u"DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label"_s, {0x3200, Layout::Mac, 6},
              Kind::Mac)};
}

QList<Setting> infrastructurePage() {
    const QString &page = DWT_View_Key_Infrastructure, list = u"InfrastructureItemData"_s;
    Setting standard = choice(
        u"wireless.standard"_s, page, DWT_SaveData_Infrastructure_WirelessMode,
        u"DWT_Localize_Infrastructure_Text_WirelessMode_Label"_s, {0x3101, Layout::Integer, 9},
        standards, itemTexts(list, u"DWT_Item_Key_Infrastructure_WirelessMode"_s));
    standard.needsAddresses = true;
    const Item wepKey{0x3106, Layout::IntegerAndText, 0, 11};
    Setting number =
        shown(u"wireless.wepKeyNumber"_s, page, DWT_SaveData_Infrastructure_WEPKeyIndex,
              u"DWT_Localize_Infrastructure_Text_SelectWEPKey_Label"_s, wepKey, Kind::Number);
    number.access = Access::Enter;
    number.min = firstWEPKey;
    number.max = lastWEPKey;
    return QList<Setting>{standard} +
           addressSetup(
               u"wireless"_s, page,
               {DWT_SaveData_Infrastructure_IPAddressSetting, DWT_SaveData_Infrastructure_IPAddress,
                DWT_SaveData_Infrastructure_Subnetmask, DWT_SaveData_Infrastructure_Gateway},
               {address("DWT_Localize_Alert_MessageText_Infrastructure_IpAddress", addressRule,
                        false),
                address("DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask", maskRule, true),
                address("DWT_Localize_Alert_MessageText_Infrastructure_Gateway", gatewayRule,
                        true)},
               {0x3108, Layout::IntegerAndAddresses, 7, 12}, {0x3119, Layout::Addresses, 8}) +
           QList<Setting>{
               entered(u"wireless.ssid"_s, page, DWT_SaveData_Infrastructure_SSID,
                       text("DWT_Localize_Alert_MessageText_Infrastructure_SSID",
                            "DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr",
                            Rules::printableCharacters, 1, Rules::longestSSID),
                       {0x3104, Layout::CountedText, 12, 9}),
               kept(page, DWT_SaveData_Infrastructure_SSIDList_SSID, Kind::Text),
               choice(u"wireless.authentication"_s, page, DWT_SaveData_Infrastructure_Authentic,
                      u"DWT_Localize_Infrastructure_Text_Authentic_Label"_s,
                      {0x3102, Layout::Integer, 10, 7}, authentications,
                      itemTexts(list, u"DWT_Item_Key_Infrastructure_Authentic"_s)),
               choice(u"wireless.encryption"_s, page, DWT_SaveData_Infrastructure_Encryption,
                      u"DWT_Localize_Infrastructure_Text_Encryption_Label"_s,
                      {0x3103, Layout::Integer, 11, 8}, encryptions,
                      itemTexts(list, u"DWT_Item_Key_Infrastructure_Encryption"_s)),
               entered(u"wireless.key"_s, page, DWT_SaveData_Infrastructure_PSK,
                       psk("DWT_Localize_Alert_MessageText_Infrastructure_PSK"),
                       {0x3105, Layout::CountedText, 0, 10}),
               number,
               entered(
                   u"wireless.wepKey"_s, page, DWT_SaveData_Infrastructure_WEPKey,
                   secret(
                       {Rule::Kind::WEPKey, "DWT_Localize_Alert_MessageText_Infrastructure_WEPKey",
                        "DWT_Localize_Alert_InfoText_WEPKey_InputErr", Rules::printableCharacters}),
                   wepKey)};
}

QList<Setting> accessPointPage() {
    const QString &page = DWT_View_Key_SimpleAP, list = u"SimpleAPItemData"_s;
    const Item addresses{0x3204, Layout::Addresses, 13};
    return {
        choice(u"accessPoint.standard"_s, page, DWT_SaveData_SimpleAP_WirelessMode,
               u"DWT_Localize_SimpleAP_Text_WirelessLANMode_Label"_s, {0x3210, Layout::Integer, 15},
               standards, itemTexts(list, u"DWT_Item_Key_SimpleAP_WirelessMode"_s)),
        shown(u"accessPoint.address.first"_s, page, DWT_SaveData_SimpleAP_StartIPAddress,
              u"DWT_Localize_SimpleAP_Text_StartIpAddress_Label"_s, {0x3205, Layout::Addresses, 14},
              Kind::Address),
        shown(u"accessPoint.address.ip"_s, page, DWT_SaveData_SimpleAP_IPAddress,
              u"DWT_Localize_SimpleAP_Text_IpAddress_Label"_s, addresses, Kind::Address),
        shown(u"accessPoint.address.mask"_s, page, DWT_SaveData_SimpleAP_Subnetmask,
              u"DWT_Localize_SimpleAP_Text_SubnetMask_Label"_s, addresses, Kind::Address),
        choice(u"accessPoint.authentication"_s, page, DWT_SaveData_SimpleAP_Authentic,
               u"DWT_Localize_SimpleAP_Text_Authentic_Label"_s, {0x3211, Layout::Integer, 16},
               authentications, itemTexts(list, u"DWT_Item_Key_SimpleAP_Authentic"_s)),
        choice(u"accessPoint.encryption"_s, page, DWT_SaveData_SimpleAP_Encryption,
               u"DWT_Localize_SimpleAP_Text_Encryption_Label"_s, {0x3212, Layout::Integer, 17},
               encryptions, itemTexts(list, u"DWT_Item_Key_SimpleAP_Encryption"_s)),
        entered(u"accessPoint.ssid"_s, page, DWT_SaveData_SimpleAP_SSID,
                text("DWT_Localize_Alert_MessageText_SimpleAP_SSID",
                     "DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr",
                     Rules::printableCharacters, 1, Rules::longestAccessPointSSID),
                {0x3201, Layout::CountedText, 18, 13}),
        entered(u"accessPoint.key"_s, page, DWT_SaveData_SimpleAP_PSK,
                psk("DWT_Localize_Alert_MessageText_SimpleAP_PSK"),
                {0x3202, Layout::CountedText, 19, 14})};
}

QList<Setting> passwordPage() {
    const QString &page = DWT_View_Key_Password;
    return {kept(page, DWT_SaveData_Password_Change, Kind::Number),
            entered(u"password.administrator"_s, page, DWT_SaveData_Password_Password,
                    secret(text("DWT_Localize_Alert_MessageText_Password_Password",
                                "DWT_Localize_Alert_InfoText_Password_InputErr",
                                Rules::passwordCharacters, 0, Rules::longestPassword)),
                    {0x1003, Layout::Text, 0, 1})};
}

template <typename Predicate>
const Setting *find(const Predicate &predicate) {
    const auto found = std::find_if(settings().begin(), settings().end(), predicate);
    return found == settings().end() ? nullptr : &*found;
}

}  // namespace

const QList<Setting> &settings() {
    static const QList<Setting> all = listedPrinter() + devicePage() + namesPage() + wiredPage() +
                                      wirelessPage() + infrastructurePage() + accessPointPage() +
                                      passwordPage();
    return all;
}

const Setting *settingOf(const QString &name) {
    return find([&](const Setting &row) { return !row.name.isEmpty() && row.name == name; });
}

const Setting *settingOf(const QString &viewKey, const QString &key) {
    return find([&](const Setting &row) { return row.viewKey == viewKey && row.key == key; });
}

bool isGroup(const QString &name) {
    return find([&](const Setting &setting) { return setting.name.startsWith(name + u'.'); });
}

const QList<SettingPage> &settingPages() {
    static const QList<SettingPage> pages{
        {DWT_View_Key_Firmware, u"DWT_Localize_Outline_Firmware"_s},
        {DWT_View_Key_Network, u"DWT_Localize_Outline_Network"_s},
        {DWT_View_Key_Ethernet, u"DWT_Localize_Outline_Ethernet"_s},
        {DWT_View_Key_Wireless, u"DWT_Localize_Outline_Wireless"_s},
        {DWT_View_Key_Infrastructure, u"DWT_Localize_Outline_Infrastructure"_s},
        {DWT_View_Key_SimpleAP, u"DWT_Localize_Outline_SimpleAP"_s},
        {DWT_View_Key_Password, u"DWT_Localize_Outline_Password"_s}};
    return pages;
}

CategoryDictionary categoryOf(const QString &viewKey, const CategoryDictionary &values) {
    CategoryDictionary category;
    QStringList needAddresses;
    for (const Setting &setting : settings()) {
        if (setting.viewKey != viewKey) continue;
        const bool isMissing = setting.item.readTurn > 0 && !values.contains(setting.key);
        if (isMissing) {
            for (const QString &key : std::as_const(needAddresses)) category.remove(key);
            break;
        }
        const SettingValue beginning =
            setting.kind == Kind::Number ? SettingValue(setting.min) : SettingValue(QString());
        category.insert(setting.key, values.value(setting.key, beginning));
        if (setting.needsAddresses) needAddresses << setting.key;
    }
    return category;
}

namespace Rules {

const Rule *ruleOf(const QString &key) {
    const Setting *const setting = find([&](const Setting &row) { return row.key == key; });
    return setting && setting->rule ? &*setting->rule : nullptr;
}

}  // namespace Rules
