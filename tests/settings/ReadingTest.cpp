#include <QElapsedTimer>

#include "ItemRows.h"
#include "support/RecordingLibrary.h"

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Reading = EveryTransport;
INSTANTIATE_TEST_SUITE_P(, Reading, allTransports, nameOf);

TEST_P(Reading, FillsBothRecordsInTheOrderOfTheWire) {
    ServedManager m(printerOfRows(), GetParam());
    EXPECT_EQ(m.manager->setupDataToMainView(DWT_View_Key_Network), std::nullopt);
    ASSERT_EQ(m.manager->setupDataFromPrinter(0), 0);
    QString order = u"start"_s;
    SettingRecord saved = m.manager->savedData(), changed = m.manager->changeData();
    for (const ItemRow &row : itemRows()) {
        if (row.reply.isNull()) continue;
        order += u" ?%1"_s.arg(row.code, 4, 16);
        for (const WantedValue &value : valuesOf(row.values))
            for (SettingRecord *const record : {&saved, &changed})
                EXPECT_EQ((*record)[value.setting->viewKey].take(value.setting->key), value.value)
                    << row.values;
    }
    EXPECT_EQ(m.served.receivedUntilEnd(), order + u" update end"_s);
    EXPECT_EQ(saved, changed);
    EXPECT_EQ(asText(saved),
              "||Infrastructure_PSK='' Infrastructure_SSIDList_SSID='' Infrastructure_WEPKey='' "
              "Infrastructure_WEPKeyIndex=1||Password_Change=0 Password_Password=''|||");
    EXPECT_TRUE(m.manager->isEqualToSaveData());
    CategoryDictionary network = *m.manager->setupDataFromChangeData(DWT_View_Key_Network);
    network.remove(DWT_SaveData_Network_Bonjour);
    EXPECT_EQ(m.manager->setupDataFromMainView(network, DWT_View_Key_Network), 0);
    EXPECT_FALSE(m.manager->isEqualToSaveData()) << "a missing key is a difference";
}

TEST(ReadingFaults, AMissingReplyEndsTheTrafficAndGivesSix) {
    ServedManager m(printerOfRows());
    m.setFaults(R"({"items": {"0x3000": {"noReply": true}}})");
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 6);
    EXPECT_EQ(m.served.receivedUntilEnd(), u"start ?1006 ?1004 ?1005 ?3000 update end"_s);
    EXPECT_EQ(asText(m.manager->savedData()),
              "Ethernet_MACAddress=' '|Firmware=' ' Firmware_Timeout=0||Network_Bonjour='desk' "
              "Network_BonjourService='Desk's label' Network_Printer='Desk'|"
              "Password_Change=0 Password_Password=''|SimpleAP_WirelessMode=0|"
              "Wireless_CommunicateMode=0 "
              "Wireless_InfrastructureMACAddress=' ' Wireless_SampleAPMACAddress=' '|");
    EXPECT_EQ(m.manager->isPassword(), 3) << "not asked once the read has failed";
}

TEST(ReadingResults, ConnectResultsAreHandedOnAndWithoutALinkNothingExists) {
    const ServedManager m(R"({"faults": {"refuseConnection": true}})");
    const auto plain = make<DWTDataManager>();
    for (const auto &manager : {m.manager, plain}) {
        EXPECT_EQ(manager->setupDataFromPrinter(0), 1);
        EXPECT_FALSE(manager->isEqualToSaveData());
        EXPECT_EQ(manager->SSIDList(), std::nullopt);
    }
    const auto library = std::make_shared<RecordingLibrary>();
    library->result = 5;
    installLibrary(library);
    EXPECT_EQ(m.manager->setupDataFromPrinter(0), 5);
    EXPECT_FALSE(DWTDataManager::dataManager({}));
    plain->setupDataFromMainView({{u"k"_s, 1}}, DWT_View_Key_Network);
    EXPECT_EQ(plain->setupDataFromChangeData(DWT_View_Key_Network), std::nullopt);
}

TEST(Scan, ReadsAsManyBlocksAsNetworksWereFoundAndEndsWithThemOrWithNothing) {
    constexpr int all = DWTDataManager::scanPolls;
    const char *const atOnce = R"("scanPolls": 0)";
    const char *const silentBlock =
        R"("scanPolls": 0, "faults": {"items": {"0x3122": {"noReply": true}}})";
    const struct {
        const char *profile;
        int found;
        std::optional<int> listed;
        int polls;
        const char *blocks;
    } cases[] = {
        {atOnce, 0, 0, 1, ""},
        {atOnce, 5, 5, 1, " ?3121"},
        {atOnce, 6, 6, 1, " ?3121 ?3122"},
        {atOnce, 11, 11, 1, " ?3121 ?3122 ?3123"},
        {atOnce, 16, 16, 1, " ?3121 ?3122 ?3123 ?3124"},
        {atOnce, 25, 20, 1, " ?3121 ?3122 ?3123 ?3124"},
        {R"("scanPolls": 1)", 6, 6, 2, " ?3121 ?3122"},
        {R"("scanPolls": 1000)", 6, {}, all, ""},
        {R"("scanPolls": 0, "faults": {"items": {"0x3120": {"noReply": true}}})", 6, {}, 1, ""},
        {R"("faults": {"items": {"0x3120": {"code": "0x7777"}}})", 6, {}, all, ""},
        {silentBlock, 6, {}, 1, " ?3121 ?3122"}};
    for (const auto &c : cases) {
        QByteArrayList networks;
        for (int i = 0; i < c.found; ++i)
            networks << R"({"ssid": "N)" + QByteArray::number(i) + R"("})";
        ServedManager m(R"({"networks": [)" + networks.join(',') + "], " + c.profile + '}');
        m.manager->setScanInterval(20ms);
        QElapsedTimer clock;
        clock.start();
        const auto list = m.manager->SSIDList();
        EXPECT_GE(clock.elapsed(), 20 * (c.polls - 1)) << c.profile;
        ASSERT_EQ(list ? std::optional(int(list->size())) : std::nullopt, c.listed) << c.profile;
        for (qsizetype i = 0; list && i < list->size(); ++i)
            EXPECT_EQ(bytesValue(list->at(i), DWT_SSIDList_SSID), "N" + QByteArray::number(i));
        EXPECT_EQ(m.served.received(), u"start =3120"_s + u" ?3120"_s.repeated(c.polls) +
                                           QLatin1String(c.blocks) + u" update end"_s);
    }
}

}  // namespace
