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
    NetworkSource source({.firstLook = std::chrono::milliseconds(limit)});
    source.list();
    EXPECT_FALSE(source.isSettled()) << "the first list waited";
    const QDeadlineTimer deadline(limit);
    EXPECT_TRUE(QTest::qWaitFor([&] { return source.isSettled(); }, limit));
    EXPECT_FALSE(deadline.hasExpired()) << "not settled although all was known";
    EXPECT_EQ(source.list().entries.size(), 1);
    EXPECT_EQ(source.open(uri + u"&host=bed.local"_s, deadline).address, u"127.0.0.1"_s);
    EXPECT_FALSE(source.lists(uri + u"&host=other.local"_s));
    EXPECT_TRUE(comesToList(line));

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
        return QTest::qWaitFor([&] { return patient.isSettled(); }, limit) &&
               patient.list() == Listing{{}, {missing}} && !deadline.hasExpired();
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

TEST_F(Network, AServiceThatHangsIsNamedAndHoldsNobody) {
    startAll();
    limits.firstLook = std::chrono::milliseconds(limit);
    limits.silentAfter = limits.pingAfter = std::chrono::milliseconds(100);
    const QString line = lineOf(u"A"_s, {});
    ASSERT_TRUE(bed.announce("it", {{.name = "A"}}));
    EXPECT_TRUE(comesToList(line));
    bed.hangDaemon();
    const PrinterProblem silent{PrinterProblem::SilentNetworkService, {}};
    EXPECT_TRUE(comesToList(line + u'\n' + QString::number(silent.kind)));
    const QDeadlineTimer deadline(limit);
    {
        NetworkSource later(limits);
        EXPECT_TRUE(QTest::qWaitFor([&] { return later.isSettled(); }, limit));
        EXPECT_EQ(later.list(), (Listing{{}, {silent}}));
    }
    EXPECT_FALSE(deadline.hasExpired()) << "its end waited for the service";
    bed.resumeDaemon();
    EXPECT_TRUE(comesToList(line));
}

TEST_F(Network, AListIsNotSettledBeforeItHasMorePrintersThanCanBeAskedAtOnce) {
    startAll();
    constexpr int printers = 600, printersInAGroup = 100;  // more keep the daemon busy for long
    for (int i = 0; i < printers;) {
        QList<NetworkBed::Announcement> group;
        do group.append({.name = "C" + QByteArray::number(i)});
        while (++i % printersInAGroup != 0);
        ASSERT_TRUE(bed.announce(QByteArray::number(i), group));
    }
    const std::chrono::milliseconds patient(limit);
    NetworkSource source({.firstLook = patient, .silentAfter = patient});
    const auto isComplete = [&] {
        const bool isSettled = source.isSettled();
        const Listing listing = source.list();
        const bool areAll = listing.entries.size() == printers && listing.problems.isEmpty();
        EXPECT_TRUE(areAll || !isSettled) << listing.entries.size();
        return areAll;
    };
    EXPECT_TRUE(QTest::qWaitFor(isComplete, limit));
}

TEST_F(Network, OddAndManyAnnouncementsAreListedAsFarAsTheyCanBeReached) {
    startAll(25);
    constexpr int unanswered = 30;  // more than may be under way
    constexpr int endOfOne = 4500;  // ms; the service gives a question up after 5 s
    limits.questionsAtOnce = 20;
    limits.surelyKept = 60;
    limits.firstLook = std::chrono::milliseconds(limit);
    const QByteArray longest = QByteArray("\xe5\x80\x89").repeated(21);  // bytes: 63
    ASSERT_TRUE(bed.announce(
        "odd", {{.name = "B", .texts = {QByteArray("\0\xff=\0", 4), "=", "TY=(x)", "ty=y"}},
                {.name = longest, .texts = {"product=(Larkfield L200)", QByteArray(255, 'x')}},
                {.name = "zero", .host = "zero.local", .address = QByteArray(4, '\0')}}));
    QList<NetworkBed::Announcement> many;
    for (int i = 0; i < unanswered; ++i)
        many.append({.name = "A" + QByteArray::number(i), .host = "nobody.local"});
    for (int i = 0; i < 40; ++i) many.append({.name = "C" + QByteArray::number(1000 + i)});
    ASSERT_TRUE(bed.announce("many", many));
    NetworkSource source(limits);
    QStringList lines;
    const auto areThere = [&] {
        lines.clear();
        for (const PrinterEntry &entry : source.list().entries)
            lines << QStringList(entry.values()).join(u'|');
        return lines.size() == 42;
    };
    ASSERT_TRUE(QTest::qWaitFor(areThere, endOfOne)) << "others are in the way";
    EXPECT_FALSE(source.isSettled());
    const PrinterProblem others{PrinterProblem::NotLocated, QString::number(unanswered + 1)};
    const PrinterProblem missing{PrinterProblem::ManyAnnounced, u"60"_s};
    EXPECT_EQ(source.list().problems, (QList{others, missing}));
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
