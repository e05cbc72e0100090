#include "support/Profiles.h"

namespace {

const QByteArray start = hex("1b7b045501567d");
const QByteArray end = hex("1b7b045500557d");
const QByteArray update = hex("1b7b0377777d");
const QByteArray readName = hex("1b7b056606107c7d");
const QByteArray nameAB = hex("43463b08003b06103b41423b4a");
const QByteArray writeAB = hex("43463b09003b06103b4142003b4a");
const QByteArray acceptedName = hex("43523b08003b06103b00003bc7");

// What a channel answers, without the delays.
QByteArray ask(VirtualPrinter::Channel &channel, const QByteArray &bytes) {
    QByteArray answer;
    for (const auto &reply : channel.receive(bytes)) answer += reply.bytes;
    return answer;
}

// The result code in the answer to a setting frame.
int resultOf(VirtualPrinter::Channel &channel, const char *frame) {
    const QByteArray answer = ask(channel, hex(frame));
    return answer.size() == 13 && answer.startsWith("CR;") ? static_cast<quint8>(answer[9]) : -1;
}

TEST(VirtualPrinter, AnswersRequestsInTheLayoutOfEachItem) {
    const auto printer = printerOf(R"({"password": "abc", "items": {"0x1006": "AB", "0x3000": 1,
        "0x2000": "00809200A1FF", "0x1008": "1.234", "0x3104": "Net", "0x3205": {"address": "10.1.2.3"},
        "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"},
        "0x3204": {"address": "10.1.0.1", "mask": "255.255.0.0"}}})");
    const auto channel = printer->openChannel();
    ask(*channel, start);
    const struct {
        const char *request;
        const char *reply;
    } cases[] = {{"1b7b056606107c7d", "43463b08003b06103b41423b4a"},
                 {"1b7b05660030967d", "43463b08003b00303b01003be2"},
                 {"1b7b05660020867d", "43463b0c003b00203b00809200a1ff3b83"},
                 {"1b7b056608107e7d", "43463b08003b08103b34123b0f"},
                 {"1b7b056604319b7d", "43463b0b003b04313b03004e65743b10"},
                 {"1b7b05660120877d", "43463b14003b01203b01000a000005ff0000000a0000013bec"},
                 {"1b7b05660220887d", "43463b12003b02203b0a000005ff0000000a0000013bec"},
                 {"1b7b056605329d7d", "43463b0a003b05323b0a0102033bf8"},
                 {"1b7b056604329c7d", "43463b0e003b04323b0a010001ffff00003bf1"},
                 {"1b7b05660010767d", "43463b08003b00103b01003bc2"},
                 {"1b7b056605319c7d", ""},  // the pre-shared key is never told
                 {"1b7b05660110777d", ""},  // nor a password
                 {"1b7b05660310797d", ""},
                 {"1b7b05660040a67d", ""}};  // no such item
    for (const auto &c : cases)
        EXPECT_EQ(ask(*channel, hex(c.request)).toHex(), c.reply) << c.request;
}

TEST(VirtualPrinter, AppliesStagedSettingsWithTheUpdateFrameOnly) {
    const auto printer = printerOf("{}");
    auto channel = printer->openChannel();
    EXPECT_EQ(ask(*channel, writeAB), "") << "answered outside a transaction";
    ask(*channel, start);
    EXPECT_EQ(ask(*channel, writeAB).toHex(), acceptedName.toHex());
    ask(*channel, end);
    ask(*channel, start + writeAB);
    channel.reset();
    EXPECT_EQ(printer->item(0x1006), "Label-Printer") << "applied without an update frame";
    channel = printer->openChannel();
    EXPECT_EQ(ask(*channel, start + writeAB + update + readName).toHex(),
              (acceptedName + nameAB).toHex());
    EXPECT_EQ(ask(*channel, end + readName), "") << "answered after the end";
}

TEST(VirtualPrinter, TakesFramesInAnyPiecesAndSkipsWhatIsWrong) {
    const auto printer = printerOf(R"({"items": {"0x1006": "AB"}})");
    const auto channel = printer->openChannel();
    QByteArray answer;
    for (const char byte : start + readName + writeAB) answer += ask(*channel, QByteArray(1, byte));
    EXPECT_EQ(answer.toHex(), (nameAB + acceptedName).toHex());

    for (qsizetype i = 0; i < writeAB.size(); ++i) {
        QByteArray wrong = writeAB;
        wrong[i] = static_cast<char>(wrong[i] ^ 0x01);
        // What a wrong length leaves open is closed by the bytes after it.
        answer = ask(*channel, wrong + QByteArray(FrameParser::longestFrame, '\0'));
        EXPECT_EQ(answer, "") << "answered a frame with a wrong byte at " << i;
        EXPECT_EQ(ask(*channel, readName), nameAB) << "lost its step after a wrong byte at " << i;
    }
}

TEST(VirtualPrinter, WithAPasswordEverySettingWaitsForTheLogin) {
    const auto printer = printerOf(R"({"password": "abc"})");
    const auto channel = printer->openChannel();
    const char *const login = "43463b0a003b01103b616263003be8";
    const char *const wrongLogin = "43463b08003b01103b78003b3a";
    const char *const removePassword = "43463b07003b03103b003bc4";
    ask(*channel, start);
    EXPECT_EQ(resultOf(*channel, writeAB.toHex()), VirtualPrinter::LoginNeeded);
    EXPECT_EQ(resultOf(*channel, "43463b08003b20313b01003b03"), VirtualPrinter::Accepted) << "scan";
    EXPECT_EQ(resultOf(*channel, wrongLogin), VirtualPrinter::WrongPassword);
    EXPECT_EQ(resultOf(*channel, writeAB.toHex()), VirtualPrinter::LoginNeeded);
    EXPECT_EQ(resultOf(*channel, login), VirtualPrinter::Accepted);
    EXPECT_EQ(resultOf(*channel, writeAB.toHex()), VirtualPrinter::Accepted);
    ask(*channel, end + start);
    EXPECT_EQ(resultOf(*channel, removePassword), VirtualPrinter::LoginNeeded)
        << "a login outlived its transaction";
    EXPECT_EQ(resultOf(*channel, login), VirtualPrinter::Accepted);
    EXPECT_EQ(resultOf(*channel, removePassword), VirtualPrinter::Accepted);
    EXPECT_EQ(printer->password(), "abc");
    ask(*channel, update);
    EXPECT_EQ(printer->password(), "");
}

TEST(VirtualPrinter, RefusesValuesThatDoNotFitTheirItem) {
    const auto printer = printerOf("{}");
    const auto open = printer->openChannel();
    ask(*open, start);
    const auto result = [&](int code, const QByteArray &payload) {
        const QByteArray summed = ";" + QByteArray(1, static_cast<char>(code & 0xFF)) +
                                  static_cast<char>(code >> 8) + ';' + payload + ';';
        unsigned sum = 0;
        for (const char byte : summed) sum += static_cast<quint8>(byte);
        const auto length = summed.size() + 1;
        const QByteArray frame = "CF;" + QByteArray(1, static_cast<char>(length & 0xFF)) +
                                 static_cast<char>(length >> 8) + summed + static_cast<char>(sum);
        return resultOf(*open, frame.toHex());
    };
    const auto counted = [](int count, qsizetype width) {
        return QByteArray(1, static_cast<char>(count)) + '\0' + QByteArray(width, 'x');
    };
    EXPECT_EQ(result(0x1006, QByteArray(31, 'x') + '\0'), VirtualPrinter::Accepted);
    EXPECT_EQ(result(0x1006, QByteArray(32, 'x') + '\0'), VirtualPrinter::BadValue);
    EXPECT_EQ(result(0x1006, QByteArray(3, 'x')), VirtualPrinter::BadValue) << "no end of the text";
    EXPECT_EQ(result(0x3104, counted(5, 32)), VirtualPrinter::Accepted);
    EXPECT_EQ(result(0x3104, counted(33, 32)), VirtualPrinter::BadValue);
    EXPECT_EQ(result(0x3104, counted(5, 5)), VirtualPrinter::BadValue) << "no 32-byte field";
    EXPECT_EQ(result(0x3105, counted(8, 8)), VirtualPrinter::Accepted);
    EXPECT_EQ(result(0x3105, counted(9, 8)), VirtualPrinter::BadValue);
    EXPECT_EQ(result(0x3106, hex("0100") + counted(13, 26)), VirtualPrinter::Accepted);
    EXPECT_EQ(result(0x3106, hex("0100") + counted(27, 26)), VirtualPrinter::BadValue);
    EXPECT_EQ(result(0x2001, QByteArray(14, '\1')), VirtualPrinter::Accepted);
    EXPECT_EQ(result(0x2001, QByteArray(13, '\1')), VirtualPrinter::BadValue);
    EXPECT_EQ(result(0x2000, QByteArray(6, '\1')), VirtualPrinter::NotWritable);
    EXPECT_EQ(result(0x4000, QByteArray(2, '\1')), VirtualPrinter::NotWritable);
}

TEST(VirtualPrinter, TheAddressInUseFollowsAnAppliedChange) {
    const auto printer = printerOf("{}");
    const auto channel = printer->openChannel();
    ask(*channel, start + hex("43463b14003b01203b01000a000005ff0000000a0000013bec"));
    EXPECT_NE(printer->item(0x2002).left(4), hex("0a000005"));
    ask(*channel, update);
    EXPECT_EQ(printer->item(0x2002), hex("0a000005ff0000000a000001"));
    ask(*channel, hex("43463b14003b01203b00000a000005ff0000000a0000013beb") + update);
    EXPECT_NE(printer->item(0x2002).left(4), hex("0a000005"));
    EXPECT_NE(printer->item(0x2002).left(4), hex("00000000"));
}

TEST(VirtualPrinter, FaultsDoWhatTheirNamesSay) {
    const struct {
        const char *fault;
        QByteArray reply;
    } cases[] = {{R"("noReply": true)", ""},
                 {R"("code": "0x1234")", hex("43463b08003b34123b41423b4a")},
                 {R"("truncate": 4)", hex("43463b08")},
                 {R"("length": 65535)", hex("43463bffff3b06103b41423b4a")}};
    for (const auto &c : cases) {
        const auto channel_printer = printerOf(
            QByteArray(R"({"items": {"0x1006": "AB"}, "faults": {"items": {"0x1006": {)") +
            c.fault + "}}}}");
        const auto channel = channel_printer->openChannel();
        EXPECT_EQ(ask(*channel, start + readName).toHex(), c.reply.toHex()) << c.fault;
        EXPECT_NE(ask(*channel, hex("1b7b05660030967d")), "") << "another item suffered too";
    }
    const auto printer = printerOf(R"({"faults": {"delay": 20, "closeAfterFrames": 3,
        "items": {"0x1006": {"result": 5, "delay": 7}}}})");
    const auto channel = printer->openChannel();
    const auto replies = channel->receive(start + writeAB + readName + readName);
    ASSERT_EQ(replies.size(), 2) << "answered after the last frame before closing";
    EXPECT_EQ(replies[0].bytes.mid(9, 2), hex("0500"));
    EXPECT_EQ(replies[0].delay, 27);
    EXPECT_FALSE(channel->isOpen());
    Faults unplugged;
    unplugged.refuseConnection = true;
    printer->setFaults(unplugged);
    EXPECT_FALSE(printer->openChannel());
}

}  // namespace
