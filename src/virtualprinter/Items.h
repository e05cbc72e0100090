#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <optional>

// The settings of the printer: what each item is, and its value as the printer holds it.
//
// Values are held in the layout in which a reply carries them:
//   Text         the bytes
//   Integer      2 bytes, low byte first
//   CountedText  2 bytes count, then that many bytes
//   Mac          6 bytes
//   Version      2 bytes, low byte first; the four nibbles read as H.HHH
//   Addresses    4 bytes an address
//   Interface    2 bytes setting (0 automatic, 1 fixed), then address, mask and gateway
//   WepKey       2 bytes key number (1 to 4), 2 bytes count, then that many bytes

namespace Items {

enum class Kind { Text, Integer, CountedText, Mac, Version, Addresses, Interface, WepKey };

struct Item {
    quint16 code;
    Kind kind;
    bool readable;
    bool writable;
    // Longest text or key in bytes; number of addresses for Addresses.
    int size;
    // Value of a printer whose description does not name the item.
    QByteArray initial;
};

// Every item of the printer but the password and the network search, in order of their codes.
const QList<Item> &all();

// The item of a code; a null pointer when the printer has none.
const Item *find(quint16 code);

// The value of an item from a description; nothing, and why in `problem`, when it is not one.
std::optional<QByteArray> fromJson(const Item &item, const QJsonValue &json, QString &problem);

// The value of an item from a setting frame; nothing when the payload is not what it takes.
std::optional<QByteArray> fromPayload(const Item &item, const QByteArray &payload);

}  // namespace Items
