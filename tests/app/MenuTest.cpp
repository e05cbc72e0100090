#include "SelectionWindow.h"

namespace {

class Menu : public SelectionWindow {
  protected:
    void open(const char *name) {
        walk.launch();
        ASSERT_TRUE(walk.open(text(name)));
    }
    // The entries of a menu, opened by these keys, that can be chosen.
    QString enabled(const char *menu) {
        keys(menu);
        QStringList titles;
        for (const QAction *entry : QApplication::activePopupWidget()->actions())
            if (entry->isEnabled() && !entry->isSeparator()) titles << entry->text().remove(u'&');
        keys("Escape Escape");  // of the menu, then of its bar
        return titles.join(u'|');
    }
    static QString copied() { return QApplication::clipboard()->text(); }
    // Expects the parts in a text, in this order.
    static void expectIn(const QString &whole, const QList<const char *> &parts) {
        qsizetype at = 0;
        for (const char *part : parts)
            EXPECT_GE(at = whole.indexOf(text(part), at), 0) << part << qPrintable(whole);
    }
};

TEST_F(Menu, EntriesForEditingAreEnabledWhenTheyCanActAndDo) {
    open("Packing-Desk");
    QApplication::clipboard()->setText(text("old"));
    const char *const name = "textField_NetworkBonjour", *const secret = "secureTextField_Password";
    const char *const mac = "textField_EthernetMACAddress";
    for (QWidget *part : walk.main()->findChildren<QWidget *>())
        if (!part->isWindow()) part->show();  // all pages at a time
    controlOf(walk.main(), secret)->setEnabled(true);
    controlOf<QLineEdit>(walk.main(), secret)->setText(text("open123"));
    const auto keysIn = [&](const char *control, const char *pressed) {
        controlOf(walk.main(), control)->setFocus();
        keys(pressed);
    };
    const struct {
        const char *control, *keys, *enabled;
    } cases[] = {{name, "Ctrl+A", "Cut|Copy|Paste|Select all|"},
                 {name, "End", "Paste|Select all|"},
                 {mac, "Ctrl+A", "Copy|Select all|"},
                 {secret, "Ctrl+A", "Paste|Select all|"},
                 {"outlineView_Main", "", ""}};
    for (const auto &c : cases) {
        keysIn(c.control, c.keys);
        EXPECT_EQ(enabled("Alt+E"), text(c.enabled) + text("Copy all settings")) << c.control;
    }
    keysIn(name, "Alt+E A Alt+E T");
    EXPECT_EQ(walk.shown(name), QString());
    keysIn(mac, "Ctrl+A Alt+E C");
    EXPECT_EQ(copied(), walk.shown(mac));
    keysIn(name, "Alt+E P");
    EXPECT_EQ(walk.shown(name), walk.shown(mac));
}

TEST_F(Menu, OffersWhatCanBeDoneWhileKeysAloneOpenAPrinterChangeItAndSend) {
    const char *const name = "textField_NetworkBonjour", *const offered = "Alt+P";
    walk.launch();
    EXPECT_EQ(enabled(offered), QString());
    keys("Down Down Return");
    ASSERT_FALSE(isListed());
    EXPECT_EQ(enabled(offered), text("Read again"));
    auto *const outline = controlOf(walk.main(), "outlineView_Main");
    outline->setFocus();
    keys("Down");
    EXPECT_EQ(enabled(offered), text("Read again|Test connection"));
    keys("Ctrl+T");
    EXPECT_EQ(controlOf<QLabel>(walk.main(), "textField_EthernetConnection")->text(),
              text("The printer answers"));
    outline->setFocus();
    keys("Down Down");
    EXPECT_EQ(enabled(offered), text("Read again|Test connection|Choose a network…"));
    outline->setFocus();
    keys("Up Up Up");
    keys("Ctrl+S");
    const auto *const field = controlOf(walk.main(), name);
    for (int i = 0; i < 40 && !field->hasFocus(); ++i) keys("Tab");
    const QString before = walk.shown(name);
    keys("Ctrl+A");
    enter("gate-1");
    EXPECT_TRUE(enabled("Alt+E").contains(text("Revert page")));
    keys("Alt+E R");
    EXPECT_EQ(walk.shown(name), before);
    EXPECT_FALSE(enabled("Alt+E").contains(text("Revert page")));
    EXPECT_EQ(enabled(offered), text("Read again"));
    keys("Ctrl+A");
    enter("gate-2");
    EXPECT_EQ(enabled(offered), text("Send to printer…|Read again"));
    walk.dialogs().key("view_UpdateChangeCheck", Qt::Key_Return);
    keys("F5");
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckCancel");
    keys("Ctrl+L");
    EXPECT_TRUE(walk.main()->isVisible() && !isListed());
    EXPECT_EQ(walk.shown(name), text("gate-2")) << "edits are thrown away";
    walk.dialogs().key("", Qt::Key_Return).on("view_SendLogin", [this](QWidget *) {
        enter("open123");
        keys("Return");
    });
    walk.dialogs().key("view_SendConfirm", Qt::Key_Return).key("view_SendEnd", Qt::Key_Return);
    keys("Ctrl+S");
    EXPECT_TRUE(walk.dialogs().isDone());
    EXPECT_EQ(walk.held("virtual://dispatch", 0x1004), QByteArray("gate-2"));
    EXPECT_EQ(enabled(offered), text("Read again"));
    keys("Ctrl+L");
    EXPECT_TRUE(isListed() && !walk.main()->isVisible());
    EXPECT_EQ(enabled(offered), QString());
}

TEST_F(Menu, CopiesAllSettingsAsThePagesShowThemButNoSecret) {
    const auto copy = [&] {
        QApplication::clipboard()->clear();
        keys("Ctrl+Shift+C");
        return copied();
    };
    open("Packing-Desk");
    walk.type("textField_NetworkBonjour", text("gate-2"));
    walk.type("textField_InfrastructurePSK", text("not for others"));
    const QString report = copy();
    expectIn(report, {"Larkfield L200 · Packing-Desk\n\nDevice\nFirmware version: 1.203\n",
                      "\n\nNames\nPrinter name: Packing-Desk\nBonjour name: gate-2\n",
                      "\n\nWired network\nMAC address: 02:00:4C:0A:1B:01\n"
                      "Address assignment: Fixed address\nIP address: 192.168.20.31\n",
                      "\n\nWireless network\n", "(access point): 02:00:4C:0A:1B:03\n",
                      "\n\nInfrastructure\n", "\nNetwork name (SSID): 倉庫\n",
                      "\n\nAccess point\nWireless standard: IEEE 802.11b/g/n\n"});
    EXPECT_FALSE(report.contains(text("not for others")) || report.contains(u'*'));
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    keys("Ctrl+L");
    EXPECT_EQ(copy(), QString()) << "no printer is open";
    ASSERT_TRUE(walk.open(text("Goods in (first floor)")));
    expectIn(copy(), {"Larkfield L400 · Goods-In\nThis printer is connected over the network, so",
                      "\nBonjour name: label-printer\n", "\nNetwork name (SSID): (empty)\n"});
}

TEST_F(Menu, AboutTellsVersionLicenceAndWhereFaultsAreReported) {
    walk.launch();
    keys("Alt+H A");
    QWidget *const about = QApplication::activeModalWidget();
    ASSERT_TRUE(about);
    controlOf(about, "qt_msgbox_label")->setFocus();
    keys("Ctrl+A Ctrl+C");
    expectIn(copied(), {NST_VERSION, "Copyright (c)", "Report faults to ", "@"});
    EXPECT_TRUE(copied().contains(text("MIT License")));
    keys("Escape");
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }));
}

}  // namespace
