#include "virtualprinter/Profile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>

#include "virtualprinter/Description.h"
#include "virtualprinter/Items.h"

using namespace Qt::StringLiterals;

namespace {

// Reads the members of one object of a description, and keeps the first place that is wrong.
class Fields {
  public:
    Fields(const QJsonObject &object, const QString &place, QString &error)
        : m_object(object), m_place(place), m_error(error) {}

    QStringList keys() const { return m_object.keys(); }
    bool contains(const QString &key) const { return m_object.contains(key); }

    void fail(const QString &key, const QString &reason) {
        if (m_error.isEmpty()) m_error = quotable(m_place + key) + u": "_s + reason;
    }

    // Fails for every key that was not asked for.
    void refuseOthers() {
        for (const QString &key : keys())
            if (!m_known.contains(key)) fail(key, u"unknown key"_s);
    }

    QJsonValue value(const QString &key) {
        m_known << key;
        return m_object[key];
    }

    Fields object(const QString &key) {
        const QJsonValue json = value(key);
        if (!json.isUndefined() && !json.isObject()) fail(key, u"not an object"_s);
        return {json.toObject(), m_place + key + u'.', m_error};
    }

    int integer(const QString &key, int minimum, int maximum, int fallback = 0) {
        const QJsonValue json = value(key);
        if (json.isUndefined()) return fallback;
        const double number = json.toDouble(std::nan(""));
        if (number >= minimum && number <= maximum && number == std::floor(number))
            return static_cast<int>(number);
        fail(key, u"not an integer from %1 to %2"_s.arg(minimum).arg(maximum));
        return fallback;
    }

    std::optional<int> word(const QString &key) {
        const int number = integer(key, 0, 0xFFFF);
        return contains(key) ? std::optional(number) : std::nullopt;
    }

    bool flag(const QString &key) {
        const QJsonValue json = value(key);
        if (!json.isUndefined() && !json.isBool()) fail(key, u"neither true nor false"_s);
        return json.toBool();
    }

    QByteArray text(const QString &key, int longest) {
        const QJsonValue json = value(key);
        if (!json.isUndefined() && !json.isString()) fail(key, u"not a text"_s);
        QByteArray bytes = json.toString().toUtf8();
        if (bytes.size() > longest) fail(key, u"longer than %1 bytes"_s.arg(longest));
        return bytes;
    }

    // An item code such as "0x1006", which stands at `place` of the object.
    std::optional<quint16> code(const QString &text, const QString &place = {}) {
        bool ok = false;
        const uint number = text.toUInt(&ok, 16);
        if (ok && text.startsWith(u"0x") && text.size() == 6) return static_cast<quint16>(number);
        fail(place + text, u"not an item code such as \"0x1006\""_s);
        return {};
    }

  private:
    const QJsonObject m_object;
    const QString m_place;
    QString &m_error;
    QStringList m_known;
};

QHash<quint16, QByteArray> initialItems() {
    QHash<quint16, QByteArray> items;
    for (const Items::Item &item : Items::all()) items.insert(item.code, item.initial);
    return items;
}

QHash<quint16, QByteArray> readItems(Fields fields) {
    static const QHash<quint16, QByteArray> initial = initialItems();
    QHash<quint16, QByteArray> items = initial;
    for (const QString &key : fields.keys()) {
        const auto code = fields.code(key);
        if (!code) continue;
        const Items::Item *item = Items::find(*code);
        if (!item) {
            fields.fail(key, u"unknown item"_s);
            continue;
        }
        QString problem;
        const auto value = Items::fromJson(*item, fields.value(key), problem);
        if (!value) fields.fail(key, problem);
        items.insert(*code, value.value_or(QByteArray()));
    }
    return items;
}

Network readNetwork(Fields fields) {
    Network network;
    network.ssid = fields.text(u"ssid"_s, longestSsid);
    const QByteArray hex = fields.text(u"ssidHex"_s, 2 * longestSsid);
    if (fields.contains(u"ssidHex"_s)) network.ssid = QByteArray::fromHex(hex);
    if (!hex.isEmpty() && network.ssid.toHex() != hex.toLower())
        fields.fail(u"ssidHex"_s, u"not hexadecimal bytes"_s);
    network.mode = fields.integer(u"mode"_s, 0, 0xFFFF);
    network.authentic = fields.integer(u"authentic"_s, 0, 0xFFFF);
    network.encryption = fields.integer(u"encryption"_s, 0, 0xFFFF);
    network.signal = fields.integer(u"signal"_s, -0x8000, 0x7FFF);
    fields.refuseOthers();
    return network;
}

QList<Network> readNetworks(Fields &fields, QString &error) {
    const QString key = u"networks"_s;
    const QJsonValue value = fields.value(key);
    if (!value.isUndefined() && !value.isArray()) fields.fail(key, u"not an array"_s);
    QList<Network> networks;
    const QJsonArray array = value.toArray();
    for (const auto &one : array) {
        const QString place = u"networks[%1]"_s.arg(networks.size());
        if (!one.isObject()) fields.fail(place, u"not an object"_s);
        networks << readNetwork({one.toObject(), place + u'.', error});
    }
    return networks;
}

ItemFault readItemFault(Fields fields) {
    ItemFault fault;
    fault.noReply = fields.flag(u"noReply"_s);
    fault.garbage = fields.flag(u"garbage"_s);
    fault.doubled = fields.flag(u"doubled"_s);
    fault.closed = fields.flag(u"closed"_s);
    fault.closeAfterReply = fields.flag(u"closeAfterReply"_s);
    fault.reset = fields.flag(u"reset"_s);
    fault.truncate = fields.word(u"truncate"_s);
    fault.length = fields.word(u"length"_s);
    fault.resultCode = fields.word(u"result"_s);
    const QByteArray code = fields.text(u"code"_s, 6);
    if (fields.contains(u"code"_s)) fault.code = fields.code(QString::fromUtf8(code), u"code."_s);
    fault.delay = fields.integer(u"delay"_s, 0, longestDelay);
    fields.refuseOthers();
    return fault;
}

SimulatedFaults readFaults(Fields fields) {
    SimulatedFaults faults;
    faults.refuseConnection = fields.flag(u"refuseConnection"_s);
    faults.closeAfterFrames = fields.integer(u"closeAfterFrames"_s, 0, 0xFFFF);
    faults.delay = fields.integer(u"delay"_s, 0, longestDelay);
    faults.piecewise = fields.flag(u"piecewise"_s);
    Fields items = fields.object(u"items"_s);
    for (const QString &key : items.keys())
        if (const auto code = items.code(key))
            faults.items[*code] = readItemFault(items.object(key));
    fields.refuseOthers();
    return faults;
}

}  // namespace

ProfileResult profileFromJson(const QJsonObject &object) {
    QString error;
    Fields fields(object, {}, error);
    Profile profile;
    profile.password = fields.text(u"password"_s, longestPassword);
    profile.items = readItems(fields.object(u"items"_s));
    profile.networks = readNetworks(fields, error);
    profile.scanPolls = fields.integer(u"scanPolls"_s, 0, mostScanPolls, profile.scanPolls);
    profile.faults = readFaults(fields.object(u"faults"_s));
    fields.refuseOthers();
    if (!error.isEmpty()) return {{}, error};
    return {std::move(profile), {}};
}

ProfileResult profileFromFile(const QString &path) {
    const DescriptionText text = readDescription(path);
    if (!text.bytes) return {{}, u"%1: %2"_s.arg(path, text.error)};
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(*text.bytes, &parseError);
    if (!document.isObject()) {
        const QString reason = parseError.error == QJsonParseError::NoError
                                   ? u"not a JSON object"_s
                                   : parseError.errorString();
        return {{}, u"%1: byte %2: %3"_s.arg(path).arg(parseError.offset).arg(reason)};
    }
    ProfileResult result = profileFromJson(document.object());
    if (!result.profile) result.error.prepend(path + u": "_s);
    return result;
}
