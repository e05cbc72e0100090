#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

#include "settings/Codes.h"
#include "settings/SettingRecord.h"

// The layouts of the setting items, as pure functions on bytes. A decoder stays inside the reply
// area (ReplyCursor) and gives nothing for a reply that is not "CF" or of another code.

namespace ItemCodec {

// --- Replies ------------------------------------------------------------------------------------

// Bytes as text: each byte is the character of the same code, 0x00 bytes add none.
QString textOf(const QByteArray &bytes);

// Text from offset 9; its count of bytes is the frame's length (offsets 3-4) minus 6.
std::optional<QString> text(const QByteArray &reply, ItemCode code);
// Bytes 9-10, 0..65535.
std::optional<int> integer(const QByteArray &reply, ItemCode code);
// Bytes 9-10 count the text bytes from offset 11.
std::optional<QString> textWithLength(const QByteArray &reply, ItemCode code);
// Six bytes from offset 9 as 12 upper-case hexadecimal digits.
std::optional<QString> macAddress(const QByteArray &reply, ItemCode code);
// The nibbles of bytes 10 and 9, high byte first, as "H.HHH".
std::optional<QString> softwareVersion(const QByteArray &reply, ItemCode code);
// Addresses from offset 9, under the item's keys; nothing for an item of another layout.
std::optional<CategoryDictionary> addresses(const QByteArray &reply, ItemCode code);
// The same after the integer of bytes 9-10.
std::optional<CategoryDictionary> integerAndAddresses(const QByteArray &reply, ItemCode code);

// The raw value bytes of an item that a send writes, a text without trailing zeros; nothing unless
// all of them came.
std::optional<QByteArray> wholeValue(const QByteArray &reply, ItemCode code);

// Item 0x3120: how far the printer's search for networks is.
struct ScanStatus {
    int state = 0;  // bytes 9-10; 2: finished
    int count = 0;  // bytes 11-12; networks found
};
std::optional<ScanStatus> scanStatus(const QByteArray &reply);
// Items 0x3121 to 0x3124: the networks of one block, in its order, without those that have no name.
std::optional<QList<SSIDEntry>> networks(const QByteArray &reply, ItemCode code);

// The result code 0..65535 of a "CR" reply to the frame of `code`, 0 = accepted; else nothing.
std::optional<int> result(const QByteArray &reply, ItemCode code);

// --- Setting frames -----------------------------------------------------------------------------
// Each gives nothing when the value cannot be written: the reasons stand at each. Texts are sent in
// UTF-8 and their lengths count its bytes.

// The text and one 0x00. Not empty, but for item 0x1003.
std::optional<QByteArray> textFrame(ItemCode code, const QString &text);
std::optional<QByteArray> textBytesFrame(ItemCode code, const QByteArray &text);
// The low 16 bits.
QByteArray integerFrame(ItemCode code, int value);
// Count and text; items 0x3104 and 0x3201 in a zero-filled field of 32 bytes. Not empty.
std::optional<QByteArray> textWithLengthFrame(ItemCode code, const QString &text);
std::optional<QByteArray> bytesFrame(ItemCode code, const QByteArray &bytes);
// The integer, the count, and the text in a zero-filled field of 26 bytes. Not empty, not longer.
std::optional<QByteArray> integerAndTextFrame(ItemCode code, int value, const QString &text);
// The integer and three addresses of exactly four octets each, of which the low 8 bits count.
std::optional<QByteArray> integerAndAddressesFrame(ItemCode code, int value,
                                                   const QStringList &first,
                                                   const QStringList &second,
                                                   const QStringList &third);

}  // namespace ItemCodec
