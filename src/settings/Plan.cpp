#include "settings/Plan.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "settings/Codes.h"
#include "settings/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {

const WantedValue *find(const QList<WantedValue> &values, const QString &key) {
    const auto found = std::find_if(values.begin(), values.end(), [&](const WantedValue &value) {
        return value.setting->key == key;
    });
    return found == values.end() ? nullptr : &*found;
}

QString nameOfCode(const QString &key, int code) {
    const Setting &setting = *settingOf(DWT_View_Key_Infrastructure, key);
    return setting.codes.value(code, QString::number(code));
}

// Collects the faults between the values of the wireless network.
class SecurityCheck {
  public:
    // `network`: what the printer will hold as far as it is known.
    SecurityCheck(const QList<WantedValue> &values, const CategoryDictionary &network)
        : m_values(values), m_network(network) {}

    QList<Fault> faults() {
        checkPair();
        for (const QString &key :
             {DWT_SaveData_Infrastructure_PSK, DWT_SaveData_Infrastructure_WEPKey})
            if (m_network.contains(encryptionKey) && networkKeyOf(encryption()) != key)
                add(key, u"key-unused"_s,
                    localized("DWT_Localize_Cli_Fault_KeyUnused")
                        .arg(nameOfCode(encryptionKey, encryption())));
        if (!find(m_values, DWT_SaveData_Infrastructure_WEPKey))
            add(DWT_SaveData_Infrastructure_WEPKeyIndex, u"number-alone"_s,
                localized("DWT_Localize_Cli_Fault_NumberAlone"));
        return m_faults;
    }

  private:
    void checkPair() {
        if (!m_network.contains(authenticationKey) || !m_network.contains(encryptionKey)) return;
        const int authentication = integerValue(m_network, authenticationKey);
        const auto [weaker, preferred] = Rules::encryptionsOf(authentication);
        if (encryption() == weaker || encryption() == preferred) return;
        const QString words = localized("DWT_Localize_Cli_Fault_Pair")
                                  .arg(nameOfCode(encryptionKey, encryption()),
                                       nameOfCode(authenticationKey, authentication));
        if (!add(encryptionKey, u"pair"_s, words)) add(authenticationKey, u"pair"_s, words);
    }

    int encryption() const { return integerValue(m_network, encryptionKey); }

    // A fault of the value that is given under `key`; false when none is.
    bool add(const QString &key, const QString &kind, const QString &words) {
        const WantedValue *const value = find(m_values, key);
        if (!value) return false;
        m_faults << Fault{value->place, words, kind};
        return true;
    }

    const QString &authenticationKey = DWT_SaveData_Infrastructure_Authentic;
    const QString &encryptionKey = DWT_SaveData_Infrastructure_Encryption;
    const QList<WantedValue> &m_values;
    const CategoryDictionary &m_network;
    QList<Fault> m_faults;
};

// The faults of the changed addresses of an interface.
QList<Fault> faultsOf(const AddressSetup &setup, const QList<WantedValue> &changed,
                      const SettingRecord &record) {
    const CategoryDictionary category = record.value(setup.mode->viewKey);
    const bool automatic = integerValue(category, setup.mode->key) == AddressSetting::Automatic;
    const QList<const Setting *> addresses{setup.address, setup.mask, setup.gateway};
    QList<Fault> faults;
    const WantedValue *cause = nullptr;
    for (const WantedValue &value : changed) {
        const bool isAddress = addresses.contains(value.setting);
        if (isAddress || value.setting == setup.mode) cause = &value;
        if (isAddress && automatic)
            faults << Fault{value.place, localized("DWT_Localize_Cli_Fault_AddressUnused"),
                            u"address-unused"_s};
    }
    if (!cause || automatic) return faults;
    // A fixed address needs all three, also those that nobody has given.
    for (const Setting *const setting : addresses) {
        if (Rules::keeps(*setting->rule, addressValue(category, setting->key).join(u'.'))) continue;
        faults << Fault{cause->place, localized(setting->rule->ruleKey), u"value"_s};
        faults.last().place.name = setting->name;
    }
    return faults;
}

// Whether an address is given together with the wish that the printer gets one automatically.
bool comesByItself(const Setting &setting, const QList<WantedValue> &values) {
    for (const AddressSetup &setup : addressSetups()) {
        if (!QList{setup.address, setup.mask, setup.gateway}.contains(&setting)) continue;
        const auto isAutomatic = [&](const WantedValue &value) {
            return value.setting == setup.mode &&
                   value.value == SettingValue(int{AddressSetting::Automatic});
        };
        return std::any_of(values.begin(), values.end(), isAutomatic);
    }
    return false;
}

// The bytes of a network name that cannot be typed; a byte is a character of it. Empty for others.
QByteArray networkBytesOf(const QString &name) {
    const bool isTyped =
        Rules::isText(name, Rules::printableCharacters, 0, Rules::longestSSID, false);
    return isTyped ? QByteArray() : name.toLatin1();
}

// Whether the setting is, or belongs to, a key of the wireless network, which no printer reports.
bool isNetworkKey(const Setting &setting) {
    return setting.viewKey == DWT_View_Key_Infrastructure && !setting.isReported();
}

bool changesNetwork(const QList<WantedValue> &changed) {
    const QStringList parts{DWT_SaveData_Wireless_CommunicateMode, DWT_SaveData_Infrastructure_SSID,
                            DWT_SaveData_Infrastructure_Authentic,
                            DWT_SaveData_Infrastructure_Encryption};
    return std::any_of(changed.begin(), changed.end(), [&](const WantedValue &value) {
        return parts.contains(value.setting->key);
    });
}

bool isChange(const Setting &setting, const SettingRecord &saved, const SettingRecord &wanted) {
    const CategoryDictionary before = saved.value(setting.viewKey),
                             after = wanted.value(setting.viewKey);
    if (setting.name.isEmpty() || !setting.isSent() || !after.contains(setting.key)) return false;
    // A password is never read, and an empty one is a wish like any other.
    if (setting.viewKey == DWT_View_Key_Password)
        return integerValue(after, DWT_SaveData_Password_Change) != 0;
    return !before.contains(setting.key) ||
           !isSame(before.value(setting.key), after.value(setting.key));
}

Plan::Change changeOf(const Setting &setting, const SettingRecord &saved,
                      const SettingRecord &wanted) {
    const CategoryDictionary before = saved.value(setting.viewKey),
                             after = wanted.value(setting.viewKey);
    if (!setting.isSecret())
        return {&setting, textOrEmpty(setting, before), textOrEmpty(setting, after)};
    const bool removed = textValue(after, setting.key).isEmpty();
    return {&setting,
            {},
            localized(removed ? u"DWT_Localize_Send_Confirm_RemovedSecret"_s
                              : u"DWT_Localize_Send_Confirm_NewSecret"_s)};
}

}  // namespace

QString Plan::Change::words() const {
    return setting->isSecret() ? newText : u"%1 → %2"_s.arg(oldText, newText);
}

bool Plan::changesPage(const QString &viewKey) const {
    return std::any_of(changes.begin(), changes.end(),
                       [&](const Change &change) { return change.setting->viewKey == viewKey; });
}

Plan planOf(const SettingRecord &saved, const SettingRecord &wanted) {
    Plan plan;
    plan.record = wanted;
    for (const Setting &setting : settings())
        if (isChange(setting, saved, wanted)) plan.changes << changeOf(setting, saved, wanted);
    plan.warnings = warningsOf(saved, wanted);
    return plan;
}

Plan planOf(const SettingRecord &saved, const QList<WantedValue> &values, Keys keys) {
    SettingRecord wanted = saved;
    QList<WantedValue> changed;
    QList<Fault> faults;
    QList<Plan::LeftOut> leftOut;
    for (const WantedValue &value : values) {
        const Setting &setting = *value.setting;
        SettingRecord with = wanted;
        with[setting.viewKey].insert(setting.key, value.value);
        if (setting.viewKey == DWT_View_Key_Password)
            with[setting.viewKey].insert(DWT_SaveData_Password_Change, 1);
        if (setting.key == DWT_SaveData_Infrastructure_SSID)
            with[setting.viewKey].insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                                         networkBytesOf(std::get<QString>(value.value)));
        if (!isChange(setting, saved, with)) continue;
        if (comesByItself(setting, values)) {
            leftOut << Plan::LeftOut{&setting, Plan::LeftOut::Automatic};
            continue;
        }
        if (!value.brokenRule.isEmpty()) {
            faults << Fault{value.place, value.brokenRule, u"value"_s};
            continue;
        }
        wanted = with;
        changed << value;
    }
    faults += SecurityCheck(changed, wanted.value(DWT_View_Key_Infrastructure)).faults();
    if (keys == Keys::WhenChanged && !changesNetwork(changed))
        for (const WantedValue &value : std::as_const(changed))
            if (isNetworkKey(*value.setting)) {
                wanted[value.setting->viewKey].insert(
                    value.setting->key,
                    saved.value(value.setting->viewKey).value(value.setting->key));
                leftOut << Plan::LeftOut{value.setting, Plan::LeftOut::SameNetwork};
            }
    Plan plan = planOf(saved, wanted);
    plan.faults = faults;
    plan.leftOut = leftOut;
    for (const AddressSetup &setup : addressSetups())
        plan.faults += faultsOf(setup, changed, wanted);
    return plan;
}

QList<Fault> faultsBetween(const QList<WantedValue> &values) {
    CategoryDictionary network;
    for (const WantedValue &value : values)
        if (value.setting->viewKey == DWT_View_Key_Infrastructure)
            network.insert(value.setting->key, value.value);
    return SecurityCheck(values, network).faults();
}
