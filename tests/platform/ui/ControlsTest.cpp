#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/core/Waiting.h"
#include "platform/ui/Alert.h"
#include "platform/ui/FieldWidth.h"
#include "platform/ui/RadioGroup.h"
#include "platform/ui/WaitSheet.h"

namespace {

TEST(RadioGroup, ReportsOnlyWhatTheUserPicks) {
    RadioGroup group;
    auto *layout = new QVBoxLayout(&group);
    QList<QRadioButton *> cells;
    for (const int tag : {4, 7}) {  // added as generated code does it: first the cell, then its tag
        cells += new QRadioButton(&group);
        cells.last()->setProperty("tag", tag);
        layout->addWidget(cells.last());
    }
    const QSignalSpy spy(&group, &RadioGroup::selected);
    EXPECT_EQ(group.selectedTag(), -1);
    EXPECT_TRUE(group.selectTag(4));
    EXPECT_EQ(group.selectedTag(), 4);
    EXPECT_FALSE(group.selectTag(5));
    EXPECT_EQ(group.selectedTag(), -1);
    EXPECT_TRUE(spy.isEmpty());

    group.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&group));
    QTest::mouseClick(cells[0], Qt::LeftButton, {}, QPoint(5, cells[0]->height() / 2));
    EXPECT_EQ(group.selectedTag(), 4);
    QTest::keyClick(cells[0], Qt::Key_Down);
    EXPECT_EQ(group.selectedTag(), 7);
    EXPECT_EQ(spy, (QList<QVariantList>{{4}, {7}}));
    group.setEnabled(false);
    QTest::mouseClick(cells[0], Qt::LeftButton, {}, QPoint(5, cells[0]->height() / 2));
    EXPECT_EQ(group.selectedTag(), 7);
}

TEST(Alert, ShowsTypedTextAsItStandsAndIsDismissedByKeys) {
    Alert alert(Alert::Style::Critical);
    alert.setButtonTitle(u"Fine"_qs);
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        const QString typed = u"<b>%1</b>"_qs.arg(key);
        alert.setMessageText(typed);
        alert.setInformativeText(typed);
        bool seen = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            int plain = 0;
            for (const QLabel *label : box->findChildren<QLabel *>())
                plain += label->text() == typed && label->textFormat() == Qt::PlainText;
            EXPECT_EQ(plain, 2);
            EXPECT_EQ(box->icon(), QMessageBox::Critical);
            ASSERT_EQ(box->buttons().size(), 1);
            EXPECT_EQ(box->buttons().first()->text(), u"Fine"_qs);
            seen = true;
            QTest::keyClick(box, key);
        });
        alert.runModal();
        EXPECT_TRUE(seen);
    }
}

class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

  protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

TEST(WaitSheet, PaintsMovesDropsInputAndGivesTheFocusBack) {
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *button = new QPushButton;
    auto *field = new QLineEdit;
    layout->addWidget(button);
    layout->addWidget(field);
    const QSignalSpy clicks(button, &QPushButton::clicked);
    auto *sheetWindow = new QWidget(&window, Qt::Dialog);
    auto *indicator = new QProgressBar(sheetWindow);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();

    PaintCounter windowPaints(&window);
    PaintCounter sheetPaints(sheetWindow);
    PaintCounter indicatorPaints(indicator);
    {
        const WaitSheet sheet(sheetWindow, &window, indicator);
        EXPECT_GT(windowPaints.count, 0);
        EXPECT_GT(sheetPaints.count, 0);
        EXPECT_TRUE(sheetWindow->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), sheetWindow);
        const int before = indicatorPaints.count;
        EXPECT_TRUE(
            waitUntil([&] { return indicatorPaints.count >= before + 5; }, QDeadlineTimer(5000)));
        button->setEnabled(false);  // takes no focus from the field
        button->setEnabled(true);
        sheetWindow->close();
        QTest::keyClick(sheetWindow, Qt::Key_Escape);
        EXPECT_TRUE(sheetWindow->isVisible());
        // What reaches the windowing system while nobody looks is dropped at the end.
        for (QWidget *target : {static_cast<QWidget *>(button), static_cast<QWidget *>(field)}) {
            const QPointF local = target->mapTo(&window, target->rect().center());
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                QApplication::postEvent(
                    target, new QMouseEvent(type, local, window.mapToGlobal(local), Qt::LeftButton,
                                            Qt::LeftButton, {}));
            QApplication::postEvent(target,
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_X, {}, u"x"_qs));
        }
    }
    QApplication::processEvents();
    EXPECT_FALSE(sheetWindow->isVisible());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(clicks.size(), 0);
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(field->hasFocus());
    QTest::mouseClick(button, Qt::LeftButton);  // input works again
    EXPECT_EQ(clicks.size(), 1);
}

TEST(FieldWidth, HoldsTheTextWithoutScrolling) {
    QLineEdit field(u"255.255.255.255"_qs);
    setFieldWidth(&field, 15, u"0"_qs);
    field.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&field));
    const int textWidth = field.fontMetrics().horizontalAdvance(field.text());
    field.setCursorPosition(0);
    EXPECT_GE(field.width(), textWidth);
    EXPECT_LT(field.width(), 2 * textWidth);
}

}  // namespace
