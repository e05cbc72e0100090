#include <QElapsedTimer>
#include <QTcpSocket>
#include <QUrl>

#include "support/PrinterServerThread.h"
#include "support/Profiles.h"

namespace {

void connectTo(QTcpSocket &socket, const PrinterServerThread &server) {
    socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(QUrl(server.uri()).port()));
    EXPECT_TRUE(socket.waitForConnected());
}

QByteArray ask(QTcpSocket &socket, const QByteArray &bytes, qsizetype size) {
    socket.write(bytes);
    QByteArray answer;
    while (answer.size() < size && socket.waitForReadyRead()) answer += socket.readAll();
    return answer;
}

const QByteArray startAndRead = hex("1b7b045501567d1b7b056606107c7d");
const QByteArray nameAB = hex("43463b08003b06103b41423b4a");

TEST(Server, DelaysRepliesAndThenCloses) {
    const PrinterServerThread server(printerOf(
        R"({"items": {"0x1006": "AB"}, "faults": {"delay": 60, "closeAfterFrames": 2}})"));
    QTcpSocket socket;
    connectTo(socket, server);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(ask(socket, startAndRead, nameAB.size()), nameAB) << "closed before the reply";
    EXPECT_GE(clock.elapsed(), 59);
    EXPECT_TRUE(socket.state() == QAbstractSocket::UnconnectedState ||
                socket.waitForDisconnected());
}

TEST(Server, ARefusingPrinterCannotBeConnected) {
    const PrinterServerThread server(printerOf(R"({"faults": {"refuseConnection": true}})"));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(QUrl(server.uri()).port()));
    EXPECT_FALSE(socket.waitForConnected(2000));
}

}  // namespace
