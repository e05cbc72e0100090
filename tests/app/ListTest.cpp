#include "SelectionWindow.h"
#include "support/PluggedSource.h"

namespace {

class List : public SelectionWindow {
  protected:
    bool canOpen() { return control("button_PrinterlistOK")->isEnabled(); }
    int rows() { return walk.list()->model()->rowCount(); }
    QString cell(int row, int column = 0, int role = Qt::DisplayRole) {
        return walk.list()->model()->index(row, column).data(role).toString();
    }
    // Every cell of the list.
    QString listed() {
        QStringList cells;
        for (int i = 0; i < 2 * rows(); ++i) cells << cell(i / 2, i % 2);
        return cells.join(u'|');
    }
    // Waits until nothing is looked for any more.
    void awaitAll() {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !control<PrinterList>("view_Printerlist")->isLooking(); }));
    }
    QString said() { return walk.list()->accessibleDescription(); }
    // What is said below the list.
    QString told() {
        return control("view_Problems")->isVisible() ? control<QLabel>("textField_Problems")->text()
                                                     : QString();
    }
};

TEST_F(List, ShowsPrintersAndWhatTellsThemApart) {
    walk.launch();
    const QString all = listed();
    EXPECT_TRUE(all.startsWith(text("Packing-Desk|USB|"))) << qPrintable(all);
    EXPECT_TRUE(all.endsWith(text("|Goods in (first floor)|Network"))) << qPrintable(all);
    QStringList details;
    for (int row = 0; row < rows(); ++row) details << cell(row, 0, Qt::AccessibleDescriptionRole);
    EXPECT_EQ(details.join(u'|'),
              text("Larkfield L200 · serial number A2E0117|Larkfield L400 · serial number B4E0052|"
                   "Larkfield L200 · USB port 1-2|Larkfield L200 · serial number A2E0243|"
                   "Larkfield L400 · 192.168.20.47"));
    EXPECT_FALSE(canOpen());
    walk.list()->selectRow(1);
    EXPECT_TRUE(canOpen());
    click("button_PrinterlistReload");
    EXPECT_FALSE(canOpen());
    awaitAll();
    EXPECT_EQ(listed(), all);
    const ArgumentOverride installer("-INSTALLER");
    click("button_PrinterlistReload");
    EXPECT_EQ(rows(), 4) << "lists printers on the network";
}

TEST_F(List, FollowsPrintersUnlessTheUserIsBusyAndNamesThoseThatCannotBeUsed) {
    PluggedSource::State state;
    installLibrary(libraryWith(catalogue, state));
    walk.launch();
    EXPECT_TRUE(told().startsWith(text("Larkfield L400 (A0017) is connected, but you have no ")));
    walk.list()->selectRow(1);
    const int before = rows();
    const QSize chosen(700, 500);
    window()->resize(chosen);
    state.plugged = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return told().isEmpty(); })) << "still told";
    EXPECT_EQ(window()->size(), chosen);
    EXPECT_TRUE(walk.list()->selectedRow() == 1 && canOpen() && rows() == before - 1);
    state.result = ZMLib::InUse;
    const auto follows = [&] {
        const int openings = state.openings;
        state.plugged = true;
        control<PrinterList>("view_Printerlist")->followPrinters();
        awaitAll();
        state.plugged = false;
        return state.openings > openings;
    };
    keys("Alt+H");
    EXPECT_FALSE(follows()) << "while a menu is open";
    keys("A");
    EXPECT_FALSE(follows()) << "while a dialog is open";
    keys("Escape");
    window()->showMinimized();
    EXPECT_FALSE(follows()) << "while nobody sees it";
    window()->showNormal();
    EXPECT_TRUE(follows());
    EXPECT_TRUE(told().contains(text("is in use by another program")));
    keys("F5");
    EXPECT_TRUE(told().isEmpty() && walk.list()->selectedRow() < 0);
    EXPECT_TRUE(walk.open(text("Packing-Desk")));
    EXPECT_FALSE(follows()) << "while a printer is open";
}

TEST_F(List, ALongOneIsFilteredByWhatItShowsAndOpenedByKeys) {
    auto *const filter = control<QLineEdit>("textField_PrinterlistFilter");
    walk.launch();
    EXPECT_FALSE(filter->isVisible()) << "for so few printers";
    QByteArrayList entries;
    for (int i = 12; i > 0; --i)
        entries << QByteArray(R"({"DeviceURI": "virtual://p%", "ConnectionType": "Network",
            "Address": "10.0.0.%", "ProductName": "Larkfield L200", "BonjourServiceName": "Desk %"})")
                       .replace('%', QByteArray::number(i));
    const QByteArray json = "{\"printers\": [" + entries.join(',') + "]}";
    installLibrary(catalogueLibrary(catalogueFromJson(json, text("twelve"))));
    walk.launch();
    EXPECT_TRUE(filter->isVisible());
    EXPECT_EQ(window()->height(), window()->screen()->availableSize().height() * 2 / 3)
        << "the window grows with the rows";
    EXPECT_EQ(window()->focusWidget(), walk.list());
    keys("Ctrl+1 Down");
    EXPECT_EQ(walk.list()->selectedRow(), 11) << "not sorted by numbers";
    EXPECT_TRUE(canOpen());
    keys("Ctrl+F");
    enter("desk l200 network 0.9");
    EXPECT_EQ(listed(), text("Desk 9|Network"));
    EXPECT_FALSE(canOpen()) << "for a printer that is not shown";
    keys("F5");
    EXPECT_EQ(listed(), text("Desk 9|Network"));
    enter("x");
    EXPECT_EQ(said(), text("No printer matches the filter."));
    keys("Escape Down");
    EXPECT_EQ(walk.list()->selectedRow(), 11) << "in a list that is whole again";
    keys("Ctrl+F");
    enter("desk 9");
    keys("Return");
    EXPECT_TRUE(walk.main()->isVisible());
    walk.press("button_MainCancel");
}

TEST_F(List, AnEmptyOneSaysWhy) {
    struct Empty : PrinterLibrary {
        explicit Empty(const QList<PrinterProblem> &given) : PrinterLibrary({}), all(given) {}
        QList<PrinterProblem> problems() override { return all; }
        const QList<PrinterProblem> all;
    };
    const auto with = [](const QList<PrinterProblem> &problems) {
        return std::make_shared<Empty>(problems);
    };
    const PrinterProblem noNetwork{PrinterProblem::NoNetworkService, {}};
    const PrinterProblem refused{PrinterProblem::NoPermission, text("L200")};
    const struct {
        const char *argument;
        std::shared_ptr<ZMLib> library;
        const char *said, *told;
    } cases[] = {
        {"", with({}), "with a USB cable, or that it is on the same network", ""},
        {"", with({noNetwork}), "over USB, and printers on the network cannot be", "Avahi"},
        {"", with({noNetwork, refused}), "The messages below say why", "L200 is connected"},
        {"", with(QList<PrinterProblem>(6, refused)), "The messages below say why", "… (+2)"},
        {"", catalogueLibrary({}), "The catalogue lists no printers", ""},
        {"-Installer", with({noNetwork}), "with a USB cable. Then", "Avahi"},
        {"-Installer", with({refused}), "The messages below say why", "L200 is connected"}};
    for (const auto &c : cases) {
        const ArgumentOverride argument(c.argument);
        installLibrary(c.library);
        walk.launch();
        if (*c.argument) keys("Return Return Return");
        EXPECT_TRUE(said().contains(text(c.said))) << qPrintable(said());
        EXPECT_TRUE(*c.told ? told().contains(text(c.told)) : told().isEmpty()) << c.said;
    }
    installLibrary(with({}));
    walk.launch();
    click("button_PrinterlistConnect");
    EXPECT_TRUE(control("view_ToolPerform")->isVisible());
    installLibrary(catalogueLibrary(catalogue));
    click("button_ToolPerformEXIT");
    EXPECT_TRUE(isListed() && control("button_PrinterlistConnect")->isHidden());
}

TEST_F(List, RowsCanBeUsedWhilePrintersAreAskedForTheirNames) {
    installLibrary(catalogueLibrary(catalogue, 300));
    SimulatedFaults silent;
    silent.items[0x1006].noReply = true;
    printer("dispatch").setFaults(silent);
    EXPECT_TRUE(quits([&] {
        walk.selector->applicationDidFinishLaunching();
        keys("Ctrl+Q");
    }));
    walk.selector->applicationDidFinishLaunching();
    const auto comes = [this](int row, const char *name) {
        return QTest::qWaitFor([&] { return cell(row) == text(name); });
    };
    EXPECT_EQ(rows(), 5);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(cell(4), text("Goods in (first floor)"));
    EXPECT_TRUE(comes(0, "Packing-Desk"));
    EXPECT_EQ(cell(1), text("Asking for the name…"));
    EXPECT_TRUE(walk.open(text("Packing-Desk")));
    walk.press("button_MainCancel");
    EXPECT_TRUE(comes(1, "Does not answer"));
    printer("dispatch").setFaults({});
    EXPECT_TRUE(walk.open(text("Does not answer")));
    walk.press("button_MainCancel");
    EXPECT_TRUE(comes(1, "Dispatch")) << "not asked again";
}

}  // namespace
