#include "PageInWindow.h"
#include "pages/DWTNetworkView.h"

namespace {

class NetworkPage : public PageInWindow<DWTNetworkView> {
  protected:
    NetworkPage()
        : PageInWindow(
              R"({"items": {"0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk labels"}})") {}
    TextField *printer() { return control("textField_NetworkPrinterName"); }
    TextField *bonjour() { return control("textField_NetworkBonjour"); }
    TextField *service() { return control("textField_NetworkBonjourService"); }
};

TEST_F(NetworkPage, ShowsTheNamesAndFollowsEveryEdit) {
    EXPECT_EQ(printer()->text(), text("Desk"));
    EXPECT_EQ(bonjour()->text(), text("desk"));
    EXPECT_EQ(service()->text(), text("Desk labels"));
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
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Network_Printer), text("Desk2"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(bonjour()->hasFocus()) << "the tab order follows the reading order";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager() || page->itemConnectChangeCheck());
}

TEST_F(NetworkPage, ChecksEveryNameByItsOwnRule) {
    const struct {
        TextField *field;
        QString typed;
        bool passes;
    } cases[] = {{printer(), QString(31, u'a'), true},   {printer(), QString(32, u'a'), false},
                 {printer(), text("my-printer"), true},  {printer(), text("my_printer"), false},
                 {printer(), text("my printer"), false}, {printer(), text(""), false},
                 {bonjour(), QString(25, u'B'), true},   {bonjour(), QString(26, u'B'), false},
                 {service(), text("a ~!\"\\`{}"), true}, {service(), text("é"), false}};
    for (const auto &c : cases) {
        const QString before = c.field->text();
        type(c.field, c.typed);
        EXPECT_EQ(alertsOf(c.passes).size(), c.passes ? 0 : 1) << qPrintable(c.typed);
        type(c.field, before);
    }
    for (TextField *every : {printer(), bonjour(), service()}) type(every, text("é"));
    EXPECT_EQ(alertsOf(false),
              (QStringList{text("Printer name cannot be used"), text("Bonjour name cannot be used"),
                           text("Bonjour service name cannot be used")}));
    page->enableAllItems(false);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "disabled fields are not checked";
}

TEST_F(NetworkPage, WritesAllNamesBackAndLeavesUntouchedEmptyFieldsAlone) {
    type(service(), text("New service"));
    page->itemSetToDataManager();
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Network_BonjourService), text("New service"));
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Network_Printer), text("Desk"));
    EXPECT_FALSE(page->itemConnectChangeCheck());

    const auto empty = make<DWTNetworkView>();
    empty->initializeUI();
    empty->dataManagerObject(make<DWTDataManager>());
    empty->showDataManager();
    EXPECT_TRUE(empty->itemInputCheck()) << "never filled and never touched";
}

}  // namespace
