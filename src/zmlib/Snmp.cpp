#include "zmlib/Snmp.h"

#include <QtEndian>
#include <optional>

namespace {

// Tags of the encoding (BER), as far as they occur.
constexpr quint8 integer = 0x02;
constexpr quint8 octetString = 0x04;
constexpr quint8 sequence = 0x30;
constexpr quint8 getRequest = 0xA0;
constexpr quint8 getResponse = 0xA2;

const QByteArray zero = QByteArray::fromHex("020100");
// The list of the one variable that is asked for: 1.3.6.1.2.1.1.1.0, without a value.
const QByteArray sysDescr = QByteArray::fromHex("300e300c06082b060102010101000500");

// An element; everything here is shorter than 128 bytes.
QByteArray element(quint8 tag, const QByteArray &contents) {
    return QByteArray(1, static_cast<char>(tag)) + static_cast<char>(contents.size()) + contents;
}

// Takes the element at the front of `bytes`, which must have the tag; its contents.
std::optional<QByteArray> take(QByteArray &bytes, quint8 tag) {
    if (bytes.size() < 2 || static_cast<quint8>(bytes[0]) != tag) return {};
    qsizetype size = static_cast<quint8>(bytes[1]);
    qsizetype begin = 2;
    if (size > 0x80) {  // so many bytes of a length follow
        const qsizetype lengthBytes = size & 0x7F;
        if (lengthBytes > 2 || bytes.size() < begin + lengthBytes) return {};
        size = 0;
        for (qsizetype i = 0; i < lengthBytes; ++i)
            size = size << 8 | static_cast<quint8>(bytes[begin + i]);
        begin += lengthBytes;
    }
    if (bytes.size() < begin + size) return {};
    const QByteArray contents = bytes.mid(begin, size);
    bytes.remove(0, begin + size);
    return contents;
}

QByteArray numberBytes(quint32 number) {
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number & 0x7FFFFFFF, bytes.data());
    return bytes;
}

}  // namespace

QByteArray snmpRequest(quint32 number) {
    const QByteArray question =
        element(getRequest, element(integer, numberBytes(number)) + zero + zero + sysDescr);
    return element(sequence, zero + element(octetString, "public") + question);
}

bool isSnmpAnswer(const QByteArray &packet, quint32 number) {
    QByteArray rest = packet;
    auto message = take(rest, sequence);
    if (!message || !take(*message, integer) || !take(*message, octetString)) return false;
    auto response = take(*message, getResponse);
    if (!response) return false;
    const auto answered = take(*response, integer);
    // An integer may have lost the zero bytes at its front.
    return answered && !answered->isEmpty() && answered->size() <= 4 &&
           answered->rightJustified(4, '\0') == numberBytes(number);
}
