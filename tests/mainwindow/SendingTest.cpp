#include "PrinterWindow.h"

namespace {

const char *const passwordProfile = R"({"password": "open123"})";
const char *const gone = R"({"refuseConnection": true})";

class Sending : public PrinterWindow {
  protected:
    void openAndType(const QByteArray &profile) {
        open(profile);
        typeName("new-name");
    }
    void expectUnsent() {
        EXPECT_TRUE(isEnabled("button_MainSend")) << "the changes are still there";
        EXPECT_EQ(name(), text("new-name"));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    // What a table shows, a line a row; rows below a heading begin with a space.
    static QString textOf(const QTreeWidget *table) {
        QString shown;
        for (QTreeWidgetItemIterator i(const_cast<QTreeWidget *>(table)); *i; ++i) {
            QStringList cells;
            for (int column = 0; column < (*i)->columnCount(); ++column)
                cells << (*i)->text(column);
            shown += ((*i)->parent() ? text(" ") : QString()) + cells.join(u'|') + u'\n';
        }
        return shown;
    }
    static QString saidIn(QWidget *dialog, const char *label) {
        return controlOf<QLabel>(dialog, label)->text();
    }
    DialogScript::Answer faults(const QByteArray &faults) {
        return [this, faults](QWidget *) { setFaults(faults); };
    }
};

TEST_F(Sending, WithoutAPasswordOneConfirmationSendsEverything) {
    openAndType(R"({"items": {"0x3102": 3, "0x3103": 3}})");
    choose("Infrastructure");
    type("textField_InfrastructurePSK", "secret key");
    field("textField_InfrastructurePSK")->findChild<QToolButton *>()->click();
    EXPECT_EQ(field("textField_InfrastructurePSK")->echoMode(), QLineEdit::Normal);
    EXPECT_FALSE(isEnabled("button_EthernetConnect") || isEnabled("button_InfrastructureConnect"));
    QList<int> values;
    QObject::connect(control<QProgressBar>("progress_SendProgress"), &QProgressBar::valueChanged,
                     [&](int value) { values << value; });
    warned().confirmAndEnd();
    send();
    EXPECT_EQ(values, (QList<int>{0, 16, 22, 27, 33, 50, 66, 69, 76, 82, 85, 93, 100, 99, 0}));
    EXPECT_EQ(held(), QByteArray("new-name"));
    EXPECT_TRUE(served->printer().item(0x3105).endsWith("secret key"));
    EXPECT_EQ(field("textField_InfrastructurePSK")->text(), QString());
    EXPECT_EQ(field("textField_InfrastructurePSK")->echoMode(), QLineEdit::Password);
    EXPECT_FALSE(isEnabled("button_MainSend"));
    EXPECT_TRUE(isEnabled("button_EthernetConnect") && isEnabled("button_InfrastructureConnect"));
    click("button_MainCancel");
    EXPECT_FALSE(isOpen()) << "nothing was left unsent";
}

TEST_F(Sending, TheLoginIsAskedForUntilItIsRightOrCancelled) {
    openAndType(passwordProfile);
    const auto expectPassword = [](const char *typed) {
        return [typed](QWidget *dialog) {
            auto *password = controlOf<QLineEdit>(dialog, "textField_Password");
            EXPECT_EQ(password->text(), text(typed));
            EXPECT_EQ(password->selectedText().size(), password->text().size());
            EXPECT_EQ(dialog->focusWidget(), password);
        };
    };
    warned()
        .login("wrong")
        .on("view_SendLoginError", "button_SendLoginErrorOK")
        .on("view_SendLogin", expectPassword("wrong"))
        .login("open123")
        .on("view_SendConfirm", "button_SendConfirmCancel");
    send();
    expectUnsent();
    warned().on("view_SendLogin", expectPassword(""), "button_SendLoginCancel");
    send();
    expectUnsent();
    EXPECT_EQ(held(), QByteArray("label-printer"));
}

TEST_F(Sending, WrongInputOnTwoPagesIsToldAndLeadsToTheFirstFieldToMend) {
    open("{}");
    EXPECT_EQ(markOf("Names"), QString());
    typeName("new name");
    EXPECT_EQ(markOf("Names"), text("Changed, not sent yet"));
    choose("Wired network");
    EXPECT_EQ(markOf("Names"), text("A value on this page cannot be used"));
    const auto height = [this](const char *category) {
        return control<OutlineView>("outlineView_Main")->visualRect(rowOf(category)).height();
    };
    EXPECT_EQ(height("Names"), height("Password")) << "the outline jumps";
    press(control("radioButton_EthernetIPAddressSetting"), "buttonCell_Manual");
    type("textField_EthernetIpAddress", "1.2.3");
    dialogs
        .on("",
            [](QWidget *alert) {
                const auto *box = static_cast<QMessageBox *>(alert);
                EXPECT_EQ(box->windowTitle(), text("Label-Printer – Network Setting Tool"));
                EXPECT_TRUE(box->informativeText().startsWith(text("Wired network\nAn address")));
                QTest::keyClick(alert, Qt::Key_Return);
            })
        .alert("Bonjour name cannot be used");
    send();
    EXPECT_TRUE(served->printer().log().empty());
    EXPECT_EQ(selectedCategory(), text("Names"));
    auto *const wrong = field("textField_NetworkBonjour");
    EXPECT_TRUE(main->window()->focusWidget() == wrong && wrong->isVisible());
    EXPECT_EQ(wrong->selectedText(), text("new name"));
    QTest::keyClicks(wrong, text("new-name"));
    EXPECT_EQ(markOf("Names"), text("Changed, not sent yet"));
    dialogs.alert("IP address cannot be used");
    send();
    EXPECT_EQ(selectedCategory(), text("Wired network"));
    EXPECT_EQ(main->window()->focusWidget(), field("textField_EthernetIpAddress"));
}

TEST_F(Sending, WhatWillChangeIsListedAndWarnedOfBeforeItIsSent) {
    open(R"({"items": {"0x3000": 1, "0x3102": 0, "0x3103": 0, "0x1004": "desk", "0x3104": "Old",
         "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"}}})");
    typeName("desk-2");
    choose("Wired network");
    type("textField_EthernetSubnetMask", "255.0.255.0");
    choose("Infrastructure");
    type("textField_InfrastructureSSID", "New");
    pickItem("popupbutton_InfrastructureAuthentic", "WPA2");
    const auto reads = [](QWidget *dialog) {
        auto *list = controlOf<QTreeWidget>(dialog, "table_SendConfirm");
        EXPECT_EQ(textOf(list),
                  text("Names\n Bonjour name|desk|desk-2\nWired network\n"
                       " Subnet mask|255.0.0.0|255.0.255.0\nInfrastructure\n"
                       " Network name (SSID)|Old|New\n"
                       " Authentication|Open system|WPA2-Personal\n Encryption|None|AES\n"));
        EXPECT_EQ(saidIn(dialog, "heading_Send"), text("Send these changes to Label-Printer?"));
        EXPECT_TRUE(list->isVisible() && dialog->focusWidget() == list);
        EXPECT_EQ(list->accessibleName(), text("What will change"));
        const auto *warnings = controlOf<QLabel>(dialog, "textField_SendWarnings");
        EXPECT_TRUE(warnings->isVisible());
        EXPECT_EQ(warnings->text(),
                  text("Wired network: 255.0.255.0 is not a usual subnet mask. Computers may not "
                       "reach the printer.\nInfrastructure: The network “New” is protected, but "
                       "no key was entered. The printer keeps its old key."));
        QTest::keyClick(list, Qt::Key_Return);
    };
    warned().on("view_SendConfirm", reads).on("view_SendEnd", "button_SendEndOK");
    send();
    EXPECT_EQ(held(), QByteArray("desk-2"));
    EXPECT_EQ(markOf("Names") + markOf("Infrastructure"), QString());
}

TEST_F(Sending, APrinterUnpluggedBeforeTheSendLosesNothing) {
    openAndType(passwordProfile);
    setFaults(gone);
    warned().on("view_SendConnectError", "button_SendConnectErrorOK");
    send();  // before the question for the password
    expectUnsent();
    setFaults("{}");
    warned()
        .on("view_SendLogin", faults(gone))
        .login("open123")
        .said("view_SendLogin", "heading_Send", "cannot be reached",
              faults(R"({"items": {"0x1001": {"noReply": true}}})"))
        .on("view_SendLogin", "button_SendLoginOK")
        .said("view_SendLoginError", "heading_Send", "cannot be reached", "button_SendLoginErrorOK")
        .on("view_SendLogin", faults("{}"), "button_SendLoginOK")
        .on("view_SendConfirm", faults(gone), "button_SendConfirmTransmission")
        .on("view_SendConnectError", "button_SendConnectErrorOK");
    send();
    expectUnsent();
}

TEST_F(Sending, TheEndSaysWhatBecameOfTheSettings) {
    const struct {
        const char *faults, *heading, *said, *table;
        bool lost = false;
    } cases[] = {
        {R"({"items": {"0x1004": {"result": 5}, "0x2001": {"result": 7}}})",
         "Label-Printer did not take every setting", "Your changes are kept.",
         "Names\n Bonjour name|new-name|label-printer|refused (code 5)\nNot changed by you\n"
         " Wired network: Address assignment|Fixed address|Fixed address|refused (code 7)\n"},
        {R"({"items": {"0x1004": {"result": 0}}})", "Label-Printer did not take every setting",
         "Your changes are kept.", "Names\n Bonjour name|new-name|label-printer|different\n"},
        {R"({"items": {"0x1004": {"noReply": true}}})", "Label-Printer did not take every setting",
         "it could not be read again", "Names\n Bonjour name|new-name||no answer\n"},
        {R"({"items": {"0x1007": {"closeAfterReply": true}}})",
         "The connection to Label-Printer was lost", "was lost. Nothing was applied", "", true}};
    const auto sendAndRead = [&](const QByteArray &faults_, bool lost, const char *said,
                                 const char *heading, const char *table) {
        auto &script = warned().login("open123");
        script.on("view_SendConfirm", faults(faults_), "button_SendConfirmTransmission");
        const char *const view = lost ? "view_SendConnectError" : "view_SendEnd";
        script.said(view, lost ? "textField_SendConnectError" : "textField_SendEnd", said,
                    [=](QWidget *dialog) {
                        EXPECT_EQ(saidIn(dialog, "heading_Send"), text(heading));
                        const auto *rows = controlOf<QTreeWidget>(dialog, "table_SendEnd");
                        const auto isSaid = [&] { return textOf(rows) == text(table); };
                        EXPECT_TRUE(QTest::qWaitFor(isSaid)) << textOf(rows).toStdString();
                        EXPECT_EQ(rows->isVisible(), *table != 0);
                        QTest::keyClick(dialog, Qt::Key_Return);
                    });
        send();
    };
    for (const auto &c : cases) {
        openAndType(passwordProfile);
        choose("Infrastructure");
        type("textField_InfrastructureSSID", "new network");
        sendAndRead(c.faults, c.lost, c.said, c.heading, c.table);
        expectUnsent();
        EXPECT_TRUE(!c.lost || held() == "label-printer") << "half of a transaction was kept";
        setFaults("{}");
        sendAndRead("{}", false, "and has the new settings", "Sent and verified", "");
        EXPECT_EQ(held(), QByteArray("new-name"));
        EXPECT_FALSE(isEnabled("button_MainSend"));
    }
}

TEST_F(Sending, EscapeCancelsWhereTheViewCanBeCancelled) {
    openAndType(passwordProfile);
    const auto hasCloseBox = [](QWidget *window) {
        return window->windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint);
    };
    const auto close = [&](QWidget *window) {
        EXPECT_TRUE(hasCloseBox(window));
        window->close();
    };
    warned().key("view_SendLogin", Qt::Key_Escape);
    send();
    warned().login("open123").on("view_SendConfirm", close);
    send();
    dialogs.key("", Qt::Key_Escape);
    send();
    dialogs.key("view_UpdateChangeCheck", Qt::Key_Escape);
    click("button_MainNewSetting");
    dialogs.on("view_SendChangeCheck", close);
    EXPECT_FALSE(main->terminateNetworkTool());
    expectUnsent();
    const auto tryToLeave = [&](const char *view) {
        return [=](QWidget *dialog) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return !hasCloseBox(dialog); })) << view;
            QTest::keyClick(dialog, Qt::Key_Escape);
            dialog->close();
            EXPECT_TRUE(controlOf(dialog, view)->isVisible());
        };
    };
    warned()
        .login("open123")
        .on("view_SendConfirm", faults(R"({"delay": 30})"), "button_SendConfirmTransmission")
        .on("view_SendProgress", tryToLeave("view_SendProgress"))
        .on("view_SendEnd", tryToLeave("view_SendEnd"), "button_SendEndOK");
    send();
    EXPECT_EQ(held(), QByteArray("new-name"));
}

TEST_F(Sending, TheConnectionTestAsksTheAddressInUse) {
    open(R"({"items": {"0x2001": {"setting": 0, "address": "10.9.9.9", "mask": "255.0.0.0",
         "gateway": "10.0.0.1"}}})");
    choose("Wired network");
    click("button_EthernetConnect");
    EXPECT_EQ(said("textField_EthernetConnection"), text("The printer answers"));
    setFaults(gone);
    click("button_EthernetConnect");
    EXPECT_EQ(said("textField_EthernetConnection"), text("The printer does not answer"));
    setFaults("{}");
    choose("Infrastructure");
    click("button_InfrastructureConnect");
    EXPECT_EQ(said("textField_InfrastructureConnection"), text("The printer answers"));
}

}  // namespace
