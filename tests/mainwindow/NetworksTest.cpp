#include "PrinterWindow.h"

namespace {

const char *const fourNetworks = R"({"items": {"0x3000": 1}, "scanPolls": 0, "networks": [
    {"ssid": "d", "mode": 2, "authentic": 0, "encryption": 1, "signal": -75},
    {"ssid": "b", "mode": 2, "authentic": 2, "encryption": 3, "signal": -67},
    {"ssid": "a", "mode": 2, "authentic": 0, "encryption": 0, "signal": -66},
    {"ssid": "c", "mode": 2, "authentic": 1, "encryption": 2, "signal": -74}]})";

class Networks : public PrinterWindow {
  protected:
    using Look = std::function<void(QWidget *dialog, TableView *table)>;
    // Opens the list, does what is told in it, and gives the network's name afterwards.
    QString list(const Look &look) {
        dialogs.on("tableView_SelectSSIDWindow", [=](QWidget *dialog) {
            look(dialog, controlOf<TableView>(dialog, "tableView_SelectSSIDWindow"));
        });
        choose("Infrastructure");
        click("button_InfrastructureSelectSSID");
        EXPECT_TRUE(dialogs.isDone());
        return field("textField_InfrastructureSSID")->text();
    }
    static QPoint centreOf(const TableView *table, int row) {
        return table->visualRect(table->model()->index(row, 0)).center();
    }
};

TEST_F(Networks, AreListedStrongestFirstAndTakenOver) {
    open(fourNetworks);
    const auto pickThird = [](QWidget *dialog, TableView *table) {
        QStringList cells;
        for (int i = 0; i < 3 * table->model()->rowCount(); ++i)
            cells << table->model()->index(i / 3, i % 3).data().toString();
        EXPECT_EQ(cells.join(u' '), text("a No Strong b Yes Medium c Yes Medium d Yes Weak"));
        EXPECT_FALSE(controlOf(dialog, "button_SelectSSIDWindowOK")->isEnabled());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {},
                           table->viewport()->rect().bottomRight() - QPoint(3, 3));
        EXPECT_TRUE(dialog->isVisible()) << "nothing was clicked";
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, centreOf(table, 2));
        press(dialog, "button_SelectSSIDWindowOK");
    };
    EXPECT_EQ(list(pickThird), text("c"));
    EXPECT_EQ(control<QComboBox>("popupbutton_InfrastructureAuthentic")->currentText(),
              text("WPA-Personal"));
    EXPECT_TRUE(isEnabled("button_MainSend") && !isEnabled("button_InfrastructureConnect"));
    const auto doubleClickFirst = [](QWidget *, TableView *table) {
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, centreOf(table, 0));
    };
    EXPECT_EQ(list(doubleClickFirst), text("a"));
    const auto selectAndLeave = [](QWidget *dialog, TableView *table) {
        table->selectRow(1);
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    EXPECT_EQ(list(selectAndLeave), text("a"));
}

TEST_F(Networks, OneOfUnknownSecurityLeadsToItsChoiceAndIsWarnedOf) {
    open(R"({"items": {"0x3000": 1}, "scanPolls": 0,
             "networks": [{"ssid": "odd", "mode": 2, "authentic": 9, "encryption": 9, "signal": -50}]})");
    list([](QWidget *dialog, TableView *table) {
        table->selectRow(0);
        press(dialog, "button_SelectSSIDWindowOK");
    });
    EXPECT_EQ(main->window()->focusWidget(), control("popupbutton_InfrastructureAuthentic"));
    dialogs.said("view_SendConfirm", "textField_SendWarnings",
                 "The security of the network “odd” is not known.", "button_SendConfirmCancel");
    send();
}

TEST_F(Networks, NoListOutsideInfrastructureModeAndAnEmptyOneWithoutAPrinter) {
    open(fourNetworks);
    setFaults(R"({"refuseConnection": true})");
    dialogs.alert("Connection to the printer cannot be used");
    list([](QWidget *dialog, TableView *table) {
        EXPECT_EQ(table->model()->rowCount(), 0);
        EXPECT_TRUE(table->accessibleDescription().startsWith(text("The printer could not be")));
        EXPECT_FALSE(controlOf(dialog, "button_SelectSSIDWindowOK")->isEnabled());
        dialog->close();
    });
    control<QRadioButton>("buttonCell_WirelessSimpleA")->click();
    dialogs.alert("List of networks – please note");
    click("button_InfrastructureSelectSSID");
}

TEST_F(Networks, F5SearchesAgainAndKeepsWhatWasChosenAndSorted) {
    open(fourNetworks);
    const auto use = [this](QWidget *dialog, TableView *table) {
        const auto names = [&] {
            QString all;
            for (int i = 0; i < 4; ++i) all += table->model()->index(i, 0).data().toString();
            return all;
        };
        QTest::keyClick(table, Qt::Key_Down);
        EXPECT_EQ(table->selectedRow(), 0);
        QTest::keyClick(table, Qt::Key_3, Qt::ControlModifier);
        EXPECT_EQ(names(), text("dcba")) << "weakest first, not by the words";
        served->received();
        const DuringWait waits([](QWidget *) { return true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->isActiveWindow(); }));
        QTest::keyClick(dialog, Qt::Key_F5);
        EXPECT_TRUE(served->received().contains(text("?3121")));
        setFaults(R"({"refuseConnection": true})");
        dialogs.alert("Connection to the printer cannot be used");
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->isActiveWindow(); }));
        QTest::keyClick(dialog, Qt::Key_F5);
        EXPECT_EQ(names(), text("dcba"));
        QTest::keyClick(table, Qt::Key_Return);
    };
    EXPECT_EQ(list(use), text("a"));
}

TEST_F(Networks, NamesAboveAsciiAreShownAsTheyAreAndKeepTheirBytes) {
    open(R"({"items": {"0x3000": 1, "0x3102": 3, "0x3103": 3}, "scanPolls": 0,
             "networks": [{"ssid": "倉庫", "mode": 2, "authentic": 2, "encryption": 3, "signal": -50}]})");
    const auto pick = [](QWidget *dialog, TableView *table) {
        EXPECT_EQ(table->model()->index(0, 0).data().toString(), text("倉庫"));
        table->selectRow(0);
        press(dialog, "button_SelectSSIDWindowOK");
    };
    const auto sendNow = [this] {
        dialogs.confirmAndEnd();
        send();
        EXPECT_EQ(served->printer().item(0x3104), hex("0600") + QByteArray("倉庫"));
    };
    EXPECT_EQ(list(pick), text("倉庫"));
    sendNow();
    EXPECT_FALSE(isEnabled("button_MainSend"));
    click("button_MainNewSetting");  // which would ask about a difference
    EXPECT_EQ(field("textField_InfrastructureSSID")->text(), text("倉庫"));
    type("textField_PrintTimeOut", "77");
    sendNow();
    click("button_MainCancel");
    EXPECT_FALSE(isOpen());
}

TEST_F(Networks, TheWPSGuideLeadsForwardAndOut) {
    open("{}");
    choose("Infrastructure");
    dialogs.on("view_WPS1", "button_WPS1Next")
        .on("view_WPS2", "button_WPS2Next")
        .on("view_WPS1", "button_WPS1EXIT")
        .key("view_WPS1", Qt::Key_Return)
        .key("view_WPS2", Qt::Key_Escape);
    for (int i = 0; i < 3; ++i) click("button_InfrastructureWPSFunction");
    EXPECT_FALSE(isEnabled("button_MainSend"));
}

}  // namespace
