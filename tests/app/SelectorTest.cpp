#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>

#include "SelectionWindow.h"
#include "app/TrayIcon.h"
#include "platform/ui/SingleInstance.h"
#include "settings/Frames.h"
#include "support/Profiles.h"
#include "virtualprinter/VirtualPrinterServer.h"

namespace {

class Selector : public SelectionWindow {
  protected:
    QString visibleView() {
        QStringList names;
        for (const auto *view : control("view_PrinterSelector")->findChildren<QWidget *>())
            if (view->isVisible() && view->objectName().startsWith(text("view_")))
                names << view->objectName();
        return names.join(u'|');
    }
};

TEST_F(Selector, EveryStepOfTheGuideLeadsToItsViewAndItsEndWhereItCameFrom) {
    const struct {
        const char *keys, *button;
        const char *view;  // null: the guide ends
    } cases[] = {{"", nullptr, "view_ToolPerform"},
                 {"Return", nullptr, "view_ChooseConnect"},
                 {"Return Return", nullptr, "view_USBConnect"},
                 {"Return Return Return", nullptr, "view_Printerlist"},
                 {"Return Down Return", nullptr, "view_WPS1"},  // which stays chosen
                 {"Return Return", "button_WPS1Back", "view_ChooseConnect"},
                 {"Return", "button_ChooseConnectBack", "view_ToolPerform"},
                 {"Return Up Return", "button_USBConnectBack", "view_ChooseConnect"},
                 {"Return Down Return", nullptr, "view_WPS1"},
                 {"Return Return Return", nullptr, "view_WPS2"},
                 {"Return Return Return", "button_WPS2Back", "view_WPS1"},
                 {"", "button_ToolPerformEXIT", nullptr},
                 {"Return", "button_ChooseConnectEXIT", nullptr},
                 {"Return Up Return", "button_USBConnectEXIT", nullptr},
                 {"Return Down Return", nullptr, "view_WPS1"},
                 {"Return Return", "button_WPS1EXIT", nullptr},
                 {"Return Return Return", "button_WPS2EXIT", nullptr},
                 {"Return Return Return Return", nullptr, nullptr},
                 {"Return Up Return", nullptr, "view_USBConnect"}};
    for (const bool byMenu : {false, true}) {
        const ArgumentOverride argument(byMenu ? "" : "-INSTALLER");
        for (const auto &c : cases) {
            const bool quit = quits([&] {
                walk.launch();
                if (byMenu) keys("Alt+H C");
                keys(c.keys);
                if (c.button) click(c.button);
            });
            EXPECT_EQ(quit, !c.view && !byMenu) << c.keys;
            const char *const view = c.view ? c.view : "view_Printerlist";
            EXPECT_TRUE(quit || visibleView() == text(view)) << c.keys << qPrintable(visibleView());
        }
    }
}

TEST_F(Selector, DrawingsOfTheGuideFollowTheColoursAndSayWhatTheyShow) {
    const ArgumentOverride installer("-Installer");
    walk.launch();
    const auto *drawing = control<QLabel>("imageView_ToolPerform");
    EXPECT_TRUE(drawing->accessibleName().startsWith(text("Drawing: a label printer")));
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

// The desktop's notifications, on a bus of the test.
class Notifications : public QDBusVirtualObject {
  public:
    Notifications() {
        m_bus.start(text("dbus-daemon"),
                    {text("--session"), text("--nofork"), text("--print-address")});
        EXPECT_TRUE(m_bus.waitForReadyRead());
        address = QString::fromUtf8(m_bus.readLine().trimmed());
        m_here = QDBusConnection::connectToBus(address, text("desktop"));
        EXPECT_TRUE(m_here.registerVirtualObject(text(path), this));
        EXPECT_TRUE(m_here.registerService(text(service)));
    }
    ~Notifications() override {
        m_bus.kill();
        m_bus.waitForFinished();
    }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
        calls << message.member();
        const bool shows = message.member() == text("Notify");
        if (shows) said = message.arguments()[4].toString();
        bus.send(shows ? message.createReply(id) : message.createReply());
        return true;
    }
    void act() {
        QDBusMessage signal =
            QDBusMessage::createSignal(text(path), text(service), text("ActionInvoked"));
        signal.setArguments({id, text("default")});
        m_here.send(signal);
    }
    static constexpr uint id = 7;
    QString address;
    QStringList calls;
    QString said;

  private:
    static constexpr const char *service = "org.freedesktop.Notifications",
                                *path = "/org/freedesktop/Notifications";
    QProcess m_bus;
    QDBusConnection m_here{QString()};
};

TEST_F(Selector, TheDesktopSaysThatTheToolGoesOnAndItsActionBringsTheListBack) {
    Notifications desktop;
    walk.selector->findChild<TrayIcon *>()->setBus(
        [&] { return QDBusConnection::connectToBus(desktop.address, text("tool")); });
    const auto hears = [&](const char *calls) {
        return QTest::qWaitFor([&] { return desktop.calls.join(u' ') == text(calls); });
    };
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    keys("Ctrl+W");
    EXPECT_TRUE(hears("Notify")) << qPrintable(desktop.calls.join(u' '));
    EXPECT_EQ(desktop.said, text("The tool keeps running without a window."));
    EXPECT_FALSE(isListed());
    desktop.act();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isListed(); }));
    EXPECT_TRUE(hears("Notify CloseNotification"));
    EXPECT_TRUE(quits([&] { keys("Ctrl+Q"); }));
    QApplication::processEvents();
    EXPECT_TRUE(hears("Notify CloseNotification")) << "it does not go on";
}

TEST_F(Selector, AHiddenWindowComesBackByReopeningAndByTheIconInTheTray) {
    auto *const tray = walk.selector->findChild<TrayIcon *>();
    bool hasTray = false;
    tray->setHasTray([&] { return hasTray; });
    const auto icon = [&] { return tray->findChild<QSystemTrayIcon *>(); };
    const auto shows = [&](bool wanted) {
        return QTest::qWaitFor([&] { return icon() && icon()->isVisible() == wanted; });
    };
    const auto choose = [&](int entry) { icon()->contextMenu()->actions()[entry]->trigger(); };
    const auto reopen = [&] { application()->reopen(); };
    const std::pair<std::function<void()>, std::function<void()>> ways[] = {
        {[&] { click("button_PrinterlistEXIT"); }, reopen},
        {[&] { keys("Ctrl+W"); }, [&] { choose(0); }},
        {[&] { window()->close(); }, [&] { icon()->activated(QSystemTrayIcon::Trigger); }}};
    walk.launch();
    for (const auto &[leave, comeBack] : ways) {
        EXPECT_FALSE(quits(leave) || isListed());
        EXPECT_TRUE(hasTray ? shows(true) : !icon()) << "on a desktop without a tray";
        comeBack();
        EXPECT_TRUE(isListed() && (!hasTray || shows(false)));
        hasTray = true;
    }
    walk.list()->selectRow(0);
    click("button_PrinterlistOK");
    EXPECT_TRUE(walk.main()->isVisible() && !isListed());
    reopen();
    EXPECT_FALSE(isListed()) << "a second window over an open printer";
    EXPECT_TRUE(shows(false)) << "while a window is visible";
    keys("Alt+C");
    EXPECT_TRUE(shows(true) && !walk.main()->isVisible() && !isListed());
    EXPECT_EQ(icon()->toolTip(), text("Network Setting Tool"));
    EXPECT_TRUE(quits([&] { choose(2); }));
}

TEST_F(Selector, AnOpeningThatIsCancelledOrFailsComesBackToTheListAsItWas) {
    walk.launch();
    const auto expectNotOpened = [this](const SimulatedFaults &faults) {
        printer("packing-desk").setFaults(faults);
        EXPECT_FALSE(walk.open(text("Packing-Desk")));
        EXPECT_TRUE(isListed() && !walk.main()->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([this] { return walk.list()->hasFocus(); }));
        EXPECT_EQ(walk.list()->selectedRow(), 0);
    };
    SimulatedFaults silent, gone;
    silent.items[0x3108].noReply = true;
    gone.refuseConnection = true;
    {
        const DuringWait cancelling([](QWidget *wait) {
            const QString said = controlOf<QLabel>(wait, "textField_WaitMassage")->text();
            const bool isStuck = said == text("Reading Packing-Desk, 6 of 24");
            if (isStuck) press(wait, "button_WaitCancel");
            return isStuck;
        });
        expectNotOpened(silent);
    }
    walk.dialogs().on("", [this](QWidget *alert) {
        EXPECT_FALSE(control("window_Wait")->isVisible()) << "behind the alert";
        EXPECT_EQ(alert->parentWidget(), window());
        keys("Return");
    });
    expectNotOpened(gone);
    printer("packing-desk").setFaults({});
    keys("Return");  // whatever the row says by now
    EXPECT_TRUE(walk.main()->isVisible() && !isListed());
}

TEST_F(Selector, QuittingAsksTheOpenPrinterAboutUnsentChanges) {
    walk.launch();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    walk.type("textField_NetworkBonjour", text("gate-2"));
    const auto quitBySystem = [] {
        QEvent quit(QEvent::Quit);
        QApplication::sendEvent(qApp, &quit);
    };
    const auto quitOnceMore = [](QWidget *) {
        EXPECT_FALSE(Application::terminate()) << "while a dialog waits for its answer";
    };
    const char *const view = "view_SendChangeCheck";
    walk.dialogs().on(view, quitOnceMore, "button_SendChangeCheckCancel");
    EXPECT_FALSE(quits([&] { keys("Ctrl+Q"); }));
    EXPECT_EQ(walk.shown("textField_NetworkBonjour"), text("gate-2"));
    walk.dialogs().on(view, "button_SendChangeCheckNoReflect");
    EXPECT_TRUE(quits(quitBySystem));
    EXPECT_TRUE(quits(quitBySystem)) << "no printer is open any more";
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
        for (const char *part : {"Reads and changes the network settings of label",
                                 "network-setting-tool [-Installer] [--demo] [--help] [--version]"})
            EXPECT_TRUE(help.contains(text(part))) << qPrintable(help);
        EXPECT_EQ(reopened, 0);
        for (const char *starts : {"-Installer", "--helpful", "help", ""})
            EXPECT_EQ(printed(starts), QString()) << starts;
        EXPECT_TRUE(QTest::qWaitFor([&] { return reopened == 4; }));
        const SingleInstance second(50);  // while no event loop runs here
        EXPECT_FALSE(second.isFirst() || second.isAnswered());
    }
    const SingleInstance next;
    EXPECT_TRUE(next.isFirst()) << "the first has gone";
}

TEST(Start, ASignalEndsTheToolAndTheQuestionThatIsUnderWay) {
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    const auto printer = printerOf(R"({"faults": {"items": {"0x1006": {"noReply": true}}}})");
    VirtualPrinterServer server(printer);
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
    QFile catalogue(runtime.filePath(text("catalogue.json")));
    ASSERT_TRUE(catalogue.open(QIODevice::WriteOnly));
    catalogue.write(R"({"printers": [{"ConnectionType": "USB", "ProductName": "Larkfield L200",
                        "DeviceURI": "tcp://127.0.0.1:)" +
                    QByteArray::number(server.port()) + "\"}]}");
    catalogue.close();
    qputenv("ZMLIB_PRINTERS", catalogue.fileName().toLocal8Bit());
    QProcess program;
    program.start(text(NST_PROGRAM), {});
    const auto lastIs = [&](const QByteArray &frame) {
        return !printer->log().isEmpty() && printer->log().last().bytes == frame;
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return lastIs(Frames::requestFrame(0x1006)); }, 10000));
    program.terminate();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lastIs(Frames::endFrame()); }));
}

}  // namespace
