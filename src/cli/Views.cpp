#include "cli/Views.h"

#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

// The names of the codes of a network of the list.
const QStringList listAuthentications{u"open"_s, u"wpa"_s, u"wpa2"_s, u"wpa/wpa2"_s};
const QStringList listEncryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s, u"tkip/aes"_s};

// Puts a value under the names of its groups.
void insert(QJsonObject &object, const QStringList &path, const QJsonValue &value) {
    if (path.size() == 1) {
        object.insert(path.first(), value);
        return;
    }
    QJsonObject group = object.value(path.first()).toObject();
    insert(group, path.mid(1), value);
    object.insert(path.first(), group);
}

QJsonValue asJson(const Setting &setting, const CategoryDictionary &category) {
    const QString text = textOf(setting, category);
    if (!category.contains(setting.key)) return QJsonValue::Null;
    switch (setting.kind) {
        case Setting::Kind::Number:
        case Setting::Kind::Choice: {
            const int code = integerValue(category, setting.key);
            if (code >= 0 && code < setting.codes.size()) return setting.codes[code];
            return code;
        }
        case Setting::Kind::Address:
        case Setting::Kind::Mac:
            return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
        case Setting::Kind::Text:
            break;
    }
    return text;
}

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

QList<QStringList> rowsOf(const SettingRecord &record) {
    QList<QStringList> rows;
    for (const ShownPage &page : shownPages(record)) {
        rows << QStringList{} << QStringList{page.title};
        for (const auto &[label, value] : page.lines) rows << QStringList{u"  "_s + label, value};
    }
    return rows;
}

QJsonObject asJson(const SettingRecord &record) {
    QJsonObject object;
    for (const Setting &setting : settings())
        if (setting.access() != Setting::Access::Enter && record.contains(setting.viewKey))
            insert(object, setting.name.split(u'.'),
                   asJson(setting, record.value(setting.viewKey)));
    return object;
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
