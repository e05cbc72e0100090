#include "settings/Rules.h"

#include <QList>
#include <QMap>
#include <algorithm>

#include "settings/SettingKeys.h"
#include "settings/SettingRecord.h"

namespace Rules {

const QString alphanumericCharacters =
    QStringLiteral("1234567890abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
const QString hostNameCharacters = alphanumericCharacters + u'-';
const QString passwordCharacters = alphanumericCharacters + QStringLiteral("!\"#$%&'()*+,-./{|}~");
const QString hexadecimalCharacters = QStringLiteral("1234567890abcdefABCDEF");
const QString printableCharacters =
    alphanumericCharacters + QStringLiteral("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~ ");
const QString addressCharacters = QStringLiteral("0123456789.");
const QString digits = QStringLiteral("0123456789");

namespace {

constexpr qsizetype longestAddress = 15;  // "255.255.255.255"
constexpr qsizetype parts = 4;
// Lengths of the two sizes of WEP keys, in characters and in hexadecimal digits.
constexpr int wepTexts[] = {5, 13};
constexpr int wepDigits[] = {10, 26};

using Kind = Rule::Kind;

Rule text(ItemCode item, const char *nameKey, const char *ruleKey, const QString &characters,
          int min, int max) {
    return {item, Kind::Text, nameKey, ruleKey, characters, min, max};
}

// Of the addresses of an interface, only its own may not be 127.0.0.1.
Rule address(ItemCode item, const char *nameKey) {
    return {item, Kind::Address, nameKey, "DWT_Localize_Alert_InfoText_IpAddress_InputErr",
            addressCharacters};
}
Rule mask(ItemCode item, const char *nameKey) {
    return {item,
            Kind::Address,
            nameKey,
            "DWT_Localize_Alert_InfoText_Subnetmask_InputErr",
            addressCharacters,
            0,
            0,
            true};
}
Rule gateway(ItemCode item, const char *nameKey) {
    return {item,
            Kind::Address,
            nameKey,
            "DWT_Localize_Alert_InfoText_Router_InputErr",
            addressCharacters,
            0,
            0,
            true};
}

Rule secret(Rule rule) {
    rule.secret = true;
    return rule;
}

Rule psk(ItemCode item, const char *nameKey) {
    return secret(text(item, nameKey, "DWT_Localize_Alert_InfoText_PSK_InputErr",
                       printableCharacters, shortestPSK, longestPSK));
}

// Made at the first look-up, when every text above exists.
const QMap<QString, Rule> &table() {
    static const QMap<QString, Rule> rules{
        {DWT_SaveData_Network_Printer,
         text(0x1006, "DWT_Localize_Alert_MessageText_Network_PrinterName",
              "DWT_Localize_Alert_InfoText_PrinterName_InputErr", hostNameCharacters, 1,
              longestPrinterName)},
        {DWT_SaveData_Network_Bonjour,
         text(0x1004, "DWT_Localize_Alert_MessageText_Network_BonjourName",
              "DWT_Localize_Alert_InfoText_BonjourName_InputErr", hostNameCharacters, 1,
              longestBonjourName)},
        {DWT_SaveData_Network_BonjourService,
         text(0x1005, "DWT_Localize_Alert_MessageText_Network_BonjourServiceName",
              "DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr", printableCharacters, 1,
              longestServiceName)},
        {DWT_SaveData_Infrastructure_IPAddress,
         address(0x3108, "DWT_Localize_Alert_MessageText_Infrastructure_IpAddress")},
        {DWT_SaveData_Infrastructure_Subnetmask,
         mask(0x3108, "DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask")},
        {DWT_SaveData_Infrastructure_Gateway,
         gateway(0x3108, "DWT_Localize_Alert_MessageText_Infrastructure_Gateway")},
        {DWT_SaveData_Infrastructure_SSID,
         text(0x3104, "DWT_Localize_Alert_MessageText_Infrastructure_SSID",
              "DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr", printableCharacters, 1,
              longestSSID)},
        {DWT_SaveData_Infrastructure_PSK,
         psk(0x3105, "DWT_Localize_Alert_MessageText_Infrastructure_PSK")},
        {DWT_SaveData_Infrastructure_WEPKey,
         secret({0x3106, Kind::WEPKey, "DWT_Localize_Alert_MessageText_Infrastructure_WEPKey",
                 "DWT_Localize_Alert_InfoText_WEPKey_InputErr", printableCharacters})},
        {DWT_SaveData_SimpleAP_SSID, text(0x3201, "DWT_Localize_Alert_MessageText_SimpleAP_SSID",
                                          "DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr",
                                          printableCharacters, 1, longestAccessPointSSID)},
        {DWT_SaveData_SimpleAP_PSK, psk(0x3202, "DWT_Localize_Alert_MessageText_SimpleAP_PSK")},
        {DWT_SaveData_Ethernet_IPAddress,
         address(0x2001, "DWT_Localize_Alert_MessageText_Ethernet_IpAddress")},
        {DWT_SaveData_Ethernet_Subnetmask,
         mask(0x2001, "DWT_Localize_Alert_MessageText_Ethernet_SubnetMask")},
        {DWT_SaveData_Ethernet_Gateway,
         gateway(0x2001, "DWT_Localize_Alert_MessageText_Ethernet_Gateway")},
        {DWT_SaveData_Firmware_Timeout,
         {0x1007, Kind::Number, "DWT_Localize_Firmware_Box_PrintTimeOut", nullptr, digits,
          shortestTimeOut, longestTimeOut}},
        {DWT_SaveData_Password_Password,
         secret(text(0x1003, "DWT_Localize_Alert_MessageText_Password_Password",
                     "DWT_Localize_Alert_InfoText_Password_InputErr", passwordCharacters, 0,
                     longestPassword))}};
    return rules;
}

}  // namespace

const Rule *ruleOf(const QString &key) {
    const auto found = table().constFind(key);
    return found == table().constEnd() ? nullptr : &*found;
}

bool isText(const QString &text, const QString &characters, int min, int max, bool input) {
    if (text.size() > max || (input && text.size() < min)) return false;
    return std::all_of(text.begin(), text.end(), [&](QChar c) { return characters.contains(c); });
}

bool isAddress(const QString &text, bool loopback) {
    const QStringList texts = text.split(u'.');
    if (text.size() > longestAddress || texts.size() != parts || texts.contains(QString()))
        return false;
    QList<int> address;
    for (const QString &part : texts) address << integerOf(part);
    const auto inRange = [](int part) { return part >= 0 && part <= 255; };
    if (!std::all_of(address.begin(), address.end(), inRange)) return false;
    const QList<int> nowhere{0, 0, 0, 0}, everywhere{255, 255, 255, 255}, localhost{127, 0, 0, 1};
    if (address == nowhere || address == everywhere) return false;
    return loopback || address != localhost;
}

bool isSameAddress(const QStringList &a, const QStringList &b) {
    if (a.size() < parts || b.size() < parts) return false;
    return std::equal(
        a.begin(), a.begin() + parts, b.begin(),
        [](const QString &x, const QString &y) { return integerOf(x) == integerOf(y); });
}

bool isWEPKey(const QString &text, bool input) {
    const auto length = int(text.size());
    const auto isOne = [length](const auto &lengths) {
        return std::find(std::begin(lengths), std::end(lengths), length) != std::end(lengths);
    };
    if (isOne(wepTexts)) return isText(text, printableCharacters, length, length, true);
    if (isOne(wepDigits)) return isText(text, hexadecimalCharacters, length, length, true);
    return length == 0 && !input;
}

Encryptions encryptionsOf(int authentication) {
    if (authentication < Authentication::WPA) return {Encryption::None, Encryption::WEP};
    return {Encryption::TKIP, Encryption::AES};
}

int numberInRange(const QString &text, const Rule &rule) {
    return std::clamp(integerOf(text), rule.min, rule.max);
}

}  // namespace Rules
