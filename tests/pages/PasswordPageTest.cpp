#include "PageInWindow.h"

namespace {

class PasswordPage : public PageTest<DWTPasswordView> {
  protected:
    PasswordPage() : PageTest("") {}
    QCheckBox *box() { return control<QCheckBox>("checkbox_PasswordChange"); }
    QCheckBox *removal() { return control<QCheckBox>("checkbox_PasswordRemove"); }
    TextField *password() { return control("secureTextField_Password"); }
    TextField *repeated() { return control("secureTextField_PasswordReinput"); }
    // Types both and leaves the fields.
    void typeBoth(const char *first, const char *second) {
        type(password(), text(first));
        type(repeated(), text(second));
        box()->setFocus();
    }
    bool isEmptyAndClosed() {
        return password()->text().isEmpty() && repeated()->text().isEmpty() &&
               !password()->isEnabled() && !repeated()->isEnabled() && !box()->isChecked();
    }
};

TEST_F(PasswordPage, TheBoxOpensTheFieldsAndClosingItForgetsThem) {
    EXPECT_TRUE(isEmptyAndClosed());
    box()->click();
    EXPECT_TRUE(password()->isEnabled() && repeated()->isEnabled());
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Password_Change), 1);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    typeBoth("abc", "abc");
    EXPECT_EQ(stored("password.administrator"), text("'abc'"));
    typeBoth("abcd", "abc");
    EXPECT_EQ(stored("password.administrator"), text("'abc'")) << "they differ";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager());
    EXPECT_EQ(changeList(), text("New password:  > new")) << "a password is shown";
    EXPECT_TRUE(password()->fault().isEmpty());
    EXPECT_EQ(repeated()->fault(), text("The passwords do not match. Type the same password in "
                                        "both fields."));
    typeBoth("", "");
    EXPECT_TRUE(repeated()->fault().startsWith(text("Enter the new password, or choose")));
    QTest::keyClicks(password(), text("123456789"));
    EXPECT_TRUE(noteOf(password()).text().startsWith(text("8 characters at most")));
    QTest::keyClick(password(), Qt::Key_Backspace);
    EXPECT_EQ(noteOf(password()).text().contains(text("the rest")), false);
    resetOf(password()).click();
    EXPECT_TRUE(password()->text().isEmpty());
    removal()->click();
    EXPECT_EQ(changeList(), text("New password:  > removed"));
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Password_Change), 1);
    EXPECT_FALSE(password()->isEnabled() || box()->isChecked());
    EXPECT_TRUE(alertsOf(true).isEmpty());
    box()->click();
    EXPECT_FALSE(removal()->isChecked());
    page->enableAllItems(false);
    EXPECT_FALSE(password()->isEnabled() || repeated()->isEnabled() || box()->isEnabled());
    page->enableAllItems(true);
    EXPECT_TRUE(password()->isEnabled() && repeated()->isEnabled());
    password()->setFocus();
    state.clear();
    page->clearPassword(true);
    EXPECT_TRUE(isEmptyAndClosed());
    EXPECT_EQ(state, QString()) << "clearing a field that has the focus posts";
    EXPECT_FALSE(password()->isUndoAvailable()) << "a password comes back";
    box()->click();
    typeBoth("abc", "abc");
    box()->click();
    EXPECT_TRUE(isEmptyAndClosed());
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Password_Change), 0);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    EXPECT_TRUE(m.manager->isEqualToSaveData() && changeList().isEmpty());
    removal()->click();
    page->revert();
    EXPECT_TRUE(isEmptyAndClosed() && changeList().isEmpty() && removal()->isEnabled());
    page->showPasswordState(PasswordState::NotSet);
    EXPECT_FALSE(removal()->isEnabled()) << "there is nothing to remove";
}

TEST(PasswordField, HoldsEightCharactersRefusesMoreAsAWholeAndReportsNothing) {
    DWTSecureTextField field;
    const auto paste = [&](const QString &pasted) {
        QApplication::clipboard()->setText(pasted);
        field.paste();
    };
    int reported = 0;
    const auto observer = NotificationCenter::shared().observe(
        text("NSControlTextDidChangeNotification"), [&](const Notification &) { ++reported; });
    QTest::keyClicks(&field, text("123456789"));
    EXPECT_EQ(field.text(), text("12345678"));
    EXPECT_EQ(field.cursorPosition(), 8);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Backspace);
    paste(text("abcde"));
    EXPECT_EQ(field.text(), text("1345678"));
    EXPECT_NE(field.displayText(), field.text()) << "the password is shown";
    field.setText(text("other"));  // an earlier text must not come back
    paste(QString(64 * 1024, u'x'));
    EXPECT_EQ(field.text(), text("other"));
    EXPECT_EQ(reported, 0);
}

}  // namespace
