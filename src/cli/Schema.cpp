#include "cli/Schema.h"

#include <algorithm>

#include "platform/core/PropertyList.h"
#include "settings/SettingKeys.h"
#include "zmlib/ZMLib.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Setting::Kind;
using Access = Setting::Access;

// The numbers of WEP keys.
constexpr int firstWEPKey = 1, lastWEPKey = 4;

// The texts of the codes of a choice, from the property lists of the pages.
QStringList itemTexts(const QString &list, const QString &key) {
    return PropertyList::dictionary(list, u"plist"_s).value(key).toStringList();
}

// What a user can enter: its rule gives kind, bounds and label.
Setting entered(const QString &name, const QString &viewKey, const QString &key) {
    const Rules::Rule &rule = *Rules::ruleOf(key);
    Setting setting{name, viewKey, key, Kind::Text, Access::Change, QLatin1String(rule.nameKey)};
    if (rule.kind == Rules::Rule::Kind::Address) setting.kind = Kind::Address;
    if (rule.kind == Rules::Rule::Kind::Number) setting.kind = Kind::Number;
    if (rule.secret) setting.access = Access::Enter;
    setting.min = rule.min;
    setting.max = rule.max;
    setting.rule = &rule;
    return setting;
}

Setting shown(const QString &name, const QString &viewKey, const QString &key,
              const QString &labelKey, Kind kind = Kind::Text) {
    return {name, viewKey, key, kind, Access::Read, labelKey};
}

Setting choice(Setting setting, const QStringList &codes, const QStringList &texts) {
    setting.kind = Kind::Choice;
    setting.codes = codes;
    setting.codeTexts = texts;
    return setting;
}

Setting changeable(Setting setting) {
    setting.access = Access::Change;
    return setting;
}

QList<Setting> listedPrinter() {
    return {shown(u"printer.uri"_s, {}, PrinterKey::DeviceURI, {}),
            shown(u"printer.model"_s, {}, PrinterKey::ProductName, {}),
            shown(u"printer.connection"_s, {}, PrinterKey::ConnectionType, {}),
            shown(u"printer.name"_s, {}, PrinterKey::MachineName, {}),
            shown(u"printer.announced"_s, {}, PrinterKey::BonjourServiceName, {}),
            shown(u"printer.serial"_s, {}, PrinterKey::SerialNumber, {}),
            shown(u"printer.port"_s, {}, PrinterKey::Port, {}),
            shown(u"printer.address"_s, {}, PrinterKey::Address, {})};
}

QList<Setting> namesPage() {
    const QString &page = DWT_View_Key_Network;
    return {entered(u"names.printer"_s, page, DWT_SaveData_Network_Printer),
            entered(u"names.bonjour"_s, page, DWT_SaveData_Network_Bonjour),
            entered(u"names.service"_s, page, DWT_SaveData_Network_BonjourService)};
}

QList<Setting> devicePage() {
    const QString &page = DWT_View_Key_Firmware;
    return {shown(u"device.firmware"_s, page, DWT_SaveData_Firmware,
                  u"DWT_Localize_Firmware_Text_Firmware_Label"_s),
            entered(u"device.timeout"_s, page, DWT_SaveData_Firmware_Timeout)};
}

// The address setup of an interface, "wired" or "wireless".
QList<Setting> addressSetup(const QString &interface, const QString &page, const QString &setting,
                            const QStringList &configured) {
    const QString address = interface + u".address."_s, inUse = interface + u".inUse."_s;
    return {choice(changeable(shown(address + u"mode"_s, page, setting,
                                    u"DWT_Localize_AddressAssignment"_s)),
                   {u"automatic"_s, u"fixed"_s},
                   {u"DWT_Localize_Ethernet_ButtonCell_Auto"_s,
                    u"DWT_Localize_Ethernet_ButtonCell_Manual"_s}),
            entered(address + u"ip"_s, page, configured[0]),
            entered(address + u"mask"_s, page, configured[1]),
            entered(address + u"gateway"_s, page, configured[2]),
            shown(inUse + u"ip"_s, page, DWT_SaveData_Connect_IPAddress,
                  u"DWT_Localize_Cli_Label_IPInUse"_s, Kind::Address),
            shown(inUse + u"mask"_s, page, DWT_SaveData_Connect_Subnetmask,
                  u"DWT_Localize_Cli_Label_MaskInUse"_s, Kind::Address),
            shown(inUse + u"gateway"_s, page, DWT_SaveData_Connect_Gateway,
                  u"DWT_Localize_Cli_Label_GatewayInUse"_s, Kind::Address)};
}

QList<Setting> wiredPage() {
    const QString &page = DWT_View_Key_Ethernet;
    return QList<Setting>{shown(u"wired.mac"_s, page, DWT_SaveData_Ethernet_MACAddress,
                                u"DWT_Localize_Ethernet_Text_WiredMACAddress_Label"_s, Kind::Mac)} +
           addressSetup(u"wired"_s, page, DWT_SaveData_Ethernet_IPAddressSetting,
                        {DWT_SaveData_Ethernet_IPAddress, DWT_SaveData_Ethernet_Subnetmask,
                         DWT_SaveData_Ethernet_Gateway});
}

QList<Setting> wirelessPage() {
    const QString &page = DWT_View_Key_Wireless;
    return {choice(changeable(shown(u"wireless.mode"_s, page, DWT_SaveData_Wireless_CommunicateMode,
                                    u"DWT_Localize_Wireless_Text_CommunicateMode_Label"_s)),
                   {u"off"_s, u"infrastructure"_s, u"access-point"_s},
                   {u"DWT_Localize_Wireless_Text_WifiNothing_Label"_s,
                    u"DWT_Localize_Wireless_Text_Infrastructure_Label"_s,
                    u"DWT_Localize_Wireless_Text_SimpleAP_Label"_s}),
            shown(u"wireless.mac"_s, page, DWT_SaveData_Wireless_InfrastructureMACAddress,
                  u"DWT_Localize_Wireless_Text_InfrastructureMACAddress_Label"_s, Kind::Mac),
            shown(u"accessPoint.mac"_s, page, DWT_SaveData_Wireless_SampleAPMACAddress,
                  u"DWT_Localize_Wireless_Text_SimpleAPMACAddress_Label"_s, Kind::Mac)};
}

const QStringList standards{u"b"_s, u"bg"_s, u"bgn"_s};
const QStringList authentications{u"open"_s, u"shared"_s, u"wpa"_s, u"wpa2"_s};
const QStringList encryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s};

QList<Setting> infrastructurePage() {
    const QString &page = DWT_View_Key_Infrastructure, list = u"InfrastructureItemData"_s;
    Setting number =
        shown(u"wireless.wepKeyNumber"_s, page, DWT_SaveData_Infrastructure_WEPKeyIndex,
              u"DWT_Localize_Infrastructure_Text_SelectWEPKey_Label"_s, Kind::Number);
    number.access = Access::Enter;
    number.min = firstWEPKey;
    number.max = lastWEPKey;
    return QList<Setting>{
               choice(shown(u"wireless.standard"_s, page, DWT_SaveData_Infrastructure_WirelessMode,
                            u"DWT_Localize_Infrastructure_Text_WirelessMode_Label"_s),
                      standards, itemTexts(list, u"DWT_Item_Key_Infrastructure_WirelessMode"_s))} +
           addressSetup(
               u"wireless"_s, page, DWT_SaveData_Infrastructure_IPAddressSetting,
               {DWT_SaveData_Infrastructure_IPAddress, DWT_SaveData_Infrastructure_Subnetmask,
                DWT_SaveData_Infrastructure_Gateway}) +
           QList<Setting>{
               entered(u"wireless.ssid"_s, page, DWT_SaveData_Infrastructure_SSID),
               choice(changeable(shown(u"wireless.authentication"_s, page,
                                       DWT_SaveData_Infrastructure_Authentic,
                                       u"DWT_Localize_Infrastructure_Text_Authentic_Label"_s)),
                      authentications, itemTexts(list, u"DWT_Item_Key_Infrastructure_Authentic"_s)),
               choice(changeable(shown(u"wireless.encryption"_s, page,
                                       DWT_SaveData_Infrastructure_Encryption,
                                       u"DWT_Localize_Infrastructure_Text_Encryption_Label"_s)),
                      encryptions, itemTexts(list, u"DWT_Item_Key_Infrastructure_Encryption"_s)),
               entered(u"wireless.key"_s, page, DWT_SaveData_Infrastructure_PSK),
               entered(u"wireless.wepKey"_s, page, DWT_SaveData_Infrastructure_WEPKey),
               number};
}

QList<Setting> accessPointPage() {
    const QString &page = DWT_View_Key_SimpleAP, list = u"SimpleAPItemData"_s;
    return {choice(shown(u"accessPoint.standard"_s, page, DWT_SaveData_SimpleAP_WirelessMode,
                         u"DWT_Localize_SimpleAP_Text_WirelessLANMode_Label"_s),
                   standards, itemTexts(list, u"DWT_Item_Key_SimpleAP_WirelessMode"_s)),
            shown(u"accessPoint.address.first"_s, page, DWT_SaveData_SimpleAP_StartIPAddress,
                  u"DWT_Localize_SimpleAP_Text_StartIpAddress_Label"_s, Kind::Address),
            shown(u"accessPoint.address.ip"_s, page, DWT_SaveData_SimpleAP_IPAddress,
                  u"DWT_Localize_SimpleAP_Text_IpAddress_Label"_s, Kind::Address),
            shown(u"accessPoint.address.mask"_s, page, DWT_SaveData_SimpleAP_Subnetmask,
                  u"DWT_Localize_SimpleAP_Text_SubnetMask_Label"_s, Kind::Address),
            choice(shown(u"accessPoint.authentication"_s, page, DWT_SaveData_SimpleAP_Authentic,
                         u"DWT_Localize_SimpleAP_Text_Authentic_Label"_s),
                   authentications, itemTexts(list, u"DWT_Item_Key_SimpleAP_Authentic"_s)),
            choice(shown(u"accessPoint.encryption"_s, page, DWT_SaveData_SimpleAP_Encryption,
                         u"DWT_Localize_SimpleAP_Text_Encryption_Label"_s),
                   encryptions, itemTexts(list, u"DWT_Item_Key_SimpleAP_Encryption"_s)),
            entered(u"accessPoint.ssid"_s, page, DWT_SaveData_SimpleAP_SSID),
            entered(u"accessPoint.key"_s, page, DWT_SaveData_SimpleAP_PSK)};
}

template <typename Predicate>
const Setting *find(const Predicate &predicate) {
    const auto found = std::find_if(settings().begin(), settings().end(), predicate);
    return found == settings().end() ? nullptr : &*found;
}

}  // namespace

const QList<Setting> &settings() {
    static const QList<Setting> all =
        listedPrinter() + devicePage() + namesPage() + wiredPage() + wirelessPage() +
        infrastructurePage() + accessPointPage() +
        QList<Setting>{entered(u"password.administrator"_s, DWT_View_Key_Password,
                               DWT_SaveData_Password_Password)};
    return all;
}

const Setting *settingOf(const QString &name) {
    return find([&](const Setting &setting) { return setting.name == name; });
}

const Setting *settingOf(const QString &viewKey, const QString &key) {
    return find(
        [&](const Setting &setting) { return setting.viewKey == viewKey && setting.key == key; });
}

bool isGroup(const QString &name) {
    return find([&](const Setting &setting) { return setting.name.startsWith(name + u'.'); });
}

const QList<Page> &settingPages() {
    static const QList<Page> pages{
        {DWT_View_Key_Firmware, u"DWT_Localize_Outline_Firmware"_s},
        {DWT_View_Key_Network, u"DWT_Localize_Outline_Network"_s},
        {DWT_View_Key_Ethernet, u"DWT_Localize_Outline_Ethernet"_s},
        {DWT_View_Key_Wireless, u"DWT_Localize_Outline_Wireless"_s},
        {DWT_View_Key_Infrastructure, u"DWT_Localize_Outline_Infrastructure"_s},
        {DWT_View_Key_SimpleAP, u"DWT_Localize_Outline_SimpleAP"_s},
        {DWT_View_Key_Password, u"DWT_Localize_Outline_Password"_s}};
    return pages;
}
