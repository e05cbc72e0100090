#include "PageInWindow.h"
#include "pages/DWTSimpleAPView.h"

namespace {

class SimpleAPPage : public PageTest<DWTSimpleAPView> {
  protected:
    SimpleAPPage() : PageTest(R"("0x3201": "Desk", "0x3202": " ", "0x3210": 1, "0x3211": 3)") {}
};

TEST_F(SimpleAPPage, ShowsWhatThePrinterTellsAndStoresNameAndKey) {
    auto *ssid = control("textField_SimpleAPSSID"), *psk = control("textField_SimpleAPPSK");
    EXPECT_EQ(ssid->text() + psk->text(), text("Desk"));
    EXPECT_EQ(shown("textField_SimpleAPAuthentic"), text("WPA2-Personal"));
    EXPECT_EQ(shown("textField_SimpleAPEncryption"), text("AES"));
    for (const char *address : {"textField_SimpleAPStartIpAddress", "textField_SimpleAPIpAddress",
                                "textField_SimpleAPSubnetMask"})
        EXPECT_NE(shown(address), text("0.0.0.0")) << address;
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "the key was not filled and not touched";
    type(ssid, text("é"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    type(psk, text("x"));
    EXPECT_EQ(alertsOf(false).size(), 2);
    QTest::keyClick(psk, Qt::Key_Return);
    EXPECT_EQ(changedText(DWT_SaveData_SimpleAP_SSID), text("é"));
    EXPECT_EQ(changedText(DWT_SaveData_SimpleAP_PSK), text("x"));
    EXPECT_EQ(changeList(), text("Network name (SSID) of the access point: Desk > é|"
                                 "WPA key of the access point:  > new"));
    showNothing();
    EXPECT_EQ(shown("textField_SimpleAPStartIpAddress"), text("0.0.0.0"));
    EXPECT_EQ(ssid->text() + psk->text(), QString());
}

}  // namespace
