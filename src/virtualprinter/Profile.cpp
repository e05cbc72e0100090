#include "virtualprinter/Profile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>

#include "virtualprinter/Description.h"
#include "virtualprinter/Items.h"

namespace {

// Walks a description and keeps the first place that is wrong.
class Reader {
  public:
    QString error;

    void fail(const QString &place, const QString &reason) {
        if (error.isEmpty()) error = quotable(place) + QStringLiteral(": ") + reason;
    }

    // Fails for every key that is not among `known`.
    void expectKeys(const QJsonObject &object, const QString &place, const QStringList &known) {
        for (const QString &key : object.keys())
            if (!known.contains(key)) fail(place + key, QStringLiteral("unknown key"));
    }

    QJsonObject object(const QJsonObject &parent, const QString &key, const QString &place) {
        const QJsonValue value = parent[key];
        if (!value.isUndefined() && !value.isObject())
            fail(place + key, QStringLiteral("not an object"));
        return value.toObject();
    }

    int integer(const QJsonObject &parent, const QString &key, const QString &place, int minimum,
                int maximum, int fallback = 0) {
        const QJsonValue value = parent[key];
        if (value.isUndefined()) return fallback;
        const double number = value.toDouble(std::nan(""));
        if (number >= minimum && number <= maximum && number == std::floor(number))
            return static_cast<int>(number);
        fail(place + key, QStringLiteral("not an integer from %1 to %2").arg(minimum).arg(maximum));
        return fallback;
    }

    std::optional<int> optionalInteger(const QJsonObject &parent, const QString &key,
                                       const QString &place, int maximum) {
        if (!parent.contains(key)) return {};
        return integer(parent, key, place, 0, maximum);
    }

    bool flag(const QJsonObject &parent, const QString &key, const QString &place) {
        const QJsonValue value = parent[key];
        if (!value.isUndefined() && !value.isBool())
            fail(place + key, QStringLiteral("neither true nor false"));
        return value.toBool();
    }

    QByteArray text(const QJsonObject &parent, const QString &key, const QString &place,
                    int longest) {
        const QJsonValue value = parent[key];
        if (!value.isUndefined() && !value.isString())
            fail(place + key, QStringLiteral("not a text"));
        QByteArray bytes = value.toString().toUtf8();
        if (bytes.size() > longest)
            fail(place + key, QStringLiteral("longer than %1 bytes").arg(longest));
        return bytes;
    }

    // A key such as "0x1006".
    std::optional<quint16> code(const QString &text, const QString &place) {
        bool ok = false;
        const uint value = text.toUInt(&ok, 16);
        if (ok && text.startsWith(u"0x") && text.size() == 6) return static_cast<quint16>(value);
        fail(place + text, QStringLiteral("not an item code such as \"0x1006\""));
        return {};
    }
};

QHash<quint16, QByteArray> initialItems() {
    QHash<quint16, QByteArray> items;
    for (const Items::Item &item : Items::all()) items.insert(item.code, item.initial);
    return items;
}

void readItems(Reader &reader, const QJsonObject &object, Profile &profile) {
    static const QHash<quint16, QByteArray> initial = initialItems();
    profile.items = initial;
    const QString place = QStringLiteral("items.");
    for (const QString &key : object.keys()) {
        const auto code = reader.code(key, place);
        if (!code) continue;
        const Items::Item *item = Items::find(*code);
        if (!item) {
            reader.fail(place + key, QStringLiteral("unknown item"));
            continue;
        }
        QString problem;
        const auto value = Items::fromJson(*item, object[key], problem);
        if (!value) reader.fail(place + key, problem);
        profile.items.insert(*code, value.value_or(QByteArray()));
    }
}

Network readNetwork(Reader &reader, const QJsonObject &object, const QString &place) {
    reader.expectKeys(
        object, place,
        {QStringLiteral("ssid"), QStringLiteral("ssidHex"), QStringLiteral("mode"),
         QStringLiteral("authentic"), QStringLiteral("encryption"), QStringLiteral("signal")});
    Network network;
    network.ssid = reader.text(object, QStringLiteral("ssid"), place, longestSsid);
    if (object.contains(u"ssidHex")) {
        const QByteArray hex =
            reader.text(object, QStringLiteral("ssidHex"), place, 2 * longestSsid);
        network.ssid = QByteArray::fromHex(hex);
        if (network.ssid.toHex() != hex.toLower())
            reader.fail(place + QStringLiteral("ssidHex"), QStringLiteral("not hexadecimal bytes"));
    }
    network.mode = reader.integer(object, QStringLiteral("mode"), place, 0, 0xFFFF);
    network.authentic = reader.integer(object, QStringLiteral("authentic"), place, 0, 0xFFFF);
    network.encryption = reader.integer(object, QStringLiteral("encryption"), place, 0, 0xFFFF);
    network.signal = reader.integer(object, QStringLiteral("signal"), place, -0x8000, 0x7FFF);
    return network;
}

void readNetworks(Reader &reader, const QJsonValue &value, Profile &profile) {
    if (!value.isUndefined() && !value.isArray())
        reader.fail(QStringLiteral("networks"), QStringLiteral("not an array"));
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        const QString place = QStringLiteral("networks[%1]").arg(i);
        if (!array[i].isObject()) reader.fail(place, QStringLiteral("not an object"));
        profile.networks << readNetwork(reader, array[i].toObject(), place + u'.');
    }
}

ItemFault readItemFault(Reader &reader, const QJsonObject &object, const QString &place) {
    static const QMap<QString, bool ItemFault::*> flags{
        {QStringLiteral("noReply"), &ItemFault::noReply},
        {QStringLiteral("garbage"), &ItemFault::garbage},
        {QStringLiteral("doubled"), &ItemFault::doubled},
        {QStringLiteral("closed"), &ItemFault::closed},
        {QStringLiteral("closeAfterReply"), &ItemFault::closeAfterReply},
        {QStringLiteral("reset"), &ItemFault::reset}};
    static const QMap<QString, std::optional<int> ItemFault::*> numbers{
        {QStringLiteral("truncate"), &ItemFault::truncate},
        {QStringLiteral("length"), &ItemFault::length},
        {QStringLiteral("result"), &ItemFault::resultCode}};
    reader.expectKeys(object, place,
                      flags.keys() + numbers.keys() +
                          QStringList{QStringLiteral("code"), QStringLiteral("delay")});
    ItemFault fault;
    for (auto i = flags.begin(); i != flags.end(); ++i)
        fault.**i = reader.flag(object, i.key(), place);
    for (auto i = numbers.begin(); i != numbers.end(); ++i)
        fault.**i = reader.optionalInteger(object, i.key(), place, 0xFFFF);
    if (object.contains(u"code")) {
        const QByteArray text = reader.text(object, QStringLiteral("code"), place, 6);
        fault.code = reader.code(QString::fromUtf8(text), place + QStringLiteral("code."));
    }
    fault.delay = reader.integer(object, QStringLiteral("delay"), place, 0, longestDelay);
    return fault;
}

SimulatedFaults readFaults(Reader &reader, const QJsonObject &object) {
    const QString place = QStringLiteral("faults.");
    reader.expectKeys(
        object, place,
        {QStringLiteral("refuseConnection"), QStringLiteral("closeAfterFrames"),
         QStringLiteral("delay"), QStringLiteral("piecewise"), QStringLiteral("items")});
    SimulatedFaults faults;
    faults.refuseConnection = reader.flag(object, QStringLiteral("refuseConnection"), place);
    faults.closeAfterFrames =
        reader.integer(object, QStringLiteral("closeAfterFrames"), place, 0, 0xFFFF);
    faults.delay = reader.integer(object, QStringLiteral("delay"), place, 0, longestDelay);
    faults.piecewise = reader.flag(object, QStringLiteral("piecewise"), place);
    const QString itemsPlace = QStringLiteral("faults.items.");
    const QJsonObject items = reader.object(object, QStringLiteral("items"), place);
    for (const QString &key : items.keys()) {
        const auto code = reader.code(key, itemsPlace);
        const QJsonObject fault = reader.object(items, key, itemsPlace);
        if (code) faults.items[*code] = readItemFault(reader, fault, itemsPlace + key + u'.');
    }
    return faults;
}

}  // namespace

ProfileResult profileFromJson(const QJsonObject &object) {
    Reader reader;
    reader.expectKeys(
        object, QString(),
        {QStringLiteral("password"), QStringLiteral("items"), QStringLiteral("networks"),
         QStringLiteral("scanPolls"), QStringLiteral("faults")});
    Profile profile;
    profile.password = reader.text(object, QStringLiteral("password"), QString(), longestPassword);
    readItems(reader, reader.object(object, QStringLiteral("items"), QString()), profile);
    readNetworks(reader, object[u"networks"], profile);
    profile.scanPolls = reader.integer(object, QStringLiteral("scanPolls"), QString(), 0,
                                       mostScanPolls, profile.scanPolls);
    profile.faults = readFaults(reader, reader.object(object, QStringLiteral("faults"), QString()));
    if (!reader.error.isEmpty()) return {{}, reader.error};
    return {std::move(profile), {}};
}

ProfileResult profileFromFile(const QString &path) {
    const DescriptionText text = readDescription(path);
    if (!text.bytes) return {{}, QStringLiteral("%1: %2").arg(path, text.error)};
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(*text.bytes, &parseError);
    if (!document.isObject()) {
        const QString reason = parseError.error == QJsonParseError::NoError
                                   ? QStringLiteral("not a JSON object")
                                   : parseError.errorString();
        return {{}, QStringLiteral("%1: byte %2: %3").arg(path).arg(parseError.offset).arg(reason)};
    }
    ProfileResult result = profileFromJson(document.object());
    if (!result.profile) result.error.prepend(path + QStringLiteral(": "));
    return result;
}
