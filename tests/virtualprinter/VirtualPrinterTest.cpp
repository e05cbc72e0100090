#include <QFile>
#include <QTemporaryDir>

#include "support/Profiles.h"

namespace {

TEST(Profile, IsRefusedWithThePlaceThatIsWrong) {
    const struct {
        const char *json;
        const char *place;
    } cases[] = {
        {"", "printer.json: byte 0"},
        {"[1]", "printer.json: byte 0: not a JSON object"},
        {R"({"pasword": "x"})", "printer.json: pasword: unknown key"},
        {R"({"password": "123456789"})", ": password: longer than 8"},
        {R"({"items": {"1006": "x"}})", ": items.1006: not an item code"},
        {R"({"items": {"0x4000": 1}})", ": items.0x4000: unknown item"},
        {R"({"items": {"0x1006": 1}})", ": items.0x1006: not a text"},
        {R"({"items": {"0x2000": "00809200A1"}})", ": items.0x2000: not 12 hexadecimal"},
        {R"({"items": {"0x1008": "1.2345"}})", ": items.0x1008: not a version"},
        {R"({"items": {"0x3205": {"address": "300.1.1.1"}}})", "\"address\" is not an IPv4"},
        {R"({"networks": [{"ssidHex": "0g"}]})", ": networks[0].ssidHex: not hexadecimal"},
        {R"({"scanPolls": -1})", ": scanPolls: not an integer from 0"},
        {R"({"faults": {"dealy": 1}})", ": faults.dealy: unknown key"},
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printer.json"));
    EXPECT_TRUE(profileFromFile(path).error.startsWith(path)) << "missing file";
    for (const auto &c : cases) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.json);
        file.close();
        const auto result = profileFromFile(path);
        EXPECT_FALSE(result.profile) << c.json;
        EXPECT_TRUE(result.error.contains(QLatin1String(c.place))) << qPrintable(result.error);
    }
}

TEST(VirtualPrinter, AnswersOnlyFramesThatAreRightAndInsideATransaction) {
    const auto printer = printerOf("{}");
    const auto channel = printer->openChannel();
    const QByteArray good = hex("43463b09003b06103b4142003b4a");
    EXPECT_TRUE(channel->receive(good).isEmpty());
    channel->receive(hex("1b7b045501567d"));
    for (qsizetype i = 0; i < good.size(); ++i) {
        QByteArray wrong = good;
        wrong[i] = static_cast<char>(wrong[i] ^ 0x01);
        // What a wrong length leaves open is closed by the bytes after it.
        wrong += QByteArray(FrameParser::longestFrame, '\0');
        EXPECT_TRUE(channel->receive(wrong).isEmpty()) << "a wrong byte at " << i;
        EXPECT_EQ(channel->receive(good).size(), 1) << "lost its step after a wrong byte at " << i;
    }
}

}  // namespace
