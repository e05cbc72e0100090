#include "support/DataManagers.h"
#include "support/RecordingLibrary.h"

namespace {

using Transport = OnePrinterLibrary::Transport;

const QByteArray profile = R"({"items": {"0x1006": "Desk", "0x1004": "desk",
    "0x1005": "Desk [label]", "0x3000": 2, "0x3100": "02004C000102", "0x3200": "02004C000103",
    "0x3101": 5, "0x3102": 3, "0x3103": 2, "0x3104": "Ware house", "0x3201": "DIRECT",
    "0x3202": "12345678", "0x1008": "1.20A", "0x3210": 4, "0x3211": 3, "0x3212": 1, "0x1007": 90,
    "0x2000": "02004C000101", "0x3204": {"address": "10.9.0.1", "mask": "255.255.0.0"},
    "0x3205": {"address": "10.9.0.2"}, "0x2001": {"setting": 1, "address": "10.0.0.5",
    "mask": "255.0.0.0", "gateway": "10.0.0.1"}, "0x3108": {"setting": 1, "address": "10.1.0.5",
    "mask": "255.255.0.0", "gateway": "10.1.0.1"}}})";

class Reading : public testing::TestWithParam<Transport> {};

INSTANTIATE_TEST_SUITE_P(, Reading, testing::Values(Transport::Virtual, Transport::Tcp),
                         [](const auto &p) { return nameOf(p.param); });

TEST_P(Reading, FillsBothRecordsInTheOrderOfTheWire) {
    ServedManager m(profile, GetParam());
    EXPECT_EQ(m.saved(DWT_View_Key_Network), text("nothing"));
    ASSERT_EQ(m.manager->setupDataFromPrinter(0), ReadResult::Complete);
    EXPECT_EQ(m.served.receivedUntilEnd(),
              text("start ?1006 ?1004 ?1005 ?3000 ?3100 ?3200 ?3108 ?3119 ?3101 ?3102 ?3103 ?3104 "
                   "?3204 ?3205 ?3210 ?3211 ?3212 ?3201 ?3202 ?2001 ?2002 ?2000 ?1008 ?1007 update "
                   "end"));
    const QPair<QString, const char *> expected[] = {
        {DWT_View_Key_Network,
         "Network_Bonjour='desk' Network_BonjourService='Desk [label]' Network_Printer='Desk'"},
        {DWT_View_Key_Wireless,
         "Wireless_CommunicateMode=2 Wireless_InfrastructureMACAddress='02004C000102' "
         "Wireless_SampleAPMACAddress='02004C000103'"},
        {DWT_View_Key_Infrastructure,
         "Connect_Gateway=10.1.0.1 Connect_IPAddress=10.1.0.5 Connect_Subnetmask=255.255.0.0 "
         "Infrastructure_Authentic=3 Infrastructure_Encryption=2 Infrastructure_Gateway=10.1.0.1 "
         "Infrastructure_IPAddress=10.1.0.5 Infrastructure_IPAddressSetting=1 "
         "Infrastructure_PSK='' Infrastructure_SSID='Ware house' "
         "Infrastructure_SSIDList_SSID='' Infrastructure_Subnetmask=255.255.0.0 "
         "Infrastructure_WEPKey='' Infrastructure_WEPKeyIndex=1 Infrastructure_WirelessMode=5"},
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
    for (const auto &[viewKey, values] : expected) {
        EXPECT_EQ(m.saved(viewKey), text(values));
        EXPECT_EQ(m.changed(viewKey), text(values));
    }
    EXPECT_TRUE(m.manager->isEqualToSaveData());

    CategoryDictionary network = *m.manager->setupDataToMainView(DWT_View_Key_Network);
    EXPECT_EQ(m.manager->setupDataFromMainView(network, DWT_View_Key_Network), 0);
    EXPECT_TRUE(m.manager->isEqualToSaveData());
    network.remove(DWT_SaveData_Network_Bonjour);
    m.manager->setupDataFromMainView(network, DWT_View_Key_Network);
    EXPECT_FALSE(m.manager->isEqualToSaveData()) << "a missing key is a difference";
}

TEST_P(Reading, AMissingReplyEndsTheTrafficAndGivesSix) {
    ServedManager m(profile, GetParam());
    m.setFaults(R"({"items": {"0x3000": {"noReply": true}}})");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), ReadResult::MissingReply);
    EXPECT_EQ(m.served.received(), text("start ?1006 ?1004 ?1005 ?3000"));
    EXPECT_TRUE(m.saved(DWT_View_Key_Network).endsWith(text("Printer='Desk'")));
    EXPECT_EQ(m.saved(DWT_View_Key_Wireless),
              text("Wireless_CommunicateMode=0 Wireless_InfrastructureMACAddress=' ' "
                   "Wireless_SampleAPMACAddress=' '"));
    EXPECT_EQ(m.saved(DWT_View_Key_Infrastructure), QString());
    EXPECT_EQ(m.saved(DWT_View_Key_Firmware), text("Firmware=' ' Firmware_Timeout=0"));
    EXPECT_EQ(m.manager->isPassword(), PasswordState::NotSet) << "asked after a failed read";
    m.setFaults("{}");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), ReadResult::Complete) << "starts afresh";
}

TEST(ReadingFaults, AForeignReplyLeavesOneDefaultAndMayEndItsCategory) {
    const struct {
        const char *item;
        QString viewKey;
        const char *values;
    } cases[] = {{"0x3108", DWT_View_Key_Infrastructure, ""},
                 {"0x2001", DWT_View_Key_Ethernet, "Ethernet_MACAddress='02004C000101'"},
                 {"0x3205", DWT_View_Key_SimpleAP, "SimpleAP_WirelessMode=4"},
                 {"0x1005", DWT_View_Key_Network,
                  "Network_Bonjour='desk' Network_BonjourService=' ' Network_Printer='Desk'"},
                 {"0x3201", DWT_View_Key_SimpleAP,
                  "SimpleAP_Authentic=3 SimpleAP_Encryption=1 SimpleAP_IPAddress=10.9.0.1 "
                  "SimpleAP_PSK='12345678' SimpleAP_SSID=' ' SimpleAP_StartIPAddress=10.9.0.2 "
                  "SimpleAP_Subnetmask=255.255.0.0 SimpleAP_WirelessMode=4"}};
    for (const auto &c : cases) {
        ServedManager m(profile, Transport::Virtual);
        m.setFaults(R"({"items": {")" + QByteArray(c.item) + R"(": {"code": "0x7777"}}})");
        EXPECT_EQ(m.manager->setupDataFromPrinter(0), ReadResult::Complete) << c.item;
        EXPECT_EQ(m.saved(c.viewKey), text(c.values)) << c.item;
    }
}

TEST_P(Reading, ARefusedConnectionLeavesNoSavedDataAndEmptyChanges) {
    ServedManager m(R"({"faults": {"refuseConnection": true}})", GetParam());
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 1);
    EXPECT_EQ(m.saved(DWT_View_Key_Network), text("nothing"));
    EXPECT_FALSE(m.manager->isEqualToSaveData());
    EXPECT_EQ(m.manager->SSIDList(), std::nullopt);
}

TEST(ReadingResults, ConnectResultsAreHandedOnAndWithoutALinkNothingExists) {
    const auto library = std::make_shared<RecordingLibrary>();
    library->result = 5;
    installLibrary(library);
    const auto manager = DWTDataManager::dataManager({{text("DeviceURI"), text("x")}});
    EXPECT_EQ(manager->setupDataFromPrinter(0), 5);
    installLibrary(nullptr);

    EXPECT_FALSE(DWTDataManager::dataManager({}));
    const auto plain = make<DWTDataManager>();
    EXPECT_EQ(plain->setupDataFromPrinter(0), ReadResult::NoLink);
    plain->setupDataFromMainView({{text("k"), 1}}, DWT_View_Key_Network);
    EXPECT_EQ(plain->setupDataFromChangeData(DWT_View_Key_Network), std::nullopt);
    EXPECT_FALSE(plain->isEqualToSaveData());
    EXPECT_EQ(plain->SSIDList(), std::nullopt);
}

TEST(Scan, ReadsAsManyBlocksAsNetworksWereFoundAndGivesUpAfterTenPolls) {
    const struct {
        int found, polls;  // before it has finished
        const char *asked;
        int listed;
    } cases[] = {{0, 0, "?3120", 0},
                 {5, 1, "?3120 ?3120 ?3121", 5},
                 {6, 0, "?3120 ?3121 ?3122", 6},
                 {16, 0, "?3120 ?3121 ?3122 ?3123 ?3124", 16},
                 {25, 0, "?3120 ?3121 ?3122 ?3123 ?3124", 20},
                 {1, 10, "?3120 ?3120 ?3120 ?3120 ?3120 ?3120 ?3120 ?3120 ?3120 ?3120", 0}};
    for (const auto &c : cases) {
        QByteArrayList networks;
        for (int i = 0; i < c.found; ++i)
            networks << R"({"ssid": "N)" + QByteArray::number(i) + R"("})";
        ServedManager m(R"({"scanPolls": )" + QByteArray::number(c.polls) + R"(, "networks": [)" +
                            networks.join(',') + "]}",
                        Transport::Virtual);
        const auto list = m.manager->SSIDList();
        ASSERT_TRUE(list) << c.found;
        EXPECT_EQ(list->size(), c.listed);
        for (qsizetype i = 0; i < list->size(); ++i)
            EXPECT_EQ(bytesValue(list->at(i), DWT_SSIDList_SSID), "N" + QByteArray::number(i));
        EXPECT_EQ(m.served.received(), text("start =3120 ") + text(c.asked) + text(" update end"));
    }
    static_assert(DWTDataManager::scanInterval == std::chrono::seconds(1));
}

}  // namespace
