#include "zmlib/AddressProbe.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

#include "support/Profiles.h"
#include "zmlib/Snmp.h"

namespace {

constexpr std::chrono::milliseconds shortly{100}, forEver{60000};

QByteArray answerTo(const QByteArray &request) {
    QByteArray answer = request;
    answer[13] = '\xA2';
    return answer;
}

TEST(Snmp, TakesOnlyTheAnswerToItsRequest) {
    const QByteArray request = snmpRequest(0x12345678);
    EXPECT_EQ(request, hex("302902010004067075626c6963a01c020412345678020100020100300e300c06082b060"
                           "102010101000500"));
    const QByteArray answer = answerTo(request);
    EXPECT_TRUE(isSnmpAnswer(answer, 0x12345678));
    EXPECT_TRUE(isSnmpAnswer(answer + "more", 0x12345678));
    EXPECT_FALSE(isSnmpAnswer(answer, 0x12345679)) << "to another request";
    EXPECT_FALSE(isSnmpAnswer(request, 0x12345678)) << "an echo";
    const QByteArray little = hex("30810e0201000400a28200050201050201");
    EXPECT_TRUE(isSnmpAnswer(little, 5)) << "long lengths, short number";
    for (qsizetype size = 0; size < little.size(); ++size)
        EXPECT_FALSE(isSnmpAnswer(little.left(size), 5)) << size;
    EXPECT_FALSE(isSnmpAnswer(hex("308300000d0201000400a20502010502"), 5)) << "too long a length";
    EXPECT_FALSE(isSnmpAnswer(hex("300a0201000400a2020200"), 0)) << "a number without bytes";
}

TEST(AddressProbe, AnAnswerOnEitherWayCountsAndSilenceEnds) {
    enum Snmp { Refused, Silent, Garbage, Answers, AnswersTheSecond };
    const struct {
        Snmp snmp;
        bool accepted, answers;  // the data port; then the printer
        std::chrono::milliseconds deadline, least;
    } cases[] = {{Refused, false, false, forEver, {}},
                 {Refused, true, true, forEver, {}},
                 {Silent, true, true, forEver, {}},
                 {Silent, false, false, shortly, shortly},
                 {Garbage, false, false, shortly, shortly},
                 {Answers, false, true, forEver, {}},
                 {AnswersTheSecond, false, true, forEver, askAgain}};
    for (const auto &c : cases) {
        // Bound ports are nobody else's; they refuse what nobody listens for.
        QTcpServer server;
        QTcpSocket refusing;
        QUdpSocket agent;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost) &&
                    refusing.bind(QHostAddress::LocalHost) && agent.bind(QHostAddress::LocalHost));
        const auto data = c.accepted ? server.serverPort() : refusing.localPort();
        const ProbePorts ports{agent.localPort(), data};
        if (c.snmp == Refused) agent.connectToHost(QHostAddress::LocalHost, 1);
        int asked = 0;
        QObject::connect(&agent, &QUdpSocket::readyRead, [&] {
            QByteArray request(100, '\0');
            QHostAddress from;
            quint16 port = 0;
            request.resize(agent.readDatagram(request.data(), request.size(), &from, &port));
            ++asked;
            if (c.snmp == Garbage) agent.writeDatagram(request, from, port);
            if (c.snmp == Answers || (c.snmp == AnswersTheSecond && asked == 2))
                agent.writeDatagram(answerTo(request), from, port);
        });
        QElapsedTimer time;
        time.start();
        const QDeadlineTimer deadline(c.deadline);
        EXPECT_EQ(answersAtAddress(QHostAddress::LocalHost, deadline, ports), c.answers);
        const std::chrono::milliseconds taken(time.elapsed());
        EXPECT_GE(taken, c.least) << c.snmp;
        EXPECT_LT(taken, longestSilence) << c.snmp;
        EXPECT_FALSE(answersAtAddress(QHostAddress::AnyIPv4, QDeadlineTimer(shortly), ports));
    }
    for (const char *one : {"1.0.0.0", "127.0.0.1", "223.255.255.255", "::1", "fe80::1%lo"})
        EXPECT_TRUE(isOfOneMachine(QHostAddress(QLatin1String(one)))) << one;
    for (const char *none : {"", "0.0.0.0", "0.1.2.3", "224.0.0.1", "240.0.0.1", "255.255.255.255",
                             "::", "ff02::fb", "::ffff:0.0.0.0", "::ffff:224.0.0.1"})
        EXPECT_FALSE(isOfOneMachine(QHostAddress(QLatin1String(none)))) << none;
}

}  // namespace
