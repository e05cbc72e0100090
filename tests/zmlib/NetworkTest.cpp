#include <QElapsedTimer>
#include <QTcpServer>
#include <QUrl>

#include "LibraryCalls.h"
#include "support/NetworkBed.h"
#include "zmlib/NetworkSource.h"

namespace {

using namespace Qt::StringLiterals;

class Network : public testing::Test, protected LibraryCalls {
  protected:
    void startAll() {
        ASSERT_TRUE(bed.startBus());
        ASSERT_TRUE(bed.startDaemon());
    }
    ZMLib &library() override {
        if (!m_library) m_library = libraryOf<NetworkSource>(3000, ports);
        return *m_library;
    }
    // A line of the list.
    static QString lineOf(const QString &name, const QString &product) {
        return u"127.0.0.1|%1|Network|dnssd:///%2?type=_pdl-datastream._tcp&domain=local|%3"_s.arg(
            name, QString::fromLatin1(QUrl::toPercentEncoding(name)), product);
    }
    bool comesToList(const QString &lines) {
        return QTest::qWaitFor([&] { return library().hasListChanged() && listed() == lines; },
                               3000);
    }

    NetworkBed bed;
    ProbePorts ports;

  private:
    std::shared_ptr<PrinterLibrary> m_library;
};

TEST_F(Network, PrintersAreFoundReadWhereTheyAreNowAndFollowed) {
    startAll();
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
    EXPECT_EQ(listed(), line);
    EXPECT_FALSE(QTest::qWaitFor([&] { return library().hasListChanged(); }, 700)) << "flickers";

    const auto reads = [&] {
        return status() == 1 && engage() == 0 && get() == 0 && finish() == 0 && reply == nameAB;
    };
    EXPECT_TRUE(reads());
    bed.withdraw("it");
    EXPECT_TRUE(comesToList({}));
    EXPECT_EQ(status(), ZMLib::UnknownPrinter);
    ASSERT_TRUE(bed.announce("it", {{.name = name, .port = there.port(), .texts = texts}}));
    EXPECT_TRUE(comesToList(line));
    EXPECT_TRUE(reads());
    bed.withdraw("it");
    ASSERT_TRUE(bed.announce("it", {{.name = "Goods out", .texts = {"ty=Larkfield L200"}}}));
    EXPECT_TRUE(comesToList(lineOf(u"Goods out"_s, u"Larkfield L200"_s)));
}

TEST_F(Network, TheServiceThatTellsMayComeAndGo) {
    const QString missing = QString::number(PrinterProblem::NoNetworkService);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(listed(), missing) << "without a bus";
    ASSERT_TRUE(bed.startBus());
    EXPECT_EQ(listed(), missing) << "without a service";
    EXPECT_LT(time.elapsed(), 500) << "waited for what does not come";
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(bed.startDaemon());
        EXPECT_TRUE(comesToList({})) << i;
        ASSERT_TRUE(bed.announce("it", {{.name = "A", .texts = {"ty=B"}}}));
        EXPECT_TRUE(comesToList(lineOf(u"A"_s, u"B"_s))) << i;
        bed.stopDaemon();
        EXPECT_TRUE(comesToList(missing)) << i;
    }
}

TEST_F(Network, OddAndManyAnnouncementsAreListedAsFarAsTheyCanBeReached) {
    startAll();
    const QByteArray longest = QByteArray("\xe5\x80\x89").repeated(21);  // bytes: 63
    ASSERT_TRUE(bed.announce(
        "odd", {{.name = "B", .texts = {QByteArray("\0\xff=\0", 4), "=", "TY=(x)", "ty=y"}},
                {.name = longest, .texts = {"product=(Larkfield L200)", QByteArray(255, 'x')}},
                {.name = "nobody", .texts = {"ty=z"}, .host = "nobody.local"}}));
    QList<NetworkBed::Announcement> many;
    for (int i = 0; i < 600; ++i) many.append({.name = "C" + QByteArray::number(1000 + i)});
    ASSERT_TRUE(bed.announce("many", many));
    QStringList lines;
    const auto areThere = [&] {
        lines = listed().split(u'\n');
        return lines.size() == 602;
    };
    ASSERT_TRUE(QTest::qWaitFor(areThere, 20000)) << lines.size();
    EXPECT_EQ(lines[0], lineOf(u"B"_s, u"(x)"_s));
    EXPECT_EQ(lines[1], lineOf(u"C1000"_s, {}));
    EXPECT_TRUE(lines[601].endsWith(u"|Larkfield L200"_s)) << qPrintable(lines[601]);
}

TEST_F(Network, OnlyThePrinterOfTheTargetMayAnswerAtAnAddress) {
    startAll();
    QTcpServer printer, other;
    ASSERT_TRUE(printer.listen(QHostAddress::LocalHost));
    ASSERT_TRUE(other.listen(QHostAddress(u"127.0.0.2"_s), printer.serverPort()));
    ports = {1, printer.serverPort()};
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
