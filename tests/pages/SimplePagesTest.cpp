#include <QRadioButton>

#include "PageInWindow.h"
#include "pages/DWTFirmwareView.h"
#include "pages/DWTWirelessView.h"

namespace {

class WirelessPage : public PageInWindow<DWTWirelessView> {
  protected:
    WirelessPage() : PageInWindow(R"({"items": {"0x3000": 2, "0x3100": "02004C000102"}})") {}
    void pick(const char *cell) { control<QRadioButton>(cell)->click(); }
};

TEST_F(WirelessPage, TheModeReachesTheChangeDataAtEveryChoice) {
    EXPECT_EQ(page->wirelessCommunicateMode(), 2);
    EXPECT_EQ(control<QLineEdit>("textField_WirelessInfrastructureMACAddress")->text(),
              text("02004C000102"));
    pick("buttonCell_WirelessInfrastructure");
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Wireless_CommunicateMode), 1);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_FALSE(page->itemCheckDifferentToDataManager());
    pick("buttonCell_WirelessSimpleA");
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the first mode was chosen again";
    page->enableAllItems(false);
    pick("buttonCell_WirelessWifiNothing");
    EXPECT_EQ(page->wirelessCommunicateMode(), 2);
    EXPECT_TRUE(alertsOf(true).isEmpty());
}

TEST_F(WirelessPage, AModeThatNoChoiceStandsForIsKept) {
    ServedManager other(R"({"items": {"0x3000": 9}})", OnePrinterLibrary::Transport::Virtual);
    ASSERT_EQ(other.manager->setupDataFromPrinter(0), 0);
    page->dataManagerObject(other.manager);
    page->showDataManager();
    EXPECT_EQ(page->wirelessCommunicateMode(), -1);
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
}

class FirmwarePage : public PageInWindow<DWTFirmwareView> {
  protected:
    FirmwarePage() : PageInWindow(R"({"items": {"0x1008": "2.10A", "0x1007": 45}})") {}
    TextField *timeOut() { return control("textField_PrintTimeOut"); }
};

TEST_F(FirmwarePage, TheTimeOutIsForcedIntoItsRangeWhenEditingEnds) {
    EXPECT_EQ(control<QLineEdit>("textField_Firmware")->text(), text("2.10A"));
    EXPECT_EQ(timeOut()->text(), text("45"));
    const struct {
        const char *typed;
        const char *shown;
        const char *forced;
    } cases[] = {
        {"29", "29", "30"},    {"30", "30", "30"},   {"300", "300", "300"},
        {"301", "301", "300"}, {"", "", "30"},       {"12a34", "1234", "300"},
        {"x", "", "30"},       {"\n4５", "", "30"}, {"99999999999999", "99999999999999", "300"}};
    for (const auto &c : cases) {
        type(timeOut(), text(c.typed));
        EXPECT_EQ(timeOut()->text(), text(c.shown)) << c.typed;
        QTest::keyClick(timeOut(), Qt::Key_Return);
        EXPECT_EQ(timeOut()->text(), text(c.forced)) << c.typed;
        EXPECT_EQ(integerValue(changed(), DWT_SaveData_Firmware_Timeout), text(c.forced).toInt());
    }
}

TEST_F(FirmwarePage, TheSendStateComparesNumbersWhileTyping) {
    type(timeOut(), text("045"));
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    QTest::keyClick(timeOut(), Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    page->itemInputCheck();
    page->itemSetToDataManager();
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Firmware_Timeout), 30)
        << "sent without leaving the field";
}

}  // namespace
