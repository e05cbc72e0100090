#pragma once

#include "support/DataManagers.h"

// An item: its data in a reply and in a setting frame, written out by hand, and what they stand
// for.
struct ItemRow {
    ItemCode code;
    QByteArray reply;  // null: it is never reported
    const char *values;
    QByteArray frame;  // null: it is never written
};

// Every item, in the order of a reading.
inline QList<ItemRow> itemRows() {
    using namespace Qt::StringLiterals;
    const auto padded = [](const QByteArray &bytes, qsizetype width) {
        return bytes + QByteArray(width - bytes.size(), '\0');
    };
    const QByteArray wifi = hex("01000a010005ffff00000a010001");
    const QByteArray wired = hex("01000a000005ff0000000a000001");
    const QByteArray warehouse = hex("0a00") + "Ware house", direct = hex("0600") + "DIRECT";
    const QByteArray key = hex("0800") + "12345678", wep = hex("02000500") + "abcde";
    return {
        {0x1006, "Desk", "names.printer=Desk", "Desk\0"_ba},
        {0x1004, "desk", "names.bonjour=desk", "desk\0"_ba},
        {0x1005, "Desk's label", "names.service=Desk's label", "Desk's label\0"_ba},
        {0x3000, hex("0200"), "wireless.mode=2", hex("0200")},
        {0x3100, hex("02004c00010a"), "wireless.mac=02004C00010A", {}},
        {0x3200, hex("02004c00010b"), "accessPoint.mac=02004C00010B", {}},
        {0x3108, wifi, "wireless.address.mode=1|.ip=10.1.0.5|.mask=255.255.0.0|.gateway=10.1.0.1",
         wifi},
        {0x3119, wifi.mid(2), "wireless.inUse.ip=10.1.0.5|.mask=255.255.0.0|.gateway=10.1.0.1", {}},
        {0x3101, hex("0501"), "wireless.standard=261", {}},
        {0x3102, hex("0300"), "wireless.authentication=3", hex("0300")},
        {0x3103, hex("0200"), "wireless.encryption=2", hex("0200")},
        {0x3104, warehouse, "wireless.ssid=Ware house", padded(warehouse, 34)},
        {0x3204, hex("0a090001ffff0000"), "accessPoint.address.ip=10.9.0.1|.mask=255.255.0.0", {}},
        {0x3205, hex("0a090002"), "accessPoint.address.first=10.9.0.2", {}},
        {0x3210, hex("0400"), "accessPoint.standard=4", {}},
        {0x3211, hex("0300"), "accessPoint.authentication=3", {}},
        {0x3212, hex("0100"), "accessPoint.encryption=1", {}},
        {0x3201, direct, "accessPoint.ssid=DIRECT", padded(direct, 34)},
        {0x3202, key, "accessPoint.key=12345678", key},
        {0x2001, wired, "wired.address.mode=1|.ip=10.0.0.5|.mask=255.0.0.0|.gateway=10.0.0.1",
         wired},
        {0x2002, wired.mid(2), "wired.inUse.ip=10.0.0.5|.mask=255.0.0.0|.gateway=10.0.0.1", {}},
        {0x2000, hex("02004c00010c"), "wired.mac=02004C00010C", {}},
        {0x1008, hex("0a12"), "device.firmware=1.20A", {}},
        {0x1007, hex("2c01"), "device.timeout=300", hex("2c01")},
        {0x3105, {}, "wireless.key=12345678", key},
        {0x3106, {}, "wireless.wepKeyNumber=2|wireless.wepKey=abcde", padded(wep, 30)},
        {0x1003, {}, "password.administrator=abcd1234", "abcd1234\0"_ba},
    };
}

// A printer that holds all of them; the Bonjour service name may be other bytes.
inline std::shared_ptr<VirtualPrinter> printerOfRows(const QByteArray &service = {}) {
    Profile profile = *profileFromJson({}).profile;
    for (const ItemRow &row : itemRows()) profile.items.insert(row.code, row.reply);
    if (!service.isEmpty()) profile.items[0x1005] = service;
    return std::make_shared<VirtualPrinter>(profile);
}

// Enters a value for every item that is written, another in every other round: of the keys that
// which goes with the encryption counts.
inline void changeAll(ServedManager &m, int round, int encryption) {
    m.change(DWT_View_Key_Password, {{DWT_SaveData_Password_Change, 1}});
    for (const ItemRow &row : itemRows())
        if (!row.frame.isNull()) m.enter(row.values);
    if (round % 2 == 0)
        m.enter(
            "names.printer=Desk2|.bonjour=desk2|.service=label2|wireless.mode=1|"
            "wireless.address.mode=0|.ip=10.1.0.9|.mask=255.0.0.0|.gateway=10.1.0.2|"
            "wireless.authentication=2|.ssid=House|accessPoint.ssid=OTHER|device.timeout=299|"
            "wired.address.mode=0|.ip=10.0.0.9|.mask=255.255.0.0|.gateway=10.0.0.2");
    m.change(DWT_View_Key_Infrastructure, {{DWT_SaveData_Infrastructure_Encryption, encryption}});
}
