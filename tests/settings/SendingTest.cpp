#include "platform/core/MainThread.h"
#include "platform/core/NotificationCenter.h"
#include "support/DataManagers.h"

namespace {

using Transport = OnePrinterLibrary::Transport;

QStringList address(const char *dotted) {
    return QString::fromLatin1(dotted).split(u'.');
}
// A manager whose printer has been read, and the notifications of its sends.
class Send : public testing::TestWithParam<Transport> {
  protected:
    void read(const QByteArray &profile) {
        observers.clear();
        m.reset();  // before the next one is installed in its place
        m = std::make_unique<ServedManager>(profile, GetParam());
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
        const QString kind = n.name.section(u'_', 2, 2);
        steps << kind + n.userInfo.value(MSW_Searching_Value_Current).toString();
        stopped = n.name == DWT_DataSend_Stop_Message;
    }
    void change(const QString &viewKey, const CategoryDictionary &values) {
        CategoryDictionary category = *m->manager->setupDataFromChangeData(viewKey);
        category.insert(values);
        m->manager->setupDataFromMainView(category, viewKey);
    }
    void sendUntilStop() {
        steps.clear();
        stopped = false;
        m->manager->sendDataToPrinter();
        EXPECT_TRUE(QTest::qWaitFor([this] { return stopped; }, 20000));
    }
    // Sends; what the printer received.
    QString send() {
        sendUntilStop();
        return m->served.receivedUntilEnd();
    }
    SettingValue saved(const QString &viewKey, const QString &key) {
        return m->manager->setupDataToMainView(viewKey)->value(key);
    }

    std::unique_ptr<ServedManager> m;
    std::vector<NotificationCenter::Observer> observers;
    QStringList steps;
    bool stopped = false;
};

INSTANTIATE_TEST_SUITE_P(, Send, testing::Values(Transport::Virtual, Transport::Tcp),
                         [](const auto &p) { return nameOf(p.param); });

const char *const everyStep =
    "Start0 Progress16 Progress33 Progress50 Progress66 Progress85 Progress100 Stop0";

TEST_P(Send, WritesEveryItemInOrderAndThePrinterHoldsWhatWasSent) {
    read(R"({"items": {"0x3103": 3, "0x3104": "Old"}})");
    change(DWT_View_Key_Network, {{DWT_SaveData_Network_Printer, text("Name")},
                                  {DWT_SaveData_Network_Bonjour, text("bonjour")},
                                  {DWT_SaveData_Network_BonjourService, text("Service")}});
    change(DWT_View_Key_Ethernet, {{DWT_SaveData_Ethernet_IPAddressSetting, 1},
                                   {DWT_SaveData_Ethernet_IPAddress, address("10.0.0.7")},
                                   {DWT_SaveData_Ethernet_Subnetmask, address("255.0.0.0")},
                                   {DWT_SaveData_Ethernet_Gateway, address("10.0.0.1")}});
    change(DWT_View_Key_Wireless, {{DWT_SaveData_Wireless_CommunicateMode, 2}});
    change(DWT_View_Key_Infrastructure,
           {{DWT_SaveData_Infrastructure_SSID, text("New")},
            {DWT_SaveData_Infrastructure_PSK, text("secret key")},
            {DWT_SaveData_Infrastructure_IPAddressSetting, 1},
            {DWT_SaveData_Infrastructure_IPAddress, address("10.2.0.7")},
            {DWT_SaveData_Infrastructure_Subnetmask, address("255.255.0.0")},
            {DWT_SaveData_Infrastructure_Gateway, address("10.2.0.1")}});
    change(DWT_View_Key_SimpleAP, {{DWT_SaveData_SimpleAP_SSID, text("AP")},
                                   {DWT_SaveData_SimpleAP_PSK, text("other key")}});
    change(DWT_View_Key_Firmware, {{DWT_SaveData_Firmware_Timeout, 120}});
    change(DWT_View_Key_Password,
           {{DWT_SaveData_Password_Change, 1}, {DWT_SaveData_Password_Password, text("new")}});
    EXPECT_EQ(send(),
              text("start =1003 =1004 =1005 =1006 =2001 =3000 =3102 =3103 =3104 =3105 =3108 "
                   "=3201 =3202 =1007 update end"));
    EXPECT_EQ(steps.join(u' '), text(everyStep));

    VirtualPrinter &printer = m->printer();
    EXPECT_EQ(printer.password(), "new");
    EXPECT_EQ(printer.item(0x1006), "Name");
    EXPECT_EQ(printer.item(0x1004), "bonjour");
    EXPECT_EQ(printer.item(0x1005), "Service");
    EXPECT_EQ(printer.item(0x2001), hex("01000a000007ff0000000a000001"));
    EXPECT_EQ(printer.item(0x2002).left(4), hex("0a000007"));
    EXPECT_EQ(printer.item(0x3000), hex("0200"));
    EXPECT_EQ(printer.item(0x3104), hex("0300") + "New");
    EXPECT_EQ(printer.item(0x3105), hex("0a00") + "secret key");
    EXPECT_EQ(printer.item(0x3108), hex("01000a020007ffff00000a020001"));
    EXPECT_EQ(printer.item(0x3201), hex("0200") + "AP");
    EXPECT_EQ(printer.item(0x3202), hex("0900") + "other key");
    EXPECT_EQ(printer.item(0x1007), hex("7800"));

    EXPECT_EQ(saved(DWT_View_Key_Network, DWT_SaveData_Network_Printer),
              SettingValue(text("Name")));
    EXPECT_EQ(saved(DWT_View_Key_SimpleAP, DWT_SaveData_SimpleAP_PSK),
              SettingValue(text("00000000")))
        << "the key is sent, but not taken over";
    EXPECT_EQ(saved(DWT_View_Key_Password, DWT_SaveData_Password_Change), SettingValue(0));
    EXPECT_FALSE(m->manager->isEqualToSaveData());
}

TEST_P(Send, TheKeyFollowsTheEncryptionAndTheSsidItsOrigin) {
    const struct {
        int encryption;
        const char *key;
    } cases[] = {{0, ""}, {1, " =3106"}, {2, " =3105"}, {3, " =3105"}, {7, ""}};
    for (const auto &c : cases) {
        read("{}");
        change(DWT_View_Key_Infrastructure,
               {{DWT_SaveData_Infrastructure_Encryption, c.encryption},
                {DWT_SaveData_Infrastructure_SSID, text("typed")},
                {DWT_SaveData_Infrastructure_SSIDList_SSID, hex("ff0001")},
                {DWT_SaveData_Infrastructure_PSK, text("12345678")},
                {DWT_SaveData_Infrastructure_WEPKeyIndex, 2},
                {DWT_SaveData_Infrastructure_WEPKey, text("abcde")}});
        EXPECT_TRUE(send().contains(text(" =3103 =3104") + text(c.key) + text(" =3108")))
            << c.encryption;
        EXPECT_EQ(m->printer().item(0x3104), hex("0300ff0001"));
        if (c.encryption == 1) {
            EXPECT_EQ(m->printer().item(0x3106), hex("02000500") + "abcde");
        }
        EXPECT_EQ(saved(DWT_View_Key_Infrastructure, DWT_SaveData_Infrastructure_SSIDList_SSID),
                  SettingValue(hex("ff0001")));
    }
}

TEST_P(Send, WhatThePrinterOrTheEncoderRefusesKeepsItsSavedValue) {
    read(R"({"items": {"0x1006": "Old"}})");
    m->setFaults(R"({"items": {"0x1006": {"result": 5}, "0x2001": {"code": "0x7777"}}})");
    change(DWT_View_Key_Network,
           {{DWT_SaveData_Network_Printer, text("New")}, {DWT_SaveData_Network_Bonjour, text("")}});
    change(DWT_View_Key_Ethernet, {{DWT_SaveData_Ethernet_IPAddress, address("10.0.0.7")}});
    change(DWT_View_Key_SimpleAP, {{DWT_SaveData_SimpleAP_SSID, QString(33, u'x')}});
    change(DWT_View_Key_Firmware, {{DWT_SaveData_Firmware_Timeout, 45}});
    const QString frames = send();
    EXPECT_FALSE(frames.contains(text("=1004"))) << "an empty name was sent";
    EXPECT_FALSE(frames.contains(text("=3201"))) << "a name too long was sent";
    EXPECT_EQ(steps.join(u' '), text(everyStep));
    EXPECT_EQ(saved(DWT_View_Key_Network, DWT_SaveData_Network_Printer), SettingValue(text("Old")));
    EXPECT_EQ(saved(DWT_View_Key_Network, DWT_SaveData_Network_Bonjour),
              SettingValue(text("label-printer")));
    EXPECT_EQ(saved(DWT_View_Key_Ethernet, DWT_SaveData_Ethernet_IPAddress),
              SettingValue(address("192.168.1.50")));
    EXPECT_EQ(saved(DWT_View_Key_Firmware, DWT_SaveData_Firmware_Timeout), SettingValue(45));
    EXPECT_EQ(textValue(*m->manager->setupDataFromChangeData(DWT_View_Key_Network),
                        DWT_SaveData_Network_Printer),
              text("New"));
}

TEST_P(Send, LogsInOnceWithTheRememberedPassword) {
    read(R"({"password": "abc"})");
    EXPECT_EQ(m->manager->isPassword(), 2);
    ASSERT_EQ(m->manager->connectPrinter(), 0);
    EXPECT_EQ(m->manager->checkLoginPassword(text("no")), VirtualPrinter::WrongPassword);
    EXPECT_EQ(m->manager->checkLoginPassword(text("")), 1) << "an empty password goes nowhere";
    EXPECT_EQ(m->manager->checkLoginPassword(text("abc")), 4);
    m->manager->disconnectPrinter();
    m->served.receivedUntilEnd();
    EXPECT_TRUE(send().startsWith(text("start =1001 =1004")));
    change(DWT_View_Key_Firmware, {{DWT_SaveData_Firmware_Timeout, 45}});
    EXPECT_TRUE(send().startsWith(text("start =1004"))) << "the password was used twice";
    EXPECT_EQ(saved(DWT_View_Key_Firmware, DWT_SaveData_Firmware_Timeout), SettingValue(60));
}

TEST_P(Send, ARefusedLoginWritesNothing) {
    read(R"({"password": "abc"})");
    m->manager->connectPrinter();
    ASSERT_EQ(m->manager->checkLoginPassword(text("abc")), 4);
    m->manager->disconnectPrinter();
    m->served.receivedUntilEnd();
    m->setFaults(R"({"items": {"0x1001": {"result": 2}}})");
    change(DWT_View_Key_Firmware, {{DWT_SaveData_Firmware_Timeout, 45}});
    EXPECT_EQ(send(), text("start =1001 update end"));
    EXPECT_EQ(steps.join(u' '), text("Start0 Stop0"));
    EXPECT_EQ(saved(DWT_View_Key_Firmware, DWT_SaveData_Firmware_Timeout), SettingValue(60));
}

TEST_P(Send, ARefusedConnectionStartsAndStopsWithOne) {
    read("{}");
    m->setFaults(R"({"refuseConnection": true})");
    if (GetParam() == Transport::Tcp)
        installLibrary(std::make_shared<CatalogueLibrary>(Catalogue()));
    sendUntilStop();
    EXPECT_EQ(steps.join(u' '), text("Start0 Stop1"));
}

TEST_P(Send, OutlivesItsOwnerAndFinishesWhenTheApplicationEnds) {
    read(R"({"faults": {"delay": 5}})");
    change(DWT_View_Key_Firmware, {{DWT_SaveData_Firmware_Timeout, 45}});
    const std::weak_ptr<DWTDataManager> manager = m->manager;
    m->manager->sendDataToPrinter();
    m->manager.reset();
    MainThread::finishBackgroundWork();
    EXPECT_TRUE(manager.expired());
    EXPECT_TRUE(m->served.receivedUntilEnd().endsWith(text("=1007 update end")))
        << "the end was lost";
    EXPECT_EQ(m->printer().item(0x1007), hex("2d00"));
}

}  // namespace
