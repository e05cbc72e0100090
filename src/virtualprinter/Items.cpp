#include "virtualprinter/Items.h"

#include <QJsonObject>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "virtualprinter/Bytes.h"
#include "virtualprinter/Description.h"
#include "virtualprinter/Profile.h"

using namespace Qt::StringLiterals;

namespace {

using Items::Item;
using Items::Kind;

// A setting frame gives an SSID a field of the longest one's width, whatever its length.
constexpr qsizetype ssidField = longestSsid;
constexpr qsizetype wepField = 26;
constexpr int mostWepKeys = 4;      // numbered from 1 on
constexpr int greatestSetting = 1;  // of an interface: 0 automatic, 1 fixed

QByteArray octets(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values) bytes.append(static_cast<char>(value));
    return bytes;
}

QByteArray counted(const QByteArray &bytes) {
    return littleEndian(static_cast<int>(bytes.size())) + bytes;
}

QList<Item> makeItems() {
    const QByteArray fixed =
        littleEndian(1) + octets({192, 168, 1, 50, 255, 255, 255, 0, 192, 168, 1, 1});
    const QByteArray automatic = littleEndian(0) + QByteArray(12, '\0');
    return {
        {0x1004, Kind::Text, true, true, 25, "label-printer"},
        {0x1005, Kind::Text, true, true, 31, "Label printer"},
        {0x1006, Kind::Text, true, true, 31, "Label-Printer"},
        {0x1007, Kind::Integer, true, true, 2, littleEndian(60)},
        {0x1008, Kind::Version, true, false, 2, littleEndian(0x1000)},
        {0x2000, Kind::Mac, true, false, 6, QByteArray::fromHex("02004c000001")},
        {0x2001, Kind::Interface, true, true, 3, fixed},
        {0x3000, Kind::Integer, true, true, 2, littleEndian(1)},
        {0x3100, Kind::Mac, true, false, 6, QByteArray::fromHex("02004c000002")},
        {0x3101, Kind::Integer, true, false, 2, littleEndian(2)},
        {0x3102, Kind::Integer, true, true, 2, littleEndian(3)},
        {0x3103, Kind::Integer, true, true, 2, littleEndian(3)},
        {0x3104, Kind::CountedText, true, true, 32, counted({})},
        {0x3105, Kind::CountedText, false, true, 63, counted({})},
        {0x3106, Kind::WepKey, false, true, 26, littleEndian(1) + counted({})},
        {0x3108, Kind::Interface, true, true, 3, automatic},
        {0x3200, Kind::Mac, true, false, 6, QByteArray::fromHex("02004c000003")},
        {0x3201, Kind::CountedText, true, true, 32, counted("label-printer")},
        {0x3202, Kind::CountedText, true, true, 63, counted("00000000")},
        {0x3204, Kind::Addresses, true, false, 2, octets({192, 168, 118, 1, 255, 255, 255, 0})},
        {0x3205, Kind::Addresses, true, false, 1, octets({192, 168, 118, 2})},
        {0x3210, Kind::Integer, true, false, 2, littleEndian(2)},
        {0x3211, Kind::Integer, true, false, 2, littleEndian(3)},
        {0x3212, Kind::Integer, true, false, 2, littleEndian(3)},
    };
}

std::optional<int> number(const QJsonValue &json, int maximum) {
    const double value = json.toDouble(-1);
    if (!json.isDouble() || value != std::floor(value) || value < 0 || value > maximum) return {};
    return static_cast<int>(value);
}

std::optional<QByteArray> address(const QString &text) {
    const QStringList parts = text.split(u'.');
    if (parts.size() != 4) return {};
    QByteArray bytes;
    for (const QString &part : parts) {
        bool ok = false;
        const int value = part.toInt(&ok);
        if (!ok || value < 0 || value > 255 || part.startsWith(u'+')) return {};
        bytes.append(static_cast<char>(value));
    }
    return bytes;
}

// The names of an item's addresses in a description, in the order of their bytes.
QStringList addressNames(const Item &item) {
    return QStringList{u"address"_s, u"mask"_s, u"gateway"_s}.mid(0, item.size);
}

std::optional<QByteArray> addressesFromJson(const Item &item, const QJsonValue &json,
                                            QString &problem) {
    const QJsonObject object = json.toObject();
    const QStringList names = addressNames(item);
    const bool hasSetting = item.kind == Kind::Interface;
    for (const QString &key : object.keys())
        if (!names.contains(key) && !(hasSetting && key == u"setting"))
            problem = u"unknown key \"%1\""_s.arg(quotable(key));
    QByteArray value;
    if (hasSetting) {
        const auto setting = number(object[u"setting"], greatestSetting);
        if (!setting) problem = u"\"setting\" is neither 0 nor 1"_s;
        value = littleEndian(setting.value_or(0));
    }
    for (const QString &name : names) {
        const auto bytes = address(object[name].toString());
        if (!bytes) problem = u"\"%1\" is not an IPv4 address"_s.arg(name);
        value += bytes.value_or(QByteArray());
    }
    if (!problem.isEmpty()) return {};
    return value;
}

std::optional<QByteArray> textFromJson(const Item &item, const QJsonValue &json, QString &problem) {
    const QByteArray bytes = json.toString().toUtf8();
    if (!json.isString())
        problem = u"not a text"_s;
    else if (bytes.size() > item.size)
        problem = u"longer than %1 bytes"_s.arg(item.size);
    if (!problem.isEmpty()) return {};
    if (item.kind == Kind::WepKey) return littleEndian(1) + counted(bytes);
    return item.kind == Kind::CountedText ? counted(bytes) : bytes;
}

std::optional<QByteArray> digitsFromJson(const Item &item, QString digits, QString &problem) {
    if (item.kind == Kind::Version) {
        if (digits.size() == 5 && digits[1] == u'.')
            digits.remove(1, 1);
        else
            digits.clear();
    }
    QByteArray bytes = QByteArray::fromHex(digits.toLatin1());
    if (bytes.size() != item.size || bytes.toHex() != digits.toLower().toLatin1()) {
        problem = item.kind == Kind::Mac ? u"not 12 hexadecimal digits"_s
                                         : u"not a version such as \"1.234\""_s;
        return {};
    }
    if (item.kind == Kind::Version) std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

// The counted bytes at `offset`; nothing unless their field has its width and ends in zeros.
std::optional<QByteArray> field(const QByteArray &payload, qsizetype offset, qsizetype longest,
                                qsizetype width) {
    if (payload.size() < offset + 2) return {};
    const int count = littleEndianAt(payload, offset);
    if (count == 0 || count > longest) return {};
    if (payload.size() != offset + 2 + (width == 0 ? count : width)) return {};
    const QByteArrayView padding = QByteArrayView(payload).sliced(offset + 2 + count);
    if (padding.count('\0') != padding.size()) return {};
    return payload.mid(offset + 2, count);
}

std::optional<QByteArray> textFromPayload(const Item &item, const QByteArray &payload) {
    const qsizetype length = payload.size() - 1;  // one 0x00 ends the text
    if (length < 1 || length > item.size || payload.indexOf('\0') != length) return {};
    return payload.left(length);
}

}  // namespace

const QList<Item> &Items::all() {
    static const QList<Item> items = makeItems();
    return items;
}

const Item *Items::find(quint16 code) {
    const auto found = std::find_if(all().begin(), all().end(),
                                    [&](const Item &item) { return item.code == code; });
    return found == all().end() ? nullptr : &*found;
}

std::optional<QByteArray> Items::fromJson(const Item &item, const QJsonValue &json,
                                          QString &problem) {
    switch (item.kind) {
        case Kind::Integer: {
            const auto value = number(json, 0xFFFF);
            if (!value) problem = u"not an integer from 0 to 65535"_s;
            return value ? std::optional(littleEndian(*value)) : std::nullopt;
        }
        case Kind::Mac:
        case Kind::Version:
            return digitsFromJson(item, json.toString(), problem);
        case Kind::Addresses:
        case Kind::Interface:
            return addressesFromJson(item, json, problem);
        default:
            return textFromJson(item, json, problem);
    }
}

std::optional<QByteArray> Items::fromPayload(const Item &item, const QByteArray &payload) {
    switch (item.kind) {
        case Kind::Text:
            return textFromPayload(item, payload);
        case Kind::CountedText: {
            const bool ssid = item.size == ssidField;
            const auto bytes = field(payload, 0, item.size, ssid ? ssidField : 0);
            return bytes ? std::optional(counted(*bytes)) : std::nullopt;
        }
        case Kind::WepKey: {
            const auto bytes = field(payload, 2, item.size, wepField);
            if (!bytes) return {};
            const int key = littleEndianAt(payload, 0);
            if (key < 1 || key > mostWepKeys) return {};
            return payload.left(2) + counted(*bytes);
        }
        case Kind::Interface:
            if (payload.size() < 2 || littleEndianAt(payload, 0) > greatestSetting) return {};
            break;
        default:
            break;
    }
    return payload.size() == item.initial.size() ? std::optional(payload) : std::nullopt;
}
