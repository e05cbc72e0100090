#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/ui/Alert.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"

namespace {

// Runs the window; `action` happens once it is shown.
int run(ModalWindow &window, const std::function<void()> &action) {
    QTimer::singleShot(0, &window, action);
    return Modal::run(&window);
}

TEST(Modal, DeliversTheOutcomeWhenTheStoppingActionHasFinished) {
    ModalWindow window;
    QStringList order;
    const int outer = run(window, [&] {
        Modal::stop(&window, 5);
        window.hide();
        order << QStringLiteral("stopped");
        // The same window again, from inside the action.
        order << QString::number(run(window, [&] { Modal::stop(&window, 7); }));
    });
    order << QString::number(outer);
    EXPECT_EQ(order.join(u' '), QStringLiteral("stopped 7 5"));
}

TEST(Modal, StopsTheRunOfTheWindowAndNoOther) {
    ModalWindow outer, inner;
    Modal::stop(&outer, 3);
    QList<int> outcomes;
    outcomes << run(outer, [&] {
        outcomes << run(inner, [&] {
            Modal::stop(&outer, 4);
            Modal::stop(&inner);
            inner.hide();
        });
        Modal::stop(&inner, 5);
        Modal::stop(&outer, 6);
    });
    EXPECT_EQ(outcomes, (QList<int>{Modal::stoppedOutcome, 4}));
    EXPECT_NE(Modal::stoppedOutcome, 0);
}

TEST(Alert, ShowsItsTextsAndIsDismissedByReturnOrEscape) {
    Alert alert(Alert::Style::Critical);
    alert.setButtonTitle(QStringLiteral("Fine"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        alert.setMessageText(QStringLiteral("Text %1").arg(key));
        alert.setInformativeText(QStringLiteral("<b>Why</b>"));
        bool seen = false;
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), QStringLiteral("Text %1").arg(key));
            for (const QLabel *label : box->findChildren<QLabel *>())
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->icon(), QMessageBox::Critical);
            ASSERT_EQ(box->buttons().size(), 1);
            EXPECT_EQ(box->buttons()[0]->text(), QStringLiteral("Fine"));
            seen = true;
            QTest::keyClick(box, key);
        });
        alert.runModal();
        EXPECT_TRUE(seen);
    }
}

}  // namespace
