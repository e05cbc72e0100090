#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QUrl>

#include "support/PrinterServerThread.h"
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

// What comes back over loopback, until the connection ends or `enough` bytes are there.
struct Answer {
    QByteArray bytes;
    std::string end = "open";  // "closed", "reset"
    qsizetype packets = 0;

    Answer(const PrinterServerThread &server, const QByteArray &sent, qsizetype enough) {
        const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
        const auto port = static_cast<quint16>(QUrl(server.uri()).port());
        const sockaddr_in name{AF_INET, htons(port), {htonl(INADDR_LOOPBACK)}, {}};
        EXPECT_EQ(::connect(fd, reinterpret_cast<const sockaddr *>(&name), sizeof name), 0);
        EXPECT_EQ(::send(fd, sent.constData(), static_cast<size_t>(sent.size()), 0), sent.size());
        char buffer[512];
        while (bytes.size() < enough && end == "open") {
            const ssize_t n = ::recv(fd, buffer, sizeof buffer, 0);
            if (n <= 0) end = n == 0 ? "closed" : "reset";
            bytes.append(buffer, std::max<ssize_t>(n, 0));
        }
        tcp_info info{};
        socklen_t size = sizeof info;
        EXPECT_EQ(::getsockopt(fd, IPPROTO_TCP, TCP_INFO, &info, &size), 0);
        packets = info.tcpi_data_segs_in;
        ::close(fd);
    }
};

TEST(VirtualPrinter, FaultsSpoilTheReplyTheyAreSaidToSpoil) {
    const QByteArray name = frame('F', 0x1006, "AB");
    const QByteArray taken = frame('R', 0x1007, hex("0000"));
    const QByteArray refused = frame('R', 0x1007, hex("0900"));
    QByteArray length = name;
    length.replace(3, 2, "\xff\xff");
    const struct {
        const char *faults;
        QByteArray replies;
        const char *end;
        int timeout;  // which the printer holds at the end: 60 s, or 45 when the change was made
        int delay = 0;
        bool piecewise = false;
    } cases[] = {
        {R"("items": {"0x1006": {"doubled": true}})", name + name + taken, "open", 45},
        {R"("items": {"0x1006": {"delay": 20}})", name + taken, "open", 45, 20},
        {R"("items": {"0x1006": {"code": "0x0077"}})", frame('F', 0x77, "AB") + taken, "open", 45},
        {R"("items": {"0x1006": {"truncate": 3}})", name.left(3) + taken, "open", 45},
        {R"("items": {"0x1006": {"length": 65535}})", length + taken, "open", 45},
        {R"("items": {"0x1006": {"closed": true}})", "", "closed", 60},
        {R"("items": {"0x1006": {"reset": true}})", "", "reset", 60},
        {R"("items": {"0x1006": {"closeAfterReply": true, "delay": 9}})", name, "closed", 60, 9},
        {R"("items": {"0x1007": {"result": 9}})", name + refused, "open", 60},
        {R"("items": {"0x1007": {"noReply": true}})", name, "open", 45},
        {R"("items": {"0x1007": {"closed": true}})", name, "closed", 60},
        {R"("piecewise": true, "delay": 9)", name + taken, "open", 45, 9, true},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.faults);
        const QByteArray profile = R"({"items": {"0x1006": "AB"}, "faults": {)";
        const auto printer = printerOf(profile + c.faults + "}}");
        const PrinterServerThread server(printer);
        const QByteArray sent = start + readName + frame('F', 0x1007, hex("2d00")) + update;
        QElapsedTimer clock;
        clock.start();
        const bool ends = qstrcmp(c.end, "open") != 0;
        const Answer answer(server, sent, c.replies.size() + ends);
        EXPECT_EQ(answer.bytes.toHex(), c.replies.toHex());
        EXPECT_EQ(answer.end, c.end);
        EXPECT_EQ(answer.packets > 4, c.piecewise);
        EXPECT_GE(clock.elapsed(), c.delay);
        EXPECT_EQ(printer->item(0x1007)[0], c.timeout);
    }
}

}  // namespace
