#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "PrinterWindow.h"

namespace {

const PrinterEntry network{{QStringLiteral("ConnectionType"), QStringLiteral("Network")},
                           {QStringLiteral("BonjourServiceName"), QStringLiteral("Desk")}};
const char *const cannotBeUsed = "The connection to the printer cannot be used";

class Opening : public PrinterWindow {};

TEST_F(Opening, EveryReadingResultEndsInItsOwnState) {
    const char *const names = R"("items": {"0x1004": "desk"})";
    const struct {
        QByteArray faults;
        PrinterEntry more;
        bool alert, opens, editable;
    } cases[] = {{"{}", {}, false, true, true},
                 {"{}", network, false, true, false},
                 {R"({"items": {"0x2001": {"noReply": true}}})", {}, true, true, false},
                 {R"({"refuseConnection": true})", {}, true, false, false}};
    for (const auto &c : cases) {
        if (c.alert) dialogs.alert(cannotBeUsed);
        const QByteArray profile = QByteArray("{") + names + ", \"faults\": " + c.faults + "}";
        EXPECT_EQ(open(profile, c.more), c.opens);
        EXPECT_TRUE(dialogs.isDone());
        EXPECT_EQ(isOpen(), c.opens);
        EXPECT_EQ(closings, c.opens ? QList<QVariantMap>() : QList<QVariantMap>{{}});
        EXPECT_FALSE(isEnabled("button_MainSend"));
        if (!c.opens) continue;
        EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("desk"));
        EXPECT_EQ(isEnabled("textField_NetworkBonjour"), c.editable);
        EXPECT_EQ(isEnabled("radioButton_InfrastructureIPAddressSetting"), c.editable);
        EXPECT_EQ(control("textField_ReadOnly")->isVisible(), !c.editable);
        EXPECT_EQ(selectedCategory(), text("Names"));
        EXPECT_TRUE(control("textField_NetworkBonjour")->isVisible());
        EXPECT_EQ(control<QLabel>("textField_SelectPrinterName")->text(), text("Larkfield L200"));
    }
}

TEST_F(Opening, ReadingAgainEndsInItsOwnState) {
    open("{}");
    type("textField_NetworkBonjour", "other");
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckOK");
    setFaults(R"({"items": {"0x2001": {"noReply": true}}})");
    click("button_MainNewSetting");
    EXPECT_FALSE(isEnabled("textField_NetworkBonjour")) << "no alert, but nothing to be changed";
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("label-printer"));
    dialogs.alert(cannotBeUsed);
    setFaults(R"({"refuseConnection": true})");
    click("button_MainNewSetting");
    EXPECT_TRUE(isOpen() && closings.isEmpty());
    EXPECT_FALSE(isEnabled("textField_NetworkBonjour") || isEnabled("button_MainSend"));
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("label-printer"));
    setFaults("{}");
    click("button_MainNewSetting");
    EXPECT_TRUE(isEnabled("textField_NetworkBonjour")) << "plugged in again";
    EXPECT_FALSE(isEnabled("button_MainSend") || control("textField_ReadOnly")->isVisible());
}

TEST_F(Opening, TheOutlineSwitchesPagesAndStoresTheOneLeft) {
    open("{}");
    choose("Printer settings");
    EXPECT_EQ(selectedCategory(), text("Names")) << "a heading was selected";
    type("textField_NetworkBonjour", "bad name");
    choose("Wired network");
    EXPECT_EQ(selectedCategory(), text("Wired network"));
    EXPECT_TRUE(control("button_EthernetConnect")->isVisible());
    EXPECT_FALSE(control("textField_NetworkBonjour")->isVisible());
    EXPECT_TRUE(isEnabled("button_MainSend"));
    auto *outline = control<OutlineView>("outlineView_Main");
    outline->setFocus();
    QTest::keyClick(outline, Qt::Key_Up);
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("bad name"));
    EXPECT_TRUE(control("textField_NetworkBonjour")->isVisible());
}

TEST_F(Opening, TabReachesEveryControlInReadingOrder) {
    open("{}");
    control("outlineView_Main")->setFocus();
    QStringList visited;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited.join(u' '),
              text("textField_NetworkPrinterName textField_NetworkBonjour "
                   "textField_NetworkBonjourService button_MainNewSetting button_MainCancel "
                   "outlineView_Main"));
}

TEST_F(Opening, TheWindowFitsASmallScreenByScrolling) {
    open("{}");
    choose("Infrastructure");
    main->window()->resize(1024, 400);
    EXPECT_LE(main->window()->minimumSizeHint().height(), 400);
    control("outlineView_Main")->setFocus();
    auto *last = control("button_InfrastructureWPSFunction");
    for (int i = 0; i < 20 && !last->hasFocus(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    const QPoint corner = last->mapTo(main->window(), last->rect().bottomRight());
    EXPECT_LE(corner.y(), control("button_MainSend")->y());
}

// Notes during which request of the printer a widget was painted.
class PaintWatch : public QObject {
  public:
    PaintWatch(QWidget *widget, const VirtualPrinter &printer) : m_printer(printer) {
        widget->installEventFilter(this);
    }
    QSet<qsizetype> frames;  // counts of the frames that the printer had received or sent

  protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint) frames << qsizetype(m_printer.log().size());
        return false;
    }

  private:
    const VirtualPrinter &m_printer;
};

TEST_F(Opening, ASlowPrinterLeavesTheIndicatorMovingAndClicksWithoutEffect) {
    open("{}", {}, 5000);
    setFaults(R"({"delay": 300})");
    const PaintWatch paints(control("progress_Wait"), served->printer());
    int shown = 0;
    QTimer meanwhile;
    QObject::connect(&meanwhile, &QTimer::timeout, [&] {
        if (!control("progress_Wait")->isVisible()) return;
        ++shown;
        click("button_MainCancel");
        QTest::keyClicks(field("textField_NetworkBonjour"), text("x"));
    });
    meanwhile.start(100);
    click("button_MainNewSetting");
    meanwhile.stop();
    QApplication::processEvents();
    EXPECT_GT(shown, 20);
    EXPECT_TRUE(isOpen() && closings.isEmpty());
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("label-printer"));
    EXPECT_FALSE(control("progress_Wait")->isVisible() || isEnabled("button_MainSend"));
    const auto log = served->printer().log();
    ASSERT_GT(log.size(), 30);
    for (qsizetype i = 1; i < qsizetype(log.size()); ++i)
        EXPECT_TRUE(log[size_t(i)].direction == VirtualPrinter::LoggedFrame::Received ||
                    paints.frames.contains(i) || paints.frames.contains(i + 1))
            << "not painted while reply " << i << " was awaited";
}

}  // namespace
