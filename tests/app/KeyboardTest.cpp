#include <gtest/gtest.h>

#include "support/Arguments.h"
#include "support/Walk.h"

namespace {

// A person without a mouse: every key goes to the window in front, whatever has the focus there.
class Keyboard : public testing::Test {
  protected:
    // The one in front: a dialog, or the window that is active.
    static QWidget *front() {
        QWidget *const dialog = QApplication::activeModalWidget();
        return dialog ? dialog : QApplication::activeWindow();
    }
    static void key(Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(front()->windowHandle(), pressed, with);
    }
    static void enter(const char *typed) {
        for (const char *letter = typed; *letter; ++letter)
            QTest::keyClick(front()->windowHandle(), *letter);
    }
    static QString focused() { return front()->focusWidget()->objectName(); }
    void expectActive(QWidget *window) {
        window->activateWindow();  // as a window manager does when a dialog has gone
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }));
    }
    void tabTo(const char *control) {
        for (int i = 0; i < 40 && focused() != text(control); ++i) key(Qt::Key_Tab);
        ASSERT_EQ(focused(), text(control));
    }
    // Opens the second printer of the list, and goes to the name.
    void openSecond() {
        expectActive(walk.selector->window());
        for (int i = 0; i < 2; ++i) key(Qt::Key_Down);
        key(Qt::Key_Return);
        ASSERT_FALSE(walk.selector->window()->isVisible());
        expectActive(walk.main());
        tabTo("textField_NetworkBonjour");
    }
    void send() {
        walk.dialogs().key("", Qt::Key_Return).on("view_SendLogin", [](QWidget *) {
            enter("open123");
            key(Qt::Key_Return);
        });
        for (const char *view : {"view_SendConfirm", "view_SendEnd"})
            walk.dialogs().key(view, Qt::Key_Return);
        key(Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(walk.dialogs().isDone());
    }
    QByteArray held() const { return walk.held("virtual://dispatch", 0x1004); }

    const Catalogue catalogue = demoCatalogue();
    Walk walk{catalogue};
};

TEST_F(Keyboard, ChangesAPrinterOfTheListAndSendsIt) {
    walk.launch();
    openSecond();
    key(Qt::Key_A, Qt::ControlModifier);
    enter("gate-2");
    send();
    EXPECT_EQ(held(), QByteArray("gate-2"));
    expectActive(walk.main());
    key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(walk.selector->window()->isVisible() && !walk.main()->isVisible());
}

TEST_F(Keyboard, MendsAWrongValueWhereTheAlertLeadsTo) {
    walk.launch();
    openSecond();
    key(Qt::Key_End);
    enter(" two");
    tabTo("outlineView_Main");
    key(Qt::Key_End);
    const auto *page = controlOf(walk.main(), "view_Password");
    ASSERT_TRUE(page->isVisible());
    walk.dialogs().key("", Qt::Key_Return);
    key(Qt::Key_S, Qt::ControlModifier);
    expectActive(walk.main());
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(focused(), text("textField_NetworkBonjour"));
    enter("gate-7");  // over the wrong one, which is selected
    send();
    EXPECT_EQ(held(), QByteArray("gate-7"));
}

TEST_F(Keyboard, FollowsTheGuideThereAndBackAndOpensAPrinter) {
    const ArgumentOverride installer("-Installer");
    walk.launch();
    QWidget *const window = walk.selector->window();
    expectActive(window);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        const char *view;
    } steps[] = {{Qt::Key_Return, {}, "view_ChooseConnect"},
                 {Qt::Key_Down, {}, "view_ChooseConnect"},
                 {Qt::Key_Return, {}, "view_WPS1"},
                 {Qt::Key_Return, {}, "view_WPS2"},
                 {Qt::Key_B, Qt::AltModifier, "view_WPS1"},
                 {Qt::Key_B, Qt::AltModifier, "view_ChooseConnect"},
                 {Qt::Key_Up, {}, "view_ChooseConnect"},
                 {Qt::Key_Return, {}, "view_USBConnect"},
                 {Qt::Key_Return, {}, "view_Printerlist"}};
    for (const auto &step : steps) {
        key(step.key, step.with);
        const auto *view = controlOf(window, step.view);
        ASSERT_TRUE(QTest::qWaitFor([&] { return view->isVisible(); })) << step.view;
    }
    EXPECT_EQ(walk.list()->model()->rowCount(), 3) << "installer mode lists USB printers only";
    openSecond();
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("dispatch"));
}

}  // namespace
