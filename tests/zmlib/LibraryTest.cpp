#include <QElapsedTimer>
#include <QHostInfo>
#include <QTcpServer>
#include <QTcpSocket>

#include "support/Catalogues.h"

namespace {

using Transport = OnePrinterLibrary::Transport;

const QByteArray start = hex("1b7b045501567d");
const QByteArray end = hex("1b7b045500557d");
const QByteArray update = hex("1b7b0377777d");
const QList<QByteArray> commands{start, update, end};
const QByteArray readName = hex("1b7b056606107c7d");
const QByteArray nameAB = hex("43463b08003b06103b41423b4a");
const QByteArray writeAB = hex("43463b09003b06103b4142003b4a");
const QByteArray accepted = hex("43523b08003b06103b00003bc7");

class Library : public testing::TestWithParam<Transport> {
  protected:
    void serve(const QByteArray &profile) {
        m_served = std::make_unique<OnePrinterLibrary>(printerOf(profile), GetParam());
    }
    CatalogueLibrary &library() { return *m_served->library(); }
    VirtualPrinter &printer() { return m_served->printer(); }
    const QString &uri() { return m_served->uri(); }
    int engage() { return library().ZMEngageConnectAndStartCommand(uri(), commands, 20, 15000); }
    int finish() { return library().ZMEndCommandAndEngageDisConnect(uri(), commands, 20, 15000); }
    int get(QByteArray &reply, int area = 512) {
        reply.clear();
        return library().ZMGetSettingData(uri(), area, readName, reply, commands, 15000);
    }

    std::unique_ptr<OnePrinterLibrary> m_served;
};

INSTANTIATE_TEST_SUITE_P(, Library, testing::Values(Transport::Virtual, Transport::Tcp),
                         [](const auto &p) { return nameOf(p.param); });

TEST_P(Library, ATransactionPutsExactlyItsFramesOnTheWire) {
    serve("{}");
    EXPECT_EQ(library().ZMGetEngageStatusSub(uri(), 15000), 1);
    ASSERT_EQ(engage(), 0);
    EXPECT_EQ(library().ZMGetEngageStatusSub(uri(), 15000), 0);
    EXPECT_LT(engage(), 0) << "engaged twice";
    EXPECT_EQ(library().ZMStartCommand(uri(), commands, 20, 15000), 0);
    QByteArray reply("x");
    EXPECT_EQ(library().ZMSendSettingData(uri(), static_cast<int>(writeAB.size()), writeAB, reply,
                                          commands, 15000),
              0);
    EXPECT_EQ(reply.toHex(), ("x" + accepted).toHex()) << "the buffer grows";
    EXPECT_EQ(finish(), 0);
    EXPECT_EQ(library().ZMGetEngageStatusSub(uri(), 15000), 1);
    ASSERT_EQ(engage(), 0);
    EXPECT_EQ(get(reply), 0);
    EXPECT_EQ(reply.toHex(), nameAB.toHex()) << "the update frame did not arrive";
    EXPECT_EQ(get(reply, 6), 0);
    EXPECT_EQ(reply.toHex(), nameAB.left(6).toHex()) << "more than the reply area";
    EXPECT_EQ(finish(), 0);

    EXPECT_EQ(m_served->receivedUntilEnd(),
              QStringLiteral("start start =1006 update end start ?1006 ?1006 update end"));
}

TEST_P(Library, BadRepliesEndInTimeCloseTheChannelAndSpoilNothing) {
    const struct {
        const char *fault;
        int result;
    } cases[] = {{R"("noReply": true)", ZMLib::TimedOut},  {R"("truncate": 3)", ZMLib::TimedOut},
                 {R"("truncate": 11)", ZMLib::TimedOut},   {R"("length": 65535)", ZMLib::TimedOut},
                 {R"("garbage": true)", ZMLib::NotAReply}, {"CLOSE", ZMLib::Closed}};
    for (const auto &c : cases) {
        serve(R"({"items": {"0x1006": "AB"}})");
        const QByteArray fault(c.fault);
        const QByteArray faults =
            fault == "CLOSE" ? R"({"closeAfterFrames": 2, "items": {"0x1006": {"noReply": true}}})"
                             : R"({"items": {"0x1006": {)" + fault + "}}}";
        const auto broken = printerOf(R"({"faults": )" + faults + "}");
        printer().setFaults(broken->faults());
        ASSERT_EQ(engage(), 0);
        QByteArray reply;
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(get(reply), c.result) << c.fault;
        EXPECT_LT(clock.elapsed(), 2000) << c.fault;
        EXPECT_TRUE(reply.isEmpty()) << c.fault;
        EXPECT_EQ(get(reply), ZMLib::NotOpen) << c.fault;
        EXPECT_EQ(finish(), ZMLib::NotOpen) << c.fault;
        printer().setFaults({});
        ASSERT_EQ(engage(), 0) << c.fault;
        EXPECT_EQ(get(reply), 0) << c.fault;
        EXPECT_EQ(reply, nameAB) << c.fault;
        EXPECT_EQ(finish(), 0);
    }
}

TEST_P(Library, WhatCannotBeReachedGivesNegativeResults) {
    serve(R"({"faults": {"refuseConnection": true}})");
    EXPECT_EQ(library().ZMGetEngageStatusSub(uri(), 15000), -1);
    EXPECT_LT(engage(), 0);
    const QString unknown = QStringLiteral("virtual://unknown");
    EXPECT_EQ(library().ZMGetEngageStatusSub(unknown, 15000), -1);
    EXPECT_LT(library().ZMStartCommand(unknown, commands, 20, 15000), 0);
    EXPECT_LT(library().ZMIOOpenForUDP(unknown, QStringLiteral("1.2.3.4"), 20, 15000), 0);
}

TEST_P(Library, AnswersForTheAddressesThatItsPrintersUse) {
    serve(R"({"items": {"0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0",
              "gateway": "10.0.0.1"}, "0x3108": {"setting": 1, "address": "10.0.0.6",
              "mask": "255.0.0.0", "gateway": "10.0.0.1"}}})");
    const auto check = [&](const QString &target, const char *address) {
        return library().ZMIOOpenForUDP(target, QLatin1String(address), 20, 15000);
    };
    EXPECT_EQ(check(QStringLiteral("ZMtcpip://"), "10.0.0.5"), 0);
    EXPECT_EQ(check(uri(), "10.0.0.6"), 0);
    EXPECT_LT(check(uri(), "10.0.0.1"), 0) << "a gateway is no printer";
    ASSERT_EQ(engage(), 0);
    EXPECT_EQ(check(uri(), "10.0.0.5"), 0) << "while the channel is open";
    EXPECT_EQ(finish(), 0);
    Faults unplugged;
    unplugged.refuseConnection = true;
    printer().setFaults(unplugged);
    EXPECT_LT(check(uri(), "10.0.0.5"), 0) << "an unplugged printer answers nowhere";
}

// A peer that is no printer: whatever it sends, nothing may be read beyond it or for ever.
TEST(TcpPeer, EndlessBytesWithoutAReplyAreGivenUp) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        QTcpSocket *socket = server.nextPendingConnection();
        socket->write(QByteArray(256 * 1024, 'x'));
    });
    Catalogue catalogue;
    // By name, where the machine knows it.
    const bool named = !QHostInfo::fromName(QStringLiteral("localhost")).addresses().isEmpty();
    const QString host = named ? QStringLiteral("localhost") : QStringLiteral("127.0.0.1");
    const QString uri = QStringLiteral("tcp://%1:%2").arg(host).arg(server.serverPort());
    catalogue.entries = {{{QStringLiteral("DeviceURI"), uri}}};
    CatalogueLibrary library(catalogue, 5000);
    ASSERT_EQ(library.ZMEngageConnectAndStartCommand(uri, commands, 20, 15000), 0);
    QByteArray reply;
    EXPECT_EQ(library.ZMGetSettingData(uri, 512, readName, reply, commands, 15000),
              ZMLib::NotAReply);
    EXPECT_TRUE(reply.isEmpty());
}

}  // namespace
