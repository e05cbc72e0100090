#include "app/MainMenu.h"

#include <QMessageBox>

#include "platform/core/Texts.h"
#include "platform/ui/Application.h"

namespace {

void add(QMenu *menu, const char *key, const QKeySequence &shortcut,
         const std::function<void()> &action) {
    QAction *const entry = menu->addAction(QLatin1String(key));
    entry->setShortcut(shortcut);
    QObject::connect(entry, &QAction::triggered, menu, action);
}

// An operation of the field that has the focus, by the name that fields give it.
std::function<void()> onField(const char *slot) {
    return [slot] {
        QWidget *const field = QApplication::focusWidget();
        if (field && field->inherits("QLineEdit")) QMetaObject::invokeMethod(field, slot);
    };
}

std::function<void()> onWindow(void (*operation)(QWidget *)) {
    return [operation] {
        if (QWidget *const window = QApplication::activeWindow()) operation(window);
    };
}

void showAbout() {
    const QString name = localized(QStringLiteral("DWT_Localize_App_Name"));
    const QString text = localized(QStringLiteral("DWT_Localize_About_Text"));
    QMessageBox::about(
        QApplication::activeWindow(), name,
        QStringLiteral("<h3>%1 %2</h3><p>%3</p>")
            .arg(name.toHtmlEscaped(), QStringLiteral(NST_VERSION), text.toHtmlEscaped()));
}

}  // namespace

QMenuBar *makeMainMenu(QWidget *parent) {
    auto *const bar = new QMenuBar(parent);
    QMenu *const application = bar->addMenu(QStringLiteral("DWT_Localize_Menu_Application"));
    add(application, "DWT_Localize_Menu_Quit", Qt::CTRL | Qt::Key_Q,
        [] { Application::terminate(); });
    QMenu *const edit = bar->addMenu(QStringLiteral("DWT_Localize_Menu_Edit"));
    add(edit, "DWT_Localize_Menu_Cut", QKeySequence::Cut, onField("cut"));
    add(edit, "DWT_Localize_Menu_Copy", QKeySequence::Copy, onField("copy"));
    add(edit, "DWT_Localize_Menu_Paste", QKeySequence::Paste, onField("paste"));
    edit->addSeparator();
    add(edit, "DWT_Localize_Menu_SelectAll", QKeySequence::SelectAll, onField("selectAll"));
    QMenu *const window = bar->addMenu(QStringLiteral("DWT_Localize_Menu_Window"));
    add(window, "DWT_Localize_Menu_Minimize", Qt::CTRL | Qt::Key_M,
        onWindow([](QWidget *w) { w->showMinimized(); }));
    add(window, "DWT_Localize_Menu_Close", Qt::CTRL | Qt::Key_W,
        onWindow([](QWidget *w) { w->close(); }));
    QMenu *const help = bar->addMenu(QStringLiteral("DWT_Localize_Menu_Help"));
    add(help, "DWT_Localize_Menu_About", {}, showAbout);
    return bar;
}

void localizeMenu(QMenuBar *bar) {
    for (QAction *top : bar->actions()) {
        if (top->text().isEmpty() || !top->menu()) continue;
        top->menu()->setTitle(localized(top->text()));
        for (QAction *entry : top->menu()->actions())
            if (!entry->text().isEmpty()) entry->setText(localized(entry->text()));
    }
}

QMenuBar *sharedMainMenu(const QMenuBar *bar, QWidget *parent) {
    auto *const shared = new QMenuBar(parent);
    shared->addActions(bar->actions());
    return shared;
}
