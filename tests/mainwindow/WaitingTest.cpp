#include "PrinterWindow.h"

namespace {

// The wait for a silent printer, in ms: nothing that ends it takes nearly as long.
constexpr int silence = 30000;

class Waiting : public PrinterWindow {
  protected:
    // Does something that waits for a silent printer; Escape ends the wait as soon as its window
    // says this, with the bar at that part.
    void cancel(const std::function<void()> &act, const char *said, int done, int total) {
        const DuringWait escape([&](QWidget *wait) {
            const auto *bar = controlOf<QProgressBar>(wait, "progress_Wait");
            if (controlOf<QLabel>(wait, "textField_WaitMassage")->text() != text(said) ||
                bar->value() != done || bar->maximum() != total)
                return false;
            EXPECT_GE(wait->width(), wait->sizeHint().width());
            EXPECT_FALSE(wait->parentWidget()->isEnabled());
            QTest::keyClick(wait->windowHandle(), Qt::Key_Escape);
            // Before the work has begun there is nothing to cancel yet.
            return !controlOf(wait, "button_WaitCancel")->isEnabled();
        });
        const QDeadlineTimer deadline(silence / 2);
        act();
        EXPECT_FALSE(deadline.hasExpired()) << said;
    }
    static constexpr int noPart = -1;
    static constexpr const char *justWait = "Please wait…";
};

TEST_F(Waiting, ACancelledConnectionTestTellsNothingAndACancelledReadingIsForReadingOnly) {
    open(R"({"items": {"0x1006": "Desk"}})", {}, silence);
    setFaults(R"({"items": {"0x2002": {"noReply": true}, "0x3119": {"noReply": true}}})");
    const QString before = said("textField_EthernetConnection");
    choose("Wired network");
    cancel([&] { click("button_EthernetConnect"); }, justWait, noPart, 0);
    EXPECT_EQ(said("textField_EthernetConnection"), before);
    const QString network = field("textField_SimpleAPSSID")->text();
    EXPECT_FALSE(network.isEmpty());
    cancel([&] { click("button_MainNewSetting"); }, "Reading Desk, 7 of 24", 7, 24);
    EXPECT_EQ(field("textField_SimpleAPSSID")->text(), network) << "it was not read again yet";
    EXPECT_TRUE(said("textField_ReadOnly").startsWith(text("Reading was cancelled, so nothing")));
    EXPECT_TRUE(said("textField_ReadOnly").contains(text("those read at")));
    EXPECT_TRUE(field("textField_NetworkBonjour")->isReadOnly());
    EXPECT_TRUE(served->received().endsWith(text("end")));
}

TEST_F(Waiting, ACancelledSearchListsNothingAndSaysSo) {
    open(R"({"items": {"0x3000": 1}, "scanPolls": 20})", {}, silence);
    dialogs.on("tableView_SelectSSIDWindow", [](QWidget *dialog) {
        const auto *const table = controlOf(dialog, "tableView_SelectSSIDWindow");
        EXPECT_TRUE(table->accessibleDescription().startsWith(text("The search was cancelled.")));
        dialog->close();
    });
    choose("Infrastructure");
    cancel([&] { click("button_InfrastructureSelectSSID"); },
           "Searching for networks, about 9 s left", 1, 10);
    EXPECT_TRUE(served->received().endsWith(text("end")));
}

TEST_F(Waiting, WhatIsCancelledBeforeASendLeavesTheDialogAsItWas) {
    open(R"({"password": "open123"})", {}, silence);
    type("textField_NetworkPrinterName", "Desk");
    warned();
    setFaults(R"({"items": {"0x1000": {"noReply": true}}})");
    cancel([&] { send(); }, justWait, noPart, 0);
    setFaults(R"({"items": {"0x1001": {"noReply": true}}})");
    warned().on("view_SendLogin", [&](QWidget *dialog) {
        typeInto(controlOf<QLineEdit>(dialog, "textField_Password"), text("open123"));
        cancel([&] { press(dialog, "button_SendLoginOK"); }, justWait, noPart, 0);
        EXPECT_TRUE(controlOf(dialog, "view_SendLogin")->isVisible());
        EXPECT_EQ(controlOf<QLineEdit>(dialog, "textField_Password")->text(), text("open123"));
        press(dialog, "button_SendLoginCancel");
    });
    send();
    EXPECT_TRUE(isEnabled("button_MainSend"));
}

}  // namespace
