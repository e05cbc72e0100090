#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <semaphore>

#include "LibraryCalls.h"
#include "zmlib/Replies.h"

namespace {

const QByteArray accepted = hex("43523b08003b06103b00003bc7");
const SimulatedFaults refusing = faultsOf(R"({"refuseConnection": true})");

class Library : public EveryTransport, protected LibraryCalls {
  protected:
    void serve(const QByteArray &profile) {
        served.reset();
        served = std::make_unique<OnePrinterLibrary>(printerOf(profile), GetParam(), PrinterEntry(),
                                                     limit);
        uri = served->uri();
    }
    ZMLib &library() override { return *served->library(); }

    std::unique_ptr<OnePrinterLibrary> served;
};

INSTANTIATE_TEST_SUITE_P(, Library, allTransports, nameOf);

TEST_P(Library, ATransactionPutsExactlyItsFramesOnTheWire) {
    serve(R"({"items": {"0x1006": "AB"}})");
    EXPECT_EQ(status(), 1);
    // A TCP peer accepts, or refuses, some time later.
    if (GetParam() != Transport::Tcp) served->printer().setFaults(refusing);
    ASSERT_EQ(engage(), 0) << "by a second connection";
    served->printer().setFaults({});
    EXPECT_EQ(status(), 0);
    EXPECT_LT(engage(), 0) << "engaged twice";
    EXPECT_EQ(library().ZMStartCommand(uri, commands, 20, limit), 0);
    reply = "x";
    const int size = static_cast<int>(writeAB.size());
    ASSERT_EQ(library().ZMSendSettingData(uri, size, writeAB + "more", reply, commands, limit), 0);
    EXPECT_EQ(reply.toHex(), ("x" + accepted).toHex()) << "the buffer grows";
    EXPECT_EQ(get(6), 0);
    EXPECT_EQ(reply.toHex(), nameAB.left(6).toHex()) << "more than the reply area";
    EXPECT_EQ(finish(), 0);
    const bool dropsStaged = served->printer().log().first().bytes == commands[2];
    EXPECT_EQ(dropsStaged, GetParam() == Transport::Usb);
    EXPECT_EQ(served->receivedUntilEnd(), QStringLiteral("start start =1006 ?1006 update end"));
    EXPECT_EQ(status(), 1);
}

// A printer whose connection ends only when the test says so.
class SlowEnds : public PrinterSource {
  public:
    explicit SlowEnds(std::counting_semaphore<> &gate) : m_gate(gate) {}
    Listing list() override { return {}; }
    bool lists(const QString &uri) override { return !uri.isEmpty(); }
    Opened open(const QString &, const QDeadlineTimer &) override {
        return {std::make_unique<Connection>(m_gate)};
    }

  private:
    struct Connection : Transport {
        explicit Connection(std::counting_semaphore<> &gate) : end(gate) {}
        ~Connection() override { end.acquire(); }
        bool endsSlowly() const override { return true; }
        Completion receive(const QDeadlineTimer &) override { return Completion::TimedOut; }
        Completion transmit(const QDeadlineTimer &) override {
            m_unsent.clear();
            return Completion::Done;
        }
        std::counting_semaphore<> &end;
    };
    std::counting_semaphore<> &m_gate;
};

TEST(SlowLibrary, ServesOtherPrintersAndTheWindowsWhileAConnectionEnds) {
    std::counting_semaphore<> gate(0);
    const auto library = libraryOf<SlowEnds>(limit, ProbePorts(), std::ref(gate));
    const QString uri = QStringLiteral("slow");
    int served = 0;
    QTimer::singleShot(0, [&] {
        served = library->ZMGetEngageStatusSub(QStringLiteral("other"), limit);
        gate.release(2);
    });
    ASSERT_EQ(library->ZMEngageConnectAndStartCommand(uri, commands, 20, limit), 0);
    EXPECT_EQ(library->ZMEndCommandAndEngageDisConnect(uri, commands, 20, limit), 0);
    EXPECT_EQ(served, 1);
}

TEST_P(Library, AnswersForTheAddressesOfThePrintersThatCanBeReached) {
    if (GetParam() == Transport::Usb) return;  // such a printer is asked only while it is open
    serve(R"({"items": {"0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0",
              "gateway": "10.0.0.1"}, "0x3108": {"setting": 1, "address": "10.0.0.6",
              "mask": "255.0.0.0", "gateway": "10.0.0.1"}}})");
    EXPECT_EQ(check(ZMLib::anyPrinter, "10.0.0.5"), 0);
    EXPECT_EQ(check(uri, "10.0.0.6"), 0);
    EXPECT_LT(check(uri, "10.0.0.1"), 0) << "a gateway is no printer";
    ASSERT_EQ(engage(), 0);
    EXPECT_EQ(check(uri, "10.0.0.5"), 0) << "while the channel is open";
    EXPECT_EQ(finish(), 0);
    served->printer().setFaults(refusing);
    EXPECT_LT(check(uri, "10.0.0.5"), 0) << "an unplugged printer answers nowhere";
    serve(R"({"faults": {"refuseConnection": true}})");
    EXPECT_EQ(status(), ZMLib::UnknownPrinter);
    if (GetParam() == Transport::Tcp) {
        const auto port = static_cast<quint16>(QUrl(uri).port());
        QTcpSocket other;
        other.setProxy(QNetworkProxy::NoProxy);
        EXPECT_FALSE(other.bind(QHostAddress::LocalHost, port)) << "its port is anybody's";
    }
    EXPECT_LT(engage(), 0);
    const QString unknown = QStringLiteral("virtual://unknown");
    EXPECT_EQ(library().ZMGetEngageStatusSub(unknown, limit), ZMLib::UnknownPrinter);
    EXPECT_LT(library().ZMStartCommand(unknown, commands, 20, limit), 0);
    EXPECT_LT(check(unknown, "10.0.0.6"), 0);
}

// A peer on a port of this machine that is no virtual printer.
class TcpPeer : public testing::Test, protected LibraryCalls {
  protected:
    void SetUp() override { ASSERT_TRUE(server.listen(QHostAddress::Any)); }
    // Makes the library of the peer, under a name of this machine.
    void reachBy(const char *host, int longestWait = limit) {
        uri = QStringLiteral("tcp://%1:%2").arg(QLatin1String(host)).arg(server.serverPort());
        Catalogue catalogue;
        catalogue.entries = {{{PrinterKey::DeviceURI, uri}}};
        m_library = catalogueLibrary(catalogue, longestWait);
    }
    ZMLib &library() override { return *m_library; }

    QTcpServer server;

  private:
    std::shared_ptr<PrinterLibrary> m_library;
};

TEST_F(TcpPeer, IsReachedByEveryKindOfHost) {
    for (const char *host : {"127.0.0.1", "[::1]", "localhost", "[::1%25lo]"}) {
        reachBy(host);
        EXPECT_EQ(status(), 1) << host;
    }
}

TEST_F(TcpPeer, IsLeftWhenNobodyEngages) {
    reachBy("127.0.0.1", 100);
    EXPECT_EQ(status(), 1);
    ASSERT_TRUE(server.hasPendingConnections() || server.waitForNewConnection(limit));
    const auto *peer = server.nextPendingConnection();
    const auto closed = [&] { return peer->state() == QAbstractSocket::UnconnectedState; };
    EXPECT_FALSE(closed());
    EXPECT_TRUE(QTest::qWaitFor(closed)) << "kept although nobody engages";
}

TEST_F(TcpPeer, IsGivenUpWhenItsBytesBecomeNoReply) {
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        server.nextPendingConnection()->write(QByteArray(4 * skippedBytes, 'x'));
    });
    reachBy("127.0.0.1");
    ASSERT_EQ(engage(), 0);
    EXPECT_EQ(get(), ZMLib::NotAReply);
}

}  // namespace
