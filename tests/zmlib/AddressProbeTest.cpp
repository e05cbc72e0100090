#include "zmlib/AddressProbe.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QUdpSocket>

#include "support/Profiles.h"
#include "zmlib/Snmp.h"

namespace {

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
    enum class Data { Refused, Accepted };
    enum class Snmp { Refused, Silent, Garbage, Answers, AnswersTheSecond };
    const struct {
        Snmp snmp;
        Data data;
        bool answers;
        int least, most;  // ms
    } cases[] = {{Snmp::Refused, Data::Refused, false, 0, 600},
                 {Snmp::Refused, Data::Accepted, true, 0, 600},
                 {Snmp::Silent, Data::Accepted, true, 0, 600},
                 {Snmp::Silent, Data::Refused, false, 800, 3000},
                 {Snmp::Garbage, Data::Refused, false, 800, 3000},
                 {Snmp::Answers, Data::Refused, true, 0, 600},
                 {Snmp::AnswersTheSecond, Data::Refused, true, 450, 790}};
    for (const auto &c : cases) {
        QTcpServer server;
        QUdpSocket agent;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost) && agent.bind(QHostAddress::LocalHost));
        const ProbePorts ports{agent.localPort(), server.serverPort()};
        if (c.data == Data::Refused) server.close();
        if (c.snmp == Snmp::Refused) agent.close();
        int asked = 0;
        QObject::connect(&agent, &QUdpSocket::readyRead, [&] {
            QByteArray request(100, '\0');
            QHostAddress from;
            quint16 port = 0;
            request.resize(agent.readDatagram(request.data(), request.size(), &from, &port));
            ++asked;
            if (c.snmp == Snmp::Garbage) agent.writeDatagram(request, from, port);
            if (c.snmp == Snmp::Answers || (c.snmp == Snmp::AnswersTheSecond && asked == 2))
                agent.writeDatagram(answerTo(request), from, port);
        });
        QElapsedTimer time;
        time.start();
        EXPECT_EQ(answersAtAddress(QHostAddress::LocalHost, QDeadlineTimer(800), ports), c.answers);
        EXPECT_FALSE(answersAtAddress(QHostAddress::AnyIPv4, QDeadlineTimer(50), ports));
        EXPECT_GE(time.elapsed(), c.least) << static_cast<int>(c.snmp);
        EXPECT_LE(time.elapsed(), c.most) << static_cast<int>(c.snmp);
    }
}

}  // namespace
