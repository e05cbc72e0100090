// Pictures of every view, filled from the demo printers, as users see them. Makes
// FOLDER/light and FOLDER/dark; docs/screenshots.md names the command.

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "link/Binding.h"
#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/core/Texts.h"

namespace {

QString folder;

void shoot(QWidget *window, const QString &name) {
    QTest::qWait(50);  // focus frames and default buttons are drawn
    if (!window->grab().save(folder + u'/' + name + QStringLiteral(".png")))
        qFatal("cannot write to %s", qPrintable(folder));
}

template <typename Widget = QWidget>
Widget *in(QWidget *window, const char *name) {
    auto *found = window->findChild<Widget *>(QLatin1String(name));
    if (!found) qFatal("no control %s", name);
    return found;
}

// Calls `look` with the modal window that `action` opens, and closes that one.
void look(const std::function<void()> &action, const std::function<void(QWidget *)> &look) {
    QTimer watch;
    bool seen = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || seen || modal->windowModality() != Qt::ApplicationModal) return;
        seen = true;
        look(modal);
    });
    watch.start(20);
    action();
    if (!seen) qFatal("no dialog came up");
}

void press(QWidget *window, const char *name) {
    QTest::mouseClick(in(window, name), Qt::LeftButton);
}

PrinterEntry printer(const char *uri) {
    const auto printers = installedLibrary()->ZMCreatePrinterURI().value_or(QList<PrinterEntry>());
    for (const PrinterEntry &entry : printers)
        if (entry.value(QStringLiteral("DeviceURI")) == QLatin1String(uri)) return entry;
    qFatal("no demo printer %s", uri);
}

std::shared_ptr<DWTMainSettingWindow> open(const char *uri) {
    auto window = make<DWTMainSettingWindow>();
    window->showWindow();
    window->initializeData(printer(uri));
    return window;
}

void shootPages() {
    const auto main = open("virtual://packing-desk");
    auto *outline = in<OutlineView>(main->window(), "outlineView_Main");
    const char *const names[] = {"",         "firmware",       "network",  "ethernet",
                                 "wireless", "infrastructure", "simpleap", "password"};
    for (int row = 1; row < outline->numberOfRows(); ++row) {
        const QModelIndex item = outline->model()->index(0, 0);
        outline->setCurrentIndex(row == 1 ? outline->model()->index(0, 0, item)
                                          : outline->indexBelow(outline->currentIndex()));
        shoot(main->window(), QStringLiteral("page-") + QLatin1String(names[row]));
    }
    const auto readOnly = open("virtual://goods-in");
    shoot(readOnly->window(), QStringLiteral("page-read-only"));
}

void shootDialogs() {
    const auto main = open("virtual://dispatch");
    QWidget *const window = main->window();
    auto *name = in<TextField>(window, "textField_NetworkBonjour");
    QTest::keyClicks(name, QStringLiteral("-2"));
    look([&] { main->terminateNetworkTool(); },
         [](QWidget *dialog) {
             shoot(dialog, QStringLiteral("dialog-change-check"));
             press(dialog, "button_SendChangeCheckCancel");
         });
    look([&] { press(window, "button_MainNewSetting"); },
         [](QWidget *dialog) {
             shoot(dialog, QStringLiteral("dialog-update-check"));
             press(dialog, "button_UpdateChangeCheckCancel");
         });
    QTimer alerts;
    QObject::connect(&alerts, &QTimer::timeout, [] {
        auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!alert) return;
        shoot(alert, QStringLiteral("dialog-warning"));
        alert->accept();
    });
    alerts.start(30);
    look([&] { press(window, "button_MainSend"); },
         [](QWidget *dialog) {
             if (qobject_cast<QMessageBox *>(dialog)) return;
         });
}

}  // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    installTexts();
    folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : "docs/screenshots");
    QDir().mkpath(folder);
    shootPages();
    shootDialogs();
    return 0;
}
