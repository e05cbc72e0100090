#include <QElapsedTimer>

#include "support/DataManagers.h"
#include "support/RecordingLibrary.h"

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Transport = OnePrinterLibrary::Transport;

const char *const profile = R"({"items": {
    "0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk's label", "0x3000": 2, "0x3100": "02004C000102",
    "0x3200": "02004C000103", "0x3101": 5, "0x3102": 3, "0x3103": 2, "0x3104": "Ware house",
    "0x3201": "DIRECT", "0x3202": "12345678", "0x1008": "1.20A", "0x3210": 4, "0x3211": 3,
    "0x3212": 1, "0x1007": 90, "0x2000": "02004C000101", "0x3205": {"address": "10.9.0.2"},
    "0x3204": {"address": "10.9.0.1", "mask": "255.255.0.0"},
    "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"},
    "0x3108": {"setting": 1, "address": "10.1.0.5", "mask": "255.255.0.0", "gateway": "10.1.0.1"}
    }})";

const std::pair<QString, const char *> asRead[] = {
    {DWT_View_Key_Network,
     "Network_Bonjour='desk' Network_BonjourService='Desk's label' Network_Printer='Desk'"},
    {DWT_View_Key_Wireless,
     "Wireless_CommunicateMode=2 Wireless_InfrastructureMACAddress='02004C000102' "
     "Wireless_SampleAPMACAddress='02004C000103'"},
    {DWT_View_Key_Infrastructure,
     "Connect_Gateway=10.1.0.1 Connect_IPAddress=10.1.0.5 Connect_Subnetmask=255.255.0.0 "
     "Infrastructure_Authentic=3 Infrastructure_Encryption=2 Infrastructure_Gateway=10.1.0.1 "
     "Infrastructure_IPAddress=10.1.0.5 Infrastructure_IPAddressSetting=1 Infrastructure_PSK='' "
     "Infrastructure_SSID='Ware house' Infrastructure_SSIDList_SSID='' "
     "Infrastructure_Subnetmask=255.255.0.0 Infrastructure_WEPKey='' "
     "Infrastructure_WEPKeyIndex=1 Infrastructure_WirelessMode=5"},
    {DWT_View_Key_SimpleAP,
     "SimpleAP_Authentic=3 SimpleAP_Encryption=1 SimpleAP_IPAddress=10.9.0.1 "
     "SimpleAP_PSK='12345678' SimpleAP_SSID='DIRECT' SimpleAP_StartIPAddress=10.9.0.2 "
     "SimpleAP_Subnetmask=255.255.0.0 SimpleAP_WirelessMode=4"},
    {DWT_View_Key_Ethernet,
     "Connect_Gateway=10.0.0.1 Connect_IPAddress=10.0.0.5 Connect_Subnetmask=255.0.0.0 "
     "Ethernet_Gateway=10.0.0.1 Ethernet_IPAddress=10.0.0.5 Ethernet_IPAddressSetting=1 "
     "Ethernet_MACAddress='02004C000101' Ethernet_Subnetmask=255.0.0.0"},
    {DWT_View_Key_Firmware, "Firmware='1.20A' Firmware_Timeout=90"},
    {DWT_View_Key_Password, "Password_Change=0 Password_Password=''"}};

using Reading = EveryTransport;
INSTANTIATE_TEST_SUITE_P(, Reading, allTransports, nameOf);

TEST_P(Reading, FillsBothRecordsInTheOrderOfTheWire) {
    ServedManager m(profile, GetParam());
    EXPECT_EQ(m.manager->setupDataToMainView(DWT_View_Key_Network), std::nullopt);
    ASSERT_EQ(m.manager->setupDataFromPrinter(0), 0);
    EXPECT_EQ(
        m.served.receivedUntilEnd(),
        u"start ?1006 ?1004 ?1005 ?3000 ?3100 ?3200 ?3108 ?3119 ?3101 ?3102 ?3103 ?3104 ?3204 "
        "?3205 ?3210 ?3211 ?3212 ?3201 ?3202 ?2001 ?2002 ?2000 ?1008 ?1007 update end"_s);
    for (const auto &[viewKey, values] : asRead) {
        EXPECT_EQ(asText(m.manager->setupDataToMainView(viewKey)), values);
        EXPECT_EQ(asText(m.manager->setupDataFromChangeData(viewKey)), values);
    }
    EXPECT_TRUE(m.manager->isEqualToSaveData());
    CategoryDictionary network = *m.manager->setupDataFromChangeData(DWT_View_Key_Network);
    network.remove(DWT_SaveData_Network_Bonjour);
    EXPECT_EQ(m.manager->setupDataFromMainView(network, DWT_View_Key_Network), 0);
    EXPECT_FALSE(m.manager->isEqualToSaveData()) << "a missing key is a difference";
}

TEST_P(Reading, AMissingReplyEndsTheTrafficAndGivesSix) {
    ServedManager m(profile, GetParam());
    m.setFaults(R"({"items": {"0x3000": {"noReply": true}}})");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 6);
    EXPECT_EQ(m.served.receivedUntilEnd(), u"start ?1006 ?1004 ?1005 ?3000 update end"_s);
    const auto read = [&](const QString &key) {
        return asText(m.manager->setupDataToMainView(key));
    };
    EXPECT_EQ(read(DWT_View_Key_Network), asRead[0].second);
    EXPECT_EQ(read(DWT_View_Key_Wireless),
              "Wireless_CommunicateMode=0 Wireless_InfrastructureMACAddress=' ' "
              "Wireless_SampleAPMACAddress=' '");
    EXPECT_EQ(read(DWT_View_Key_Infrastructure), "");
    EXPECT_EQ(read(DWT_View_Key_SimpleAP), "SimpleAP_WirelessMode=0");
    EXPECT_EQ(read(DWT_View_Key_Ethernet), "Ethernet_MACAddress=' '");
    EXPECT_EQ(read(DWT_View_Key_Firmware), "Firmware=' ' Firmware_Timeout=0");
    EXPECT_EQ(m.manager->isPassword(), 3) << "not asked once the read has failed";
}

TEST_P(Reading, AForeignReplyLeavesOneDefaultAndEndsItsCategory) {
    const struct {
        QByteArray item;
        QString viewKey;
        const char *values;
    } cases[] = {{"0x3108", DWT_View_Key_Infrastructure, ""},
                 {"0x2001", DWT_View_Key_Ethernet, "Ethernet_MACAddress='02004C000101'"},
                 {"0x1005", DWT_View_Key_Network,
                  "Network_Bonjour='desk' Network_BonjourService=' ' Network_Printer='Desk'"},
                 {"0x3201", DWT_View_Key_SimpleAP,
                  "SimpleAP_Authentic=3 SimpleAP_Encryption=1 SimpleAP_IPAddress=10.9.0.1 "
                  "SimpleAP_PSK='12345678' SimpleAP_SSID=' ' SimpleAP_StartIPAddress=10.9.0.2 "
                  "SimpleAP_Subnetmask=255.255.0.0 SimpleAP_WirelessMode=4"},
                 {"0x1007", DWT_View_Key_Firmware, "Firmware='1.20A' Firmware_Timeout=0"}};
    ServedManager m(profile, GetParam());
    for (const auto &c : cases) {
        m.setFaults(R"({"items": {")" + c.item + R"(": {"code": "0x7777"}}})");
        EXPECT_EQ(m.manager->setupDataFromPrinter(0), 0) << c.item.constData();
        EXPECT_EQ(asText(m.manager->setupDataToMainView(c.viewKey)), c.values);
    }
}

TEST(ReadingResults, ConnectResultsAreHandedOnAndWithoutALinkNothingExists) {
    ServedManager m(R"({"faults": {"refuseConnection": true}})", Transport::Virtual);
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 1);
    EXPECT_FALSE(m.manager->isEqualToSaveData());
    EXPECT_EQ(m.manager->SSIDList(), std::nullopt);
    const auto library = std::make_shared<RecordingLibrary>();
    library->result = 5;
    installLibrary(library);
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 5);

    EXPECT_FALSE(DWTDataManager::dataManager({}));
    const auto plain = make<DWTDataManager>();
    EXPECT_EQ(plain->setupDataFromPrinter(0), 1);
    plain->setupDataFromMainView({{u"k"_s, 1}}, DWT_View_Key_Network);
    EXPECT_EQ(plain->setupDataFromChangeData(DWT_View_Key_Network), std::nullopt);
    EXPECT_FALSE(plain->isEqualToSaveData());
    EXPECT_EQ(plain->SSIDList(), std::nullopt);
}

TEST_P(Reading, AScanReadsAsManyBlocksAsNetworksWereFound) {
    const std::pair<int, QString> cases[] = {{0, {}},
                                             {5, u"?3121 "_s},
                                             {6, u"?3121 ?3122 "_s},
                                             {11, u"?3121 ?3122 ?3123 "_s},
                                             {16, u"?3121 ?3122 ?3123 ?3124 "_s},
                                             {25, u"?3121 ?3122 ?3123 ?3124 "_s}};
    for (const auto &[found, blocks] : cases) {
        QByteArrayList networks;
        for (int i = 0; i < found; ++i)
            networks << R"({"ssid": "N)" + QByteArray::number(i) + R"("})";
        ServedManager m(R"({"scanPolls": 0, "networks": [)" + networks.join(',') + "]}",
                        GetParam());
        const auto list = m.manager->SSIDList();
        ASSERT_TRUE(list) << found;
        EXPECT_EQ(list->size(), std::min(found, 20));
        for (qsizetype i = 0; i < list->size(); ++i)
            EXPECT_EQ(bytesValue(list->at(i), DWT_SSIDList_SSID), "N" + QByteArray::number(i));
        EXPECT_EQ(m.served.receivedUntilEnd(), u"start =3120 ?3120 "_s + blocks + u"update end"_s);
    }
}

TEST(Scan, PollsInEveryIntervalAndGivesUpAfterTen) {
    EXPECT_EQ(DWTDataManager::defaultScanInterval * DWTDataManager::scanPolls, 10s);
    const auto received = [](const QByteArray &polls, int milliseconds, int networks) {
        ServedManager m(R"({"networks": [{"ssid": "N"}], "scanPolls": )" + polls + "}",
                        Transport::Virtual);
        m.manager->setScanInterval(20ms);
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(m.manager->SSIDList().value().size(), networks);
        EXPECT_GE(clock.elapsed(), milliseconds);
        return m.served.received();
    };
    EXPECT_EQ(received("1", 20, 1), u"start =3120 ?3120 ?3120 ?3121 update end"_s);
    EXPECT_EQ(received("1000", 200, 0),
              u"start =3120"_s + u" ?3120"_s.repeated(10) + u" update end"_s);
}

}  // namespace
