#include "settings/Settings.h"

#include <algorithm>

#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"
#include "settings/Codes.h"
#include "settings/SettingKeys.h"
#include "zmlib/ZMLib.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Setting::Kind;
using Layout = Item::Layout;
using Rules::Rule;

constexpr int firstWEPKey = 1, lastWEPKey = 4;

Rule text(const char *ruleKey, const QString &characters, int min, int max) {
    return {Rule::Kind::Text, ruleKey, characters, min, max};
}

Rule secret(Rule rule) {
    rule.secret = true;
    return rule;
}

Rule number(int min, int max) {
    return {Rule::Kind::Number, nullptr, Rules::digits, min, max};
}

Rule address(const char *ruleKey, bool loopback) {
    return {Rule::Kind::Address, ruleKey, Rules::addressCharacters, 0, 0, loopback};
}

Rule psk() {
    return secret(text("DWT_Localize_Alert_InfoText_PSK_InputErr", Rules::printableCharacters,
                       Rules::shortestPSK, Rules::longestPSK));
}

// The texts of the codes of a choice, from the property list of a page.
QStringList itemTexts(const QString &list, const QString &key) {
    return PropertyList::dictionary(list, u"plist"_s).value(key).toStringList();
}

class Rows {  // of a page
  public:
    explicit Rows(QString viewKey) : m_viewKey(std::move(viewKey)) {}

    Rows &shown(const QString &name, const QString &key, const char *labelKey, const Item &item,
                Kind kind = Kind::Text) {
        const Setting row{name, m_viewKey, key, kind, QLatin1String(labelKey), item};
        m_rows.append(row);
        return *this;
    }
    Rows &entered(const QString &name, const QString &key, const char *labelKey, const Rule &rule,
                  const Item &item) {
        const Kind kind = rule.kind == Rule::Kind::Address  ? Kind::Address
                          : rule.kind == Rule::Kind::Number ? Kind::Number
                                                            : Kind::Text;
        shown(name, key, labelKey, item, kind);
        m_rows.last().rule = rule;
        return *this;
    }
    Rows &choice(const QString &name, const QString &key, const char *labelKey, const Item &item,
                 const QStringList &codes, const QStringList &texts) {
        shown(name, key, labelKey, item, Kind::Choice);
        m_rows.last().codes = codes;
        m_rows.last().codeTexts = texts;
        return *this;
    }
    // What the record keeps for a page, beside what is sent and read.
    Rows &kept(const QString &key, Kind kind) { return shown({}, key, "", {}, kind); }

    // How an interface, "wired" or "wireless", gets its address, and the addresses in use. `keys`
    // and `labels`: of address, mask and gateway. Only the address may not be 127.0.0.1.
    Rows &addressSetup(const QString &interface, const QString &modeKey, const QStringList &keys,
                       const QList<const char *> &labels, const Item &configured,
                       const Item &inUse) {
        const QString set = interface + u".address."_s, used = interface + u".inUse."_s;
        choice(set + u"mode"_s, modeKey, "DWT_Localize_AddressAssignment", configured,
               {u"automatic"_s, u"fixed"_s},
               {u"DWT_Localize_Ethernet_ButtonCell_Auto"_s,
                u"DWT_Localize_Ethernet_ButtonCell_Manual"_s});
        const std::pair<QString, Rule> rows[] = {
            {u"ip"_s, address("DWT_Localize_Alert_InfoText_IpAddress_InputErr", false)},
            {u"mask"_s, address("DWT_Localize_Alert_InfoText_Subnetmask_InputErr", true)},
            {u"gateway"_s, address("DWT_Localize_Alert_InfoText_Router_InputErr", true)}};
        for (int i = 0; i < 3; ++i)
            entered(set + rows[i].first, keys[i], labels[i], rows[i].second, configured);
        return shown(used + u"ip"_s, DWT_SaveData_Connect_IPAddress,
                     "DWT_Localize_Cli_Label_IPInUse", inUse, Kind::Address)
            .shown(used + u"mask"_s, DWT_SaveData_Connect_Subnetmask,
                   "DWT_Localize_Cli_Label_MaskInUse", inUse, Kind::Address)
            .shown(used + u"gateway"_s, DWT_SaveData_Connect_Gateway,
                   "DWT_Localize_Cli_Label_GatewayInUse", inUse, Kind::Address);
    }

    operator QList<Setting>() const { return m_rows; }

  private:
    const QString m_viewKey;
    QList<Setting> m_rows;
};

const QStringList standards{u"b"_s, u"bg"_s, u"bgn"_s};
const QStringList authentications{u"open"_s, u"shared"_s, u"wpa"_s, u"wpa2"_s};
const QStringList encryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s};

// The pages. Numbers of an item: code, layout, turn in a reading, turn in a send.

QList<Setting> listedPrinter() {
    Rows rows{QString()};
    const std::pair<QString, QString> keys[] = {{u"uri"_s, PrinterKey::DeviceURI},
                                                {u"model"_s, PrinterKey::ProductName},
                                                {u"connection"_s, PrinterKey::ConnectionType},
                                                {u"name"_s, PrinterKey::MachineName},
                                                {u"announced"_s, PrinterKey::BonjourServiceName},
                                                {u"serial"_s, PrinterKey::SerialNumber},
                                                {u"port"_s, PrinterKey::Port},
                                                {u"address"_s, PrinterKey::Address}};
    for (const auto &[name, key] : keys) rows.shown(u"printer."_s + name, key, "", {});
    return rows;
}

QList<Setting> devicePage() {
    return Rows(DWT_View_Key_Firmware)
        .shown(u"device.firmware"_s, DWT_SaveData_Firmware,
               "DWT_Localize_Firmware_Text_Firmware_Label", {0x1008, Layout::Version, 23})
        .entered(u"device.timeout"_s, DWT_SaveData_Firmware_Timeout,
                 "DWT_Localize_Firmware_Box_PrintTimeOut",
                 number(Rules::shortestTimeOut, Rules::longestTimeOut),
                 {0x1007, Layout::Integer, 24, 15});
}

QList<Setting> namesPage() {
    return Rows(DWT_View_Key_Network)
        .entered(u"names.printer"_s, DWT_SaveData_Network_Printer,
                 "DWT_Localize_Alert_MessageText_Network_PrinterName",
                 text("DWT_Localize_Alert_InfoText_PrinterName_InputErr", Rules::hostNameCharacters,
                      1, Rules::longestPrinterName),
                 {0x1006, Layout::Text, 1, 4})
        .entered(u"names.bonjour"_s, DWT_SaveData_Network_Bonjour,
                 "DWT_Localize_Alert_MessageText_Network_BonjourName",
                 text("DWT_Localize_Alert_InfoText_BonjourName_InputErr", Rules::hostNameCharacters,
                      1, Rules::longestBonjourName),
                 {0x1004, Layout::Text, 2, 2})
        .entered(u"names.service"_s, DWT_SaveData_Network_BonjourService,
                 "DWT_Localize_Alert_MessageText_Network_BonjourServiceName",
                 text("DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr",
                      Rules::printableCharacters, 1, Rules::longestServiceName),
                 {0x1005, Layout::Text, 3, 3});
}

QList<Setting> wiredPage() {
    return Rows(DWT_View_Key_Ethernet)
        .shown(u"wired.mac"_s, DWT_SaveData_Ethernet_MACAddress,
               "DWT_Localize_Ethernet_Text_WiredMACAddress_Label", {0x2000, Layout::Mac, 22},
               Kind::Mac)
        .addressSetup(u"wired"_s, DWT_SaveData_Ethernet_IPAddressSetting,
                      {DWT_SaveData_Ethernet_IPAddress, DWT_SaveData_Ethernet_Subnetmask,
                       DWT_SaveData_Ethernet_Gateway},
                      {"DWT_Localize_Alert_MessageText_Ethernet_IpAddress",
                       "DWT_Localize_Alert_MessageText_Ethernet_SubnetMask",
                       "DWT_Localize_Alert_MessageText_Ethernet_Gateway"},
                      {0x2001, Layout::IntegerAndAddresses, 20, 5},
                      {0x2002, Layout::Addresses, 21});
}

QList<Setting> wirelessPage() {
    return Rows(DWT_View_Key_Wireless)
        .choice(u"wireless.mode"_s, DWT_SaveData_Wireless_CommunicateMode,
                "DWT_Localize_Wireless_Text_CommunicateMode_Label", {0x3000, Layout::Integer, 4, 6},
                {u"off"_s, u"infrastructure"_s, u"access-point"_s},
                {u"DWT_Localize_Wireless_Text_WifiNothing_Label"_s,
                 u"DWT_Localize_Wireless_Text_Infrastructure_Label"_s,
                 u"DWT_Localize_Wireless_Text_SimpleAP_Label"_s})
        .shown(u"wireless.mac"_s, DWT_SaveData_Wireless_InfrastructureMACAddress,
               "DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label",
               {0x3100, Layout::Mac, 5}, Kind::Mac)
        .shown(u"accessPoint.mac"_s, DWT_SaveData_Wireless_SampleAPMACAddress,
               "DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label", {0x3200, Layout::Mac, 6},
               Kind::Mac);
}

QList<Setting> infrastructurePage() {
    const QString list = u"InfrastructureItemData"_s;
    const Item wepKey{0x3106, Layout::IntegerAndText, 0, 11};
    return Rows(DWT_View_Key_Infrastructure)
        .addressSetup(u"wireless"_s, DWT_SaveData_Infrastructure_IPAddressSetting,
                      {DWT_SaveData_Infrastructure_IPAddress,
                       DWT_SaveData_Infrastructure_Subnetmask, DWT_SaveData_Infrastructure_Gateway},
                      {"DWT_Localize_Alert_MessageText_Infrastructure_IpAddress",
                       "DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask",
                       "DWT_Localize_Alert_MessageText_Infrastructure_Gateway"},
                      {0x3108, Layout::IntegerAndAddresses, 7, 12}, {0x3119, Layout::Addresses, 8})
        .choice(u"wireless.standard"_s, DWT_SaveData_Infrastructure_WirelessMode,
                "DWT_Localize_Infrastructure_Text_WirelessMode_Label", {0x3101, Layout::Integer, 9},
                standards, itemTexts(list, u"DWT_Item_Key_Infrastructure_WirelessMode"_s))
        .entered(u"wireless.ssid"_s, DWT_SaveData_Infrastructure_SSID,
                 "DWT_Localize_Alert_MessageText_Infrastructure_SSID",
                 text("DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr",
                      Rules::printableCharacters, 1, Rules::longestSSID),
                 {0x3104, Layout::CountedText, 12, 9})
        .kept(DWT_SaveData_Infrastructure_SSIDList_SSID, Kind::Text)
        .choice(u"wireless.authentication"_s, DWT_SaveData_Infrastructure_Authentic,
                "DWT_Localize_Infrastructure_Text_Authentic_Label",
                {0x3102, Layout::Integer, 10, 7}, authentications,
                itemTexts(list, u"DWT_Item_Key_Infrastructure_Authentic"_s))
        .choice(u"wireless.encryption"_s, DWT_SaveData_Infrastructure_Encryption,
                "DWT_Localize_Infrastructure_Text_Encryption_Label",
                {0x3103, Layout::Integer, 11, 8}, encryptions,
                itemTexts(list, u"DWT_Item_Key_Infrastructure_Encryption"_s))
        .entered(u"wireless.key"_s, DWT_SaveData_Infrastructure_PSK,
                 "DWT_Localize_Alert_MessageText_Infrastructure_PSK", psk(),
                 {0x3105, Layout::CountedText, 0, 10})
        .entered(u"wireless.wepKeyNumber"_s, DWT_SaveData_Infrastructure_WEPKeyIndex,
                 "DWT_Localize_Infrastructure_Text_SelectWEPKey_Label",
                 number(firstWEPKey, lastWEPKey), wepKey)
        .entered(u"wireless.wepKey"_s, DWT_SaveData_Infrastructure_WEPKey,
                 "DWT_Localize_Alert_MessageText_Infrastructure_WEPKey",
                 secret({Rule::Kind::WEPKey, "DWT_Localize_Alert_InfoText_WEPKey_InputErr",
                         Rules::printableCharacters}),
                 wepKey);
}

QList<Setting> accessPointPage() {
    const QString list = u"SimpleAPItemData"_s;
    const Item addresses{0x3204, Layout::Addresses, 13};
    return Rows(DWT_View_Key_SimpleAP)
        .choice(u"accessPoint.standard"_s, DWT_SaveData_SimpleAP_WirelessMode,
                "DWT_Localize_SimpleAP_Text_WirelessLANMode_Label", {0x3210, Layout::Integer, 15},
                standards, itemTexts(list, u"DWT_Item_Key_SimpleAP_WirelessMode"_s))
        .shown(u"accessPoint.address.first"_s, DWT_SaveData_SimpleAP_StartIPAddress,
               "DWT_Localize_SimpleAP_Text_StartIpAddress_Label", {0x3205, Layout::Addresses, 14},
               Kind::Address)
        .shown(u"accessPoint.address.ip"_s, DWT_SaveData_SimpleAP_IPAddress,
               "DWT_Localize_SimpleAP_Text_IpAddress_Label", addresses, Kind::Address)
        .shown(u"accessPoint.address.mask"_s, DWT_SaveData_SimpleAP_Subnetmask,
               "DWT_Localize_SimpleAP_Text_SubnetMask_Label", addresses, Kind::Address)
        .choice(u"accessPoint.authentication"_s, DWT_SaveData_SimpleAP_Authentic,
                "DWT_Localize_SimpleAP_Text_Authentic_Label", {0x3211, Layout::Integer, 16},
                authentications, itemTexts(list, u"DWT_Item_Key_SimpleAP_Authentic"_s))
        .choice(u"accessPoint.encryption"_s, DWT_SaveData_SimpleAP_Encryption,
                "DWT_Localize_SimpleAP_Text_Encryption_Label", {0x3212, Layout::Integer, 17},
                encryptions, itemTexts(list, u"DWT_Item_Key_SimpleAP_Encryption"_s))
        .entered(u"accessPoint.ssid"_s, DWT_SaveData_SimpleAP_SSID,
                 "DWT_Localize_Alert_MessageText_SimpleAP_SSID",
                 text("DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr",
                      Rules::printableCharacters, 1, Rules::longestAccessPointSSID),
                 {0x3201, Layout::CountedText, 18, 13})
        .entered(u"accessPoint.key"_s, DWT_SaveData_SimpleAP_PSK,
                 "DWT_Localize_Alert_MessageText_SimpleAP_PSK", psk(),
                 {0x3202, Layout::CountedText, 19, 14});
}

QList<Setting> passwordPage() {
    return Rows(DWT_View_Key_Password)
        .kept(DWT_SaveData_Password_Change, Kind::Number)
        .entered(u"password.administrator"_s, DWT_SaveData_Password_Password,
                 "DWT_Localize_Alert_MessageText_Password_Password",
                 secret(text("DWT_Localize_Alert_InfoText_Password_InputErr",
                             Rules::passwordCharacters, 0, Rules::longestPassword)),
                 {0x1003, Layout::Text, 0, 1});
}

template <typename Predicate>
const Setting *find(const Predicate &predicate) {
    const auto found = std::find_if(settings().begin(), settings().end(), predicate);
    return found == settings().end() ? nullptr : &*found;
}

}  // namespace

Setting::Access Setting::access() const {
    if (viewKey.isEmpty()) return Access::Read;
    if (isSecret() || !isReported()) return Access::Enter;
    return isSent() ? Access::Change : Access::Read;
}

QString Setting::label() const {
    return nameInLabel(localized(labelKey));
}

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
    return find([&](const Setting &row) { return row.name.startsWith(name + u'.'); });
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

QString titleOfPage(const QString &viewKey) {
    for (const SettingPage &page : settingPages())
        if (page.viewKey == viewKey) return localized(page.titleKey);
    return {};
}

const QList<AddressSetup> &addressSetups() {
    const auto setup = [](const QString &group) {
        const auto row = [&](const QString &part) { return settingOf(group + part); };
        return AddressSetup{row(u"mode"_s), row(u"ip"_s), row(u"mask"_s), row(u"gateway"_s)};
    };
    static const QList<AddressSetup> all{setup(u"wired.address."_s), setup(u"wireless.address."_s)};
    return all;
}

CategoryDictionary categoryOf(const QString &viewKey, const CategoryDictionary &values) {
    CategoryDictionary category;
    for (const Setting &setting : settings()) {
        if (setting.viewKey != viewKey) continue;
        if (setting.isReported() && !values.contains(setting.key)) break;
        const int lowest = setting.rule ? setting.rule->min : 0;
        const SettingValue beginning =
            setting.kind == Setting::Kind::Number ? SettingValue(lowest) : SettingValue(QString());
        category.insert(setting.key, values.value(setting.key, beginning));
    }
    return category;
}

QString networkKeyOf(int encryption) {
    if (encryption == Encryption::WEP) return DWT_SaveData_Infrastructure_WEPKey;
    const bool isPSK = encryption == Encryption::TKIP || encryption == Encryption::AES;
    return isPSK ? DWT_SaveData_Infrastructure_PSK : QString();
}
