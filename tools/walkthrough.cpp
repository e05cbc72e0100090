// Takes one full change through the real windows on the demo printers: walkthrough FOLDER. Prints
// each step, saves a picture of each in the folder, and ends with 0 only when the printer holds the
// new values.

#include <QDir>
#include <cstdio>

#include "platform/core/Texts.h"
#include "support/Walk.h"

namespace {

const char *const uri = "virtual://dispatch";
constexpr quint16 bonjourName = 0x1004;
constexpr quint16 serviceName = 0x1005;

}  // namespace

void scriptFailed(const QString &what) {
    qFatal("FAILED: %s", qPrintable(what));
}

int main(int argc, char **argv) {
    Application application(argc, argv);
    installTexts();
    const QString folder = application.arguments().value(1, QStringLiteral("out"));
    QDir().mkpath(folder);
    int steps = 0;
    const auto report = [&](const QString &step, QWidget *window) {
        QTest::qWait(50);  // the focus frame and the default button are drawn
        const QString file =
            QStringLiteral("%1/step-%2.png").arg(folder).arg(++steps, 2, 10, QChar(u'0'));
        std::printf("%2d  %s (%s)\n", steps, qPrintable(step), qPrintable(file));
        std::fflush(stdout);
        if (!window->grab().save(file)) qFatal("cannot write %s", qPrintable(file));
    };
    const QString name = QStringLiteral("dispatch-2"), service = QStringLiteral("Dispatch, gate 2");
    Walk walk(catalogueFromEnvironment(), report);
    walk.launch();
    if (!walk.open(QStringLiteral("Dispatch"))) {
        std::puts("FAILED: the printer could not be opened");
        return 1;
    }
    walk.type("textField_NetworkBonjour", name);
    walk.type("textField_NetworkBonjourService", service);
    walk.send("open123");
    walk.readAgain();
    const bool shown = walk.shown("textField_NetworkBonjour") == name &&
                       walk.shown("textField_NetworkBonjourService") == service;
    const bool held = walk.held(uri, bonjourName) == name.toUtf8() &&
                      walk.held(uri, serviceName) == service.toUtf8();
    walk.press("button_MainCancel");
    if (!shown || !held) {
        std::puts("FAILED: the printer does not hold the new values");
        return 1;
    }
    std::puts("The printer holds the new values.");
    return 0;
}
