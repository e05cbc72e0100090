#include "PrinterWindow.h"

namespace {

enum Entry { CancelButton, CloseBox, Quit };

class Closing : public PrinterWindow {
  protected:
    // Leaves the window by the entry; true when that lets the application end (Quit only).
    bool leave(Entry entry) {
        if (entry == CancelButton) click("button_MainCancel");
        if (entry == CloseBox) main->window()->close();
        return entry == Quit && main->terminateNetworkTool();
    }
    const QVariantMap hidden{{DWT_IsShowPrinterSelectDialog_Flag, false}};
};

TEST_F(Closing, UnsentChangesAreAskedAboutHoweverTheWindowIsLeft) {
    const struct {
        const char *typed, *button;
        bool open[3], quits;  // afterwards, open by entry
        const char *held;
    } cases[] = {
        {"new-name", "button_SendChangeCheckCancel", {true, true, true}, false, "label-printer"},
        {"new-name", "button_SendChangeCheckNoReflect", {}, true, "label-printer"},
        {"new-name", "button_SendChangeCheckReflect", {true, false, true}, true, "new-name"},
        {"b d", "button_SendChangeCheckReflect", {true, false, true}, true, "label-printer"}};
    for (const auto &c : cases)
        for (const Entry entry : {CancelButton, CloseBox, Quit}) {
            SCOPED_TRACE(testing::Message() << c.button << " " << c.typed << " " << entry);
            open("{}");
            typeName(c.typed);
            dialogs.on("view_SendChangeCheck", c.button);
            if (QByteArray(c.held) == "new-name") dialogs.confirmAndEnd();  // without a warning
            if (QByteArray(c.typed) == "b d") dialogs.alert("Bonjour name cannot be used");
            EXPECT_EQ(leave(entry), entry == Quit && c.quits);
            EXPECT_TRUE(dialogs.isDone());
            EXPECT_EQ(isOpen(), c.open[entry]);
            EXPECT_EQ(closings, c.open[entry] ? QList<QVariantMap>() : QList{hidden});
            EXPECT_EQ(held(), QByteArray(c.held));
            EXPECT_TRUE(isEnabled("button_MainSend") || c.quits) << "the changes are still there";
        }
}

TEST_F(Closing, NothingIsAskedWhereNothingCanHaveChanged) {
    for (const Entry entry : {CancelButton, CloseBox, Quit})
        for (const PrinterEntry &more : {PrinterEntry(), overNetwork}) {
            open("{}", more);
            if (!more.isEmpty()) field("textField_NetworkBonjour")->setText(text("all the same"));
            EXPECT_EQ(leave(entry), entry == Quit);
            EXPECT_EQ(closings, QList{hidden});
            EXPECT_FALSE(isOpen());
        }
}

TEST_F(Closing, ReadingAgainAsksBeforeItDropsChangesAndSecrets) {
    open(R"({"items": {"0x3102": 3, "0x3103": 3}})");
    click("button_MainNewSetting");
    EXPECT_FALSE(served->printer().log().empty()) << "without changes it reads at once";
    const char *const secrets[] = {"textField_InfrastructurePSK", "secureTextField_Password",
                                   "secureTextField_PasswordReinput"};
    typeName("new-name");
    choose("Infrastructure");
    type(secrets[0], "secret key");
    choose("Password");
    EXPECT_TRUE(said("textField_PasswordState").startsWith(text("The printer has no")));
    QTest::mouseClick(control("checkbox_PasswordChange"), Qt::LeftButton);
    for (const char *secret : {secrets[1], secrets[2]}) type(secret, "open123");
    choose("Device");
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckCancel");
    click("button_MainNewSetting");
    EXPECT_EQ(name(), text("new-name"));
    EXPECT_TRUE(isEnabled("button_MainSend"));
    for (const char *secret : secrets) EXPECT_FALSE(field(secret)->text().isEmpty()) << secret;
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckOK");
    click("button_MainNewSetting");
    EXPECT_EQ(name(), text("label-printer"));
    for (const char *secret : secrets) EXPECT_TRUE(field(secret)->text().isEmpty()) << secret;
    EXPECT_FALSE(isEnabled("button_MainSend"));
}

}  // namespace
