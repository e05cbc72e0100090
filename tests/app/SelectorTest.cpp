#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMenuBar>
#include <QProcess>
#include <QRadioButton>
#include <QTemporaryDir>

#include "app/TrayIcon.h"
#include "platform/ui/SingleInstance.h"
#include "support/Arguments.h"
#include "support/PluggedSource.h"
#include "support/Walk.h"

namespace {

class Selector : public testing::Test {
  protected:
    Selector() { application()->setDelegate(walk.selector.get()); }
    ~Selector() override { application()->setDelegate(nullptr); }

    static Application *application() { return static_cast<Application *>(qApp); }
    QWidget *window() { return walk.selector->window(); }
    bool isListed() { return window()->isVisible(); }
    void click(const char *button) { press(window(), button); }
    // Begins with a list of these printers.
    TableView *launchWith(std::unique_ptr<PrinterSource> source) {
        std::vector<std::unique_ptr<PrinterSource>> sources;
        sources.push_back(std::move(source));
        installLibrary(std::make_shared<PrinterLibrary>(std::move(sources)));
        walk.selector->applicationDidFinishLaunching();
        return walk.list();
    }
    bool canOpen() { return controlOf(window(), "button_PrinterlistOK")->isEnabled(); }
    // Every cell of the list.
    QString listed() {
        QStringList cells;
        for (int i = 0; i < 2 * walk.list()->model()->rowCount(); ++i)
            cells << walk.list()->model()->index(i / 2, i % 2).data().toString();
        return cells.join(u'|');
    }
    // Runs the action inside the event loop; true when it makes the application quit.
    static bool quits(const std::function<void()> &action) {
        constexpr int goesOn = 77;
        QObject context;  // what is left waiting goes with it
        QTimer::singleShot(0, &context, [&] {
            action();
            QTimer::singleShot(0, &context, [] { QApplication::exit(goesOn); });
        });
        return QApplication::exec() != goesOn;
    }
    // The menus of a window, by their titles.
    static QMap<QString, QMenu *> menus(QWidget *window) {
        QMap<QString, QMenu *> found;
        for (QAction *top : window->findChild<QMenuBar *>()->actions())
            found[top->text().remove(u'&')] = top->menu();
        return found;
    }
    // Presses a key once the window has got the keyboard, maybe back from a dialog.
    static void keyIn(QWidget *window, Qt::Key key, Qt::KeyboardModifier with) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }));
        QTest::keyClick(window, key, with);
    }
    // Opens a menu by its mnemonic.
    static void openMenu(QWidget *window, Qt::Key letter) {
        keyIn(window, letter, Qt::AltModifier);
        ASSERT_TRUE(QApplication::activePopupWidget());
    }
    QString visibleView() {
        for (const char *view : {"view_ToolPerform", "view_ChooseConnect", "view_USBConnect",
                                 "view_WPS1", "view_WPS2", "view_Printerlist"})
            if (controlOf(window(), view)->isVisible()) return text(view);
        return {};
    }

    const Catalogue catalogue = demoCatalogue();
    Walk walk{catalogue};
};

TEST_F(Selector, EveryStepOfTheGuideLeadsToItsView) {
    const ArgumentOverride installer("-INSTALLER");
    const char *const ok = "button_ToolPerformOK", *const next = "button_ChooseConnectNext",
                      *const wps = "buttonCell_WSPConnect", *const usb = "buttonCell_USBConnect",
                      *const next1 = "button_WPS1Next";
    const struct {
        QList<const char *> clicks;
        const char *view;  // null: the application quits
    } cases[] = {{{}, "view_ToolPerform"},
                 {{ok}, "view_ChooseConnect"},
                 {{ok, usb, next}, "view_USBConnect"},
                 {{ok, usb, next, "button_USBConnectNext"}, "view_Printerlist"},
                 {{ok, wps, next}, "view_WPS1"},
                 {{ok, wps, next, "button_WPS1Back"}, "view_ChooseConnect"},
                 {{ok, wps, next, next1}, "view_WPS2"},
                 {{ok, wps, next, next1, "button_WPS2Back"}, "view_WPS1"},
                 {{"button_ToolPerformEXIT"}, nullptr},
                 {{ok, "button_ChooseConnectEXIT"}, nullptr},
                 {{ok, wps, next, "button_WPS1EXIT"}, nullptr},
                 {{ok, wps, next, next1, "button_WPS2EXIT"}, nullptr},
                 {{ok, wps, next, next1, "button_WPS2Next"}, nullptr}};
    for (const auto &c : cases) {
        const bool quit = quits([&] {
            walk.launch();
            for (const char *button : c.clicks)
                controlOf<QAbstractButton>(window(), button)->click();
        });
        EXPECT_EQ(quit, c.view == nullptr) << (c.clicks.isEmpty() ? "" : c.clicks.last());
        EXPECT_TRUE(quit || visibleView() == text(c.view)) << qPrintable(visibleView());
    }
}

TEST_F(Selector, DrawingsOfTheGuideFollowTheColoursAndSayWhatTheyShow) {
    const ArgumentOverride installer("-Installer");
    walk.launch();
    auto *const drawing = controlOf<QLabel>(window(), "imageView_ToolPerform");
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(drawing);
    EXPECT_EQ(told->role(), QAccessible::Graphic);
    EXPECT_TRUE(told->text(QAccessible::Name).startsWith(text("Drawing: a label printer")));
    for (const QColor &surface : {QColor(250, 250, 250), QColor(20, 30, 40)}) {
        QPalette colours(surface);
        colours.setColor(QPalette::Base, surface);
        colours.setColor(QPalette::Highlight, Qt::red);
        window()->setPalette(colours);
        const QImage drawn = drawing->pixmap().toImage();
        QSet<QRgb> found;
        for (int i = 0; i < drawn.width() * drawn.height(); ++i)
            found << drawn.pixel(i % drawn.width(), i / drawn.width());
        for (const auto role : {QPalette::WindowText, QPalette::Base, QPalette::Highlight})
            EXPECT_TRUE(found.contains(colours.color(role).rgba())) << role;
    }
}

TEST_F(Selector, TheListShowsPrintersAndStaysWithoutAWindow) {
    bool waited = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout,
                     [&] { waited |= controlOf(window(), "progress_Wait")->isVisible(); });
    look.start(0);
    walk.launch();
    look.stop();
    EXPECT_TRUE(waited) << "the first listing does not wait like the later ones";
    EXPECT_EQ(visibleView(), text("view_Printerlist"));
    const QString all = listed();
    EXPECT_TRUE(all.startsWith(text("Packing-Desk|USB|"))) << qPrintable(all);
    EXPECT_TRUE(all.endsWith(text("|Goods in (first floor)|Network"))) << qPrintable(all);
    const auto detail = [&](int row) {
        return walk.list()->model()->index(row, 0).data(Qt::AccessibleDescriptionRole).toString();
    };
    EXPECT_EQ(detail(0), QString::fromUtf8("Larkfield L200 · serial number A2E0117"));
    EXPECT_EQ(detail(2), QString::fromUtf8("Larkfield L200 · USB port 1-2"));
    EXPECT_EQ(detail(3), QString::fromUtf8("Larkfield L400 · 192.168.20.47"));
    EXPECT_FALSE(canOpen());
    walk.list()->selectRow(1);
    EXPECT_TRUE(canOpen());
    click("button_PrinterlistReload");
    EXPECT_FALSE(canOpen());
    EXPECT_EQ(listed(), all);
    EXPECT_FALSE(quits([&] { click("button_PrinterlistEXIT"); }));
    EXPECT_FALSE(isListed());
    application()->reopen();
    EXPECT_TRUE(isListed());
    EXPECT_FALSE(quits([&] { window()->close(); }));
    EXPECT_FALSE(isListed());
}

TEST_F(Selector, TheListFollowsPrintersAndNamesThoseThatCannotBeUsed) {
    PluggedSource::State state;
    installLibrary(libraryWith(catalogue, state));
    walk.launch();
    const auto *told = controlOf<QLabel>(window(), "textField_Problems");
    const auto tells = [&](const char *words) {
        return told->isVisible() && told->text().contains(QLatin1String(words));
    };
    EXPECT_TRUE(tells("Larkfield L400 (A0017) is connected, but you have no permission"))
        << qPrintable(told->text());
    walk.list()->selectRow(1);
    const QString selected = listed();
    const QSize chosen(700, 500);
    window()->resize(chosen);
    state.plugged = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told->isVisible(); }, 2000)) << "still told";
    EXPECT_EQ(walk.list()->selectedRow(), 1);
    EXPECT_EQ(window()->size(), chosen);
    EXPECT_TRUE(canOpen());
    EXPECT_EQ(listed(), selected);
    state.plugged = true;
    state.result = ZMLib::InUse;
    EXPECT_TRUE(QTest::qWaitFor([&] { return tells("is in use by another program"); }, 2000));
    int openings = state.openings;
    EXPECT_TRUE(QTest::qWaitFor([&] { return window()->isActiveWindow(); }));
    QTest::keyClick(walk.list(), Qt::Key_F5);
    EXPECT_EQ(state.openings, ++openings);
    EXPECT_EQ(walk.list()->selectedRow(), -1);
    EXPECT_TRUE(walk.open(text("Packing-Desk")));
    state.plugged = false;
    QTest::qWait(1200);  // longer than the list takes to follow
    EXPECT_EQ(state.openings, openings) << "looked for while a printer is open";
    EXPECT_TRUE(walk.main()->isVisible());
}

TEST_F(Selector, ALongListIsFilteredByWhatItShowsAndOpenedByKeys) {
    auto *const filter = controlOf<QLineEdit>(window(), "textField_PrinterlistFilter");
    walk.launch();
    EXPECT_FALSE(filter->isVisible()) << "for so few printers";
    QByteArrayList entries;
    for (int i = 0; i < 12; ++i)
        entries << R"({"DeviceURI": "virtual://p%", "ConnectionType": "Network", "Address":
            "10.0.0.%", "ProductName": "Larkfield L200", "BonjourServiceName": "Desk %"})";
    for (int i = 0; i < 12; ++i) entries[i].replace('%', QByteArray::number(12 - i));
    const QByteArray json = "{\"printers\": [" + entries.join(',') + "]}";
    auto *const list =
        launchWith(std::make_unique<CatalogueSource>(catalogueFromJson(json, text("twelve"))));
    EXPECT_TRUE(filter->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window()->isActiveWindow(); }));
    EXPECT_TRUE(list->hasFocus());
    QTest::keyClick(list, Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->selectedRow(), 11) << "not sorted by numbers";
    EXPECT_TRUE(canOpen());
    QTest::keyClick(list, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(filter->hasFocus());
    QTest::keyClicks(filter, text("desk l200 network 0.9"));
    EXPECT_EQ(listed(), text("Desk 9|Network"));
    EXPECT_FALSE(canOpen()) << "for a printer that is not shown";
    QTest::keyClick(filter, Qt::Key_F5);
    EXPECT_EQ(listed(), text("Desk 9|Network"));
    QTest::keyClicks(filter, text("x"));
    EXPECT_EQ(list->accessibleDescription(), text("No printer matches the filter."));
    QTest::keyClick(filter, Qt::Key_Escape);
    QTest::keyClick(filter, Qt::Key_Down);
    EXPECT_EQ(list->selectedRow(), 11) << "in a list that is whole again";
    typeInto(filter, text("desk 9"));
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(walk.main()->isVisible());
    walk.press("button_MainCancel");
}

TEST_F(Selector, AnEmptyListSaysWhy) {
    struct Empty : PrinterSource {
        explicit Empty(const QList<PrinterProblem> &told) : problems(told) {}
        Listing list() override { return {{}, problems}; }
        bool lists(const QString &) override { return false; }
        Opened open(const QString &, const QDeadlineTimer &) override { return {}; }
        const QList<PrinterProblem> problems;
    };
    const PrinterProblem noNetwork{PrinterProblem::NoNetworkService, {}};
    const PrinterProblem refused{PrinterProblem::NoPermission, text("L200")};
    const auto says = [&](std::unique_ptr<PrinterSource> source, const char *words) {
        const QString said = launchWith(std::move(source))->accessibleDescription();
        EXPECT_TRUE(said.contains(text(words))) << qPrintable(said);
    };
    const auto isProblemTold = [&] { return controlOf(window(), "view_Problems")->isVisible(); };
    says(std::make_unique<Empty>(QList<PrinterProblem>()), "or that it is on the same network");
    says(std::make_unique<Empty>(QList{noNetwork}), "printers on the network cannot be looked for");
    says(std::make_unique<Empty>(QList{noNetwork, refused}), "The messages below say why");
    EXPECT_TRUE(isProblemTold());
    says(std::make_unique<CatalogueSource>(Catalogue()), "The catalogue lists no printers");
    EXPECT_FALSE(isProblemTold()) << "said twice";
    const ArgumentOverride installer("-INSTALLER");
    launchWith(std::make_unique<Empty>(QList{noNetwork}));
    for (const char *button : {"button_ToolPerformOK", "buttonCell_USBConnect",
                               "button_ChooseConnectNext", "button_USBConnectNext"})
        controlOf<QAbstractButton>(window(), button)->click();
    const QString said = walk.list()->accessibleDescription();
    EXPECT_TRUE(said.contains(text("USB cable")) && !said.contains(text("network")))
        << qPrintable(said);
}

TEST_F(Selector, ReopeningBringsBackTheWindowInUse) {
    walk.launch();
    walk.list()->selectRow(0);
    click("button_PrinterlistOK");
    EXPECT_TRUE(walk.main()->isVisible() && !isListed());
    application()->reopen();
    EXPECT_FALSE(isListed()) << "a second window over an open printer";
    EXPECT_TRUE(QTest::qWaitForWindowActive(walk.main()));
    QTest::keyClick(walk.main(), Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !walk.main()->isVisible(); })) << "Alt+C";
    EXPECT_FALSE(isListed());
    application()->reopen();
    EXPECT_TRUE(isListed());
    EXPECT_TRUE(walk.open(text("Dispatch")));
}

TEST_F(Selector, AnIconInTheTrayStandsForTheWindowsThatAreHidden) {
    auto *tray = walk.selector->findChild<TrayIcon *>();
    bool hasTray = false;
    tray->setHasTray([&] { return hasTray; });
    const auto icon = [&] { return tray->findChild<QSystemTrayIcon *>(); };
    const auto shows = [&](bool wanted) {
        return QTest::qWaitFor([&] { return icon() && icon()->isVisible() == wanted; });
    };
    const auto choose = [&](int entry) { icon()->contextMenu()->actions()[entry]->trigger(); };
    walk.launch();
    click("button_PrinterlistEXIT");
    QApplication::processEvents();
    EXPECT_FALSE(icon()) << "on a desktop without a tray";
    application()->reopen();
    hasTray = true;
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    QApplication::processEvents();
    EXPECT_FALSE(icon()) << "while a window is visible";
    walk.press("button_MainCancel");
    ASSERT_TRUE(shows(true));
    EXPECT_EQ(icon()->toolTip(), text("Network Setting Tool"));
    choose(0);
    EXPECT_TRUE(isListed() && shows(false));
    window()->close();
    EXPECT_TRUE(shows(true));
    Q_EMIT icon()->activated(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(isListed() && shows(false));
    window()->close();
    EXPECT_TRUE(quits([&] { choose(2); }));
}

TEST_F(Selector, RowsAppearAsPrintersAnswerAndCancelKeepsThem) {
    walk.launch();
    const QString all = listed();
    SimulatedFaults silent;
    silent.items[0x1006].noReply = true;
    catalogue.virtualPrinters[text("virtual://dispatch")]->setFaults(silent);
    const auto cancelsOnceListed = [&](int rows) {
        return [this, rows](QWidget *wait) {
            if (walk.list()->model()->rowCount() != rows) return false;
            press(wait, "button_WaitCancel");
            return true;
        };
    };
    const auto reload = [&](int rows) {
        const DuringWait cancel(cancelsOnceListed(rows));
        click("button_PrinterlistReload");
    };
    reload(1);
    EXPECT_EQ(walk.list()->model()->rowCount(), 2) << "the one on the network is known at once";
    EXPECT_TRUE(listed().startsWith(text("Packing-Desk|USB")) && all.endsWith(listed().mid(17)));
    const ArgumentOverride installer("-INSTALLER");
    for (const auto &printer : catalogue.virtualPrinters) printer->setFaults(silent);
    reload(0);
    EXPECT_TRUE(walk.list()->accessibleDescription().startsWith(text("The search was cancelled")));
}

TEST_F(Selector, ACancelledOpeningComesBackToTheListWithoutAnAlert) {
    walk.launch();
    VirtualPrinter &printer = *catalogue.virtualPrinters[text("virtual://packing-desk")];
    SimulatedFaults silent;
    silent.items[0x3108].noReply = true;
    printer.setFaults(silent);
    {
        const DuringWait cancel([&](QWidget *wait) {
            const QString said = controlOf<QLabel>(wait, "textField_WaitMassage")->text();
            if (said != text("Reading Packing-Desk, 6 of 24")) return false;
            press(wait, "button_WaitCancel");
            return true;
        });
        EXPECT_FALSE(walk.open(text("Packing-Desk")));
    }
    EXPECT_TRUE(isListed() && !walk.main()->isVisible());
    EXPECT_TRUE(walk.list()->hasFocus());
    printer.setFaults({});
    EXPECT_TRUE(walk.open(text("Packing-Desk")));
}

TEST_F(Selector, AFailedOpeningComesBackToTheListAsItWas) {
    walk.launch();
    SimulatedFaults gone;
    gone.refuseConnection = true;
    VirtualPrinter &printer = *catalogue.virtualPrinters[text("virtual://packing-desk")];
    printer.setFaults(gone);
    walk.dialogs().on("", [this](QWidget *alert) {
        EXPECT_FALSE(controlOf(window(), "window_Wait")->isVisible()) << "behind the alert";
        EXPECT_EQ(alert->parentWidget(), window());
        QTest::keyClick(alert, Qt::Key_Return);
    });
    EXPECT_FALSE(walk.open(text("Packing-Desk")));
    EXPECT_TRUE(isListed() && !walk.main()->isVisible());
    EXPECT_EQ(walk.list()->selectedRow(), 0);
    printer.setFaults({});
    EXPECT_TRUE(walk.open(text("Packing-Desk")));
}

TEST_F(Selector, QuittingAsksTheOpenPrinterAboutUnsentChanges) {
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    walk.type("textField_NetworkBonjour", text("gate-2"));
    const auto quitByMenu = [&] { QTest::keyClick(walk.main(), Qt::Key_Q, Qt::ControlModifier); };
    const auto quitBySystem = [] {
        QEvent quit(QEvent::Quit);
        QApplication::sendEvent(qApp, &quit);
    };
    const auto quitOnceMore = [](QWidget *) {
        EXPECT_FALSE(Application::terminate()) << "while a dialog waits for its answer";
    };
    const char *const view = "view_SendChangeCheck";
    walk.dialogs().on(view, "button_SendChangeCheckCancel");
    EXPECT_FALSE(quits(quitByMenu));
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2"));
    walk.dialogs().on(view, quitOnceMore, "button_SendChangeCheckCancel");
    EXPECT_FALSE(quits(quitBySystem));
    walk.dialogs().on(view, "button_SendChangeCheckNoReflect");
    EXPECT_TRUE(quits(quitBySystem));
    EXPECT_TRUE(quits(quitBySystem)) << "no printer is open any more";
}

TEST_F(Selector, EntriesOfTheEditMenuAreEnabledWhenTheyCanAct) {
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    QApplication::clipboard()->setText(text("old"));
    const char *const name = "textField_NetworkBonjour",
                      *const mac = "textField_EthernetMACAddress",
                      *const secret = "secureTextField_Password";
    controlOf(walk.main(), secret)->setEnabled(true);
    controlOf<QLineEdit>(walk.main(), secret)->setText(text("open123"));
    const struct {
        const char *control;
        bool selected;
        const char *enabled;
    } cases[] = {{name, true, "Cut Copy Paste Select all"},
                 {name, false, "Paste Select all"},
                 {mac, true, "Copy Select all"},
                 {secret, true, "Paste Select all"},
                 {"outlineView_Main", false, ""}};
    for (const auto &c : cases) {
        auto *control = controlOf(walk.main(), c.control);
        for (QWidget *page = control; page != walk.main(); page = page->parentWidget())
            if (page->isHidden()) page->show();
        control->setFocus();
        ASSERT_TRUE(control->hasFocus()) << c.control;
        auto *field = qobject_cast<QLineEdit *>(control);
        if (field && c.selected) field->selectAll();
        if (field && !c.selected) field->deselect();
        openMenu(walk.main(), Qt::Key_E);
        QStringList enabled;
        for (QAction *entry : QApplication::activePopupWidget()->actions())
            if (entry->isEnabled() && !entry->isSeparator()) enabled << entry->text().remove(u'&');
        EXPECT_EQ(enabled.join(u' '), (text(c.enabled) + text(" Copy all settings")).trimmed())
            << c.control;
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
    const auto choose = [&](const char *control, Qt::Key entry) {
        auto *field = controlOf<QLineEdit>(walk.main(), control);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        openMenu(walk.main(), Qt::Key_E);
        QTest::keyClick(QApplication::activePopupWidget(), entry);
        return field->text();
    };
    EXPECT_EQ(choose(name, Qt::Key_T), QString());
    const QString address = choose(mac, Qt::Key_C);
    EXPECT_EQ(QApplication::clipboard()->text(), address);
    EXPECT_EQ(choose(name, Qt::Key_P), address);
}

TEST_F(Selector, TheMenuSendsReadsAgainAndLeadsToTheListAndTheGuide) {
    walk.launch();
    const auto enabled = [&] {
        QStringList titles;
        for (QAction *entry : menus(window())[text("Printer")]->actions())
            if (entry->isEnabled()) titles << entry->shortcut().toString();
        return titles.join(u' ');
    };
    const auto key = [&](Qt::Key pressed, Qt::KeyboardModifier with = Qt::ControlModifier) {
        keyIn(isListed() ? window() : walk.main(), pressed, with);
    };
    EXPECT_EQ(enabled(), QString());
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    EXPECT_EQ(enabled(), text("F5"));
    key(Qt::Key_S);
    walk.type("textField_NetworkBonjour", text("gate-2"));
    EXPECT_EQ(enabled(), text("Ctrl+S F5"));
    walk.dialogs().key("view_UpdateChangeCheck", Qt::Key_Return);
    key(Qt::Key_F5, Qt::NoModifier);
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2")) << "edits are thrown away";
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckCancel");
    key(Qt::Key_L);
    EXPECT_TRUE(walk.main()->isVisible() && !isListed());
    walk.dialogs().on("", [](QWidget *alert) { QTest::keyClick(alert, Qt::Key_Return); });
    walk.dialogs().confirmAndEnd();
    key(Qt::Key_S);
    EXPECT_EQ(walk.held("virtual://packing-desk", 0x1004), QByteArray("gate-2"));
    EXPECT_EQ(enabled(), text("F5"));
    key(Qt::Key_L);
    EXPECT_TRUE(isListed() && !walk.main()->isVisible());
    EXPECT_EQ(enabled(), QString());
    const char *const next = "button_ChooseConnectNext", *const ok = "button_ToolPerformOK";
    for (const QList<const char *> &clicks : {QList{"button_ToolPerformEXIT"},
                                              {ok, "button_ChooseConnectEXIT"},
                                              {ok, next, "button_WPS1EXIT"},
                                              {ok, next, "button_WPS1Next", "button_WPS2EXIT"},
                                              {ok, next, "button_WPS1Next", "button_WPS2Next"}}) {
        controlOf<RadioGroup>(window(), "matrix_ChooseConnectSelect")->selectTag(1);
        openMenu(window(), Qt::Key_H);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
        EXPECT_EQ(visibleView(), text("view_ToolPerform"));
        EXPECT_FALSE(quits([&] {
            for (const char *button : clicks) click(button);
        }));
        EXPECT_EQ(visibleView(), text("view_Printerlist")) << clicks.last();
    }
    key(Qt::Key_W);
    EXPECT_FALSE(isListed());
}

TEST_F(Selector, AllSettingsAreCopiedAsThePagesShowThemButNoSecret) {
    walk.launch();
    const auto copy = [&] {
        QApplication::clipboard()->clear();
        QTest::keyClick(walk.main(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        return QApplication::clipboard()->text();
    };
    const auto expectIn = [](const QString &report, const QList<const char *> &parts) {
        qsizetype at = 0;  // in this order
        for (const char *part : parts)
            EXPECT_GE(at = report.indexOf(text(part), at), 0) << part << qPrintable(report);
    };
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    walk.type("textField_NetworkBonjour", text("gate-2"));
    walk.type("textField_InfrastructurePSK", text("not for others"));
    const QString report = copy();
    expectIn(report, {"Larkfield L200 · Packing-Desk\n\nDevice\nFirmware version: 1.203\n",
                      "\n\nNames\nPrinter name: Packing-Desk\nBonjour name: gate-2\n",
                      "\n\nWired network\nMAC address: 02:00:4C:0A:1B:01\n"
                      "Address assignment: Fixed address\nIP address: 192.168.20.31\n",
                      "\n\nWireless network\n", "(access point): 02:00:4C:0A:1B:03\n",
                      "\n\nInfrastructure\n", "\nNetwork name (SSID): 倉庫\n",
                      "\n\nAccess point\nWireless standard: IEEE 802.11b/g/n\n"});
    EXPECT_FALSE(report.contains(text("not for others")) || report.contains(u'*'));
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    keyIn(walk.main(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(copy(), QString()) << "no printer is open";
    ASSERT_TRUE(walk.open(text("Goods in (first floor)")));
    expectIn(copy(), {"Larkfield L400 · Goods-In\nThis printer is connected over the network, so",
                      "\nBonjour name: label-printer\n", "\nNetwork name (SSID): (empty)\n"});
}

TEST_F(Selector, AboutTellsVersionLicenceAndWhereFaultsAreReported) {
    walk.launch();
    openMenu(window(), Qt::Key_H);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
    auto *about = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    ASSERT_TRUE(about);
    auto *told = controlOf<QLabel>(about, "qt_msgbox_label");
    told->setFocus();
    QTest::keyClick(told, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(told, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    for (const char *part : {NST_VERSION, "MIT License", "Copyright (c)", "Report faults to ", "@"})
        EXPECT_TRUE(copied.contains(text(part))) << part << " in " << qPrintable(copied);
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }));
}

// Runs the program with the argument, as the user's shell does; gives what it prints.
QString printed(const char *argument) {
    QProcess program;
    program.start(text(NST_PROGRAM), {text(argument)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, 10000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << argument;
    EXPECT_EQ(program.exitCode(), 0) << argument;
    return QString::fromLocal8Bit(program.readAllStandardOutput()).trimmed();
}

TEST(Start, PrintsItsHelpAndVersionAndOtherwiseReopensTheInstanceThatRuns) {
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    int reopened = 0;
    {
        SingleInstance first;
        ASSERT_TRUE(first.isFirst());
        QObject::connect(&first, &SingleInstance::startedAgain, [&] { ++reopened; });
        EXPECT_EQ(printed("--version"), text("network-setting-tool " NST_VERSION));
        const QString help = printed("--help");
        EXPECT_TRUE(help.startsWith(text("Reads and changes the network settings of label")));
        EXPECT_TRUE(
            help.contains(text("network-setting-tool [-Installer] [--demo] [--help] [--version]")));
        EXPECT_EQ(reopened, 0);
        for (const char *starts : {"-Installer", "--helpful", "help", ""})
            EXPECT_EQ(printed(starts), QString()) << starts;
        EXPECT_TRUE(QTest::qWaitFor([&] { return reopened == 4; }));
        const SingleInstance second(50);  // while no event loop runs here
        EXPECT_FALSE(second.isFirst() || second.isAnswered())
            << "a first that hangs goes unnoticed";
    }
    const SingleInstance next;
    EXPECT_TRUE(next.isFirst()) << "the first has gone";
}

}  // namespace
