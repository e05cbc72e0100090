#include <pthread.h>

#include "ItemRows.h"
#include "platform/core/NotificationCenter.h"

namespace {

using namespace Qt::StringLiterals;

// A manager whose printer has been read, and the notifications of its sends.
class Send : public EveryTransport {
  protected:
    void read(const std::shared_ptr<VirtualPrinter> &printer) {
        observers.clear();
        m.reset();
        m = std::make_unique<ServedManager>(printer, GetParam());
        ASSERT_EQ(m->manager->setupDataFromPrinter(0), 0);
        m->served.receivedUntilEnd();
        for (const QString &name :
             {DWT_DataSend_Start_Message, DWT_DataSend_Progress_Message, DWT_DataSend_Stop_Message})
            observers.push_back(NotificationCenter::shared().observe(
                name, [this](const Notification &n) { note(n); }, m->manager.get()));
    }
    void note(const Notification &n) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        EXPECT_EQ(n.userInfo.value(MSW_Searching_Value_Minimum), QVariant(0.0));
        EXPECT_EQ(n.userInfo.value(MSW_Searching_Value_Maximum), QVariant(100.0));
        steps += n.name.section(u'_', 2, 2) +
                 n.userInfo.value(MSW_Searching_Value_Current).toString() + u' ';
    }
    // Sends; what the printer received. The data of the setting frames is in `sent`.
    QString send() {
        steps.clear();
        m->sendAndWait();
        sent.clear();
        for (const auto &[direction, bytes] : m->printer().log())
            if (direction == VirtualPrinter::LoggedFrame::Received && bytes[0] == 'C')
                sent.insert(ItemCode(quint8(bytes[7]) << 8 | quint8(bytes[6])),
                            bytes.mid(9, bytes.size() - 11));
        return m->served.receivedUntilEnd();
    }
    void logIn() {
        ASSERT_EQ(m->manager->connectPrinter(), 0);
        EXPECT_EQ(m->manager->checkLoginPassword(u"no"_s),
                  (WriteResult{WriteResult::Refused, VirtualPrinter::WrongPassword}));
        EXPECT_EQ(m->manager->checkLoginPassword({}).kind, WriteResult::Unsent);
        EXPECT_EQ(m->manager->checkLoginPassword(u"abc"_s).kind, WriteResult::Accepted);
        m->manager->disconnectPrinter();
        EXPECT_EQ(m->served.receivedUntilEnd(), u"start =1001 =1001 update end"_s);
    }
    std::string saved(const QString &viewKey) {
        return asText(m->manager->setupDataToMainView(viewKey));
    }

    std::unique_ptr<ServedManager> m;
    std::vector<NotificationCenter::Observer> observers;
    QString steps;
    QMap<ItemCode, QByteArray> sent;
};

INSTANTIATE_TEST_SUITE_P(, Send, allTransports, nameOf);

const QString everyStep =
    u"Start0 Progress16 Progress33 Progress50 Progress66 Progress85 Progress100 Stop0 "_s;

TEST_P(Send, WritesEveryItemInOrderAndKeepsAllButSecrets) {
    for (const auto &[encryption, unused] : {std::pair(2, 0x3106), std::pair(1, 0x3105)}) {
        read(printerOf("{}"));
        changeAll(*m, 1, encryption);
        EXPECT_EQ(send(),
                  u"start =1003 =1004 =1005 =1006 =2001 =3000 =3102 =3103 =3104 =3105 =3106 =3108 "
                  "=3201 =3202 =1007 update end"_s.remove(u" =%1"_s.arg(unused, 4, 16)));
        EXPECT_EQ(steps, everyStep);
        for (const ItemRow &row : itemRows()) {
            if (row.frame.isNull() || row.code == unused || row.code == 0x3103) continue;
            SCOPED_TRACE(row.values);
            EXPECT_EQ(sent.value(row.code), row.frame);
            for (const WantedValue &wanted : valuesOf(row.values)) {
                const Setting &setting = *wanted.setting;
                EXPECT_EQ(
                    m->manager->savedData()[setting.viewKey].value(setting.key) == wanted.value,
                    !itemOf(row.code)->isSecret);
            }
        }
        EXPECT_EQ(m->printer().password(), QByteArray("abcd1234"));
    }
}

TEST_P(Send, WhatWasNotChangedGoesBackAsTheBytesThatCame) {
    read(printerOfRows("Caf\xe9"));  // no UTF-8
    send();
    EXPECT_EQ(sent.take(0x1005), QByteArray("Caf\xe9\0", 5));
    for (const ItemRow &row : itemRows()) {
        if (row.code == 0x1005) continue;
        const QByteArray frame = row.reply.isNull() ? QByteArray() : row.frame;
        EXPECT_EQ(sent.value(row.code), frame) << row.values;
    }
}

TEST_P(Send, TheKeyFollowsTheEncryptionAndTheSsidItsOrigin) {
    read(printerOf("{}"));
    const std::pair<int, QString> cases[] = {
        {0, {}}, {1, u" =3106"_s}, {2, u" =3105"_s}, {3, u" =3105"_s}, {7, {}}};
    for (const auto &[encryption, key] : cases) {
        m->enter("wireless.ssid=typed|.key=12345678|.wepKeyNumber=2|.wepKey=abcde");
        m->change(DWT_View_Key_Infrastructure,
                  {{DWT_SaveData_Infrastructure_Encryption, encryption},
                   {DWT_SaveData_Infrastructure_SSIDList_SSID, hex("ff0001")}});
        EXPECT_TRUE(send().contains(u" =3103 =3104"_s + key + u" =3108"_s)) << encryption;
    }
    EXPECT_EQ(m->printer().item(0x3104), hex("0300ff0001"));
    EXPECT_EQ(m->printer().item(0x3106), hex("02000500") + "abcde");
    EXPECT_NE(saved(DWT_View_Key_Infrastructure).find("SSIDList_SSID=<ff0001>"), std::string::npos);
}

TEST_P(Send, WhatTheEncoderRefusesKeepsItsSavedValueAndIsReported) {
    read(printerOf("{}"));
    const std::string before = saved(DWT_View_Key_Network);
    m->enter("names.bonjour=|accessPoint.ssid=a network of more than 32 bytes..");
    EXPECT_EQ(send(), u"start =1005 =1006 =2001 =3000 =3102 =3103 =3108 =3202 =1007 update end"_s);
    EXPECT_EQ(steps, everyStep);
    EXPECT_EQ(saved(DWT_View_Key_Network), before);
    EXPECT_EQ(namesOf(m->manager->ending().in(Ending::State::Refused), Naming::Stable),
              (QStringList{u"names.bonjour"_s, u"accessPoint.ssid"_s}));
}

TEST_P(Send, LogsInOnceWithTheRememberedPasswordAndARefusedLoginWritesNothing) {
    read(printerOf(R"({"password": "abc"})"));
    EXPECT_EQ(m->manager->isPassword(), 2);
    m->served.receivedUntilEnd();
    logIn();
    EXPECT_TRUE(send().startsWith(u"start =1001 =1004"_s));
    m->enter("device.timeout=45");
    EXPECT_TRUE(send().startsWith(u"start =1004"_s)) << "the password was used twice";
    logIn();
    m->setFaults(R"({"items": {"0x1001": {"result": 2}}})");
    EXPECT_EQ(send(), u"start =1001 update end"_s);
    EXPECT_EQ(steps, u"Start0 Stop0 "_s);
    EXPECT_EQ(saved(DWT_View_Key_Firmware), "Firmware='1.000' Firmware_Timeout=60");
    m->setFaults("{}");
    logIn();
    m->setFaults(R"({"refuseConnection": true})");
    steps.clear();
    m->sendAndWait();
    EXPECT_TRUE(steps.endsWith(u"Stop1 "_s));
    m->setFaults("{}");
    EXPECT_TRUE(send().startsWith(u"start =1004"_s)) << "a password was kept";
}

TEST_P(Send, OutlivesItsOwnerAndFinishesWhenTheApplicationEnds) {
    read(printerOf("{}"));
    m->enter("device.timeout=45");
    const std::weak_ptr<DWTDataManager> manager = m->manager;
    m->manager->sendDataToPrinter();
    m->manager.reset();
    MainThread::finishBackgroundWork();
    EXPECT_TRUE(manager.expired());
    EXPECT_TRUE(m->served.receivedUntilEnd().endsWith(u"=1007 update end"_s)) << "the end was lost";
    EXPECT_EQ(m->printer().item(0x1007), hex("2d00"));
}

TEST_P(Send, WithoutAThreadStopsAtOnceAndLetsTheApplicationEnd) {
    read(printerOf("{}"));
    pthread_attr_t usual, huge;
    ASSERT_EQ(pthread_getattr_default_np(&usual), 0);
    huge = usual;
    ASSERT_EQ(pthread_attr_setstacksize(&huge, size_t{1} << 46), 0);
    ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
    m->manager->sendDataToPrinter();
    pthread_setattr_default_np(&usual);
    EXPECT_EQ(steps, u"Stop1 "_s);
    MainThread::finishBackgroundWork();
}

}  // namespace
