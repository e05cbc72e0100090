#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/ui/Alert.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"

namespace {

// A dialog of two stacked views: "ask" has OK (default) and Cancel, "busy" has no button.
struct Dialog : ModalWindow {
    Dialog() {
        auto *ask = new QWidget;
        auto *layout = new QVBoxLayout(ask);
        ok = new QPushButton(QStringLiteral("OK"));
        cancel = new QPushButton(QStringLiteral("Cancel"));
        ok->setProperty("defaultButton", true);
        cancel->setProperty("cancelButton", true);
        layout->addWidget(cancel);
        layout->addWidget(ok);
        views.add(QStringLiteral("ask"), ask);
        views.add(QStringLiteral("busy"), new QProgressBar);
    }
    // Runs on a view; `action` happens once the dialog is shown.
    int runOn(const char *view, const std::function<void()> &action) {
        views.select(QLatin1String(view));
        QTimer::singleShot(0, this, action);
        return Modal::run(this);
    }
    ViewStack views{this};
    QPushButton *ok, *cancel;
};

TEST(Modal, DeliversTheOutcomeWhenTheStoppingActionHasFinished) {
    Dialog dialog;
    QStringList order;
    QObject::connect(dialog.ok, &QPushButton::clicked, [&] {
        Modal::stop(&dialog, 5);
        dialog.hide();
        order << QStringLiteral("stopped");
        // The same window again, from inside the action.
        const int inner = dialog.runOn("ask", [&] { Modal::stop(&dialog, 7); });
        order << QString::number(inner);
    });
    const int outer = dialog.runOn("ask", [&] { QTest::mouseClick(dialog.ok, Qt::LeftButton); });
    order << QString::number(outer);
    EXPECT_EQ(order.join(u' '), QStringLiteral("stopped 7 5"));
}

TEST(Modal, StopsTheRunOfTheWindowAndNoOther) {
    Dialog outer, inner;
    Modal::stop(&outer, 3);
    QList<int> outcomes;
    outcomes << outer.runOn("ask", [&] {
        outcomes << inner.runOn("ask", [&] {
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

TEST(ModalWindow, EveryWayOutPressesTheVisibleCancelButton) {
    const struct {
        const char *name;
        std::function<void(Dialog &)> leave;
    } ways[] = {{"Escape", [](Dialog &d) { QTest::keyClick(&d, Qt::Key_Escape); }},
                {"close box", [](Dialog &d) { d.close(); }}};
    for (const auto &way : ways) {
        Dialog dialog;
        int cancelled = 0;
        QObject::connect(dialog.cancel, &QPushButton::clicked, [&] {
            ++cancelled;
            Modal::stop(&dialog, 0);
        });
        EXPECT_EQ(dialog.runOn("ask", [&] { way.leave(dialog); }), 0) << way.name;
        EXPECT_EQ(cancelled, 1) << way.name;
        EXPECT_TRUE(dialog.isVisible()) << way.name << " closed the window by itself";

        EXPECT_EQ(dialog.runOn("busy",
                               [&] {
                                   way.leave(dialog);
                                   EXPECT_TRUE(dialog.isVisible()) << way.name;
                                   Modal::stop(&dialog, 9);
                               }),
                  9)
            << way.name << " left a view without Cancel";
        EXPECT_EQ(cancelled, 1);
    }
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
