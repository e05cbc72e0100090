#pragma once

#include <gtest/gtest.h>

#include "support/Arguments.h"
#include "support/Walk.h"

// The selection window with the demo printers, and the windows that it leads to.
class SelectionWindow : public testing::Test {
  protected:
    SelectionWindow() { application()->setDelegate(walk.selector.get()); }
    ~SelectionWindow() override { application()->setDelegate(nullptr); }

    static Application *application() { return static_cast<Application *>(qApp); }
    Window *window() { return walk.selector->window(); }
    bool isListed() { return window()->isVisible(); }
    template <typename Widget = QWidget>
    Widget *control(const char *name) {
        return controlOf<Widget>(window(), name);
    }
    void click(const char *button) { press(window(), button); }
    VirtualPrinter &printer(const char *name) {
        return *catalogue.virtualPrinters[text("virtual://") + text(name)];
    }

    // Presses keys such as "Ctrl+A Return" as a person does: they go to the window in front and
    // to what has the focus there.
    void keys(const char *pressed) {
        for (const QString &key : text(pressed).split(u' ', Qt::SkipEmptyParts)) {
            expectKeyboard();
            QTest::keySequence(hasTheFocus, QKeySequence(key));
        }
    }
    void enter(const char *typed) {
        expectKeyboard();
        QTest::keyClicks(hasTheFocus, text(typed));
    }
    // Runs the action inside the event loop; true when it makes the application quit.
    static bool quits(const std::function<void()> &action) {
        constexpr int goesOn = 77;
        QObject context;  // what is left waiting goes with it
        QTimer::singleShot(0, &context, [&] {
            action();
            QTimer::singleShot(0, &context, [] { QApplication::exit(goesOn); });
        });
        return QApplication::exec() != goesOn;
    }

    const Catalogue catalogue = demoCatalogue();
    Walk walk{catalogue};

  private:
    static constexpr QWidget *hasTheFocus = nullptr;  // for which QTest looks

    // A window manager gives the keyboard to the window in front.
    void expectKeyboard() {
        ASSERT_TRUE(QTest::qWaitFor([this] {
            if (QApplication::activePopupWidget()) return true;
            QWidget *const modal = QApplication::activeModalWidget();
            QWidget *const front = modal ? modal : isListed() ? window() : walk.main();
            front->activateWindow();
            if (QGuiApplication::focusWindow() == front->windowHandle())
                QApplication::setActiveWindow(front);  // shown again, it is not activated here
            return front->isActiveWindow();
        }));
    }
};
