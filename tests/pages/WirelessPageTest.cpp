#include "PageInWindow.h"
#include "pages/DWTWirelessView.h"

namespace {

class WirelessPage : public PageTest<DWTWirelessView> {
  protected:
    WirelessPage()
        : PageTest(R"("0x3000": 2, "0x3100": "02004C000102", "0x3200": "02004C000103")") {}
};

TEST_F(WirelessPage, TheModeReachesTheChangeDataAtEveryChoice) {
    EXPECT_EQ(page->wirelessCommunicateMode(), CommunicationMode::AccessPoint);
    EXPECT_EQ(shown("textField_WirelessInfrastructureMACAddress"), text("02004C000102"));
    EXPECT_EQ(shown("textField_WirelessSimpleAPMACAddress"), text("02004C000103"));
    pick("buttonCell_WirelessInfrastructure");
    EXPECT_EQ(changedNumber(DWT_SaveData_Wireless_CommunicateMode),
              CommunicationMode::Infrastructure);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_EQ(changeList(),
              text("Communication mode: Access point: computers join the printer’s own network > "
                   "Infrastructure: join an existing wireless network"));
    pick("buttonCell_WirelessSimpleA");
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the first mode was chosen again";
    page->enableAllItems(false);
    pick("buttonCell_WirelessWifiNothing");
    EXPECT_EQ(page->wirelessCommunicateMode(), CommunicationMode::AccessPoint);
    EXPECT_TRUE(alertsOf(true).isEmpty());
    showNothing();
    EXPECT_EQ(page->wirelessCommunicateMode(), CommunicationMode::AccessPoint);
    EXPECT_EQ(shown("textField_WirelessSimpleAPMACAddress"), text("02004C000103"));
}

}  // namespace
