#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"

namespace {

// A modal window with two views, of which only the first has buttons.
struct Dialog {
    Dialog() {
        auto *first = new QWidget;
        auto *layout = new QVBoxLayout(first);
        for (QWidget *control : {static_cast<QWidget *>(&field), static_cast<QWidget *>(&ok),
                                 static_cast<QWidget *>(&cancel)})
            layout->addWidget(control);
        ok.setProperty("defaultButton", true);
        cancel.setProperty("cancelButton", true);
        auto *second = new QWidget;
        second->setMinimumSize(300, 200);
        auto *container = new QWidget(&window);
        (new QVBoxLayout(&window))->addWidget(container);
        stack = std::make_unique<ViewStack>(container);
        stack->add(u"first"_qs, first);
        stack->add(u"second"_qs, second);
        stack->select(u"first"_qs);
        QObject::connect(&ok, &QPushButton::clicked, [this] { close(1); });
        QObject::connect(&cancel, &QPushButton::clicked, [this] { close(0); });
    }

    void close(int outcome) {
        Modal::stop(outcome);
        window.hide();
    }

    // The controls outlive the window's own children, so they are taken out first.
    ~Dialog() {
        for (QWidget *control : {static_cast<QWidget *>(&field), static_cast<QWidget *>(&ok),
                                 static_cast<QWidget *>(&cancel)})
            control->setParent(nullptr);
    }

    ModalWindow window;
    QLineEdit field;
    QPushButton ok{u"OK"_qs};
    QPushButton cancel{u"Cancel"_qs};
    std::unique_ptr<ViewStack> stack;
};

void whenUp(const QWidget &window, const std::function<void()> &action) {
    QTimer::singleShot(0, &window, [&window, action] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(const_cast<QWidget *>(&window)));
        action();
    });
}

TEST(Modal, WaysOutPressTheButtonsOfTheShownView) {
    struct Case {
        const char *name;
        std::function<void(Dialog &)> act;
        int outcome;
    };
    const Case cases[] = {
        {"Return", [](Dialog &d) { QTest::keyClick(&d.field, Qt::Key_Return); }, 1},
        {"Return on Cancel",
         [](Dialog &d) {
             d.cancel.setFocus();
             QTest::keyClick(&d.cancel, Qt::Key_Return);
         },
         0},
        {"Escape", [](Dialog &d) { QTest::keyClick(&d.field, Qt::Key_Escape); }, 0},
        {"close box", [](Dialog &d) { d.window.close(); }, 0},
        {"disabled Cancel",
         [](Dialog &d) {
             d.cancel.setEnabled(false);
             QTest::keyClick(&d.field, Qt::Key_Escape);
             EXPECT_TRUE(Modal::isRunning());
             QTest::mouseClick(&d.ok, Qt::LeftButton);
         },
         1},
        {"a view without buttons",
         [](Dialog &d) {
             d.stack->select(u"second"_qs);
             QTest::keyClick(&d.window, Qt::Key_Escape);
             QTest::keyClick(&d.window, Qt::Key_Return);
             d.window.close();
             EXPECT_TRUE(d.window.isVisible() && Modal::isRunning());
             d.close(7);
         },
         7},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        Dialog dialog;
        whenUp(dialog.window, [&] { c.act(dialog); });
        EXPECT_EQ(Modal::run(&dialog.window), c.outcome);
        EXPECT_FALSE(Modal::isRunning());
        EXPECT_FALSE(dialog.window.isVisible());
    }
}

TEST(Modal, OutcomeWaitsForTheActionAndTheRunsInsideIt) {
    Dialog dialog;
    QStringList log;
    QWidget below;
    below.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
    QObject::connect(&dialog.ok, &QPushButton::clicked, [&] {  // after the one that stops
        whenUp(dialog.window, [&] { QTest::keyClick(&dialog.window, Qt::Key_Escape); });
        log += u"inner %1"_qs.arg(Modal::run(&dialog.window));
        EXPECT_FALSE(Modal::isRunning());
        Modal::stop(9);  // there is none left to stop
        log += u"action done"_qs;
    });
    whenUp(dialog.window, [&] { QTest::mouseClick(&dialog.ok, Qt::LeftButton); });
    log += u"outer %1"_qs.arg(Modal::run(&dialog.window));
    EXPECT_EQ(log, (QStringList{u"inner 0"_qs, u"action done"_qs, u"outer 1"_qs}));
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&below));
}

TEST(Modal, InnermostRunningOneIsStopped) {
    Dialog outer;
    Dialog inner;
    int innerOutcome = 0;
    whenUp(outer.window, [&] {
        whenUp(inner.window, [&] {
            Modal::stop(5);
            Modal::stop();  // the inner one is stopped already
            inner.window.hide();
        });
        innerOutcome = Modal::run(&inner.window);
        outer.window.hide();
    });
    EXPECT_EQ(Modal::run(&outer.window), Modal::stoppedOutcome);
    EXPECT_EQ(innerOutcome, 5);
}

TEST(Modal, EndsWithItsWindowAndWithTheApplication) {
    auto *window = new QWidget;
    whenUp(*window, [&] { delete window; });
    EXPECT_EQ(Modal::run(window), Modal::stoppedOutcome);

    Dialog dialog;
    int outcome = 0;
    QTimer::singleShot(0, [&] {
        whenUp(dialog.window, [] { QCoreApplication::exit(); });
        outcome = Modal::run(&dialog.window);
    });
    QCoreApplication::exec();
    EXPECT_EQ(outcome, Modal::stoppedOutcome);
    EXPECT_FALSE(dialog.window.isVisible());
    EXPECT_FALSE(Modal::isRunning());
}

TEST(ViewStack, SwitchesViewFocusAndDefaultButtonWithoutResizing) {
    Dialog dialog;
    EXPECT_GE(dialog.window.sizeHint().width(), 300);  // the hidden view fits too
    dialog.window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog.window));
    EXPECT_TRUE(dialog.field.hasFocus());
    EXPECT_TRUE(dialog.ok.isDefault());
    dialog.stack->select(u"second"_qs);
    EXPECT_FALSE(dialog.field.isVisible());
    EXPECT_FALSE(dialog.ok.isDefault());
    EXPECT_EQ(dialog.stack->selectedKey(), u"second"_qs);
    dialog.stack->select(u"first"_qs);
    EXPECT_TRUE(dialog.field.hasFocus());
    dialog.stack->select(u"unknown"_qs);
    EXPECT_FALSE(dialog.field.isVisible());
    EXPECT_TRUE(dialog.stack->selectedKey().isNull());
}

}  // namespace
