#include "settings/ItemCodec.h"

#include <algorithm>

#include "settings/Frames.h"
#include "settings/Items.h"
#include "settings/ReplyCursor.h"
#include "settings/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {

using Frames::word;
using Layout = Item::Layout;

// Offsets in a reply, in bytes.
constexpr qsizetype lengthOffset = 3;
constexpr qsizetype countedOffset = 5;  // where what the length counts begins
constexpr qsizetype codeOffset = 6;
constexpr qsizetype dataOffset = 9;
// What a reply's length counts beside the data: ";", the code, ";", ";" and the checksum.
constexpr int lengthOverhead = 6;

constexpr qsizetype ssidField = 32;
constexpr qsizetype wepKeyField = 26;
constexpr qsizetype octets = 4;
constexpr qsizetype interfaceSize = 2 + 3 * octets;

// A cursor at the data of a reply "C" + `kind` with the code; nothing for any other reply.
std::optional<ReplyCursor> openReply(const QByteArray &reply, char kind, ItemCode code) {
    ReplyCursor cursor(reply);
    if (cursor.byte() != 'C' || cursor.byte() != static_cast<quint8>(kind)) return {};
    cursor.seek(codeOffset);
    if (cursor.word() != code) return {};
    cursor.seek(dataOffset);
    return cursor;
}

QStringList address(ReplyCursor &cursor) {
    QStringList parts;
    for (qsizetype i = 0; i < octets; ++i) parts << QString::number(cursor.byte());
    return parts;
}

// The keys of an item of that layout; none for any other item.
QStringList keysOf(ItemCode code, Layout layout) {
    const Item *const item = itemOf(code);
    return item && item->layout == layout ? item->keys : QStringList();
}

CategoryDictionary addressesUnder(const QStringList &keys, ReplyCursor &cursor) {
    CategoryDictionary values;
    for (const QString &key : keys) values.insert(key, address(cursor));
    return values;
}

// One entry of an SSID block, 44 bytes.
SSIDEntry network(ReplyCursor &cursor) {
    const qsizetype length = std::min<qsizetype>(cursor.word(), ssidField);
    const QByteArray ssid = cursor.bytes(ssidField).left(length);
    SSIDEntry entry;
    entry.insert(DWT_SSIDList_SSID, ssid);
    entry.insert(DWT_SSIDList_SSID_String, ItemCodec::textOf(ssid));
    entry.insert(DWT_SSIDList_WirelessMode, int{cursor.word()});
    entry.insert(DWT_SSIDList_Authentic, int{cursor.word()});
    entry.insert(DWT_SSIDList_Encryption, int{cursor.word()});
    entry.insert(DWT_SSIDList_SignalStrength, int{static_cast<qint16>(cursor.word())});
    cursor.word();  // not used
    return entry;
}
constexpr qsizetype networkSize = 44;

// `bytes` with their count before them, zero-filled to `width`; nothing when they do not fit or
// there are none.
std::optional<QByteArray> countedField(const QByteArray &bytes, qsizetype width) {
    if (bytes.isEmpty() || bytes.size() > width) return {};
    return word(bytes.size()) + bytes + QByteArray(width - bytes.size(), '\0');
}

// The frame around a payload; nothing without one or with one that is too long.
std::optional<QByteArray> frameAround(ItemCode code, const std::optional<QByteArray> &payload) {
    if (!payload || payload->size() > Frames::maximumPayload) return {};
    return Frames::settingFrame(code, *payload);
}

}  // namespace

QString ItemCodec::textOf(const QByteArray &bytes) {
    return QString::fromLatin1(bytes).remove(QChar(u'\0'));
}

std::optional<QString> ItemCodec::text(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    cursor->seek(lengthOffset);
    const int count = cursor->word() - lengthOverhead;
    cursor->seek(dataOffset);
    return textOf(cursor->bytes(count));
}

std::optional<int> ItemCodec::integer(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    return cursor->word();
}

std::optional<QString> ItemCodec::textWithLength(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    const int count = cursor->word();
    return textOf(cursor->bytes(count));
}

std::optional<QString> ItemCodec::macAddress(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    return QString::fromLatin1(cursor->bytes(6).toHex().toUpper());
}

std::optional<QString> ItemCodec::softwareVersion(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    const QString digits = u"%1"_s.arg(cursor->word(), 4, 16, QLatin1Char('0')).toUpper();
    return digits.left(1) + u'.' + digits.mid(1);
}

std::optional<CategoryDictionary> ItemCodec::addresses(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    const QStringList keys = keysOf(code, Layout::Addresses);
    if (!cursor || keys.isEmpty()) return {};
    return addressesUnder(keys, *cursor);
}

std::optional<CategoryDictionary> ItemCodec::integerAndAddresses(const QByteArray &reply,
                                                                 ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    const QStringList keys = keysOf(code, Layout::IntegerAndAddresses);
    if (!cursor || keys.isEmpty()) return {};
    const int setting = cursor->word();
    CategoryDictionary values = addressesUnder(keys.mid(1), *cursor);
    values.insert(keys.first(), setting);
    return values;
}

std::optional<QByteArray> ItemCodec::wholeValue(const QByteArray &reply, ItemCode code) {
    const Item *const item = itemOf(code);
    auto cursor = openReply(reply, 'F', code);
    if (!item || item->sendTurn == 0 || !cursor) return {};
    cursor->seek(lengthOffset);
    const int length = cursor->word();
    if (length < lengthOverhead || countedOffset + length > reply.size()) return {};
    QByteArray data = reply.mid(dataOffset, length - lengthOverhead);
    if (item->layout == Layout::Text) {
        while (data.endsWith('\0')) data.chop(1);
        return data;
    }
    if (data.size() < (item->layout == Layout::IntegerAndAddresses ? interfaceSize : 2)) return {};
    if (item->layout != Layout::CountedText) return data;
    const qsizetype count = ReplyCursor(data).word();
    if (count > data.size() - 2) return {};
    return data.mid(2, count);
}

std::optional<ItemCodec::ScanStatus> ItemCodec::scanStatus(const QByteArray &reply) {
    auto cursor = openReply(reply, 'F', 0x3120);
    if (!cursor) return {};
    const int state = cursor->word();
    return ScanStatus{state, cursor->word()};
}

std::optional<QList<SSIDEntry>> ItemCodec::networks(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'F', code);
    if (!cursor) return {};
    QList<SSIDEntry> list;
    for (int count = cursor->word(); count > 0 && cursor->left() >= networkSize; --count) {
        const SSIDEntry entry = network(*cursor);
        if (!textValue(entry, DWT_SSIDList_SSID_String).isEmpty()) list.append(entry);
    }
    return list;
}

std::optional<int> ItemCodec::result(const QByteArray &reply, ItemCode code) {
    auto cursor = openReply(reply, 'R', code);
    if (!cursor) return {};
    return cursor->word();
}

std::optional<QByteArray> ItemCodec::textFrame(ItemCode code, const QString &text) {
    return textBytesFrame(code, text.toUtf8());
}

std::optional<QByteArray> ItemCodec::textBytesFrame(ItemCode code, const QByteArray &text) {
    if (text.isEmpty() && code != 0x1003) return {};
    return frameAround(code, text + '\0');
}

QByteArray ItemCodec::integerFrame(ItemCode code, int value) {
    return Frames::settingFrame(code, word(value));
}

std::optional<QByteArray> ItemCodec::textWithLengthFrame(ItemCode code, const QString &text) {
    return bytesFrame(code, text.toUtf8());
}

std::optional<QByteArray> ItemCodec::bytesFrame(ItemCode code, const QByteArray &bytes) {
    const bool fixed = code == 0x3104 || code == 0x3201;
    return frameAround(code, countedField(bytes, fixed ? ssidField : bytes.size()));
}

std::optional<QByteArray> ItemCodec::integerAndTextFrame(ItemCode code, int value,
                                                         const QString &text) {
    const auto field = countedField(text.toUtf8(), wepKeyField);
    if (!field) return {};
    return frameAround(code, word(value) + *field);
}

std::optional<QByteArray> ItemCodec::integerAndAddressesFrame(ItemCode code, int value,
                                                              const QStringList &first,
                                                              const QStringList &second,
                                                              const QStringList &third) {
    QByteArray payload = word(value);
    for (const QStringList &parts : {first, second, third}) {
        if (parts.size() != octets) return {};
        for (const QString &part : parts) payload.append(static_cast<char>(integerOf(part) & 0xFF));
    }
    return frameAround(code, payload);
}
