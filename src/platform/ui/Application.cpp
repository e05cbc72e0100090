#include "platform/ui/Application.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QSessionManager>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>

#include "platform/core/Texts.h"
#include "platform/ui/OutlinedStyle.h"
#include "platform/ui/QuitOnSignal.h"
#include "platform/ui/SingleInstance.h"

using namespace Qt::StringLiterals;

namespace {

// What screen readers are told of the application: its name instead of its file's.
class AccessibleApplication : public QAccessibleApplication {
  public:
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return localized("DWT_Localize_App_Name");
        return kind == QAccessible::Description ? QString() : QAccessibleApplication::text(kind);
    }
};

// Names application and windows as what they are; leaves everything else to Qt.
QAccessibleInterface *accessible(const QString &className, QObject *object) {
    if (object == qApp && className == u"QApplication"_s) return new AccessibleApplication;
    auto *const widget = qobject_cast<QWidget *>(object);
    if (!widget || className != u"QWidget"_s || !widget->isWindow()) return nullptr;
    const bool isDialog = widget->windowType() == Qt::Dialog;
    return new QAccessibleWidget(widget, isDialog ? QAccessible::Dialog : QAccessible::Window);
}

// Brings the modal window to the front that waits for an answer; false when there is none.
bool showModalWindow() {
    QWidget *const modal = QApplication::activeModalWidget();
    if (!modal) return false;
    modal->raise();
    modal->activateWindow();
    return true;
}

}  // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv) {
    setApplicationName(u"network-setting-tool"_s);
    setDesktopFileName(applicationName());
    QAccessible::installFactory(accessible);
    setQuitOnLastWindowClosed(false);
    if (style()->name() == u"fusion"_s) setStyle(new OutlinedStyle);
    const auto askAtSessionEnd = [this](QSessionManager &session) {
        if (session.allowsInteraction() && !mayTerminate()) session.cancel();
    };
    connect(this, &QGuiApplication::commitDataRequest, this, askAtSessionEnd, Qt::DirectConnection);
}

int Application::main(int argc, char **argv, const MakeDelegate &makeDelegate) {
    Application application(argc, argv);
    SingleInstance instance;
    installTexts();
    if (!instance.isFirst()) {
        if (instance.isAnswered()) return 0;
        const QString hangs = localized("DWT_Localize_App_Hangs");
        std::fprintf(stderr, "%s\n", qUtf8Printable(hangs));
        return 1;
    }
    const QuitOnSignal signals;
    const auto delegate = makeDelegate();
    if (!delegate) return 1;
    application.setDelegate(delegate.get());
    connect(&instance, &SingleInstance::startedAgain, &application, &Application::reopen);
    delegate->awakeFromNib();
    QTimer::singleShot(0, &application, [&] { delegate->applicationDidFinishLaunching(); });
    const int status = exec();
    application.setDelegate(nullptr);
    return status;
}

bool Application::terminate() {
    auto *const application = qobject_cast<Application *>(QCoreApplication::instance());
    if (application && !application->mayTerminate()) return false;
    exit(0);
    return true;
}

void Application::reopen() {
    if (!m_delegate || showModalWindow()) return;
    const QWidgetList windows = topLevelWidgets();
    const bool visible =
        std::any_of(windows.begin(), windows.end(), [](QWidget *w) { return w->isVisible(); });
    m_delegate->applicationShouldHandleReopen(visible);
}

bool Application::event(QEvent *event) {
    if (event->type() != QEvent::Quit) return QApplication::event(event);
    event->setAccepted(terminate());
    return true;
}

bool Application::mayTerminate() {
    if (showModalWindow()) return false;
    return !m_delegate ||
           m_delegate->applicationShouldTerminate() == ApplicationDelegate::terminateNow;
}
