#include <QFile>
#include <QTemporaryDir>

#include "support/Profiles.h"

namespace {

TEST(Profile, IsRefusedWithThePlaceThatIsWrong) {
    const struct {
        const char *json;
        const char *place;
    } cases[] = {
        {R"({"pasword": "x"})", "pasword: unknown key"},
        {R"({"password": "123456789"})", "password: longer than 8"},
        {R"({"password": 5})", "password: not a text"},
        {R"({"items": []})", "items: not an object"},
        {R"({"items": {"1006": "x"}})", "items.1006: not an item code"},
        {R"({"items": {"0x4000": 1}})", "items.0x4000: unknown item"},
        {R"({"items": {"0x1006": 1}})", "items.0x1006: not a text"},
        {R"({"items": {"0x1004": "12345678901234567890123456"}})", "items.0x1004: longer than 25"},
        {R"({"items": {"0x3000": 65536}})", "items.0x3000: not an integer"},
        {R"({"items": {"0x3000": 1.5}})", "items.0x3000: not an integer"},
        {R"({"items": {"0x2000": "00809200A1"}})", "items.0x2000: not 12 hexadecimal"},
        {R"({"items": {"0x1008": "1.2345"}})", "items.0x1008: not a version"},
        {R"({"items": {"0x3205": {"address": "300.1.1.1"}}})",
         "\"address\" is not an IPv4 address"},
        {R"({"items": {"0x3205": {"address": "1.1.1.1", "mask": "1.1.1.1"}}})",
         "unknown key \"mask\""},
        {R"({"items": {"0x2001": {"address": "1.1.1.1"}}})", "items.0x2001: "},
        {R"({"networks": [{"ssid": "a"}, {"ssid": "b", "signal": "x"}]})", "networks[1].signal: "},
        {R"({"networks": [{"ssidHex": "0g"}]})", "networks[0].ssidHex: not hexadecimal"},
        {R"({"scanPolls": -1})", "scanPolls: not an integer from 0"},
        {R"({"faults": {"items": {"0x1006": {"noReply": 1}}}})", "faults.items.0x1006.noReply: "},
        {R"({"faults": {"items": {"0x1006": {"code": "5"}}}})", "faults.items.0x1006.code.5: "},
        {R"({"faults": {"dealy": 1}})", "faults.dealy: unknown key"},
    };
    for (const auto &c : cases) {
        const auto result = profileFromJson(QJsonDocument::fromJson(c.json).object());
        EXPECT_FALSE(result.profile) << c.json;
        EXPECT_TRUE(result.error.contains(QLatin1String(c.place)))
            << c.json << " gave: " << qPrintable(result.error);
    }
}

TEST(Profile, AFileThatIsNoDescriptionIsRefusedByName) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printer.json"));
    EXPECT_TRUE(profileFromFile(path).error.startsWith(path)) << "missing file";
    for (const char *contents : {"", "[1]", "{\"items\": ", "{\"items\": {\"0x1006\": 3}}"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        const auto result = profileFromFile(path);
        EXPECT_FALSE(result.profile) << contents;
        EXPECT_TRUE(result.error.startsWith(path)) << contents;
    }
}

}  // namespace
