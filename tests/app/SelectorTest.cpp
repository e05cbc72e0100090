#include <gtest/gtest.h>

#include <QClipboard>
#include <QProcess>
#include <QRadioButton>
#include <QTemporaryDir>

#include "platform/ui/SingleInstance.h"
#include "support/Arguments.h"
#include "support/Walk.h"

namespace {

class Selector : public testing::Test {
  protected:
    Selector() : walk(catalogue()) {
        static_cast<Application *>(qApp)->setDelegate(walk.selector.get());
    }
    ~Selector() override { static_cast<Application *>(qApp)->setDelegate(nullptr); }

    static Catalogue catalogue() {
        qputenv("ZMLIB_PRINTERS", "demo");
        return catalogueFromEnvironment();
    }
    QWidget *window() { return walk.selector->window(); }
    void click(const char *button) {
        QTest::mouseClick(controlOf(window(), button), Qt::LeftButton);
    }
    bool isEnabled(const char *name) { return controlOf(window(), name)->isEnabled(); }
    QString cell(int row, int column) {
        return walk.list()->model()->index(row, column).data().toString();
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
    QString visibleView() {
        for (const char *view : {"view_ToolPerform", "view_ChooseConnect", "view_USBConnect",
                                 "view_WPS1", "view_WPS2", "view_Printerlist"})
            if (controlOf(window(), view)->isVisible()) return text(view);
        return {};
    }

    Walk walk;
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
            for (const char *button : c.clicks) {
                if (auto *cell = window()->findChild<QRadioButton *>(QLatin1String(button)))
                    cell->click();
                else
                    click(button);
            }
        });
        EXPECT_EQ(quit, c.view == nullptr) << (c.clicks.isEmpty() ? "" : c.clicks.last());
        EXPECT_TRUE(quit || visibleView() == text(c.view)) << qPrintable(visibleView());
    }
    click("button_WPS2Back");
    click("button_WPS1Back");
    controlOf<RadioGroup>(window(), "matrix_ChooseConnectSelect")->selectTag(9);
    QTest::keyClick(window(), Qt::Key_Return);
    EXPECT_EQ(visibleView(), text("view_ChooseConnect")) << "nothing was chosen";
    controlOf<RadioGroup>(window(), "matrix_ChooseConnectSelect")->selectTag(0);
    QTest::keyClick(window(), Qt::Key_Return);
    QTest::keyClick(window(), Qt::Key_Return);
    EXPECT_EQ(visibleView(), text("view_Printerlist"));
    EXPECT_EQ(walk.list()->model()->rowCount(), 3) << "installer mode lists USB printers only";
}

TEST_F(Selector, TheListShowsPrintersAndStaysWithoutAWindow) {
    walk.launch();
    EXPECT_EQ(visibleView(), text("view_Printerlist"));
    ASSERT_EQ(walk.list()->model()->rowCount(), 4);
    EXPECT_EQ(cell(0, 0) + cell(0, 1), text("Packing-DeskUSB"));
    EXPECT_EQ(cell(3, 0) + cell(3, 1), text("Goods in (first floor)Network"));
    EXPECT_FALSE(isEnabled("button_PrinterlistOK"));
    walk.list()->selectRow(1);
    EXPECT_TRUE(isEnabled("button_PrinterlistOK"));
    click("button_PrinterlistReload");
    EXPECT_FALSE(isEnabled("button_PrinterlistOK"));
    EXPECT_EQ(walk.list()->model()->rowCount(), 4);
    EXPECT_FALSE(quits([&] { click("button_PrinterlistEXIT"); }));
    EXPECT_FALSE(window()->isVisible());
    static_cast<Application *>(qApp)->reopen();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_FALSE(quits([&] { window()->close(); }));
    EXPECT_FALSE(window()->isVisible());
}

TEST_F(Selector, ReopeningBringsBackTheWindowInUse) {
    walk.launch();
    walk.list()->selectRow(0);
    click("button_PrinterlistOK");
    EXPECT_TRUE(walk.main()->isVisible() && !window()->isVisible());
    static_cast<Application *>(qApp)->reopen();
    EXPECT_FALSE(window()->isVisible()) << "a second window over an open printer";
    walk.press("button_MainCancel");
    EXPECT_FALSE(walk.main()->isVisible() || window()->isVisible());
    static_cast<Application *>(qApp)->reopen();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_TRUE(walk.open(text("Dispatch")));
}

TEST_F(Selector, AFailedOpeningComesBackToTheListAsItWas) {
    auto printers = catalogue();
    walk.selector->applicationDidFinishLaunching();
    auto &printer = *printers.virtualPrinters[text("virtual://packing-desk")];
    Walk other(printers);
    other.launch();
    Faults gone;
    gone.refuseConnection = true;
    printer.setFaults(gone);
    other.dialogs().alert("The connection to the printer cannot be used");
    EXPECT_FALSE(other.open(text("Packing-Desk")));
    EXPECT_TRUE(other.selector->window()->isVisible());
    EXPECT_FALSE(other.main()->isVisible());
    EXPECT_EQ(other.list()->selectedRow(), 0);
    printer.setFaults({});
    EXPECT_TRUE(other.open(text("Packing-Desk")));
}

TEST_F(Selector, QuittingAsksTheOpenPrinterAboutUnsentChanges) {
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    walk.type("textField_NetworkBonjour", text("gate-2"));
    const auto quitByMenu = [&] { QTest::keyClick(walk.main(), Qt::Key_Q, Qt::ControlModifier); };
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckCancel");
    EXPECT_FALSE(quits(quitByMenu));
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2"));
    walk.dialogs().on("view_SendChangeCheck", [](QWidget *dialog) {
        EXPECT_FALSE(Application::terminate()) << "while a dialog waits for its answer";
        QTest::mouseClick(controlOf(dialog, "button_SendChangeCheckCancel"), Qt::LeftButton);
    });
    const auto quitBySystem = [] {
        QEvent quit(QEvent::Quit);
        QApplication::sendEvent(qApp, &quit);
    };
    EXPECT_FALSE(quits(quitBySystem));
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    EXPECT_TRUE(quits(quitBySystem));
    EXPECT_TRUE(quits(quitBySystem)) << "no printer is open any more";
}

TEST_F(Selector, TheMenuHasTextsAndWorksOnTheField) {
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    auto *bar = walk.main()->findChild<QMenuBar *>();
    ASSERT_TRUE(bar);
    QMap<QString, QAction *> entries;
    for (QAction *top : bar->actions())
        for (QAction *entry : top->menu()->actions()) entries[entry->text().remove(u'&')] = entry;
    for (const QString &title : entries.keys())
        EXPECT_FALSE(title.startsWith(text("DWT_"))) << qPrintable(title);
    auto *field = controlOf<TextField>(walk.main(), "textField_NetworkBonjour");
    field->setFocus();
    entries[text("Select all")]->trigger();
    entries[text("Cut")]->trigger();
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(QApplication::clipboard()->text(), text("packing-desk"));
    entries[text("Paste")]->trigger();
    EXPECT_EQ(field->text(), text("packing-desk"));
    entries[text("Close")]->trigger();
    EXPECT_FALSE(walk.main()->isVisible());
}

TEST(Start, ASecondProcessReopensTheFirstAndEndsWithZero) {
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    int reopened = 0;
    {
        SingleInstance first;
        ASSERT_TRUE(first.isFirst());
        QObject::connect(&first, &SingleInstance::startedAgain, [&] { ++reopened; });
        QProcess second;
        second.start(text(NST_PROGRAM), {});
        EXPECT_TRUE(QTest::qWaitFor([&] { return second.state() == QProcess::NotRunning; }, 10000));
        EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(second.exitCode(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return reopened == 1; }));
    }
    const SingleInstance next;
    EXPECT_TRUE(next.isFirst()) << "the first has gone";
}

}  // namespace
