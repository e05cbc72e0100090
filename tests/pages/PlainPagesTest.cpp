#include "PageInWindow.h"

// The pages of a few fields that need little code of their own.

namespace {

struct NetworkPage : PageTest<DWTNetworkView> {
    NetworkPage() : PageTest(R"("0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk labels")") {}
};

TEST_F(NetworkPage, ShowsTheNamesAndFollowsEveryEdit) {
    auto *printer = control("textField_NetworkPrinterName");
    auto *bonjour = control("textField_NetworkBonjour");
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && page->itemConnectChangeCheck());
    printer->setFocus();
    printer->end(false);
    QTest::keyClicks(printer, text("s"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(printer, Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the saved name was typed again";
    QTest::keyClicks(printer, text("2"));
    EXPECT_TRUE(m.manager->isEqualToSaveData()) << "stored before editing has ended";
    QTest::keyClick(printer, Qt::Key_Tab);
    EXPECT_EQ(stored("names.printer"), text("'Desk2'"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(bonjour->hasFocus()) << "the tab order follows the reading order";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager() || page->itemConnectChangeCheck());
    type("textField_NetworkBonjourService", text("New"));
    page->itemSetToDataManager();
    EXPECT_EQ(stored("names.service"), text("'New'"));
    EXPECT_EQ(changeList(),
              text("Printer name: Desk > Desk2|Bonjour service name: Desk labels > New"));
    EXPECT_TRUE(printer->toolTip().endsWith(text("\nChanged. The printer has: Desk")));
    EXPECT_FALSE(resetOf(bonjour).isVisible());
    QTest::keyClick(printer, Qt::Key_Escape);
    EXPECT_FALSE(resetOf(printer).isVisible());
    EXPECT_EQ(changeList(), text("Bonjour service name: Desk labels > New"));
    EXPECT_EQ(stored("names.printer"), text("'Desk'"));
    type(bonjour, text("not one"));
    page->revert();
    EXPECT_TRUE(changeList().isEmpty() && !page->hasFault() && m.manager->isEqualToSaveData());
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
}

struct WirelessPage : PageTest<DWTWirelessView> {
    WirelessPage() : PageTest(R"("0x3000": 2)") {}
};

TEST_F(WirelessPage, TheModeReachesTheChangeDataAtEveryChoice) {
    EXPECT_EQ(page->wirelessCommunicateMode(), CommunicationMode::AccessPoint);
    pick("buttonCell_WirelessInfrastructure");
    EXPECT_EQ(stored("wireless.mode"), text("1"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_EQ(changeList(),
              text("Communication mode: Access point: computers join the printer’s own network > "
                   "Infrastructure: join an existing wireless network"));
    pick("buttonCell_WirelessSimpleA");
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the first mode was chosen again";
    showNothing();
    EXPECT_EQ(page->wirelessCommunicateMode(), CommunicationMode::AccessPoint);
}

struct FirmwarePage : PageTest<DWTFirmwareView> {
    FirmwarePage() : PageTest(R"("0x1008": "2.10A", "0x1007": 45)") {}
};

TEST_F(FirmwarePage, TheTimeOutIsComparedWhileTypingAndForcedIntoItsRangeAfterwards) {
    auto *timeOut = control("textField_PrintTimeOut");
    EXPECT_EQ(shown("textField_Firmware") + timeOut->text(), text("2.10A45"));
    type(timeOut, text("045"));
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    QTest::keyClick(timeOut, Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(alertsOf(true).isEmpty());
    page->itemSetToDataManager();
    EXPECT_EQ(stored("device.timeout"), text("30")) << "sent without leaving the field";
    const char *const least = "Set to 30, the least.", *const most = "Set to 300, the most.";
    const struct {
        const char *typed, *shown, *forced, *said;
    } cases[] = {{"29", "29", "30", least},
                 {"30", "30", "30", ""},
                 {"301", "301", "300", most},
                 {"", "", "30", least},
                 {"x", "", "30", least},
                 {"12a34", "1234", "300", most},
                 {"300", "300", "300", ""},
                 {"\n4５", "", "30", least},
                 {"99999999999999", "99999999999999", "300", most}};
    for (const auto &c : cases) {
        type(timeOut, text(c.typed));
        EXPECT_EQ(timeOut->text(), text(c.shown)) << c.typed;
        QTest::keyClick(timeOut, Qt::Key_Return);
        EXPECT_EQ(timeOut->text(), text(c.forced)) << c.typed;
        EXPECT_EQ(noteOf(timeOut).text(), text(c.said)) << c.typed;
        EXPECT_EQ(stored("device.timeout"), text(c.forced));
    }
    EXPECT_EQ(changeList(), text("Print timeout: 45 > 300"));
    showNothing();
    EXPECT_EQ(shown("textField_Firmware") + timeOut->text(), text("2.10A"));
}

// Codes of the printer that no choice of the pages stands for.
const char *const codes = R"("0x3000": 9, "0x3101": 77, "0x3102": 9, "0x3103": 12, "0x3210": 9,
    "0x3211": 4, "0x3212": 65535)";

TEST(Pages, ShowWhatThePrinterReportsAndNothingForUnknownCodes) {
    const struct {
        std::shared_ptr<DWTBaseView> (*page)();
        const char *items, *shown;  // the fields, then the choices
    } cases[] = {
        {a<DWTWirelessView>, R"("0x3100": "02004C000102", "0x3200": "02004C000103")",
         "02004C000102|02004C000103"},
        {a<DWTWirelessView>, codes, "02004C000002|02004C000003"},
        {a<DWTInfrastructureView>, codes, "|192.168.1.101|255.255.255.0|192.168.1.1||||||Key 1"},
        {a<DWTSimpleAPView>, codes,
         "|On: the printer assigns addresses|192.168.118.2|192.168.118.1|255.255.255.0|||"
         "label-printer|00000000"},
        {a<DWTSimpleAPView>, R"("0x3201": "Desk", "0x3202": " ", "0x3210": 1, "0x3211": 3)",
         "IEEE 802.11b/g|On: the printer assigns addresses|192.168.118.2|192.168.118.1|"
         "255.255.255.0|WPA2-Personal|AES|Desk|"}};
    for (const auto &c : cases) {
        PageInWindow in(c.page(), c.items);
        QStringList shown;
        for (const auto *field : in.window.findChildren<QLineEdit *>()) shown << field->text();
        for (const auto *popup : in.window.findChildren<QComboBox *>())
            shown << popup->currentText();
        EXPECT_EQ(shown.join(u'|').toStdString(), c.shown);
        EXPECT_TRUE(in.alertsOf(true).isEmpty()) << "of what nobody has touched";
        EXPECT_TRUE(in.view->itemCheckDifferentToDataManager()) << qPrintable(in.view->viewKey());
    }
}

}  // namespace
