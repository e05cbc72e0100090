#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include "LibraryCalls.h"
#include "support/NetworkBed.h"
#include "zmlib/NetworkSource.h"

namespace {

using namespace Qt::StringLiterals;

class Network : public testing::Test, protected LibraryCalls {
  protected:
    void startAll(int objects = 1024) {
        ASSERT_TRUE(bed.startBus());
        ASSERT_TRUE(bed.startDaemon(objects));
    }
    ZMLib &library() override {
        if (!m_library) m_library = libraryOf<NetworkSource>(limit, ports, limits);
        return *m_library;
    }
    // A line of the list.
    static QString lineOf(const QString &name, const QString &product) {
        return u"127.0.0.1|%1|Network|dnssd:///%2?type=_pdl-datastream._tcp&domain=local|%3"_s.arg(
            name, QString::fromLatin1(QUrl::toPercentEncoding(name)), product);
    }
    bool comesToList(const QString &lines) {
        return QTest::qWaitFor([&] { return library().hasListChanged() && listed() == lines; },
                               limit);
    }

    NetworkBed bed;
    ProbePorts ports;
    BrowsingLimits limits{.firstLook = {}, .reconnectAfter = std::chrono::milliseconds(10)};

  private:
    std::shared_ptr<PrinterLibrary> m_library;
};

TEST_F(Network, PrintersAreFoundReadWhereTheyAreNowAndFollowed) {
    startAll();
    limits.firstLook = std::chrono::milliseconds(limit);
    const auto printer = printerOf(R"({"items": {"0x1006": "AB"}})");
    const bool isThereIPv6 = QTcpServer().listen(QHostAddress::LocalHostIPv6);
    const PrinterServerThread here(printer),
        there(printer, isThereIPv6 ? QHostAddress::LocalHostIPv6 : QHostAddress::LocalHost);
    const QByteArray name = "Goods in / 50% & \xe5\x80\x89 #1";
    uri =
        u"dnssd:///Goods%20in%20%2F%2050%25%20%26%20%E5%80%89%20%231"
        "?type=_pdl-datastream._tcp&domain=local"_s;
    const QString line = u"127.0.0.1|Goods in / 50% & 倉 #1|Network|%1|Larkfield L400"_s.arg(uri);
    const QList<QByteArray> texts{"usb_MFG=Larkfield", "usb_MDL=L400", "ty=Another"};
    ASSERT_TRUE(bed.announce("it", {{.name = name, .port = here.port(), .texts = texts}}));
    const QDeadlineTimer deadline(limit);
    EXPECT_EQ(listed(), line) << "the first list did not wait";
    EXPECT_FALSE(deadline.hasExpired()) << "waited although all was known";

    const auto reads = [&] {
        return status() == 1 && engage() == 0 && get() == 0 && finish() == 0 && reply == nameAB;
    };
    EXPECT_TRUE(reads());
    EXPECT_FALSE(library().hasListChanged()) << "flickers while it is asked where it is";
    bed.withdraw("it");
    ASSERT_TRUE(bed.announce("other", {{.name = "Goods out", .texts = {"ty=Larkfield L200"}}}));
    const QString other = lineOf(u"Goods out"_s, u"Larkfield L200"_s);
    EXPECT_TRUE(comesToList(other));
    EXPECT_EQ(status(), ZMLib::UnknownPrinter);
    ASSERT_TRUE(bed.announce("it", {{.name = name, .port = there.port(), .texts = texts}}));
    EXPECT_TRUE(comesToList(line + u'\n' + other));
    EXPECT_TRUE(reads());
}

TEST_F(Network, TheServiceThatTellsMayComeAndGo) {
    const PrinterProblem missing{PrinterProblem::NoNetworkService, {}};
    const QString line = QString::number(missing.kind);
    const auto isMissedAtOnce = [&] {
        const QDeadlineTimer deadline(limit);
        NetworkSource patient({.firstLook = std::chrono::milliseconds(limit)});
        return patient.list() == Listing{{}, {missing}} && !deadline.hasExpired();
    };
    EXPECT_TRUE(isMissedAtOnce()) << "waited for a bus";
    EXPECT_TRUE(comesToList(line)) << "without a bus";
    ASSERT_TRUE(bed.startBus());
    EXPECT_TRUE(isMissedAtOnce()) << "waited for a service";
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(bed.startDaemon());
        EXPECT_TRUE(comesToList({})) << i;
        ASSERT_TRUE(bed.announce("it", {{.name = "A", .texts = {"ty=B"}}}));
        EXPECT_TRUE(comesToList(lineOf(u"A"_s, u"B"_s))) << i;
        bed.stopDaemon();
        EXPECT_TRUE(comesToList(line)) << i;
    }
}

TEST_F(Network, OddAndManyAnnouncementsAreListedAsFarAsTheyCanBeReached) {
    startAll(25);
    limits.questionsAtOnce = 20;
    const QByteArray longest = QByteArray("\xe5\x80\x89").repeated(21);  // bytes: 63
    ASSERT_TRUE(bed.announce(
        "odd", {{.name = "B", .texts = {QByteArray("\0\xff=\0", 4), "=", "TY=(x)", "ty=y"}},
                {.name = longest, .texts = {"product=(Larkfield L200)", QByteArray(255, 'x')}},
                {.name = "nobody", .texts = {"ty=z"}, .host = "nobody.local"}}));
    QList<NetworkBed::Announcement> many;
    for (int i = 0; i < 40; ++i) many.append({.name = "C" + QByteArray::number(1000 + i)});
    ASSERT_TRUE(bed.announce("many", many));
    const auto areThere = [&] { return library().ZMCreatePrinterURI()->size() == 42; };
    ASSERT_TRUE(QTest::qWaitFor(areThere, limit));
    const QStringList lines = listed().split(u'\n');
    EXPECT_EQ(lines[0], lineOf(u"B"_s, u"(x)"_s));
    EXPECT_EQ(lines[1], lineOf(u"C1000"_s, {}));
    EXPECT_TRUE(lines[41].endsWith(u"|Larkfield L200"_s)) << qPrintable(lines[41]);
}

TEST_F(Network, OnlyThePrinterOfTheTargetMayAnswerAtAnAddress) {
    startAll();
    QTcpSocket refusing;  // keeps the port when the printer has gone
    QTcpServer printer, other;
    ASSERT_TRUE(refusing.bind(QHostAddress::LocalHost, 0, QTcpSocket::ReuseAddressHint));
    ports = {1, refusing.localPort()};
    ASSERT_TRUE(printer.listen(QHostAddress::LocalHost, ports.data));
    ASSERT_TRUE(other.listen(QHostAddress(u"127.0.0.2"_s), ports.data));
    ASSERT_TRUE(bed.announce("it", {{.name = "A"}}));
    uri = u"dnssd:///A?type=_pdl-datastream._tcp&domain=local"_s;
    EXPECT_TRUE(comesToList(lineOf(u"A"_s, {})));
    EXPECT_EQ(check(uri, "127.0.0.1"), 0);
    EXPECT_LT(check(uri, "127.0.0.2"), 0);
    EXPECT_EQ(check(ZMLib::anyPrinter, "127.0.0.2"), 0);
    printer.close();
    EXPECT_LT(check(uri, "127.0.0.1"), 0);
    EXPECT_LT(check(u"dnssd:///B"_s, "127.0.0.2"), 0);
}

}  // namespace
