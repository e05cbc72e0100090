#include "settings/SendWarnings.h"

#include "platform/core/Texts.h"
#include "settings/Codes.h"
#include "settings/SettingKeys.h"
#include "settings/Settings.h"

namespace {

// The four parts as one number; 0 for any other count of parts.
quint32 numberOf(const QStringList &address) {
    quint32 number = 0;
    if (address.size() == 4)
        for (const QString &part : address) number = number << 8 | quint32(integerOf(part) & 0xFF);
    return number;
}

// Whether ones, then zeros, make up the mask; it may have no ones.
bool isMask(quint32 mask) {
    const quint32 hosts = ~mask;
    return (hosts & (hosts + 1)) == 0;
}

QList<SendWarning> warningsOf(const AddressSetup &setup, const CategoryDictionary &values) {
    if (integerValue(values, setup.mode->key) == AddressSetting::Automatic) return {};
    const auto parts = [&](const Setting *setting) { return addressValue(values, setting->key); };
    const quint32 mask = numberOf(parts(setup.mask)), gateway = numberOf(parts(setup.gateway));
    const auto warning = [&](SendWarning::Kind kind, const Setting *setting) {
        return QList{SendWarning{kind, setting->viewKey, parts(setting).join(u'.'), setting->key}};
    };
    if (!isMask(mask)) return warning(SendWarning::NotAMask, setup.mask);
    if (gateway != 0 && ((gateway ^ numberOf(parts(setup.address))) & mask) != 0)
        return warning(SendWarning::GatewayOutside, setup.gateway);
    return {};
}

bool isNewNetworkWithoutKey(const CategoryDictionary &saved, const CategoryDictionary &changed) {
    const QString key = networkKeyOf(integerValue(changed, DWT_SaveData_Infrastructure_Encryption));
    if (key.isEmpty() || !textValue(changed, key).isEmpty()) return false;
    for (const QString &part :
         {DWT_SaveData_Infrastructure_SSID, DWT_SaveData_Infrastructure_Authentic,
          DWT_SaveData_Infrastructure_Encryption})
        if (!isSame(saved.value(part), changed.value(part))) return true;
    return false;
}

// The address under which a communication mode makes the printer reached.
QStringList addressOf(int mode, const SettingRecord &record) {
    if (mode == CommunicationMode::Infrastructure)
        return addressValue(record.value(DWT_View_Key_Infrastructure),
                            DWT_SaveData_Connect_IPAddress);
    if (mode == CommunicationMode::AccessPoint)
        return addressValue(record.value(DWT_View_Key_SimpleAP), DWT_SaveData_SimpleAP_IPAddress);
    return {};
}

}  // namespace

QString wordsOf(const SendWarning &warning) {
    static const QMap<SendWarning::Kind, const char *> keys{
        {SendWarning::SecurityUnknown, "DWT_Localize_Send_Warning_SecurityUnknown"},
        {SendWarning::KeyKept, "DWT_Localize_Send_Warning_KeyKept"},
        {SendWarning::NotAMask, "DWT_Localize_Send_Warning_NotAMask"},
        {SendWarning::GatewayOutside, "DWT_Localize_Send_Warning_GatewayOutside"},
        {SendWarning::AddressUnreachable, "DWT_Localize_Send_Warning_AddressUnreachable"}};
    return localized(keys[warning.kind]).arg(warning.subject);
}

QList<SendWarning> warningsOf(const SettingRecord &saved, const SettingRecord &changed) {
    QList<SendWarning> warnings;
    for (const AddressSetup &setup : addressSetups()) {
        const QString &viewKey = setup.mode->viewKey;
        if (saved.value(viewKey) != changed.value(viewKey))
            warnings << warningsOf(setup, changed.value(viewKey));
    }
    const CategoryDictionary network = changed.value(DWT_View_Key_Infrastructure);
    if (isNewNetworkWithoutKey(saved.value(DWT_View_Key_Infrastructure), network))
        warnings << SendWarning{
            SendWarning::KeyKept, DWT_View_Key_Infrastructure,
            readableText(textValue(network, DWT_SaveData_Infrastructure_SSID)),
            networkKeyOf(integerValue(network, DWT_SaveData_Infrastructure_Encryption))};
    const auto modeOf = [](const SettingRecord &record) {
        return integerValue(record.value(DWT_View_Key_Wireless),
                            DWT_SaveData_Wireless_CommunicateMode);
    };
    const QStringList left = addressOf(modeOf(saved), saved);
    if (modeOf(saved) != modeOf(changed) && numberOf(left) != 0)
        warnings << SendWarning{SendWarning::AddressUnreachable, DWT_View_Key_Wireless,
                                left.join(u'.'), DWT_SaveData_Wireless_CommunicateMode};
    return warnings;
}
