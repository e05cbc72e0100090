#include "PrinterWindow.h"

namespace {

enum class Entry { CancelButton, CloseBox, Quit };
enum class Choice { Stay, Discard, SendValid, SendInvalid };

class Closing : public PrinterWindow {
  protected:
    // Leaves the window by the entry; true when that lets the application end (Quit only).
    bool leave(Entry entry) {
        if (entry == Entry::Quit) return main->terminateNetworkTool();
        if (entry == Entry::CancelButton)
            click("button_MainCancel");
        else
            main->window()->close();
        return false;
    }
    const QVariantMap hidden{{DWT_IsShowPrinterSelectDialog_Flag, false}};
};

TEST_F(Closing, UnsentChangesAreAskedAboutHoweverTheWindowIsLeft) {
    const struct {
        Entry entry;
        Choice choice;
        bool open;   // afterwards
        bool quits;  // Quit only
    } cases[] = {{Entry::CancelButton, Choice::Stay, true, false},
                 {Entry::CloseBox, Choice::Stay, true, false},
                 {Entry::Quit, Choice::Stay, true, false},
                 {Entry::CancelButton, Choice::Discard, false, false},
                 {Entry::CloseBox, Choice::Discard, false, false},
                 {Entry::Quit, Choice::Discard, false, true},
                 {Entry::CancelButton, Choice::SendValid, true, false},
                 {Entry::CloseBox, Choice::SendValid, false, false},
                 {Entry::Quit, Choice::SendValid, true, true},
                 {Entry::CancelButton, Choice::SendInvalid, true, false},
                 {Entry::CloseBox, Choice::SendInvalid, false, false},
                 {Entry::Quit, Choice::SendInvalid, true, true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << int(c.entry) << " " << int(c.choice));
        open("{}");
        type("textField_NetworkBonjour", c.choice == Choice::SendInvalid ? "b d" : "new-name");
        switch (c.choice) {
            case Choice::Stay:
                dialogs.on("view_SendChangeCheck", "button_SendChangeCheckCancel");
                break;
            case Choice::Discard:
                dialogs.on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
                break;
            case Choice::SendValid:  // no warning of the changed name on this way
                dialogs.on("view_SendChangeCheck", "button_SendChangeCheckReflect")
                    .on("view_SendConfirm", "button_SendConfirmTransmission")
                    .on("view_SendEnd", "button_SendEndOK");
                break;
            case Choice::SendInvalid:
                dialogs.on("view_SendChangeCheck", "button_SendChangeCheckReflect")
                    .alert("Bonjour name cannot be used");
                break;
        }
        EXPECT_EQ(leave(c.entry), c.quits);
        EXPECT_TRUE(dialogs.isDone());
        EXPECT_EQ(isOpen(), c.open);
        EXPECT_EQ(closings, c.open ? QList<QVariantMap>() : QList<QVariantMap>{hidden});
        EXPECT_EQ(served->printer().item(0x1004), c.choice == Choice::SendValid
                                                      ? QByteArray("new-name")
                                                      : QByteArray("label-printer"));
        EXPECT_TRUE(isEnabled("button_MainSend") || c.choice != Choice::Stay);
    }
}

TEST_F(Closing, NothingIsAskedWhereNothingCanHaveChanged) {
    for (const Entry entry : {Entry::CancelButton, Entry::CloseBox, Entry::Quit}) {
        open("{}");
        EXPECT_EQ(leave(entry), entry == Entry::Quit);
        EXPECT_EQ(closings, QList<QVariantMap>{hidden});
        open("{}", {{text("ConnectionType"), text("Network")}});
        field("textField_NetworkBonjour")->setText(text("typed all the same"));
        EXPECT_EQ(leave(entry), entry == Entry::Quit);
        EXPECT_EQ(closings, QList<QVariantMap>{hidden});
        EXPECT_FALSE(isOpen());
    }
}

TEST_F(Closing, AChangedAccessPointKeyStaysADifferenceAfterItWasSent) {
    open("{}");
    choose("Access point");
    type("textField_SimpleAPPSK", "12345678");
    dialogs.on("view_SendConfirm", "button_SendConfirmTransmission")
        .on("view_SendEnd", "button_SendEndOK")
        .on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    click("button_MainSend");
    EXPECT_TRUE(served->printer().item(0x3202).endsWith("12345678"));
    click("button_MainCancel");
    EXPECT_FALSE(isOpen());
}

TEST_F(Closing, ReadingAgainAsksBeforeItDropsAChange) {
    open(R"({"items": {"0x3102": 3, "0x3103": 3}})");
    click("button_MainNewSetting");
    EXPECT_FALSE(served->printer().log().empty()) << "without changes it reads at once";
    type("textField_NetworkBonjour", "new-name");
    choose("Infrastructure");
    type("textField_InfrastructurePSK", "secret key");
    choose("Device");
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckCancel");
    click("button_MainNewSetting");
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("new-name"));
    EXPECT_TRUE(isEnabled("button_MainSend"));
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckOK");
    click("button_MainNewSetting");
    EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("label-printer"));
    EXPECT_EQ(field("textField_InfrastructurePSK")->text(), QString());
    EXPECT_FALSE(isEnabled("button_MainSend"));
    EXPECT_TRUE(isEnabled("textField_NetworkBonjour"));
}

}  // namespace
