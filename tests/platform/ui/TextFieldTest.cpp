#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/core/NotificationCenter.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/TextField.h"

namespace {

class LoggedField : public TextField {
  public:
    QStringList log;
    std::function<void()> filter;

  protected:
    void textDidBeginEditing() override { log += u"did begin:"_qs + text(); }
    void textDidChange() override {
        log += u"change:"_qs + text();
        if (filter) filter();
        TextField::textDidChange();
    }
};

// A window with a logged field, a second field and a default button; it is the field's delegate.
class TextFieldTest : public testing::Test, public TextFieldDelegate {
  protected:
    void SetUp() override {
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *w : {static_cast<QWidget *>(field), static_cast<QWidget *>(other),
                           static_cast<QWidget *>(button)})
            layout->addWidget(w);
        button->setProperty("defaultButton", true);
        QObject::connect(button, &QPushButton::clicked, [this] { field->log += u"button"_qs; });
        field->setDelegate(this);
        field->setText(u"old"_qs);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }

    bool textShouldBeginEditing(TextField *) override {
        field->log += u"begin:"_qs + field->text();
        return !onBegin || onBegin();
    }
    bool textShouldEndEditing(TextField *) override {
        field->log += u"end:"_qs + field->text();
        return !onEnd || onEnd();
    }
    void controlTextDidChange(TextField *) override { field->log += u"told"_qs; }

    QStringList takeLog() { return std::exchange(field->log, {}); }

    ModalWindow window;
    LoggedField *field = new LoggedField;
    QLineEdit *other = new QLineEdit;
    QPushButton *button = new QPushButton;
    std::function<bool()> onBegin;
    std::function<bool()> onEnd;
    NotificationCenter::Observer observer = NotificationCenter::shared().observe(
        controlTextDidChangeNotification(),
        [this](const Notification &) { field->log += u"posted"_qs; }, field);
};

TEST_F(TextFieldTest, ReportsInOrderWithTheOldTextAtTheBeginning) {
    QTest::keyClicks(field, u"12"_qs);
    EXPECT_EQ(takeLog(),
              (QStringList{u"begin:old"_qs, u"did begin:old"_qs, u"change:old1"_qs, u"told"_qs,
                           u"posted"_qs, u"change:old12"_qs, u"told"_qs, u"posted"_qs}));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(takeLog(), (QStringList{u"end:old12"_qs, u"button"_qs}));
    QTest::keyClick(field, Qt::Key_Backspace);  // a new session
    EXPECT_EQ(takeLog().mid(0, 3),
              (QStringList{u"begin:old12"_qs, u"did begin:old12"_qs, u"change:old1"_qs}));
    QTest::mouseClick(other, Qt::LeftButton);
    EXPECT_EQ(takeLog(), QStringList{u"end:old1"_qs});
    field->setFocus();
    other->setFocus();  // nothing was typed
    EXPECT_EQ(takeLog(), QStringList{u"end:old1"_qs});
}

TEST_F(TextFieldTest, CodeRaisesNothing) {
    field->setText(u"set"_qs);
    field->clear();
    field->replaceText(u"abc"_qs, 1);
    EXPECT_EQ(field->cursorPosition(), 1);
    EXPECT_TRUE(takeLog().isEmpty());
}

void pasteByMenu(TextField *field) {
    QTimer::singleShot(0, field, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction *action : menu->actions()) {
            if (action->objectName() != u"edit-paste"_qs) continue;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                            field->mapToGlobal(QPoint()));
    QApplication::sendEvent(field, &event);
}

void drop(TextField *field) {
    QMimeData data;
    data.setText(u"x"_qs);
    QDropEvent event(QPointF(field->width() - 5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(field, &event);
}

TEST_F(TextFieldTest, EveryKindOfChangeBeginsWithTheOldTextAndCanBeRefused) {
    QApplication::clipboard()->setText(u"x"_qs);
    struct Case {
        const char *name;
        std::function<void()> change;
    };
    const Case cases[] = {
        {"key", [&] { QTest::keyClick(field, Qt::Key_X); }},
        {"paste key", [&] { QTest::keySequence(field, QKeySequence::Paste); }},
        {"menu", [&] { pasteByMenu(field); }},
        {"drop", [&] { drop(field); }},
        {"slot", [&] { field->paste(); }},
        {"input method",
         [&] {
             QInputMethodEvent event;
             event.setCommitString(u"x"_qs);
             QApplication::sendEvent(field, &event);
         }},
    };
    for (const auto mode : {QLineEdit::Normal, QLineEdit::Password}) {
        for (const Case &c : cases) {
            for (const bool allowed : {true, false}) {
                SCOPED_TRACE(c.name);
                other->setFocus();
                field->setEchoMode(mode);
                field->setText(u"old"_qs);
                field->setFocus();
                takeLog();
                onBegin = [allowed] { return allowed; };
                c.change();
                EXPECT_EQ(takeLog().value(0), u"begin:old"_qs);
                EXPECT_EQ(field->text(), allowed ? u"oldx"_qs : u"old"_qs);
                EXPECT_EQ(field->cursorPosition(), field->text().size());
            }
        }
    }
}

TEST_F(TextFieldTest, UndoGoesBackToTheOldTextAndFiltersKeepIt) {
    field->setCursorPosition(1);
    field->filter = [this] {
        if (field->text().contains(u'a')) field->replaceText(u"o1ld"_qs, 2);
    };
    QTest::keyClicks(field, u"1a"_qs);
    EXPECT_EQ(field->text(), u"o1ld"_qs);
    EXPECT_EQ(field->cursorPosition(), 2);
    EXPECT_FALSE(field->hasSelectedText());
    for (int i = 0; i < 9 && field->isUndoAvailable(); ++i)
        QTest::keySequence(field, QKeySequence::Undo);
    EXPECT_EQ(field->text(), u"old"_qs);
}

TEST_F(TextFieldTest, RefusedEndKeepsTheFocusAndTheDefaultButtonUnpressed) {
    QTest::keyClick(field, Qt::Key_1);
    takeLog();
    onEnd = [] { return false; };
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(takeLog(), (QStringList{u"end:old1"_qs, u"end:old1"_qs}));
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClick(field, Qt::Key_2);  // still the same session
    EXPECT_EQ(takeLog().value(0), u"change:old12"_qs);
    onEnd = nullptr;
}

TEST_F(TextFieldTest, AnotherActiveWindowDoesNotEndEditing) {
    QTest::keyClick(field, Qt::Key_1);
    QWidget second;
    second.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    takeLog();
    QTest::keyClick(field, Qt::Key_2);
    EXPECT_EQ(takeLog().value(0), u"change:old12"_qs);
}

TEST_F(TextFieldTest, SurvivesWhateverTheDelegateDoes) {
    onBegin = [this] {
        field->setEnabled(false);
        other->setFocus();
        return true;
    };
    QTest::keyClick(field, Qt::Key_1);
    EXPECT_EQ(field->text(), u"old1"_qs);

    for (const bool atBegin : {true, false}) {
        auto *doomed = new TextField;
        window.layout()->addWidget(doomed);
        doomed->setDelegate(this);
        doomed->setFocus();
        const QPointer<TextField> guard = doomed;
        onBegin = [doomed] {
            delete doomed;
            return true;
        };
        onEnd = onBegin;
        QTest::keyClick(doomed, atBegin ? Qt::Key_1 : Qt::Key_Return);
        onBegin = onEnd = nullptr;
        EXPECT_FALSE(guard);
    }
    {
        struct : TextFieldDelegate {
        } shortLived;
        field->setDelegate(&shortLived);
    }
    field->setEnabled(true);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_2);
    EXPECT_EQ(field->text(), u"old12"_qs);
}

TEST_F(TextFieldTest, TakesHugeAndUnusualPastes) {
    const QString unusual = u"a\n\t\u0001e\u0301\U0001F5A8"_qs;
    for (const QString &pasted : {unusual, QString(65536, u'x')}) {
        other->setFocus();
        field->clear();
        field->setFocus();
        QApplication::clipboard()->setText(pasted);
        QTest::keySequence(field, QKeySequence::Paste);
        EXPECT_EQ(field->text(), pasted.left(field->maxLength()));
    }
}

}  // namespace
