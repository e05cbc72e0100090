#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "pages/DWTIPTextField.h"
#include "pages/DWTNetworkView.h"
#include "pages/DWTSecureTextField.h"
#include "platform/core/NotificationCenter.h"

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

TEST(AddressField, KeepsDigitsAndDotsWhereverTheRestWasTyped) {
    const struct {
        const char *before;
        const char *pasted;
        const char *after;
        int caret;
    } cases[] = {{"", "12a3b4", "124", 2},      {"", "abc", "", 0},
                 {"", "1.2.3.4", "1.2.3.4", 7}, {"192.168.1.1", "x", "192.168.1.1", 11},
                 {"", "１2", "2", 0},           {"9", "\n👍 é", "9", 1}};
    for (const auto &c : cases) {
        DWTIPTextField field;
        int reported = 0;
        const auto observer = NotificationCenter::shared().observe(
            text("NSControlTextDidChangeNotification"), [&](const Notification &) { ++reported; });
        field.setText(text(c.before));
        QApplication::clipboard()->setText(text(c.pasted));
        field.paste();
        EXPECT_EQ(field.text(), text(c.after)) << c.pasted;
        EXPECT_EQ(field.cursorPosition(), c.caret) << c.pasted;
        EXPECT_EQ(reported, 0) << "the field's own filter replaces the report";
    }
}

TEST(PasswordField, HoldsEightCharactersAndRefusesMoreAsAWhole) {
    DWTSecureTextField field;
    QTest::keyClicks(&field, text("123456789"));
    EXPECT_EQ(field.text(), text("12345678"));
    EXPECT_EQ(field.cursorPosition(), 8);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), text("1345678"));
    QApplication::clipboard()->setText(text("abcde"));
    field.paste();
    EXPECT_EQ(field.text(), text("1345678"));
    EXPECT_NE(field.displayText(), field.text()) << "the password is shown";
    field.setText(text("other"));  // an earlier text must not come back
    QApplication::clipboard()->setText(QString(64 * 1024, u'x'));
    field.paste();
    EXPECT_EQ(field.text(), text("other"));
}

TEST(BasePage, DefaultsAnswerYesAndTheManagerIsKept) {
    auto page = make<DWTBaseView>();
    page->SetViewKey(DWT_View_Key_Network);
    EXPECT_EQ(page->viewKey(), DWT_View_Key_Network);
    EXPECT_TRUE(page->itemInputCheck() && page->itemConnectChangeCheck() &&
                page->itemCheckDifferentToDataManager());
    QStringList posted;
    const auto note = [&](const Notification &n) {
        EXPECT_EQ(n.sender, page.get());
        EXPECT_TRUE(n.userInfo.isEmpty());
        posted << n.name;
    };
    const auto ok = NotificationCenter::shared().observe(DWT_MainDialog_SendOK_Message, note);
    const auto ng = NotificationCenter::shared().observe(DWT_MainDialog_SendNG_Message, note);
    auto manager = make<DWTDataManager>();
    const std::weak_ptr<DWTDataManager> held = manager;
    page->dataManagerObject(manager);
    manager.reset();
    EXPECT_FALSE(held.expired());
    TextField foreign;
    EXPECT_TRUE(page->textShouldEndEditing(&foreign));
    EXPECT_EQ(posted, QStringList{DWT_MainDialog_SendOK_Message}) << "nothing was ever read";
    page.reset();
    EXPECT_TRUE(held.expired());
}

TEST(BasePage, APageThatIsGoneIsNotTold) {
    QWidget window;
    auto page = make<DWTNetworkView>();
    page->mainCustomView()->setParent(&window);
    page->initializeUI();
    auto *field = window.findChild<TextField *>(text("textField_NetworkBonjour"));
    page.reset();
    QTest::keyClicks(field, text("x"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), text("x"));
}

}  // namespace
