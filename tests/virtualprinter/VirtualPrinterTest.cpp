#include "support/Profiles.h"

namespace {

const QByteArray start = hex("1b7b045501567d");
const QByteArray otherThanStartAndEnd = hex("1b7b045502577d");
const QByteArray update = hex("1b7b0377777d");
const QByteArray readName = hex("1b7b056606107c7d");
const QByteArray readScan = hex("1b7b05662031b77d");

// A setting frame ('F'), or the reply to a request ('F') or to a setting frame ('R').
QByteArray frame(char kind, quint16 code, const QByteArray &payload) {
    const auto number = [](qsizetype n) {
        return QByteArray(1, static_cast<char>(n)) + static_cast<char>(n >> 8);
    };
    const QByteArray summed = ';' + number(code) + ';' + payload + ';';
    int sum = 0;
    for (const char byte : summed) sum += byte;
    return "C" + QByteArray(1, kind) + ';' + number(summed.size() + 1) + summed +
           static_cast<char>(sum);
}

TEST(VirtualPrinter, RefusesWhatAPrinterWouldNotUnderstand) {
    const QByteArray zeros(64, '\0');
    const QByteArray ssid = hex("0100") + "A" + zeros.left(31);
    const QByteArray key = hex("0500") + "abcde" + zeros.left(21);
    const QByteArray name = frame('F', 0x1006, "Label-Printer");
    const auto spoilt = [](QByteArray bytes) { return bytes.replace(bytes.size() - 1, 1, "x"); };
    const auto setting = [&](quint16 code, const QByteArray &payload, int result) {
        return std::pair(start + frame('F', code, payload),
                         frame('R', code, QByteArray(1, static_cast<char>(result)) + '\0'));
    };
    const std::pair<QByteArray, QByteArray> cases[] = {
        {otherThanStartAndEnd + readName, {}},
        {start + otherThanStartAndEnd + readName, name},
        {start + readScan, frame('F', 0x3120, zeros.left(4))},
        setting(0x3104, ssid, 0),
        setting(0x3104, spoilt(ssid), 4),
        setting(0x3201, spoilt(ssid), 4),
        setting(0x3106, hex("0000") + key, 4),
        setting(0x3106, hex("0100") + key, 0),
        setting(0x3106, hex("0400") + key, 0),
        setting(0x3106, hex("0500") + key, 4),
        setting(0x3106, hex("0100") + spoilt(key), 4),
        setting(0x2001, hex("0100") + zeros.left(12), 0),
        setting(0x2001, hex("0200") + zeros.left(12), 4),
        setting(0x3108, hex("0001") + zeros.left(12), 4),
        setting(0x3108, {}, 4)};
    for (const auto &[bytes, expected] : cases) {
        const auto printer = printerOf("{}");
        QByteArray replies;
        for (const auto &reply : printer->openChannel()->receive(bytes)) replies += reply.bytes;
        EXPECT_EQ(replies.toHex(), expected.toHex()) << bytes.toHex().constData();
    }
}

}  // namespace
