#include "PageInWindow.h"
#include "pages/DWTNetworkView.h"

namespace {

class NetworkPage : public PageTest<DWTNetworkView> {
  protected:
    NetworkPage() : PageTest(R"("0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk labels")") {}
    TextField *printer() { return control("textField_NetworkPrinterName"); }
    TextField *bonjour() { return control("textField_NetworkBonjour"); }
};

TEST_F(NetworkPage, ShowsTheNamesAndFollowsEveryEdit) {
    EXPECT_EQ(printer()->text() + bonjour()->text(), text("Deskdesk"));
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && page->itemConnectChangeCheck());
    printer()->setFocus();
    printer()->end(false);
    QTest::keyClicks(printer(), text("s"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(printer(), Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the saved name was typed again";
    QTest::keyClicks(printer(), text("2"));
    EXPECT_TRUE(m.manager->isEqualToSaveData()) << "stored before editing has ended";
    QTest::keyClick(printer(), Qt::Key_Tab);
    EXPECT_EQ(changedText(DWT_SaveData_Network_Printer), text("Desk2"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(bonjour()->hasFocus()) << "the tab order follows the reading order";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager() || page->itemConnectChangeCheck());
    type("textField_NetworkBonjourService", text("New"));
    page->itemSetToDataManager();
    EXPECT_EQ(changedText(DWT_SaveData_Network_BonjourService), text("New"));
    EXPECT_EQ(changeList(),
              text("Printer name: Desk > Desk2|Bonjour service name: Desk labels > New"));
    type(printer(), {});
    type(bonjour(), {});
    EXPECT_EQ(alertsOf(false).join(u'|'),
              text("Printer name cannot be used|Bonjour name cannot be used"));
}

}  // namespace
