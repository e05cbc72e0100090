#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/ui/Alert.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"

namespace {

// A dialog whose view "ask" has the button OK.
struct Dialog : ModalWindow {
    Dialog() {
        auto *ask = new QWidget;
        ok = new QPushButton(QStringLiteral("OK"));
        (new QVBoxLayout(ask))->addWidget(ok);
        views.add(QStringLiteral("ask"), ask);
    }
    // Runs on a view; `action` happens once the dialog is shown.
    int runOn(const char *view, const std::function<void()> &action) {
        views.select(QLatin1String(view));
        QTimer::singleShot(0, this, action);
        return Modal::run(this);
    }
    ViewStack views{this};
    QPushButton *ok;
};

TEST(Modal, DeliversTheOutcomeWhenTheStoppingActionHasFinished) {
    Dialog dialog;
    QStringList order;
    QObject::connect(dialog.ok, &QPushButton::clicked, [&] {
        Modal::stop(5);
        dialog.hide();
        order << QStringLiteral("stopped");
        // The same window again, from inside the action.
        const int inner = dialog.runOn("ask", [&] { Modal::stop(7); });
        order << QString::number(inner);
        EXPECT_FALSE(Modal::isRunning());
    });
    const int outer = dialog.runOn("ask", [&] { QTest::mouseClick(dialog.ok, Qt::LeftButton); });
    order << QString::number(outer);
    EXPECT_EQ(order.join(u' '), QStringLiteral("stopped 7 5"));
}

TEST(Modal, StopsTheInnermostRunAndNothingWithoutOne) {
    Modal::stop(3);
    Dialog outer, inner;
    QList<int> outcomes;
    outcomes << outer.runOn("ask", [&] {
        outcomes << inner.runOn("ask", [&] { Modal::stop(); });
        inner.hide();
        EXPECT_TRUE(Modal::isRunning());
        Modal::stop(0);
    });
    EXPECT_EQ(outcomes, (QList<int>{Modal::stoppedOutcome, 0}));
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
