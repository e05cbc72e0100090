#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "PrinterWindow.h"

namespace {

const char *const passwordProfile = R"({"password": "open123"})";
const char *const gone = R"({"refuseConnection": true})";

class Sending : public PrinterWindow {
  protected:
    QByteArray bonjour() { return served->printer().item(0x1004); }
    void expectUnsent() {
        EXPECT_TRUE(isEnabled("button_MainSend")) << "the changes are still there";
        EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("new-name"));
        EXPECT_TRUE(QApplication::activeModalWidget() == nullptr);
    }
    // The change of a name warns, whatever happens then.
    void send() {
        click("button_MainSend");
        EXPECT_TRUE(dialogs.isDone());
    }
    DialogScript &warned() {
        return dialogs.alert("The connection to the printer needs your attention");
    }
};

TEST_F(Sending, WithoutAPasswordOneConfirmationSendsEverything) {
    open(R"({"items": {"0x3102": 3, "0x3103": 3}})");
    type("textField_NetworkBonjour", "new-name");
    choose("Infrastructure");
    type("textField_InfrastructurePSK", "secret key");
    EXPECT_FALSE(isEnabled("button_EthernetConnect") || isEnabled("button_InfrastructureConnect"));
    QList<int> values;
    QObject::connect(control<QProgressBar>("progress_SendProgress"), &QProgressBar::valueChanged,
                     [&](int value) { values << value; });
    warned()
        .on("view_SendConfirm", "button_SendConfirmTransmission")
        .on("view_SendEnd", "button_SendEndOK");
    send();
    EXPECT_EQ(values, (QList<int>{0, 16, 33, 50, 66, 85, 100, 0}));
    EXPECT_EQ(bonjour(), QByteArray("new-name"));
    EXPECT_TRUE(served->printer().item(0x3105).endsWith("secret key"));
    EXPECT_EQ(field("textField_InfrastructurePSK")->text(), QString());
    EXPECT_FALSE(isEnabled("button_MainSend"));
    EXPECT_TRUE(isEnabled("button_EthernetConnect") && isEnabled("button_InfrastructureConnect"));
    click("button_MainCancel");
    EXPECT_FALSE(isOpen()) << "nothing was left unsent";
}

TEST_F(Sending, TheLoginIsAskedForUntilItIsRightOrCancelled) {
    open(passwordProfile);
    type("textField_NetworkBonjour", "new-name");
    warned().on("view_SendLogin", "button_SendLoginCancel");
    send();
    expectUnsent();
    warned()
        .type("view_SendLogin", "textField_Password", "wrong", "button_SendLoginOK")
        .on("view_SendLoginError", "button_SendLoginErrorOK")
        .on("view_SendLogin",
            [&](QWidget *dialog) {
                auto *password = controlOf<QLineEdit>(dialog, "textField_Password");
                EXPECT_EQ(password->text(), text("wrong")) << "the typed text is kept";
                EXPECT_EQ(dialog->focusWidget(), password);
                password->selectAll();
                QTest::keyClicks(password, text("open123"));
                QTest::keyClick(password, Qt::Key_Return);
            })
        .on("view_SendConfirm", "button_SendConfirmCancel");
    send();
    expectUnsent();
    EXPECT_EQ(bonjour(), QByteArray("label-printer"));
    warned()
        .on("view_SendLogin",
            [](QWidget *dialog) {
                auto *password = controlOf<QLineEdit>(dialog, "textField_Password");
                EXPECT_EQ(password->text(), QString()) << "a password from the last time";
                QTest::keyClicks(password, text("open123"));
                QTest::keyClick(password, Qt::Key_Return);
            })
        .on("view_SendConfirm", "button_SendConfirmTransmission")
        .on("view_SendEnd", "button_SendEndOK");
    send();
    EXPECT_EQ(bonjour(), QByteArray("new-name"));
}

TEST_F(Sending, WrongInputOnTwoPagesShowsBothAlertsAndSendsNothing) {
    open("{}");
    type("textField_NetworkBonjour", "new name");
    choose("Wired network");
    QTest::mouseClick(control("radioButton_EthernetIPAddressSetting")
                          ->findChild<QRadioButton *>(text("buttonCell_Manual")),
                      Qt::LeftButton);
    type("textField_EthernetIpAddress", "1.2.3");
    dialogs.alert("IP address cannot be used").alert("Bonjour name cannot be used");
    send();
    EXPECT_TRUE(served->printer().log().empty());
}

TEST_F(Sending, APrinterUnpluggedBeforeTheSendLosesNothing) {
    open(passwordProfile);
    type("textField_NetworkBonjour", "new-name");
    setFaults(gone);
    warned().on("view_SendConnectError", "button_SendConnectErrorOK");
    send();  // before the question for the password
    expectUnsent();
    setFaults("{}");
    warned()
        .on("view_SendLogin",
            [&](QWidget *dialog) {
                setFaults(gone);
                QTest::keyClicks(controlOf<QLineEdit>(dialog, "textField_Password"),
                                 text("open123"));
                QTest::mouseClick(controlOf(dialog, "button_SendLoginOK"), Qt::LeftButton);
            })
        .on("view_SendLogin",
            [&](QWidget *dialog) {
                setFaults("{}");
                QTest::mouseClick(controlOf(dialog, "button_SendLoginOK"), Qt::LeftButton);
            })
        .on("view_SendConfirm",
            [&](QWidget *dialog) {
                setFaults(gone);  // between login and confirmation
                QTest::mouseClick(controlOf(dialog, "button_SendConfirmTransmission"),
                                  Qt::LeftButton);
            })
        .on("view_SendConnectError", "button_SendConnectErrorOK");
    send();
    expectUnsent();
    setFaults("{}");
    warned()
        .type("view_SendLogin", "textField_Password", "open123", "button_SendLoginOK")
        .on("view_SendConfirm", "button_SendConfirmTransmission")
        .on("view_SendEnd", "button_SendEndOK");
    send();
    EXPECT_EQ(bonjour(), QByteArray("new-name"));
}

TEST_F(Sending, APrinterUnpluggedDuringTheSendKeepsTheTypedValues) {
    for (const int frames : {1, 2, 3, 6, 9, 12}) {
        SCOPED_TRACE(frames);
        open("{}");
        type("textField_NetworkBonjour", "new-name");
        warned()
            .on("view_SendConfirm",
                [&](QWidget *dialog) {
                    setFaults("{\"closeAfterFrames\": " + QByteArray::number(frames) + "}");
                    QTest::mouseClick(controlOf(dialog, "button_SendConfirmTransmission"),
                                      Qt::LeftButton);
                })
            .on("view_SendEnd", "button_SendEndOK");
        send();
        EXPECT_EQ(bonjour(), QByteArray("label-printer")) << "half of a transaction was kept";
        EXPECT_EQ(field("textField_NetworkBonjour")->text(), text("new-name"));
        setFaults("{}");
        type("textField_NetworkBonjourService", "desk");
        warned()
            .on("view_SendConfirm", "button_SendConfirmTransmission")
            .on("view_SendEnd", "button_SendEndOK");
        send();
        EXPECT_EQ(bonjour(), QByteArray("new-name"));
    }
}

TEST_F(Sending, EscapeCancelsWhereTheViewCanBeCancelled) {
    open(passwordProfile);
    type("textField_NetworkBonjour", "new-name");
    const auto close = [](QWidget *window) { window->close(); };
    warned().key("view_SendLogin", Qt::Key_Escape);
    send();
    expectUnsent();
    warned()
        .type("view_SendLogin", "textField_Password", "open123", "button_SendLoginOK")
        .on("view_SendConfirm", close);
    send();
    expectUnsent();
    dialogs.key("view_UpdateChangeCheck", Qt::Key_Escape);
    click("button_MainNewSetting");
    expectUnsent();
    dialogs.on("view_SendChangeCheck", close);
    EXPECT_FALSE(main->terminateNetworkTool());
    expectUnsent();
    warned()
        .type("view_SendLogin", "textField_Password", "open123", "button_SendLoginOK")
        .on("view_SendConfirm", [&](QWidget *dialog) {
            setFaults(R"({"delay": 30})");
            QTest::mouseClick(controlOf(dialog, "button_SendConfirmTransmission"), Qt::LeftButton);
            QTest::keyClick(dialog, Qt::Key_Escape);
            dialog->close();
            EXPECT_TRUE(controlOf(dialog, "view_SendProgress")->isVisible());
        });
    dialogs.on("view_SendEnd", [](QWidget *dialog) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_TRUE(dialog->isVisible()) << "the end must be read";
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    send();
    EXPECT_EQ(bonjour(), QByteArray("new-name"));
}

TEST_F(Sending, TheConnectionTestAsksTheAddressInUse) {
    open(R"({"items": {"0x2001": {"setting": 0, "address": "10.9.9.9", "mask": "255.0.0.0",
         "gateway": "10.0.0.1"}}})");
    const auto shown = [this](const char *name) { return control<QLabel>(name)->text(); };
    choose("Wired network");
    click("button_EthernetConnect");
    EXPECT_EQ(shown("textField_EthernetConnection"), text("The printer answers"));
    setFaults(gone);
    click("button_EthernetConnect");
    EXPECT_EQ(shown("textField_EthernetConnection"), text("The printer does not answer"));
    setFaults("{}");
    choose("Infrastructure");
    click("button_InfrastructureConnect");
    EXPECT_EQ(shown("textField_InfrastructureConnection"), text("The printer answers"));
}

}  // namespace
