#include "cli/Plan.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "settings/SendWarnings.h"
#include "settings/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {

const GivenValue *find(const QList<GivenValue> &values, const QString &key) {
    const auto found = std::find_if(values.begin(), values.end(), [&](const GivenValue &value) {
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
    SecurityCheck(const QList<GivenValue> &values, const CategoryDictionary &network)
        : m_values(values), m_network(network) {}

    QList<Fault> faults() {
        checkPair();
        const auto uses = [this](std::initializer_list<int> codes) {
            return !m_network.contains(encryptionKey) ||
                   std::find(codes.begin(), codes.end(), encryption()) != codes.end();
        };
        if (!uses({Encryption::TKIP, Encryption::AES}))
            add(DWT_SaveData_Infrastructure_PSK, unused());
        if (!uses({Encryption::WEP})) add(DWT_SaveData_Infrastructure_WEPKey, unused());
        if (!find(m_values, DWT_SaveData_Infrastructure_WEPKey))
            add(DWT_SaveData_Infrastructure_WEPKeyIndex,
                localized(u"DWT_Localize_Cli_Fault_NumberAlone"_s));
        return m_faults;
    }

  private:
    void checkPair() {
        if (!m_network.contains(authenticationKey) || !m_network.contains(encryptionKey)) return;
        const int authentication = integerValue(m_network, authenticationKey);
        const auto [weaker, preferred] = Rules::encryptionsOf(authentication);
        if (encryption() == weaker || encryption() == preferred) return;
        const QString words = localized(u"DWT_Localize_Cli_Fault_Pair"_s)
                                  .arg(nameOfCode(encryptionKey, encryption()),
                                       nameOfCode(authenticationKey, authentication));
        if (!add(encryptionKey, words)) add(authenticationKey, words);
    }

    int encryption() const { return integerValue(m_network, encryptionKey); }
    QString unused() const {
        return localized(u"DWT_Localize_Cli_Fault_KeyUnused"_s)
            .arg(nameOfCode(encryptionKey, encryption()));
    }

    // A fault of the value that is given under `key`; false when none is.
    bool add(const QString &key, const QString &words) {
        const GivenValue *const value = find(m_values, key);
        if (!value) return false;
        m_faults << value->place;
        m_faults.last().text = words;
        return true;
    }

    const QString &authenticationKey = DWT_SaveData_Infrastructure_Authentic;
    const QString &encryptionKey = DWT_SaveData_Infrastructure_Encryption;
    const QList<GivenValue> &m_values;
    const CategoryDictionary &m_network;
    QList<Fault> m_faults;
};

// The faults of the changed addresses of an interface, whose mode is the setting `mode`.
QList<Fault> faultsOfAddresses(const Setting &mode, const QList<GivenValue> &changed,
                               const SettingRecord &record) {
    const CategoryDictionary category = record.value(mode.viewKey);
    const bool automatic = integerValue(category, mode.key) == AddressSetting::Automatic;
    QList<Fault> faults;
    const GivenValue *cause = nullptr;
    for (const GivenValue &value : changed) {
        if (value.setting->viewKey != mode.viewKey) continue;
        const bool isAddress = value.setting->kind == Setting::Kind::Address;
        if (isAddress || value.setting == &mode) cause = &value;
        if (!isAddress || !automatic) continue;
        faults << value.place;
        faults.last().text = localized(u"DWT_Localize_Cli_Fault_AddressUnused"_s);
    }
    if (!cause || automatic) return faults;
    // A fixed address needs all three, also those that nobody has given.
    for (const Setting &setting : settings()) {
        const bool counts = setting.viewKey == mode.viewKey && setting.rule &&
                            setting.kind == Setting::Kind::Address;
        if (!counts || Rules::isAddress(addressValue(category, setting.key).join(u'.'),
                                        setting.rule->loopback))
            continue;
        faults << cause->place;
        faults.last().name = setting.name;
        faults.last().text = localized(QLatin1String(setting.rule->ruleKey));
    }
    return faults;
}

Plan::Change changeOf(const GivenValue &value, const SettingRecord &saved,
                      const SettingRecord &record) {
    const Setting &setting = *value.setting;
    if (!setting.isSecret())
        return {&setting, valueOrEmpty(setting, saved.value(setting.viewKey)),
                valueOrEmpty(setting, record.value(setting.viewKey))};
    const bool removed = std::get<QString>(value.value).isEmpty();
    return {&setting,
            {},
            localized(removed ? u"DWT_Localize_Send_Confirm_RemovedSecret"_s
                              : u"DWT_Localize_Send_Confirm_NewSecret"_s)};
}

}  // namespace

Plan planOf(const SettingRecord &saved, const QList<GivenValue> &values) {
    Plan plan;
    plan.record = saved;
    QList<GivenValue> changed;
    for (const GivenValue &value : values) {
        const Setting &setting = *value.setting;
        CategoryDictionary &category = plan.record[setting.viewKey];
        const bool isPassword = setting.viewKey == DWT_View_Key_Password;
        const auto held = category.constFind(setting.key);
        if (!isPassword && held != category.constEnd() && isSame(*held, value.value)) continue;
        if (!value.place.text.isEmpty()) {
            plan.faults << value.place;
            continue;
        }
        category.insert(setting.key, value.value);
        if (isPassword) category.insert(DWT_SaveData_Password_Change, 1);
        changed << value;
        plan.changes << changeOf(value, saved, plan.record);
    }
    plan.faults += SecurityCheck(changed, plan.record.value(DWT_View_Key_Infrastructure)).faults();
    for (const Setting &setting : settings())
        if (setting.name.endsWith(u".address.mode"_s))
            plan.faults += faultsOfAddresses(setting, changed, plan.record);
    for (const SendWarning &warning : warningsOf(saved, plan.record))
        plan.warnings << wordsOf(warning);
    return plan;
}

QList<Fault> faultsBetween(const QList<GivenValue> &values) {
    CategoryDictionary network;
    for (const GivenValue &value : values)
        if (value.setting->viewKey == DWT_View_Key_Infrastructure)
            network.insert(value.setting->key, value.value);
    return SecurityCheck(values, network).faults();
}
