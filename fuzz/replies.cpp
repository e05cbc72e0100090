// Every decoder of item and result replies, on arbitrary bytes. The reply's own item code is asked
// for as well as a fixed one, so that the layouts behind the header check are reached.

#include "settings/ItemCodec.h"
#include "settings/ReplyCursor.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray reply(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    ReplyCursor cursor(reply);
    cursor.seek(6);
    for (const quint16 code : {cursor.word(), quint16{0x2001}, quint16{0x3204}}) {
        const auto text = ItemCodec::text(reply, code);
        if (text && text->size() > ReplyCursor::areaSize) __builtin_trap();
        const auto counted = ItemCodec::textWithLength(reply, code);
        if (counted && counted->size() > ReplyCursor::areaSize) __builtin_trap();
        const auto mac = ItemCodec::macAddress(reply, code);
        if (mac && mac->size() != 12) __builtin_trap();
        const auto version = ItemCodec::softwareVersion(reply, code);
        if (version && version->size() != 5) __builtin_trap();
        ItemCodec::integer(reply, code);
        ItemCodec::addresses(reply, code);
        ItemCodec::integerAndAddresses(reply, code);
        const auto result = ItemCodec::result(reply, code);
        if (result && (*result < 0 || *result > 0xFFFF)) __builtin_trap();
    }
    return 0;
}
