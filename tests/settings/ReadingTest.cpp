#include <QElapsedTimer>

#include "support/DataManagers.h"
#include "support/RecordingLibrary.h"

namespace {

using Transport = OnePrinterLibrary::Transport;

const QString fullRead = QStringLiteral(
    "start ?1006 ?1004 ?1005 ?3000 ?3100 ?3200 ?3108 ?3119 ?3101 ?3102 ?3103 ?3104 ?3204 ?3205 "
    "?3210 ?3211 ?3212 ?3201 ?3202 ?2001 ?2002 ?2000 ?1008 ?1007 update end");

const QByteArray profile = R"json({"items": {
    "0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk (label)",
                 "0x3000" : 2, "0x3100" : "02004C000102",
                 "0x3200" : "02004C000103",
                 "0x3101" : 5,
                 "0x3102" : 3,
                 "0x3103" : 2,
                 "0x3104" : "Ware house",
                 "0x3201" : "DIRECT",
                 "0x3202" : "12345678",
                 "0x1008" : "1.20A",
                 "0x3210" : 4,
                 "0x3211" : 3,
                 "0x3212" : 1,
                 "0x1007" : 90,
                 "0x2000" : "02004C000101",
                 "0x3204" : {"address" : "10.9.0.1", "mask" : "255.255.0.0"},
                 "0x3205" : {"address" : "10.9.0.2"},
                 "0x2001"
    : {"setting" : 1, "address" : "10.0.0.5", "mask" : "255.0.0.0", "gateway" : "10.0.0.1"},
                 "0x3108" : {
    "setting" : 1, "address" : "10.1.0.5", "mask" : "255.255.0.0", "gateway" : "10.1.0.1"
}
}
})json";

QStringList address(const char *dotted) {
    return QString::fromLatin1(dotted).split(u'.');
}
QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

class Reading : public testing::TestWithParam<Transport> {};

INSTANTIATE_TEST_SUITE_P(, Reading, testing::Values(Transport::Virtual, Transport::Tcp),
                         [](const auto &p) { return nameOf(p.param); });

TEST_P(Reading, FillsBothRecordsInTheOrderOfTheWire) {
    ServedManager m(profile, GetParam());
    EXPECT_EQ(m.manager->setupDataToMainView(DWT_View_Key_Network), std::nullopt);
    ASSERT_EQ(m.manager->setupDataFromPrinter(0), 0);
    EXPECT_EQ(m.served.receivedUntilEnd(), fullRead);

    const SettingRecord expected{
        {DWT_View_Key_Network,
         {{DWT_SaveData_Network_Printer, text("Desk")},
          {DWT_SaveData_Network_Bonjour, text("desk")},
          {DWT_SaveData_Network_BonjourService, text("Desk (label)")}}},
        {DWT_View_Key_Wireless,
         {{DWT_SaveData_Wireless_CommunicateMode, 2},
          {DWT_SaveData_Wireless_InfrastructureMACAddress, text("02004C000102")},
          {DWT_SaveData_Wireless_SampleAPMACAddress, text("02004C000103")}}},
        {DWT_View_Key_Infrastructure,
         {{DWT_SaveData_Infrastructure_IPAddressSetting, 1},
          {DWT_SaveData_Infrastructure_IPAddress, address("10.1.0.5")},
          {DWT_SaveData_Infrastructure_Subnetmask, address("255.255.0.0")},
          {DWT_SaveData_Infrastructure_Gateway, address("10.1.0.1")},
          {DWT_SaveData_Connect_IPAddress, address("10.1.0.5")},
          {DWT_SaveData_Connect_Subnetmask, address("255.255.0.0")},
          {DWT_SaveData_Connect_Gateway, address("10.1.0.1")},
          {DWT_SaveData_Infrastructure_WirelessMode, 5},
          {DWT_SaveData_Infrastructure_Authentic, 3},
          {DWT_SaveData_Infrastructure_Encryption, 2},
          {DWT_SaveData_Infrastructure_SSID, text("Ware house")},
          {DWT_SaveData_Infrastructure_SSIDList_SSID, text("")},
          {DWT_SaveData_Infrastructure_WEPKey, text("")},
          {DWT_SaveData_Infrastructure_WEPKeyIndex, 1},
          {DWT_SaveData_Infrastructure_PSK, text("")}}},
        {DWT_View_Key_SimpleAP,
         {{DWT_SaveData_SimpleAP_WirelessMode, 4},
          {DWT_SaveData_SimpleAP_StartIPAddress, address("10.9.0.2")},
          {DWT_SaveData_SimpleAP_IPAddress, address("10.9.0.1")},
          {DWT_SaveData_SimpleAP_Subnetmask, address("255.255.0.0")},
          {DWT_SaveData_SimpleAP_Authentic, 3},
          {DWT_SaveData_SimpleAP_Encryption, 1},
          {DWT_SaveData_SimpleAP_SSID, text("DIRECT")},
          {DWT_SaveData_SimpleAP_PSK, text("12345678")}}},
        {DWT_View_Key_Ethernet,
         {{DWT_SaveData_Ethernet_MACAddress, text("02004C000101")},
          {DWT_SaveData_Ethernet_IPAddressSetting, 1},
          {DWT_SaveData_Ethernet_IPAddress, address("10.0.0.5")},
          {DWT_SaveData_Ethernet_Subnetmask, address("255.0.0.0")},
          {DWT_SaveData_Ethernet_Gateway, address("10.0.0.1")},
          {DWT_SaveData_Connect_IPAddress, address("10.0.0.5")},
          {DWT_SaveData_Connect_Subnetmask, address("255.0.0.0")},
          {DWT_SaveData_Connect_Gateway, address("10.0.0.1")}}},
        {DWT_View_Key_Firmware,
         {{DWT_SaveData_Firmware, text("1.20A")}, {DWT_SaveData_Firmware_Timeout, 90}}},
        {DWT_View_Key_Password,
         {{DWT_SaveData_Password_Change, 0}, {DWT_SaveData_Password_Password, text("")}}}};
    for (auto category = expected.begin(); category != expected.end(); ++category) {
        EXPECT_EQ(m.manager->setupDataToMainView(category.key()), *category)
            << qPrintable(category.key());
        EXPECT_EQ(m.manager->setupDataFromChangeData(category.key()), *category);
    }
    EXPECT_TRUE(m.manager->isEqualToSaveData());

    CategoryDictionary network = expected[DWT_View_Key_Network];
    EXPECT_EQ(m.manager->setupDataFromMainView(network, DWT_View_Key_Network), 0);
    EXPECT_TRUE(m.manager->isEqualToSaveData());
    network.remove(DWT_SaveData_Network_Bonjour);
    m.manager->setupDataFromMainView(network, DWT_View_Key_Network);
    EXPECT_FALSE(m.manager->isEqualToSaveData()) << "a missing key is a difference";
}

TEST_P(Reading, AMissingReplyEndsTheTrafficAndGivesSix) {
    ServedManager m(profile, GetParam());
    m.setFaults(R"({"items": {"0x3000": {"noReply": true}}})");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 6);
    EXPECT_EQ(m.served.received(), QStringLiteral("start ?1006 ?1004 ?1005 ?3000"));
    EXPECT_EQ(textValue(*m.manager->setupDataToMainView(DWT_View_Key_Network),
                        DWT_SaveData_Network_Printer),
              text("Desk"));
    const auto wireless = m.manager->setupDataToMainView(DWT_View_Key_Wireless);
    EXPECT_EQ(integerValue(*wireless, DWT_SaveData_Wireless_CommunicateMode), 0);
    EXPECT_EQ(textValue(*wireless, DWT_SaveData_Wireless_SampleAPMACAddress), text(" "));
    EXPECT_TRUE(m.manager->setupDataToMainView(DWT_View_Key_Infrastructure)->isEmpty());
    EXPECT_EQ(integerValue(*m.manager->setupDataToMainView(DWT_View_Key_Firmware),
                           DWT_SaveData_Firmware_Timeout),
              0);
    EXPECT_EQ(m.manager->isPassword(), 3) << "asks nothing while the read has failed";
    m.setFaults("{}");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 0) << "a new read starts afresh";
}

TEST_P(Reading, AForeignReplyLeavesOneDefaultAndEndsItsCategory) {
    const struct {
        const char *item;
        QString viewKey;
        QStringList keys;
    } cases[] = {{"0x3108", DWT_View_Key_Infrastructure, {}},
                 {"0x2001", DWT_View_Key_Ethernet, {DWT_SaveData_Ethernet_MACAddress}},
                 {"0x3205", DWT_View_Key_SimpleAP, {DWT_SaveData_SimpleAP_WirelessMode}},
                 {"0x1005",
                  DWT_View_Key_Network,
                  {DWT_SaveData_Network_Bonjour, DWT_SaveData_Network_BonjourService,
                   DWT_SaveData_Network_Printer}}};
    for (const auto &c : cases) {
        ServedManager m(profile, GetParam());
        m.setFaults(R"({"items": {")" + QByteArray(c.item) + R"(": {"code": "0x7777"}}})");
        EXPECT_EQ(m.manager->setupDataFromPrinter(0), 0) << c.item;
        EXPECT_EQ(m.manager->setupDataToMainView(c.viewKey)->keys(), c.keys) << c.item;
    }
}

TEST_P(Reading, ARefusedConnectionLeavesNoSavedDataAndEmptyChanges) {
    ServedManager m(R"({"faults": {"refuseConnection": true}})", GetParam());
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 1);
    EXPECT_EQ(m.manager->setupDataToMainView(DWT_View_Key_Network), std::nullopt);
    EXPECT_FALSE(m.manager->isEqualToSaveData());
    EXPECT_EQ(m.manager->SSIDList(), std::nullopt);
}

TEST(ReadingResults, ConnectResultsAreHandedOnAndWithoutALinkNothingExists) {
    const auto library = std::make_shared<RecordingLibrary>();
    library->result = 5;
    installLibrary(library);
    const auto manager =
        DWTDataManager::dataManager({{QStringLiteral("DeviceURI"), QStringLiteral("x")}});
    EXPECT_EQ(manager->setupDataFromPrinter(0), 5);
    installLibrary(nullptr);

    EXPECT_FALSE(DWTDataManager::dataManager({}));
    const auto plain = make<DWTDataManager>();
    EXPECT_EQ(plain->setupDataFromPrinter(0), 1);
    plain->setupDataFromMainView({{text("k"), 1}}, DWT_View_Key_Network);
    EXPECT_EQ(plain->setupDataFromChangeData(DWT_View_Key_Network), std::nullopt);
    EXPECT_FALSE(plain->isEqualToSaveData());
    EXPECT_EQ(plain->SSIDList(), std::nullopt);
}

QByteArray networks(int count) {
    QByteArrayList list;
    for (int i = 0; i < count; ++i) list << R"({"ssid": "N)" + QByteArray::number(i) + R"("})";
    return "[" + list.join(',') + "]";
}

TEST_P(Reading, AScanReadsAsManyBlocksAsNetworksWereFound) {
    const struct {
        int found;
        const char *blocks;
        int listed;
    } cases[] = {{0, "", 0},
                 {5, " ?3121", 5},
                 {7, " ?3121 ?3122", 7},
                 {16, " ?3121 ?3122 ?3123 ?3124", 16},
                 {25, " ?3121 ?3122 ?3123 ?3124", 20}};
    for (const auto &c : cases) {
        ServedManager m(R"({"scanPolls": 0, "networks": )" + networks(c.found) + "}", GetParam());
        const auto list = m.manager->SSIDList();
        ASSERT_TRUE(list) << c.found;
        EXPECT_EQ(list->size(), c.listed);
        for (qsizetype i = 0; i < list->size(); ++i)
            EXPECT_EQ(bytesValue(list->at(i), DWT_SSIDList_SSID), "N" + QByteArray::number(i));
        EXPECT_TRUE(m.served.received().startsWith(QLatin1String("start =3120 ?3120") +
                                                   QLatin1String(c.blocks)));
    }
}

TEST(Scan, PollsEverySecondAndGivesUpAfterTen) {
    ServedManager finishing(R"({"scanPolls": 1, "networks": [{"ssid": "N"}]})", Transport::Virtual);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(finishing.manager->SSIDList()->size(), 1);
    EXPECT_GE(clock.elapsed(), 999);
    EXPECT_LT(clock.elapsed(), 1900);

    ServedManager endless(R"({"scanPolls": 1000, "networks": [{"ssid": "N"}]})",
                          Transport::Virtual);
    clock.start();
    EXPECT_EQ(endless.manager->SSIDList(), QList<SSIDEntry>());
    EXPECT_GE(clock.elapsed(), 9990);
    EXPECT_EQ(endless.served.received(), QStringLiteral("start =3120") +
                                             QStringLiteral(" ?3120").repeated(10) +
                                             QStringLiteral(" update end"));
}

}  // namespace
