#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "platform/core/NotificationCenter.h"
#include "platform/ui/TextField.h"

namespace {

using namespace Qt::StringLiterals;

// A window of two fields whose delegate notes every call with the text it saw.
class Fields : public testing::Test, public TextFieldDelegate {
  protected:
    Fields() {
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        field->setText(u"old"_s);
        field->setDelegate(this);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
        calls.clear();
    }
    bool textShouldBeginEditing(TextField *f) override { return note("begin:", f); }
    bool textShouldEndEditing(TextField *f) override { return note("end:", f); }
    void controlTextDidChange(TextField *f) override { note("change:", f); }
    bool note(const char *call, TextField *f) {
        calls << QLatin1String(call) + f->text();
        return true;
    }
    QString take() { return std::exchange(calls, {}).join(u' '); }

    QWidget window;
    TextField *const field = new TextField, *const other = new TextField;
    QStringList calls;
};

TEST_F(Fields, BeginSeesTheOldTextHoweverTheFirstChangeIsMade) {
    QInputMethodEvent composed;
    composed.setCommitString(u"語"_s);
    const std::pair<std::function<void()>, QString> ways[] = {
        {[&] { QTest::keyClicks(field, u"x"_s); }, u"begin:old change:oldx"_s},
        {[&] { QTest::keyClick(field, Qt::Key_Backspace); }, u"begin:old change:ol"_s},
        {[&] { field->paste(); }, u"begin:old change:oldpasted"_s},
        {[&] { field->selectAll(), field->cut(); }, u"begin:old change:"_s},
        {[&] { QApplication::sendEvent(field, &composed); }, u"begin:old change:old語"_s}};
    for (const auto &[change, expected] : ways) {
        other->setFocus();
        field->setText(u"old"_s);
        field->setFocus();
        QApplication::clipboard()->setText(u"pasted"_s);
        calls.clear();
        change();
        EXPECT_EQ(take(), expected);
    }
}

TEST_F(Fields, EditingIsReportedFromTheFirstChangeOfTheUserToTheEndOfTheFocusOrReturn) {
    QTest::keyClicks(field, u"ab"_s);
    EXPECT_EQ(take(), u"begin:old change:olda change:oldab"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(take(), u"end:oldab end:oldab"_s) << "ends although nothing was typed";
    QTest::keyClicks(field, u"c"_s);
    other->setFocus(Qt::PopupFocusReason);
    EXPECT_EQ(take(), u"begin:oldab change:oldabc"_s) << "a menu ended editing";
    window.hide();
    window.show();
    field->setFocus();
    take();
    QTest::keyClicks(field, u"d"_s);
    EXPECT_EQ(take(), u"begin:oldabc change:oldabcd"_s) << "hiding did not end editing";
    const auto observer = NotificationCenter::shared().observe(
        u"NSControlTextDidChangeNotification"_s,
        [&](const Notification &) { note("post:", field); }, field);
    field->setText(u"code"_s);
    field->replaceText(u"more"_s, 1);
    QTest::keyClicks(field, u"x"_s);
    EXPECT_EQ(take(), u"begin:more change:mxore post:mxore"_s) << "text from code is reported";
}

}  // namespace
