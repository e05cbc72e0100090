#include "PageInWindow.h"
#include "pages/DWTIPTextField.h"
#include "pages/DWTNetworkView.h"
#include "pages/DWTSecureTextField.h"

namespace {

void paste(TextField &field, const QString &pasted) {
    QApplication::clipboard()->setText(pasted);
    field.paste();
}

TEST(AddressField, KeepsDigitsAndDotsWhereverTheRestWasTyped) {
    const struct {
        const char *before, *pasted, *after;
        int caret;
    } cases[] = {{"", "12a3b4", "124", 2},      {"", "abc", "", 0},
                 {"", "1.2.3.4", "1.2.3.4", 7}, {"192.168.1.1", "x", "192.168.1.1", 11},
                 {"", "１2", "2", 0},           {"9", "\n👍 é", "9", 1}};
    for (const auto &c : cases) {
        DWTIPTextField field;
        field.setText(text(c.before));
        paste(field, text(c.pasted));
        EXPECT_EQ(field.text(), text(c.after)) << c.pasted;
        EXPECT_EQ(field.cursorPosition(), c.caret) << c.pasted;
    }
}

TEST(PasswordField, HoldsEightCharactersRefusesMoreAsAWholeAndReportsNothing) {
    DWTSecureTextField field;
    int reported = 0;
    const auto observer = NotificationCenter::shared().observe(
        text("NSControlTextDidChangeNotification"), [&](const Notification &) { ++reported; });
    QTest::keyClicks(&field, text("123456789"));
    EXPECT_EQ(field.text(), text("12345678"));
    EXPECT_EQ(field.cursorPosition(), 8);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Backspace);
    paste(field, text("abcde"));
    EXPECT_EQ(field.text(), text("1345678"));
    EXPECT_NE(field.displayText(), field.text()) << "the password is shown";
    field.setText(text("other"));  // an earlier text must not come back
    paste(field, QString(64 * 1024, u'x'));
    EXPECT_EQ(field.text(), text("other"));
    EXPECT_EQ(reported, 0);
}

TEST(Pages, OneThatIsGoneIsNotToldOfItsFields) {
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
