#include "cli/Views.h"

#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

// The names of the codes of a network of the list.
const QStringList listAuthentications{u"open"_s, u"wpa"_s, u"wpa2"_s, u"wpa/wpa2"_s};
const QStringList listEncryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s, u"tkip/aes"_s};

}  // namespace

QStringList cellsOf(const PrinterEntry &entry) {
    return {listedName(entry), entry.value(PrinterKey::ProductName),
            localized(isUSB(entry) ? u"DWT_Localize_PrinterList_BonjourService_USB"_s
                                   : u"DWT_Localize_PrinterList_BonjourService_Network"_s),
            whereaboutsOf(entry), entry.value(PrinterKey::DeviceURI)};
}

QJsonObject asJson(const PrinterEntry &entry) {
    return asJson(SettingRecord{{QString(), listedCategory(entry)}})[u"printer"].toObject();
}

QStringList macsOf(const SettingRecord &record) {
    QStringList macs;
    for (const Setting &setting : settings())
        if (setting.kind == Setting::Kind::Mac)
            macs << textValue(record.value(setting.viewKey), setting.key);
    macs.removeAll(QString());
    return macs;
}

QList<QStringList> rowsOf(const SettingRecord &record) {
    QList<QStringList> rows;
    for (const ShownPage &page : shownPages(record)) {
        rows << QStringList{} << QStringList{page.title};
        for (const auto &[label, value] : page.lines) rows << QStringList{u"  "_s + label, value};
    }
    return rows;
}

QList<QStringList> rowsOf(const QList<SSIDEntry> &networks) {
    QList<QStringList> rows;
    for (const SSIDEntry &network : networks)
        rows << QStringList{
            readableText(textValue(network, DWT_SSIDList_SSID_String)),
            listAuthentications.value(integerValue(network, DWT_SSIDList_Authentic)),
            listEncryptions.value(integerValue(network, DWT_SSIDList_Encryption)),
            u"%1 dBm"_s.arg(integerValue(network, DWT_SSIDList_SignalStrength))};
    return rows;
}

QJsonArray asJson(const QList<SSIDEntry> &networks) {
    QJsonArray array;
    for (const SSIDEntry &network : networks) {
        const auto named = [&](const QStringList &names, const QString &key) -> QJsonValue {
            const int code = integerValue(network, key);
            if (code >= 0 && code < names.size()) return names[code];
            return code;
        };
        array << QJsonObject{
            {u"ssid"_s, readableText(textValue(network, DWT_SSIDList_SSID_String))},
            {u"ssidHex"_s, QString::fromLatin1(bytesValue(network, DWT_SSIDList_SSID).toHex())},
            {u"authentication"_s, named(listAuthentications, DWT_SSIDList_Authentic)},
            {u"encryption"_s, named(listEncryptions, DWT_SSIDList_Encryption)},
            {u"signal"_s, integerValue(network, DWT_SSIDList_SignalStrength)}};
    }
    return array;
}

ExitCode codeOf(Session::Reading reading) {
    return reading == Session::Reading::Complete ? ExitCode::Done : ExitCode::NotReached;
}

ExitCode codeOf(const Ending &ending) {
    using Login = Ending::Login;
    if (ending.course == Ending::Course::Stopped) return ExitCode::Stopped;
    if (ending.course != Ending::Course::Sent) return ExitCode::NotReached;
    if (ending.login == Login::Missing || ending.login == Login::Refused)
        return ExitCode::LoginRefused;
    if (ending.login != Login::Passed) return ExitCode::NotReached;
    if (!ending.isComplete()) return ExitCode::NotAccepted;
    return ending.comparison == Ending::Comparison::Done ? ExitCode::Done : ExitCode::NotReached;
}
