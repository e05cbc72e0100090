#include "settings/SendWarnings.h"

#include "platform/core/Texts.h"
#include "settings/Codes.h"
#include "settings/SettingKeys.h"

namespace {

// The categories of the interfaces whose addresses can be set, and their keys.
struct Interface {
    const QString &viewKey, &setting, &address, &mask, &gateway;
};

const Interface interfaces[] = {
    {DWT_View_Key_Ethernet, DWT_SaveData_Ethernet_IPAddressSetting, DWT_SaveData_Ethernet_IPAddress,
     DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Ethernet_Gateway},
    {DWT_View_Key_Infrastructure, DWT_SaveData_Infrastructure_IPAddressSetting,
     DWT_SaveData_Infrastructure_IPAddress, DWT_SaveData_Infrastructure_Subnetmask,
     DWT_SaveData_Infrastructure_Gateway}};

// The four parts as one number; 0 for any other count of parts.
quint32 numberOf(const QStringList &address) {
    quint32 number = 0;
    if (address.size() == 4)
        for (const QString &part : address) number = number << 8 | quint32(integerOf(part) & 0xFF);
    return number;
}

// Whether ones, then zeros, make up the mask.
bool isMask(quint32 mask) {
    const quint32 hosts = ~mask;
    return (hosts & (hosts + 1)) == 0;
}

QList<SendWarning> warningsOf(const Interface &keys, const CategoryDictionary &values) {
    if (integerValue(values, keys.setting) == AddressSetting::Automatic) return {};
    const auto number = [&](const QString &key) { return numberOf(addressValue(values, key)); };
    const auto said = [&](const QString &key) { return addressValue(values, key).join(u'.'); };
    const quint32 mask = number(keys.mask), gateway = number(keys.gateway);
    if (mask != 0 && !isMask(mask)) return {{SendWarning::NotAMask, keys.viewKey, said(keys.mask)}};
    if (gateway != 0 && ((gateway ^ number(keys.address)) & mask) != 0)
        return {{SendWarning::GatewayOutside, keys.viewKey, said(keys.gateway)}};
    return {};
}

bool isNewNetworkWithoutKey(const CategoryDictionary &saved, const CategoryDictionary &changed) {
    const int encryption = integerValue(changed, DWT_SaveData_Infrastructure_Encryption);
    if (encryption == Encryption::None) return false;
    const QString &key = encryption == Encryption::WEP ? DWT_SaveData_Infrastructure_WEPKey
                                                       : DWT_SaveData_Infrastructure_PSK;
    if (!textValue(changed, key).isEmpty()) return false;
    for (const QString &part :
         {DWT_SaveData_Infrastructure_SSID, DWT_SaveData_Infrastructure_Authentic,
          DWT_SaveData_Infrastructure_Encryption})
        if (saved.value(part) != changed.value(part)) return true;
    return false;
}

// The address under which a communication mode makes the printer reached.
QStringList addressOf(int mode, const SettingRecord &record) {
    switch (mode) {
        case CommunicationMode::Infrastructure:
            return addressValue(record.value(DWT_View_Key_Infrastructure),
                                DWT_SaveData_Connect_IPAddress);
        case CommunicationMode::AccessPoint:
            return addressValue(record.value(DWT_View_Key_SimpleAP),
                                DWT_SaveData_SimpleAP_IPAddress);
        default:
            return {};
    }
}

}  // namespace

QString wordsOf(const SendWarning &warning) {
    static const QMap<SendWarning::Kind, const char *> keys{
        {SendWarning::KeyKept, "DWT_Localize_Send_Warning_KeyKept"},
        {SendWarning::NotAMask, "DWT_Localize_Send_Warning_NotAMask"},
        {SendWarning::GatewayOutside, "DWT_Localize_Send_Warning_GatewayOutside"},
        {SendWarning::AddressUnreachable, "DWT_Localize_Send_Warning_AddressUnreachable"}};
    return localized(QLatin1String(keys[warning.kind])).arg(warning.subject);
}

QList<SendWarning> warningsOf(const SettingRecord &saved, const SettingRecord &changed) {
    QList<SendWarning> warnings;
    const auto differs = [&](const QString &key) { return saved.value(key) != changed.value(key); };
    for (const Interface &keys : interfaces)
        if (differs(keys.viewKey)) warnings << warningsOf(keys, changed.value(keys.viewKey));
    const CategoryDictionary network = changed.value(DWT_View_Key_Infrastructure);
    if (isNewNetworkWithoutKey(saved.value(DWT_View_Key_Infrastructure), network))
        warnings << SendWarning{SendWarning::KeyKept, DWT_View_Key_Infrastructure,
                                readableText(textValue(network, DWT_SaveData_Infrastructure_SSID))};
    const auto modeOf = [](const SettingRecord &record) {
        return integerValue(record.value(DWT_View_Key_Wireless),
                            DWT_SaveData_Wireless_CommunicateMode);
    };
    const QStringList left = addressOf(modeOf(saved), saved);
    if (modeOf(saved) != modeOf(changed) && numberOf(left) != 0)
        warnings << SendWarning{SendWarning::AddressUnreachable, DWT_View_Key_Wireless,
                                left.join(u'.')};
    return warnings;
}
