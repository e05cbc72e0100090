#include <gtest/gtest.h>

#include <limits>

#include "settings/Frames.h"
#include "settings/ItemCodec.h"
#include "settings/SettingKeys.h"

namespace {

QByteArray hex(const char *digits) {
    return QByteArray::fromHex(digits);
}
std::string hexOf(const std::optional<QByteArray> &frame) {
    return frame ? frame->toHex().toStdString() : "refused";
}
QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}
QStringList address(const char *dotted) {
    return text(dotted).split(u'.');
}

TEST(Encoding, FramesAreTheseBytes) {
    using namespace ItemCodec;
    const auto zeros = [](int count) { return std::string(size_t(2 * count), '0'); };
    const struct {
        std::optional<QByteArray> frame;
        std::string bytes;
    } cases[] = {
        {Frames::startFrame(), "1b7b045501567d"},
        {Frames::endFrame(), "1b7b045500557d"},
        {Frames::updateFrame(), "1b7b0377777d"},
        {Frames::requestFrame(0x1006), "1b7b056606107c7d"},
        {Frames::requestFrame(0x20F0), "1b7b0566f020767d"},
        {integerFrame(0x3000, 1), "43463b08003b00303b01003be2"},
        {integerFrame(0x1007, 0x7F012C), "43463b08003b07103b2c013bf5"},  // the low 16 bits
        {textFrame(0x1006, text("AB")), "43463b09003b06103b4142003b4a"},
        {textFrame(0x1006, text("é")), "43463b09003b06103bc3a9003b33"},
        {textFrame(0x1003, {}), "43463b07003b03103b003bc4"},  // no password
        {textFrame(0x1004, {}), "refused"},
        {textFrame(0x1006, QString(70000, u'x')), "refused"},
        {textWithLengthFrame(0x3104, text("Hello")),
         "43463b28003b04313b050048656c6c6f" + zeros(27) + "3bdf"},
        {textWithLengthFrame(0x3105, text("password")),
         "43463b10003b05313b080070617373776f72643b62"},
        {textWithLengthFrame(0x3105, {}), "refused"},
        {textWithLengthFrame(0x3201, QString(16, u'é')),
         "43463b28003b01323b2000c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a9c3a93bc"
         "4"},
        {textWithLengthFrame(0x3201, QString(17, u'é')), "refused"},
        {integerAndTextFrame(0x3106, 2, text("abcdefghijklm")),
         "43463b24003b06313b02000d006162636465666768696a6b6c6d" + zeros(13) + "3b32"},
        {integerAndTextFrame(0x3106, 1, QString(27, u'a')), "refused"},
        {integerAndTextFrame(0x3106, 1, {}), "refused"},
        {bytesFrame(0x3104, hex("ff0041")), "43463b28003b04313b0300ff0041" + zeros(29) + "3b29"},
        {bytesFrame(0x3104, {}), "refused"},
        {bytesFrame(0x3104, QByteArray(33, 'x')), "refused"},
        {integerAndAddressesFrame(0x2001, 1, address("192.168.0.10"), address("255.255.255.0"),
                                  address("192.168.000.01")),
         "43463b14003b01203b0100c0a8000affffff00c0a800013bab"},
        {integerAndAddressesFrame(0x2001, 1, address("1.2.3.4"), address("1.2.3"),
                                  address("1.2.3.4")),
         "refused"}};
    for (const auto &c : cases) EXPECT_EQ(hexOf(c.frame), c.bytes);
    EXPECT_TRUE(Frames::settingFrame(1, QByteArray(Frames::maximumPayload + 1, 'x')).isEmpty());
}

TEST(Decoding, TextsEndWhereTheReplySays) {
    const struct {
        const char *reply;
        std::optional<QString> expected;
    } cases[] = {{"43463b09003b06103b4142433b00", text("ABC")},
                 {"43463b0a003b06103b410042433b00", text("ABC")},  // 0x00 adds no character
                 {"43463b08003b06103be9ff3b00", QString::fromLatin1("\xe9\xff")},
                 {"43463b05003b06103b3b00", text("")},
                 {"4346ff0800ff0610ff4142", text("AB")},  // other bytes are not looked at
                 {"43463b08003b04103b41423b00", {}},      // another item
                 {"43523b08003b06103b41423b00", {}},
                 {"4346", {}}};
    for (const auto &c : cases)
        EXPECT_EQ(ItemCodec::text(hex(c.reply), 0x1006), c.expected) << c.reply;
    const QByteArray longest = hex("43463bffff3b06103b") + QByteArray(600, 'x');
    EXPECT_EQ(ItemCodec::text(longest, 0x1006)->size(), 512 - 9) << "not cut at the reply area";

    const auto counted = [](const char *reply) {
        return ItemCodec::textWithLength(hex(reply), 0x3104);
    };
    EXPECT_EQ(counted("43463b08003b04313b00003b00"), text(""));
    EXPECT_EQ(counted("43463b0b003b04313b03004142433b"), text("ABC"));
    EXPECT_EQ(counted("43463b0b003b04313bffff414243"), text("ABC"));
    EXPECT_EQ(counted("43463b0b003b01323b03004142433b"), std::nullopt) << "another item";
}

TEST(Decoding, NumbersAndAddresses) {
    EXPECT_EQ(ItemCodec::integer(hex("43463b08003b00303b2c01"), 0x3000), 300);
    EXPECT_EQ(ItemCodec::integer(hex("43463b08003b00303bffff"), 0x3000), 65535);
    EXPECT_EQ(ItemCodec::integer(hex("4346"), 0), 0) << "bytes beyond the reply read as 0";
    EXPECT_EQ(ItemCodec::integer(hex("4346"), 0x3000), std::nullopt);
    EXPECT_EQ(ItemCodec::macAddress(hex("43463b0c003b00203b0080920a1bff"), 0x2000),
              text("0080920A1BFF"));
    EXPECT_EQ(ItemCodec::softwareVersion(hex("43463b08003b08103bbca0"), 0x1008), text("A.0BC"));
    const QByteArray groups = hex("c000a80affff000000000001");
    const CategoryDictionary inUse{{DWT_SaveData_Connect_IPAddress, address("192.0.168.10")},
                                   {DWT_SaveData_Connect_Subnetmask, address("255.255.0.0")},
                                   {DWT_SaveData_Connect_Gateway, address("0.0.0.1")}};
    EXPECT_EQ(ItemCodec::addresses(hex("43463b12003b19313b") + groups, 0x3119), inUse);
    EXPECT_EQ(ItemCodec::addresses(hex("43463b14003b08313b0100") + groups, 0x3108), std::nullopt);
    EXPECT_EQ(ItemCodec::integerAndAddresses(hex("43463b12003b02203b") + groups, 0x2002),
              std::nullopt);
}

TEST(Decoding, ResultsAndScans) {
    EXPECT_EQ(ItemCodec::result(hex("43523b08003b06103b05013b"), 0x1006), 0x105);
    for (const char *other : {"43523b08003b04103b00003b", "43463b08003b06103b00003b", ""})
        EXPECT_EQ(ItemCodec::result(hex(other), 0x1006), SettingResult::NoReply) << other;

    const auto entry = [](int length, const QByteArray &ssid) {
        return QByteArray(1, static_cast<char>(length)) + '\0' + ssid +
               QByteArray(32 - ssid.size(), '\0') + hex("020003000100c4ff0000");
    };
    const auto block = [&](const char *count, const QByteArray &entries) {
        return ItemCodec::networks(hex("43463b00003b21313b") + hex(count) + entries, 0x3121);
    };
    const auto list =
        block("0300", entry(4, "Cafeteria") + entry(0, "x") + entry(2, QByteArray("a\0", 2)));
    ASSERT_TRUE(list && list->size() == 2) << "a network without a name is left out";
    const SSIDEntry first{{DWT_SSIDList_SSID, QByteArray("Cafe")},
                          {DWT_SSIDList_SSID_String, text("Cafe")},
                          {DWT_SSIDList_WirelessMode, 2},
                          {DWT_SSIDList_Authentic, 3},
                          {DWT_SSIDList_Encryption, 1},
                          {DWT_SSIDList_SignalStrength, -60}};
    EXPECT_EQ(list->at(0), first);
    EXPECT_EQ(bytesValue(list->at(1), DWT_SSIDList_SSID), QByteArray("a\0", 2));
    EXPECT_EQ(block("ffff", entry(33, "x").repeated(20))->size(), 11) << "beyond the reply area";
    EXPECT_EQ(bytesValue(block("0100", entry(33, "x"))->at(0), DWT_SSIDList_SSID).size(), 32);
    EXPECT_EQ(ItemCodec::networks({}, 0x3121), std::nullopt);
}

TEST(TypedNumbers, FollowTheLeadingDigits) {
    const std::pair<const char *, int> cases[] = {
        {"010", 10},
        {"  7", 7},
        {"-5x", -5},
        {"+6", 6},
        {"12a3", 12},
        {"", 0},
        {"- 5", 0},
        {"٣", 0},
        {"99999999999999999999", std::numeric_limits<int>::max()},
        {"-99999999999999999999", std::numeric_limits<int>::min()}};
    for (const auto &[typed, value] : cases) EXPECT_EQ(integerOf(text(typed)), value) << typed;
}

}  // namespace
