#include <QPushButton>
#include <QRadioButton>

#include "PrinterWindow.h"

namespace {

const char *const sixNetworks = R"({"items": {"0x3000": 1}, "networks": [
    {"ssid": "d", "mode": 2, "authentic": 0, "encryption": 1, "signal": -75},
    {"ssid": "b", "mode": 2, "authentic": 2, "encryption": 3, "signal": -67},
    {"ssid": "a", "mode": 2, "authentic": 0, "encryption": 0, "signal": -66},
    {"ssid": "c", "mode": 2, "authentic": 1, "encryption": 2, "signal": -74}]})";

class Networks : public PrinterWindow {
  protected:
    void list() {
        choose("Infrastructure");
        click("button_InfrastructureSelectSSID");
        EXPECT_TRUE(dialogs.isDone());
    }
    TextField *ssid() { return field("textField_InfrastructureSSID"); }
    static QString row(const TableView *table, int row) {
        QStringList cells;
        for (int column = 0; column < 3; ++column)
            cells << table->model()->index(row, column).data().toString();
        return cells.join(u' ');
    }
    static QPoint centreOf(const TableView *table, int row) {
        return table->visualRect(table->model()->index(row, 0)).center();
    }
};

TEST_F(Networks, AreListedStrongestFirstAndTakenOver) {
    open(sixNetworks);
    dialogs.on("tableView_SelectSSIDWindow", [](QWidget *dialog) {
        auto *table = controlOf<TableView>(dialog, "tableView_SelectSSIDWindow");
        auto *use = controlOf<QPushButton>(dialog, "button_SelectSSIDWindowOK");
        ASSERT_EQ(table->model()->rowCount(), 4);
        EXPECT_EQ(row(table, 0), text("a No Strong"));
        EXPECT_EQ(row(table, 1), text("b Yes Medium"));
        EXPECT_EQ(row(table, 2), text("c Yes Medium"));
        EXPECT_EQ(row(table, 3), text("d Yes Weak"));
        EXPECT_FALSE(use->isEnabled());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {},
                           table->viewport()->rect().bottomRight() - QPoint(3, 3));
        EXPECT_TRUE(dialog->isVisible()) << "nothing was clicked";
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, centreOf(table, 2));
        EXPECT_TRUE(use->isEnabled());
        QTest::mouseClick(use, Qt::LeftButton);
    });
    list();
    EXPECT_EQ(ssid()->text(), text("c"));
    EXPECT_EQ(control<QComboBox>("popupbutton_InfrastructureAuthentic")->currentText(),
              text("WPA personal"));
    EXPECT_TRUE(isEnabled("button_MainSend") && !isEnabled("button_InfrastructureConnect"));
    dialogs.on("tableView_SelectSSIDWindow", [](QWidget *dialog) {
        auto *table = controlOf<TableView>(dialog, "tableView_SelectSSIDWindow");
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, centreOf(table, 0));
    });
    list();
    EXPECT_EQ(ssid()->text(), text("a"));
    dialogs.key("tableView_SelectSSIDWindow", Qt::Key_Escape);
    list();
    EXPECT_EQ(ssid()->text(), text("a"));
}

TEST_F(Networks, NoListOutsideInfrastructureModeAndAnEmptyOneWithoutAPrinter) {
    open(sixNetworks);
    setFaults(R"({"refuseConnection": true})");
    dialogs.on("tableView_SelectSSIDWindow", [](QWidget *dialog) {
        EXPECT_EQ(controlOf<TableView>(dialog, "tableView_SelectSSIDWindow")->model()->rowCount(),
                  0);
        EXPECT_FALSE(controlOf(dialog, "button_SelectSSIDWindowOK")->isEnabled());
        dialog->close();
    });
    list();
    control<QRadioButton>("buttonCell_WirelessSimpleA")->click();
    dialogs.alert("The list of networks needs your attention");
    list();
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
