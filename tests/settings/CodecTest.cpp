#include <limits>

#include "settings/Frames.h"
#include "settings/ItemCodec.h"
#include "support/DataManagers.h"

namespace {

using namespace Qt::StringLiterals;
using namespace ItemCodec;

std::string hexOf(const std::optional<QByteArray> &frame) {
    return frame ? frame->toHex().toStdString() : "refused";
}

TEST(Encoding, FramesAreTheseBytes) {
    const QByteArray longest(Frames::maximumPayload, 'x');
    EXPECT_TRUE(!Frames::settingFrame(1, longest).isEmpty() &&
                Frames::settingFrame(1, longest + 'x').isEmpty());
    const auto addressesFrame = [](const QString &mask, const QString &gateway) {
        return integerAndAddressesFrame(0x2001, 1, address(u"1.2.3.4"_s), address(mask),
                                        address(gateway));
    };
    const struct {
        const char *name;
        std::optional<QByteArray> frame;
        const char *bytes;
    } cases[] = {
        {"low 16 bits", integerFrame(0x1007, 0x7F012C), "43463b08003b07103b2c013bf5"},
        {"UTF-8", textFrame(0x1006, u"é"_s), "43463b09003b06103bc3a9003b33"},
        {"no name", textFrame(0x1004, {}), nullptr},
        {"empty PSK", textWithLengthFrame(0x3105, {}), nullptr},
        {"32 bytes of SSID", textWithLengthFrame(0x3201, QString(16, u'é')),
         "43463b28003b01323b2000c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9"
         "c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a93bc4"},
        {"34 bytes of SSID", textWithLengthFrame(0x3201, QString(17, u'é')), nullptr},
        {"27 bytes", integerAndTextFrame(0x3106, 1, QString(27, u'a')), nullptr},
        {"33 bytes", bytesFrame(0x3104, QByteArray(33, 'x')), nullptr},
        {"addresses", addressesFrame(u"1.2.3.4"_s, u"001.02.3.4"_s),
         "43463b14003b01203b01000102030401020304010203043bf1"},
        {"three octets", addressesFrame(u"1.2.3"_s, u"1.2.3.4"_s), nullptr},
    };
    for (const auto &c : cases) EXPECT_EQ(hexOf(c.frame), c.bytes ? c.bytes : "refused") << c.name;
}

TEST(Decoding, TextsEndWhereTheReplySays) {
    const struct {
        const char *reply;
        std::optional<QString> expected;
    } cases[] = {{"43463b09003b06103b4142433b00", u"ABC"_s},

                 {"43463b0a003b06103b410042433b00", u"ABC"_s},  // 0x00 adds no character
                 {"43463b08003b06103be9ff3b00", QString::fromLatin1("\xe9\xff")},

                 {"43463b05003b06103b3b00", u""_s},
                 {"4346ff0800ff0610ff4142", u"AB"_s},  // other bytes are not looked at
                 {"43463b08003b04103b41423b00", {}},   // another item
                 {"43523b08003b06103b41423b00", {}},

                 {"4346", {}}};
    for (const auto &c : cases) EXPECT_EQ(text(hex(c.reply), 0x1006), c.expected) << c.reply;

    const QByteArray longest = hex("43463bffff3b06103b") + QByteArray(600, 'x');
    EXPECT_EQ(text(longest, 0x1006)->size(), 512 - 9) << "not cut at the reply area";
    EXPECT_EQ(textWithLength(hex("43463b0b003b05313b03004142433b"), 0x3104), std::nullopt);
    EXPECT_EQ(textWithLength(hex("43463b08003b04313b00003b00"), 0x3104), u""_s);
    EXPECT_EQ(textWithLength(hex("43463b0b003b04313b03004142433b"), 0x3104), u"ABC"_s);
    EXPECT_EQ(textWithLength(hex("43463b0b003b04313bffff414243"), 0x3104), u"ABC"_s);
}

TEST(Decoding, NumbersAndAddressesOfTheirOwnItemsOnly) {
    EXPECT_EQ(integer(hex("4346"), 0), 0) << "bytes beyond the reply read as 0";
    EXPECT_EQ(integer(hex("4346"), 0x3000), std::nullopt);
    EXPECT_EQ(softwareVersion(hex("43463b08003b08103bbca0"), 0x1008), u"A.0BC"_s);
    const QByteArray inUse = hex("43463b12003b02203bc000a80affff000000000001");
    const QByteArray configured = hex("43463b14003b08313b0100c000a80affff000000000001");
    EXPECT_EQ(addresses(inUse, 0x3119), std::nullopt);
    EXPECT_EQ(addresses(configured, 0x3108), std::nullopt);
    EXPECT_EQ(integerAndAddresses(configured, 0x2001), std::nullopt);
    EXPECT_EQ(integerAndAddresses(inUse, 0x2002), std::nullopt);
}

TEST(Decoding, ResultsAndScans) {
    EXPECT_EQ(result(hex("43523b08003b06103b00003b"), 0x1006), 0);
    EXPECT_EQ(result(hex("43523b08003b06103b05013b"), 0x1006), 0x105);
    EXPECT_EQ(result(hex("43523b08003b04103b00003b"), 0x1006), std::nullopt);
    EXPECT_EQ(result(hex("43463b08003b06103b00003b"), 0x1006), std::nullopt);
    EXPECT_EQ(result({}, 0x1006), std::nullopt);

    const auto entry = [](int length, const QByteArray &ssid) {
        return QByteArray(1, static_cast<char>(length)) + '\0' + ssid +
               QByteArray(32 - ssid.size(), '\0') + hex("020003000100c4ff0000");
    };
    const QByteArray header = hex("43463b00003b21313b");
    const auto block = [&](const char *count, const QByteArray &entries) {
        return networks(header + hex(count) + entries, 0x3121);
    };
    const QByteArray odd("a\0", 2);
    const auto list = block("0300", entry(4, "Cafeteria") + entry(0, "x") + entry(2, odd));
    ASSERT_TRUE(list && list->size() == 2) << "a network without a name is left out";
    EXPECT_EQ(asText(list->at(0)),
              "Authentic=3 Encryption=1 SSID=<43616665> SSID_String='Cafe' SignalStrength=-60 "
              "WirelessMode=2");
    EXPECT_EQ(bytesValue(list->at(1), DWT_SSIDList_SSID), odd);
    EXPECT_EQ(block("0000", entry(1, "x")), QList<SSIDEntry>());
    EXPECT_EQ(block("ffff", entry(200, "x").repeated(20))->size(), 11) << "beyond the reply area";
    EXPECT_EQ(networks({}, 0x3121), std::nullopt);
}

TEST(TypedNumbers, FollowTheLeadingDigits) {
    const QString typed = u"010|  7|-5x|+6|12a3||- 5|\u0663|9999999999|-9999999999"_s;
    QList<int> values;
    for (const QString &number : typed.split(u'|')) values << integerOf(number);
    using Limits = std::numeric_limits<int>;
    EXPECT_EQ(values, (QList<int>{10, 7, -5, 6, 12, 0, 0, 0, Limits::max(), Limits::min()}));
}

}  // namespace
