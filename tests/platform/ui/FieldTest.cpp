#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QTest>

#include "platform/core/NotificationCenter.h"
#include "platform/ui/FieldLooks.h"
#include "platform/ui/RadioGroup.h"
#include "platform/ui/TextField.h"

namespace {

// A window of two fields whose delegate notes every call with the text it saw.
class Fields : public testing::Test, public TextFieldDelegate {
  protected:
    Fields() {
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(field = new TextField);
        layout->addWidget(other = new TextField);
        field->setText(QStringLiteral("old"));
        field->setDelegate(this);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
        calls.clear();
    }
    bool textShouldBeginEditing(TextField *f) override {
        calls << QStringLiteral("begin:") + f->text();
        return accepts;
    }
    bool textShouldEndEditing(TextField *f) override {
        calls << QStringLiteral("end:") + f->text();
        return accepts;
    }
    void controlTextDidChange(TextField *f) override {
        calls << QStringLiteral("change:") + f->text();
        if (onChange) onChange(f);
    }
    QString take() { return std::exchange(calls, {}).join(u' '); }

    QWidget window;
    TextField *field, *other;
    QStringList calls;
    bool accepts = true;
    std::function<void(TextField *)> onChange;
};

TEST_F(Fields, BeginSeesTheOldTextHoweverTheFirstChangeIsMade) {
    const struct {
        const char *name;
        std::function<void()> change;
        const char *calls;
    } ways[] = {
        {"key", [&] { QTest::keyClicks(field, QStringLiteral("x")); }, "begin:old change:oldx"},
        {"delete", [&] { QTest::keyClick(field, Qt::Key_Backspace); }, "begin:old change:ol"},
        {"paste", [&] { field->paste(); }, "begin:old change:oldpasted"},
        {"cut",
         [&] {
             field->selectAll();
             field->cut();
         },
         "begin:old change:"},
        {"input method",
         [&] {
             QInputMethodEvent event;
             event.setCommitString(QStringLiteral("語"));
             QApplication::sendEvent(field, &event);
         },
         "begin:old change:old語"}};
    for (const auto &way : ways) {
        other->setFocus();
        field->setText(QStringLiteral("old"));
        field->setFocus();
        QApplication::clipboard()->setText(QStringLiteral("pasted"));
        calls.clear();
        way.change();
        EXPECT_EQ(take(), QString::fromUtf8(way.calls)) << way.name;
    }
}

TEST_F(Fields, EditingBeginsOnceAndEndsWithTheFocusOrReturn) {
    QTest::keyClicks(field, QStringLiteral("ab"));
    EXPECT_EQ(take(), QStringLiteral("begin:old change:olda change:oldab"));
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(take(), QStringLiteral("end:oldab"));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(take(), QStringLiteral("end:oldab")) << "ends although nothing was typed";
    QTest::keyClicks(field, QStringLiteral("c"));
    EXPECT_EQ(take(), QStringLiteral("begin:oldab change:oldabc"));
    other->setFocus(Qt::PopupFocusReason);
    EXPECT_EQ(take(), QString()) << "a menu ended editing";
    window.hide();
    window.show();
    field->setFocus();
    take();
    QTest::keyClicks(field, QStringLiteral("d"));
    EXPECT_EQ(take(), QStringLiteral("begin:oldabc change:oldabcd"))
        << "hiding did not end editing";
}

TEST_F(Fields, TextFromCodeReportsNothingAndChangesArePosted) {
    int posted = 0;
    const auto observer = NotificationCenter::shared().observe(
        QStringLiteral("NSControlTextDidChangeNotification"),
        [&](const Notification &n) { posted += n.sender == field; });
    field->setText(QStringLiteral("code"));
    field->replaceText(QStringLiteral("more"), 1);
    EXPECT_EQ(take(), QString());
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(field->cursorPosition(), 1);
    QTest::keyClicks(field, QStringLiteral("x"));
    EXPECT_EQ(take(), QStringLiteral("begin:more change:mxore"));
    EXPECT_EQ(posted, 1);
}

TEST_F(Fields, UndoGoesBackBeyondTheFirstChangeAndBeyondAFilter) {
    onChange = [](TextField *f) { f->replaceText(f->text().remove(u'x'), 3); };
    QTest::keyClicks(field, QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("old"));
    onChange = {};
    QTest::keyClicks(field, QStringLiteral("1"));
    EXPECT_EQ(field->text(), QStringLiteral("old1"));
    for (int i = 0; i < 6 && field->isUndoAvailable(); ++i) field->undo();
    EXPECT_EQ(field->text(), QStringLiteral("old"));
}

TEST_F(Fields, RefusalsUndoTheChangeAndKeepTheFocus) {
    accepts = false;
    QTest::keyClicks(field, QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("old"));
    EXPECT_EQ(take(), QStringLiteral("begin:old"));
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }));
    accepts = true;
}

TEST_F(Fields, SurvivesAHugePasteAndADelegateThatDisablesTheField) {
    QApplication::clipboard()->setText(QString(64 * 1024, u'é') +
                                       QStringLiteral("👍🏽\u0301\n"));
    field->paste();
    EXPECT_EQ(field->text().size(), field->maxLength());
    field->clear();
    calls.clear();
    onChange = [](TextField *f) { f->setEnabled(false); };
    QTest::keyClicks(field, QStringLiteral("x"));
    EXPECT_EQ(field->text(), QStringLiteral("x"));
    EXPECT_EQ(take(), QStringLiteral("begin: change:x end:x"));
}

TEST_F(Fields, AFittedFieldShowsItsSampleWhole) {
    const QString sample = QStringLiteral("255.255.255.255");
    fitWidth(field, sample);
    EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance(sample));
    EXPECT_LT(field->width(), 2 * field->fontMetrics().horizontalAdvance(sample));
}

TEST(RadioGroup, ReportsTheUsersChoiceOnlyAndSelectsByTag) {
    RadioGroup group;
    auto *layout = new QHBoxLayout(&group);
    QList<QRadioButton *> cells;
    for (const int tag : {1, 2, 5}) {
        cells << new QRadioButton(QString::number(tag));
        cells.last()->setProperty("tag", tag);
        layout->addWidget(cells.last());
    }
    QList<int> picked;
    QObject::connect(&group, &RadioGroup::selected, [&](int tag) { picked << tag; });
    group.show();
    group.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&group));
    EXPECT_EQ(group.selectedTag(), -1);
    EXPECT_TRUE(group.selectTag(2));
    EXPECT_EQ(group.selectedTag(), 2);
    EXPECT_TRUE(picked.isEmpty()) << "selecting from code was reported";
    QTest::mouseClick(cells[2], Qt::LeftButton, {}, QPoint(8, cells[2]->height() / 2));
    EXPECT_EQ(group.selectedTag(), 5);
    QTest::keyClick(cells[2], Qt::Key_Left);
    EXPECT_EQ(group.selectedTag(), 2);
    EXPECT_EQ(picked, (QList<int>{5, 2}));
    EXPECT_FALSE(group.selectTag(9));
    EXPECT_EQ(group.selectedTag(), -1);
    EXPECT_TRUE(group.selectTag(1));
    EXPECT_EQ(group.selectedTag(), 1) << "the cells no longer exclude each other";
    group.setEnabled(false);
    QTest::mouseClick(cells[1], Qt::LeftButton, {}, QPoint(8, cells[1]->height() / 2));
    EXPECT_EQ(group.selectedTag(), 1);
}

}  // namespace
