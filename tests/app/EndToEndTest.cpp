#include <gtest/gtest.h>

#include <QJsonDocument>

#include "support/Profiles.h"
#include "support/Walk.h"

namespace {

// The demo printers.
Catalogue demo() {
    qputenv("ZMLIB_PRINTERS", "demo");
    return catalogueFromEnvironment();
}

constexpr quint16 bonjourName = 0x1004;

TEST(EndToEnd, AChangeReachesThePrinterWithAndWithoutAPassword) {
    const struct {
        const char *name, *uri, *password;
    } printers[] = {{"Packing-Desk", "virtual://packing-desk", nullptr},
                    {"Dispatch", "virtual://dispatch", "open123"}};
    for (const auto &printer : printers) {
        Walk walk(demo());
        walk.launch();
        ASSERT_TRUE(walk.open(text(printer.name)));
        walk.type("textField_NetworkBonjour", text("gate-2"));
        walk.send(printer.password);
        EXPECT_EQ(walk.held(printer.uri, bonjourName), QByteArray("gate-2"));
        walk.readAgain();
        EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2"));
        walk.press("button_MainCancel");
        EXPECT_FALSE(walk.main()->isVisible() || walk.selector->window()->isVisible());
    }
}

TEST(EndToEnd, APrinterOnTheNetworkIsOnlyShown) {
    Walk walk(demo());
    walk.launch();
    ASSERT_TRUE(walk.open(text("Goods in (first floor)")));
    EXPECT_EQ(walk.shown("textField_NetworkPrinterName"), text("Goods-In"));
    QTest::keyClicks(controlOf(walk.main(), "textField_NetworkPrinterName"), text("x"));
    walk.press("button_MainSend");
    walk.press("button_MainCancel");
    EXPECT_EQ(walk.held("virtual://goods-in", 0x1006), QByteArray("Goods-In"));
}

TEST(EndToEnd, APrinterThatFailsHalfWayKeepsItsOldSettings) {
    Catalogue catalogue = demo();
    Walk walk(catalogue);
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    walk.type("textField_NetworkBonjour", text("gate-2"));
    auto &printer = *catalogue.virtualPrinters[text("virtual://packing-desk")];
    walk.dialogs()
        .alert("The connection to the printer needs your attention")
        .on("view_SendConfirm",
            [&](QWidget *dialog) {
                printer.setFaults(printerOf(R"({"faults": {"closeAfterFrames": 6}})")->faults());
                QTest::keyClick(dialog, Qt::Key_Return);
            })
        .on("view_SendEnd", "button_SendEndOK");
    walk.press("button_MainSend");
    EXPECT_EQ(walk.held("virtual://packing-desk", bonjourName), QByteArray("packing-desk"));
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2"));
    printer.setFaults({});
    walk.readAgain();
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("packing-desk"))
        << "reading again shows what the printer holds";
}

}  // namespace
