#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "pages/DWTBaseView.h"
#include "pages/DWTIPTextField.h"
#include "pages/DWTSecureTextField.h"
#include "platform/core/NotificationCenter.h"

namespace {

// A page whose shared checks can be called.
struct Page : DWTBaseView {
    using DWTBaseView::checkIPtextField;
    using DWTBaseView::isEqualAddress;
    using DWTBaseView::itemInputCheckAddress;
    using DWTBaseView::itemInputCheckString;
    using DWTBaseView::sendNotificationSendOK;
};

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

TEST(PageChecks, AddressesAreFourNumbersThatCanBeAnAddress) {
    const auto page = make<Page>();
    const struct {
        const char *typed;
        bool passes;
        bool passesAsHost;
    } cases[] = {{"", false, false},
                 {"0.0.0.0", false, false},
                 {"255.255.255.255", false, false},
                 {"1.2.3", false, false},
                 {"1.2.3.4.5", false, false},
                 {"1..2.3", false, false},
                 {".1.2.3", false, false},
                 {"256.1.1.1", false, false},
                 {"1.2.3.300", false, false},
                 {"1.2.3.-4", false, false},
                 {"0001.0002.0003.4", false, false},
                 {"99999999999.1.1", false, false},
                 {"0.0.0.1", true, true},
                 {"127.0.0.1", true, false},
                 {"127.000.0.01", true, false},
                 {"127.0.0.2", true, true},
                 {"224.0.0.1", true, true},
                 {"255.255.255.0", true, true},
                 {"010.001.000.001", true, true}};
    for (const auto &c : cases) {
        const QLineEdit field(text(c.typed));
        EXPECT_EQ(page->itemInputCheckAddress(&field, false), c.passes) << c.typed;
        EXPECT_EQ(page->itemInputCheckAddress(&field, true), c.passesAsHost) << c.typed;
    }
    const auto equal = [&](const char *a, const char *b) {
        return page->isEqualAddress(text(a).split(u'.'), text(b).split(u'.'));
    };
    EXPECT_TRUE(equal("010.1.2.3", "10.1.2.03"));
    EXPECT_FALSE(equal("10.1.2.3", "10.1.2.4"));
    EXPECT_FALSE(equal("10.1.2", "10.1.2.4"));
}

TEST(PageChecks, TextsHaveALengthAndACharacterSet) {
    const auto page = make<Page>();
    const auto passes = [&](const QString &typed, bool input) {
        const QLineEdit field(typed);
        return page->itemInputCheckString(&field, text("abc"), 2, 5, input);
    };
    EXPECT_TRUE(passes({}, false)) << "an untouched field may stay empty";
    EXPECT_FALSE(passes({}, true));
    EXPECT_FALSE(passes(text("a"), true));
    EXPECT_TRUE(passes(text("ab"), true));
    EXPECT_TRUE(passes(text("abcab"), true));
    EXPECT_FALSE(passes(text("abcabc"), false));
    for (const char *foreign : {"xab", "axb", "abx", "ab ", "äb", "a👍"})
        EXPECT_FALSE(passes(text(foreign), true)) << foreign;
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

TEST(BasePage, DefaultsAnswerYesAndTheSendStateFollowsTheRecord) {
    auto page = make<Page>();
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
    page->sendNotificationSendOK();
    EXPECT_EQ(posted, QStringList{DWT_MainDialog_SendOK_Message});
    page.reset();
    EXPECT_TRUE(held.expired());
}

}  // namespace
