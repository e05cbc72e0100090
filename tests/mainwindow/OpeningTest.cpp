#include "PrinterWindow.h"

namespace {

using namespace Qt::StringLiterals;

const char *const gone = R"({"refuseConnection": true})";
const char *const silentItem = R"({"items": {"0x2001": {"noReply": true}}})";
const char *const cannotBeUsed = "Connection to the printer cannot be used";

class Opening : public PrinterWindow {
  protected:
    // Of a window that has been read, anew or again.
    void expectState(const char *bonjourName, bool editable) {
        EXPECT_EQ(name(), text(bonjourName));
        EXPECT_NE(field("textField_NetworkBonjour")->isReadOnly(), editable);
        EXPECT_NE(isShown("textField_ReadOnly"), editable);
        EXPECT_FALSE(isEnabled("button_MainSend"));
        EXPECT_TRUE(dialogs.isDone());
    }
    void pressByAssistiveTechnology(const char *button) {
        auto *actions = QAccessible::queryAccessibleInterface(control(button))->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
};

TEST_F(Opening, EveryReadingResultEndsInItsOwnState) {
    const struct {
        QByteArray faults;
        PrinterEntry more;
        bool alert, opens, editable;
    } cases[] = {{"{}", {}, false, true, true},
                 {"{}", overNetwork, false, true, false},
                 {silentItem, {}, true, true, false},
                 {gone, {}, true, false, false}};
    for (const auto &c : cases) {
        if (c.alert) dialogs.alert(cannotBeUsed);
        const QByteArray profile = R"({"items": {"0x1004": "desk"}, "faults": )" + c.faults + "}";
        EXPECT_EQ(open(profile, c.more), c.opens);
        EXPECT_EQ(isOpen(), c.opens);
        EXPECT_EQ(closings, c.opens ? QList<QVariantMap>() : QList<QVariantMap>{{}});
        if (!c.opens) continue;
        expectState("desk", c.editable);
        EXPECT_EQ(isEnabled("radioButton_InfrastructureIPAddressSetting"), c.editable);
        EXPECT_EQ(selectedCategory(), text("Names"));
        EXPECT_TRUE(isShown("textField_NetworkBonjour"));
        EXPECT_EQ(said("textField_SelectPrinterName"), text("Larkfield L200"));
        EXPECT_EQ(said("textField_StateAddresses").contains(text("Wired network: 192.168.1.50")),
                  !c.alert);
    }
    open("{}");
    typeName("other");
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckOK");
    for (const auto &[faults, alert, editable] :
         {std::tuple(silentItem, false, false), {gone, true, false}, {"{}", false, true}}) {
        if (alert) dialogs.alert(cannotBeUsed);
        setFaults(faults);
        click("button_MainNewSetting");
        EXPECT_TRUE(isOpen() && closings.isEmpty());
        expectState("label-printer", editable);
    }
}

TEST_F(Opening, ValuesThatCannotBeChangedCanBeCopiedAndReadWell) {
    open(R"({"items": {"0x1004": "desk", "0x1007": 5}})", overNetwork);
    choose("Device");
    auto *const seconds = field("textField_PrintTimeOut");
    seconds->setFocus();
    QTest::keyClicks(seconds, text("9"));
    QTest::keySequence(seconds, QKeySequence::SelectAll);
    QTest::keySequence(seconds, QKeySequence::Copy);
    QTest::keyClick(seconds, Qt::Key_Tab);
    EXPECT_EQ(QApplication::clipboard()->text(), text("5"));
    EXPECT_EQ(seconds->text(), text("5")) << "a value out of its range was put right";
    EXPECT_FALSE(isEnabled("textField_InfrastructurePSK") || isEnabled("button_MainSend"));
    const auto pales = [this](const char *disabled, QPalette::ColorRole role) {
        const QPalette &colours = control(disabled)->palette();
        return colours.color(QPalette::Disabled, role) != colours.color(QPalette::Active, role);
    };
    EXPECT_TRUE(pales("button_InfrastructureSelectSSID", QPalette::ButtonText));
    EXPECT_FALSE(pales("radioButton_InfrastructureIPAddressSetting", QPalette::WindowText));
}

TEST_F(Opening, PagesThatTheCommunicationModeDoesNotUseSaySo) {
    open(R"({"items": {"0x3000": 1, "0x1004": "desk"}})");
    choose("Wireless network");
    const std::tuple<const char *, bool, bool> modes[] = {
        {"buttonCell_WirelessInfrastructure", true, false},
        {"buttonCell_WirelessSimpleA", false, true},
        {"buttonCell_WirelessWifiNothing", false, false}};
    for (const auto &[mode, infrastructure, accessPoint] : modes) {
        control<QRadioButton>(mode)->click();
        EXPECT_EQ(control("textField_InfrastructureNotUsed")->isHidden(), infrastructure) << mode;
        EXPECT_EQ(control("textField_SimpleAPNotUsed")->isHidden(), accessPoint) << mode;
    }
    EXPECT_EQ(said("textField_PrinterOwnName"), text("· Label-Printer"));
}

TEST_F(Opening, WhatThePrinterDidNotTellIsNamedAndStaysUnsent) {
    open(R"({"items": {"0x1004": "desk", "0x1007": 90, "0x3102": 3, "0x3103": 3},
        "faults": {"items": {"0x1004": {"code": "0x7777"}, "0x2001": {"length": 7},
                             "0x1007": {"length": 0}, "0x3102": {"code": "0x7777"}}}})");
    EXPECT_EQ(said("textField_ReadOnly").section(u": "_s, 1),
              text("Device: Print timeout; Names: Bonjour name; Wired network: IP address; "
                   "Infrastructure: Authentication"));
    EXPECT_EQ(name(), QString());
    EXPECT_FALSE(isEnabled("button_MainSend"));
    setFaults("{}");
    choose("Device");
    control("textField_PrintTimeOut")->setFocus();
    QTest::keyClick(control("textField_PrintTimeOut"), Qt::Key_Tab);
    EXPECT_FALSE(isEnabled("button_MainSend")) << "a field that was only looked at";
    type("textField_NetworkBonjourService", "service");
    warned().confirmAndEnd();
    send();
    EXPECT_TRUE(served->received().startsWith(
        u"start ?1000 update end start =1005 =1006 =3000 =3103 =3108 =3201 =3202 update end"_s));
    warned().confirmAndEnd();
    typeName("desk-2");
    send();
    EXPECT_EQ(held(), QByteArray("desk-2"));
    click("button_MainCancel");
    EXPECT_FALSE(isOpen()) << "asked about changes that are not there";
}

TEST_F(Opening, ASecurityThatHadToBeMadeToFitCanBeSentAtOnce) {
    open(R"({"items": {"0x3102": 2, "0x3103": 1}})");
    EXPECT_TRUE(isEnabled("button_MainSend"));
}

TEST_F(Opening, TheOutlineSwitchesPagesAndStoresTheOneLeft) {
    open("{}");
    choose("Printer settings");
    EXPECT_EQ(selectedCategory(), text("Names")) << "a heading was selected";
    typeName("bad name");
    choose("Wired network");
    EXPECT_EQ(selectedCategory(), text("Wired network"));
    EXPECT_TRUE(isShown("button_EthernetConnect") && !isShown("textField_NetworkBonjour"));
    EXPECT_TRUE(isEnabled("button_MainSend"));
    control("outlineView_Main")->setFocus();
    QTest::keyClick(control("outlineView_Main"), Qt::Key_Up);
    EXPECT_EQ(name(), text("bad name"));
    EXPECT_TRUE(isShown("textField_NetworkBonjour"));
}

TEST_F(Opening, TheOutlineShowsWhetherItHasTheFocus) {
    open("{}");
    auto *const outline = control<OutlineView>("outlineView_Main");
    const auto colours = [&] {  // of the selected row: at its edge, and further inside
        QRect row = outline->visualRect(outline->currentIndex());
        row.setLeft(0);
        const QImage image = outline->viewport()->grab(row).toImage();
        return std::pair(image.pixelColor(row.width() / 2, 1),
                         image.pixelColor(row.width() - 4, row.height() / 2));
    };
    for (const QColor &base : {QColor(250, 250, 250), QColor(20, 30, 40)}) {
        QPalette palette(base);
        palette.setColor(QPalette::Base, base);
        outline->setPalette(palette);
        outline->setFocus();
        const auto [frame, highlight] = colours();
        EXPECT_GT(std::abs(frame.lightness() - highlight.lightness()), 60);
        QTest::keyClick(outline, Qt::Key_Tab);
        const auto [edge, pale] = colours();
        EXPECT_EQ(edge, pale);
        EXPECT_GT(std::abs(highlight.lightness() - pale.lightness()), 30);
        EXPECT_NE(pale, base);
    }
}

TEST_F(Opening, TabReachesEveryControlInReadingOrderAlsoOnASmallScreen) {
    open("{}");
    const auto tab = [] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        return QApplication::focusWidget()->objectName();
    };
    control("outlineView_Main")->setFocus();
    QStringList visited;
    for (int i = 0; i < 6; ++i) visited << tab();
    EXPECT_EQ(visited.join(u' '),
              text("textField_NetworkPrinterName textField_NetworkBonjour "
                   "textField_NetworkBonjourService button_MainNewSetting button_MainCancel "
                   "outlineView_Main"));
    choose("Infrastructure");
    main->window()->resize(1024, 400);
    EXPECT_LE(main->window()->minimumSizeHint().height(), 400);
    control("outlineView_Main")->setFocus();
    auto *last = control("button_InfrastructureWPSFunction");
    for (int i = 0; i < 20 && !last->hasFocus(); ++i) tab();
    EXPECT_TRUE(last->hasFocus());
    const QPoint corner = last->mapTo(main->window(), last->rect().bottomRight());
    EXPECT_LE(corner.y(), control("button_MainSend")->y()) << "not scrolled into view";
}

TEST_F(Opening, ASlowPrinterFreezesNothingAndClicksHaveNoEffectMeanwhile) {
    open("{}", {}, 5000);
    setFaults(R"({"delay": 100})");
    QMap<qsizetype, int> ticks;  // by the number of frames that had gone to and fro
    QTimer meanwhile;
    QObject::connect(&meanwhile, &QTimer::timeout, [&] {
        if (!isShown("progress_Wait")) return;
        ++ticks[served->printer().log().size()];
        EXPECT_EQ(markOf("Wired network"), QString()) << "shown as changed while it is read";
        click("button_MainCancel");
        pressByAssistiveTechnology("button_MainCancel");
        QTest::keyClicks(field("textField_NetworkBonjour"), text("x"));
    });
    meanwhile.start(20);
    QLineEdit *const edited = field("textField_NetworkPrinterName");
    edited->setFocus();
    edited->setSelection(2, 3);
    pressByAssistiveTechnology("button_MainNewSetting");
    const auto isRead = [&] { return ticks.size() > 5 && isEnabled("button_MainCancel"); };
    EXPECT_TRUE(QTest::qWaitFor(isRead));
    meanwhile.stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return edited->hasFocus(); }));
    EXPECT_TRUE(edited->selectionStart() == 2 && edited->selectionLength() == 3);
    QApplication::processEvents();
    EXPECT_TRUE(isOpen() && closings.isEmpty());
    EXPECT_EQ(name(), text("label-printer"));
    EXPECT_FALSE(isShown("progress_Wait") || isEnabled("button_MainSend"));
    const auto log = served->printer().log();
    ASSERT_GT(log.size(), 30);
    for (qsizetype i = 1; i < log.size(); ++i)
        EXPECT_TRUE(log[i].direction == VirtualPrinter::LoggedFrame::Received ||
                    ticks[i] + ticks[i + 1] > 0)
            << "frozen while reply " << i << " was awaited";
}

}  // namespace
