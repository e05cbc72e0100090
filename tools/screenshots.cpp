// Pictures of every view, filled from demo printers, as users see them: screenshots FOLDER
// [light|dark|contrast [NAME ...]]; with names only those pictures are saved. "contrast" has large
// letters, too.
// docs/screenshots.md names the command.

#include <QApplication>
#include <QDir>
#include <QProgressBar>

#include "platform/core/Texts.h"
#include "support/Arguments.h"
#include "support/HighContrast.h"
#include "support/PluggedSource.h"
#include "support/Walk.h"

char **programArguments = nullptr;

void scriptFailed(const QString &what) {
    qFatal("%s", qPrintable(what));
}

namespace {

QString folder;
QStringList wanted;  // empty: all

void shoot(QWidget *window, const char *name) {
    if (!wanted.isEmpty() && !wanted.contains(QLatin1String(name))) return;
    QTest::qWait(50);  // the focus frame and the default button are drawn
    const QString file = folder + u'/' + QLatin1String(name) + QStringLiteral(".png");
    if (!window->window()->grab().save(file)) qFatal("cannot write %s", qPrintable(file));
}

// In a dialog's script: takes the picture.
DialogScript::Answer shooting(const char *name) {
    return [name](QWidget *window) { shoot(window, name); };
}

// The same, then dismisses the alert.
DialogScript::Answer shootAndDismiss(const char *name) {
    return [name](QWidget *window) {
        shoot(window, name);
        QTest::keyClick(window, Qt::Key_Return);
    };
}

// The demo printers; what goes wrong with them can be set.
const Catalogue &demo() {
    static const Catalogue catalogue = catalogueFromEnvironment();
    return catalogue;
}

void setFaults(const char *uri, const SimulatedFaults &faults) {
    demo().virtualPrinters[QLatin1String(uri)]->setFaults(faults);
}

SimulatedFaults unplugged() {
    SimulatedFaults faults;
    faults.refuseConnection = true;
    return faults;
}

// So that work with the printer is half done when its picture is taken.
SimulatedFaults slow() {
    SimulatedFaults faults;
    faults.delay = 150;
    return faults;
}

// Opens a demo printer from the list, as users do, so that its window has all its parts.
void open(Walk &walk, const char *name) {
    walk.launch();
    if (!walk.open(text(name))) qFatal("cannot open %s", name);
}

void shootSelector() {
    const Walk walk(demo());
    const auto &selector = walk.selector;
    QWidget *const window = selector->window();
    {
        const ArgumentOverride installer("-Installer");
        selector->applicationDidFinishLaunching();
        shoot(window, "guide-start");
        press(window, "button_ToolPerformOK");
        shoot(window, "guide-connection");
        press(window, "button_ChooseConnectNext");
        shoot(window, "guide-usb");
    }
    selector->applicationDidFinishLaunching();
    controlOf<TableView>(window, "tableView_Printerlist")->selectRow(1);
    shoot(window, "printers");
    PluggedSource::State withoutPermission;
    installLibrary(libraryWith(demo(), withoutPermission));
    selector->applicationDidFinishLaunching();
    shoot(window, "printers-no-permission");
    installLibrary(std::make_shared<PrinterLibrary>(std::vector<std::unique_ptr<PrinterSource>>()));
    const auto nothing = make<DWTPrinterSelector>();
    nothing->awakeFromNib();
    nothing->applicationDidFinishLaunching();
    shoot(nothing->window(), "printers-none");
}

void shootPages() {
    Walk walk(demo());
    open(walk, "Packing-Desk");
    auto *outline = controlOf<OutlineView>(walk.main(), "outlineView_Main");
    outline->setFocus();
    const char *const names[] = {"page-network",        "page-ethernet", "page-wireless",
                                 "page-infrastructure", "page-simpleap", "page-password"};
    for (const char *name : names) {
        shoot(walk.main(), name);
        QTest::keyClick(outline, Qt::Key_Down);
    }
    for (int i = 0; i < 6; ++i) QTest::keyClick(outline, Qt::Key_Up);
    shoot(walk.main(), "page-firmware");
    for (int i = 0; i < 2; ++i) QTest::keyClick(outline, Qt::Key_Down);
    const std::pair<const char *, const char *> typed[] = {
        {"textField_EthernetIpAddress", "192.168.20"},
        {"textField_EthernetSubnetMask", "255.0.255.0"}};
    for (const auto &[field, value] : typed) {
        walk.type(field, text(value));
        QTest::keyClick(controlOf(walk.main(), field), Qt::Key_Return);
    }
    controlOf(walk.main(), "textField_EthernetDefaultGateway")->setFocus();
    shoot(walk.main(), "page-edited");
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    walk.main()->close();
    open(walk, "Goods in (first floor)");
    shoot(walk.main(), "page-read-only");
}

void shootSendDialog() {
    Walk walk(demo());
    open(walk, "Dispatch");
    QWidget *const window = walk.main();
    QTest::keyClicks(controlOf<QLineEdit>(window, "textField_NetworkBonjour"),
                     QStringLiteral("-2"));
    DialogScript &dialogs = walk.dialogs();
    dialogs.on("view_SendChangeCheck", shooting("send-change-check"),
               "button_SendChangeCheckCancel");
    press(window, "button_MainCancel");
    dialogs.on("view_UpdateChangeCheck", shooting("send-update-check"),
               "button_UpdateChangeCheckCancel");
    press(window, "button_MainNewSetting");
    dialogs.on("", shootAndDismiss("alert-changed-name"))
        .login("wrong")
        .on("view_SendLoginError", shooting("send-login-error"), "button_SendLoginErrorOK")
        .on(
            "view_SendLogin",
            [](QWidget *dialog) {
                typeInto(controlOf<QLineEdit>(dialog, "textField_Password"), text("open123"));
                shoot(dialog, "send-login");
            },
            "button_SendLoginOK")
        .on("view_SendConfirm",
            [](QWidget *dialog) {
                shoot(dialog, "send-confirm");
                setFaults("virtual://dispatch", slow());
                press(dialog, "button_SendConfirmTransmission");
                auto *progress = controlOf<QProgressBar>(dialog, "progress_SendProgress");
                const auto isHalfWay = [&] { return progress->value() >= 50; };
                if (!QTest::qWaitFor(isHalfWay, 20000)) qFatal("no send");
                shoot(dialog, "send-progress");
                setFaults("virtual://dispatch", {});
            })
        .on("view_SendEnd", shooting("send-end"), "button_SendEndOK");
    press(window, "button_MainSend");
    setFaults("virtual://dispatch", unplugged());
    QTest::keyClicks(controlOf<QLineEdit>(window, "textField_NetworkBonjourService"),
                     QStringLiteral("!"));
    dialogs.on("", [](QWidget *alert) { QTest::keyClick(alert, Qt::Key_Return); })
        .on("view_SendConnectError", shooting("send-connect-error"), "button_SendConnectErrorOK");
    press(window, "button_MainSend");
    setFaults("virtual://dispatch", {});
}

// Of a printer without a password, so that the confirmation comes first; with warnings, and with an
// end that is not what was sent.
void shootManyChanges() {
    Walk walk(demo());
    open(walk, "Packing-Desk");
    QWidget *const window = walk.main();
    walk.type("textField_NetworkPrinterName", text("Packing-Desk-2"));
    walk.type("textField_NetworkBonjourService", text("Labels of the packing desk"));
    press(window, "buttonCell_Manual");
    walk.type("textField_EthernetIpAddress", text("192.168.1.60"));
    walk.type("textField_EthernetSubnetMask", text("255.0.255.0"));
    walk.type("textField_EthernetDefaultGateway", text("10.0.0.1"));
    walk.type("textField_InfrastructureSSID", text("Warehouse 2"));
    SimulatedFaults refusing;
    refusing.items[0x1005].resultCode = 5;
    refusing.items[0x1007].resultCode = 9;
    setFaults("virtual://packing-desk", refusing);
    walk.dialogs()
        .on("", [](QWidget *alert) { QTest::keyClick(alert, Qt::Key_Return); })
        .on("view_SendConfirm", shooting("send-confirm-warnings"), "button_SendConfirmTransmission")
        .on(
            "view_SendEnd",
            [](QWidget *dialog) {
                const auto *table = controlOf<QTreeWidget>(dialog, "table_SendEnd");
                const auto isCompared = [&] {
                    const auto *row = table->topLevelItem(0);
                    return row && row->childCount() > 0 && !row->child(0)->text(2).isEmpty();
                };
                if (!QTest::qWaitFor(isCompared, 20000)) qFatal("not compared");
                shoot(dialog, "send-end-refused");
            },
            "button_SendEndOK")
        .on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    press(window, "button_MainSend");
    window->close();
    setFaults("virtual://packing-desk", {});
}

void shootOthers() {
    Walk walk(demo());
    open(walk, "Packing-Desk");
    QWidget *const window = walk.main();
    DialogScript &dialogs = walk.dialogs();
    const auto shootNetworks = [](QWidget *dialog) {
        controlOf<TableView>(dialog, "tableView_SelectSSIDWindow")->selectRow(1);
        shoot(dialog, "networks");
    };
    dialogs.on("tableView_SelectSSIDWindow", shootNetworks, "button_SelectSSIDWindowCancel");
    controlOf<QPushButton>(window, "button_InfrastructureSelectSSID")->click();
    dialogs.on("view_WPS1", shooting("wps-1"), "button_WPS1Next")
        .on("view_WPS2", shooting("wps-2"), "button_WPS2Next");
    controlOf<QPushButton>(window, "button_InfrastructureWPSFunction")->click();
    typeInto(controlOf<QLineEdit>(window, "textField_NetworkBonjour"), text("no spaces, please"));
    dialogs.on("", shootAndDismiss("alert-input"));
    press(window, "button_MainSend");
    setFaults("virtual://packing-desk", slow());
    QTimer::singleShot(1000, window, [&] { shoot(controlOf(window, "progress_Wait"), "wait"); });
    dialogs.on("view_UpdateChangeCheck", "button_UpdateChangeCheckOK");
    press(window, "button_MainNewSetting");
    setFaults("virtual://packing-desk", {});
    window->close();
    dialogs.on("", shootAndDismiss("alert-not-reached"));
    walk.launch();
    setFaults("virtual://dispatch", unplugged());
    walk.open(text("Dispatch"));
    setFaults("virtual://dispatch", {});
}

void useDarkColours() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 48, 52));
    dark.setColor(QPalette::Base, QColor(32, 34, 37));
    dark.setColor(QPalette::AlternateBase, QColor(45, 48, 52));
    dark.setColor(QPalette::Button, QColor(58, 62, 67));
    dark.setColor(QPalette::ToolTipBase, QColor(58, 62, 67));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        dark.setColor(role, QColor(235, 235, 235));
        dark.setColor(QPalette::Disabled, role, QColor(140, 143, 147));
    }
    dark.setColor(QPalette::Disabled, QPalette::Base, QColor(45, 48, 52));
    dark.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    dark.setColor(QPalette::Highlight, QColor(48, 120, 190));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(dark);
}

}  // namespace

int main(int argc, char **argv) {
    programArguments = argv;
    Application app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) qFatal("screenshots FOLDER [light|dark|contrast [NAME ...]]");
    const QString colours = arguments.value(2);
    if (colours == QLatin1String("dark")) useDarkColours();
    if (colours == QLatin1String("contrast")) {
        QApplication::setPalette(highContrast());
        QFont large = QApplication::font();
        large.setPointSizeF(large.pointSizeF() * 1.25);
        QApplication::setFont(large);
    }
    wanted = arguments.mid(3);
    installTexts();
    folder = arguments[1];
    QDir().mkpath(folder);
    shootSelector();
    shootPages();
    shootSendDialog();
    shootOthers();
    shootManyChanges();
    return 0;
}
