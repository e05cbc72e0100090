// The scan status and the blocks of networks, on arbitrary bytes behind a valid header.

#include "settings/ItemCodec.h"
#include "settings/SettingKeys.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    QByteArray reply = QByteArray::fromHex("43463b00003b21313b");
    reply.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto list = ItemCodec::networks(reply, 0x3121);
    if (!list || list->size() > 11) __builtin_trap();  // 11 entries fill the reply area
    for (const SSIDEntry &entry : *list) {
        if (bytesValue(entry, DWT_SSIDList_SSID).size() > 32) __builtin_trap();
        if (textValue(entry, DWT_SSIDList_SSID_String).isEmpty()) __builtin_trap();
    }
    ItemCodec::scanStatus(reply.replace(6, 1, "\x20"));
    return 0;
}
