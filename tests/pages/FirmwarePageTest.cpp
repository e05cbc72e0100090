#include "PageInWindow.h"
#include "pages/DWTFirmwareView.h"

namespace {

class FirmwarePage : public PageTest<DWTFirmwareView> {
  protected:
    FirmwarePage() : PageTest(R"("0x1008": "2.10A", "0x1007": 45)") {}
    TextField *timeOut() { return control("textField_PrintTimeOut"); }
};

TEST_F(FirmwarePage, TheTimeOutIsForcedIntoItsRangeWhenEditingEnds) {
    EXPECT_EQ(shown("textField_Firmware"), text("2.10A"));
    EXPECT_EQ(timeOut()->text(), text("45"));
    const struct {
        const char *typed, *shown, *forced;
    } cases[] = {
        {"29", "29", "30"},    {"30", "30", "30"},  {"300", "300", "300"},
        {"301", "301", "300"}, {"", "", "30"},      {"12a34", "1234", "300"},
        {"x", "", "30"},       {"\n4５", "", "30"}, {"99999999999999", "99999999999999", "300"}};
    for (const auto &c : cases) {
        type(timeOut(), text(c.typed));
        EXPECT_EQ(timeOut()->text(), text(c.shown)) << c.typed;
        QTest::keyClick(timeOut(), Qt::Key_Return);
        EXPECT_EQ(timeOut()->text(), text(c.forced)) << c.typed;
        EXPECT_EQ(changedNumber(DWT_SaveData_Firmware_Timeout), text(c.forced).toInt());
    }
    EXPECT_EQ(changeList(), text("Print timeout: 45 > 300"));
}

TEST_F(FirmwarePage, TheSendStateComparesNumbersWhileTyping) {
    type(timeOut(), text("045"));
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    QTest::keyClick(timeOut(), Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(alertsOf(true).isEmpty());
    page->itemSetToDataManager();
    EXPECT_EQ(changedNumber(DWT_SaveData_Firmware_Timeout), 30) << "sent without leaving the field";
    showNothing();
    EXPECT_EQ(shown("textField_Firmware") + timeOut()->text(), text("2.10A"));
    page->enableAllItems(false);
    EXPECT_FALSE(timeOut()->isEnabled());
}

}  // namespace
