#include "app/MainMenu.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>

#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/core/Texts.h"
#include "platform/ui/Application.h"

using namespace Qt::StringLiterals;

namespace {

QAction *add(QMenu *menu, const char *key, const QKeySequence &shortcut,
             const std::function<void()> &action = nullptr) {
    QAction *const entry = menu->addAction(QLatin1String(key));
    entry->setShortcut(shortcut);
    if (action) QObject::connect(entry, &QAction::triggered, menu, action);
    return entry;
}

std::function<void()> onWindow(void (*operation)(QWidget *)) {
    return [operation] {
        if (QWidget *const window = QApplication::activeWindow()) operation(window);
    };
}

// The field, when its text can be changed; otherwise null.
QLineEdit *editable(QWidget *widget) {
    auto *const field = qobject_cast<QLineEdit *>(widget);
    return field && !field->isReadOnly() ? field : nullptr;
}

// What is selected in a field or a label, as far as it may be seen.
QString selectedText(const QWidget *widget) {
    if (const auto *label = qobject_cast<const QLabel *>(widget)) return label->selectedText();
    const auto *field = qobject_cast<const QLineEdit *>(widget);
    return field && field->echoMode() == QLineEdit::Normal ? field->selectedText() : QString();
}

// Makes an entry act for a widget, and be enabled exactly while a person can use the widget and,
// with `mayAct`, that allows it.
class WidgetEntry : public QObject {
  public:
    WidgetEntry(QAction *entry, QWidget *widget, const std::function<void()> &action,
                const std::function<bool()> &mayAct = nullptr)
        : QObject(widget), m_entry(entry), m_widget(widget), m_mayAct(mayAct) {
        widget->installEventFilter(this);
        connect(entry, &QAction::triggered, this, action);
        follow();
    }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Show ||
            event->type() == QEvent::Hide)
            follow();
        return false;
    }
    // Asks anew whether the entry can act.
    void follow() {
        if (m_entry)
            m_entry->setEnabled(m_widget->isVisible() && m_widget->isEnabled() &&
                                (!m_mayAct || m_mayAct()));
    }

  private:
    const QPointer<QAction> m_entry;
    QWidget *const m_widget;
    const std::function<bool()> m_mayAct;
};

void pressBy(QAction *entry, QAbstractButton *button) {
    new WidgetEntry(entry, button, [button] {
        button->setFocus(Qt::ShortcutFocusReason);  // as a click does, which ends editing
        button->click();
    });
}

// The name of the licence, and whose the copyright is.
QString licence() {
    QFile file(u":/LICENSE"_s);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).section(u"\n\n"_s, 0, 1);
}

void showAbout() {
    const QString name = localized("DWT_Localize_App_Name");
    const QString contact = u"<a href=\"mailto:%1\">%1</a>"_s;
    const QStringList paragraphs{localized("DWT_Localize_About_Text").toHtmlEscaped(),
                                 licence().toHtmlEscaped().replace(u"\n\n"_s, u"<br>"_s),
                                 localized("DWT_Localize_About_Report")
                                     .toHtmlEscaped()
                                     .arg(contact.arg(QStringLiteral(NST_CONTACT)))};
    auto *const box = new QMessageBox(QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(withoutMnemonic(localized("DWT_Localize_Menu_About")));
    box->setIconPixmap(QApplication::windowIcon().pixmap(64));
    box->setTextFormat(Qt::RichText);
    box->setText(u"<h3>%1 %2</h3><p>%3</p>"_s.arg(name.toHtmlEscaped(), QStringLiteral(NST_VERSION),
                                                  paragraphs.join(u"</p><p>"_s)));
    box->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    box->addButton(localized("DWT_Localize_Alert_Button_OK"), QMessageBox::AcceptRole);
    box->open();
}

}  // namespace

MainMenu::MainMenu(QWidget *parent) : QMenuBar(parent) {
    QMenu *const file = addMenu(u"DWT_Localize_Menu_File"_s);
    m_open = add(file, "DWT_Localize_Menu_Open", Qt::CTRL | Qt::Key_O);
    m_lookAgain = add(file, "DWT_Localize_Menu_LookAgain", Qt::Key_F5);
    file->addSeparator();
    m_saveSettings = add(file, "DWT_Localize_Menu_SaveSettings", Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    m_applyFile = add(file, "DWT_Localize_Menu_ApplyFile", Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    m_print = add(file, "DWT_Localize_Menu_Print", Qt::CTRL | Qt::Key_P);
    file->addSeparator();
    add(file, "DWT_Localize_Menu_Close", Qt::CTRL | Qt::Key_W,
        onWindow([](QWidget *w) { w->close(); }));
    add(file, "DWT_Localize_Menu_Quit", Qt::CTRL | Qt::Key_Q, [] { Application::terminate(); });
    addEditMenu();
    QMenu *const printer = addMenu(u"DWT_Localize_Menu_Printer"_s);
    m_send = add(printer, "DWT_Localize_Menu_Send", Qt::CTRL | Qt::Key_S);
    m_readAgain = add(printer, "DWT_Localize_Menu_ReadAgain", Qt::Key_F5);
    m_test = add(printer, "DWT_Localize_Menu_Test", Qt::CTRL | Qt::Key_T);
    m_chooseNetwork = add(printer, "DWT_Localize_Menu_ChooseNetwork", {});
    for (QAction *entry : {m_send, m_readAgain, m_revertPage, m_copyAllSettings, m_saveSettings,
                           m_applyFile, m_print, m_test, m_chooseNetwork})
        entry->setEnabled(false);
    QMenu *const view = addMenu(u"DWT_Localize_Menu_View"_s);
    add(view, "DWT_Localize_Menu_PrinterList", Qt::CTRL | Qt::Key_L,
        [this] { Q_EMIT printerListChosen(); });
    add(view, "DWT_Localize_Menu_Minimize", Qt::CTRL | Qt::Key_M,
        onWindow([](QWidget *w) { w->showMinimized(); }));
    QMenu *const help = addMenu(u"DWT_Localize_Menu_Help"_s);
    add(help, "DWT_Localize_Menu_Guide", Qt::Key_F1, [this] { Q_EMIT guideChosen(); });
    help->addSeparator();
    add(help, "DWT_Localize_Menu_About", {}, showAbout);
}

void MainMenu::addEditMenu() {
    QMenu *const edit = addMenu(u"DWT_Localize_Menu_Edit"_s);
    m_cut = add(edit, "DWT_Localize_Menu_Cut", QKeySequence::Cut, [this] {
        if (QLineEdit *const field = editable(m_focus)) field->cut();
    });
    m_copy = add(edit, "DWT_Localize_Menu_Copy", QKeySequence::Copy, [this] { copy(); });
    m_paste = add(edit, "DWT_Localize_Menu_Paste", QKeySequence::Paste, [this] {
        if (QLineEdit *const field = editable(m_focus)) field->paste();
    });
    edit->addSeparator();
    m_selectAll = add(edit, "DWT_Localize_Menu_SelectAll", QKeySequence::SelectAll, [this] {
        if (auto *const field = qobject_cast<QLineEdit *>(m_focus)) field->selectAll();
    });
    edit->addSeparator();
    m_revertPage = add(edit, "DWT_Localize_Menu_RevertPage", {});
    m_copyAllSettings =
        add(edit, "DWT_Localize_Menu_CopyAllSettings", Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && !qobject_cast<QMenuBar *>(now)) m_focus = now;
    });
    connect(edit, &QMenu::aboutToShow, this, &MainMenu::followFocus);
    // A shortcut asks nobody what can act; it finds out by itself.
    connect(edit, &QMenu::aboutToHide, this, [this] {
        for (QAction *entry : {m_cut, m_copy, m_paste, m_selectAll}) entry->setEnabled(true);
    });
}

void MainMenu::followFocus() {
    QWidget *const focus = m_focus && m_focus->isVisible() ? m_focus.data() : nullptr;
    const QLineEdit *const changed = editable(focus);
    const auto *const field = qobject_cast<QLineEdit *>(focus);
    const QMimeData *const clipboard = QApplication::clipboard()->mimeData();
    m_copy->setEnabled(!selectedText(focus).isEmpty());
    m_cut->setEnabled(changed && m_copy->isEnabled());
    m_paste->setEnabled(changed && clipboard && clipboard->hasText());
    m_selectAll->setEnabled(field && !field->text().isEmpty());
}

void MainMenu::copy() {
    const QString selected = selectedText(m_focus);
    if (!selected.isEmpty()) QApplication::clipboard()->setText(selected);
}

void MainMenu::localize() {
    for (QAction *top : actions()) {
        if (top->text().isEmpty() || !top->menu()) continue;
        top->menu()->setTitle(localized(top->text()));
        for (QAction *entry : top->menu()->actions())
            if (!entry->text().isEmpty()) entry->setText(localized(entry->text()));
    }
}

QMenuBar *MainMenu::shareWith(QWidget *parent) const {
    auto *const shared = new QMenuBar(parent);
    shared->addActions(actions());
    return shared;
}

void MainMenu::actOnList(QAbstractButton *open, QAbstractButton *lookAgain) {
    // What is typed into the filter goes on.
    new WidgetEntry(m_open, open, [open] { open->click(); });
    new WidgetEntry(m_lookAgain, lookAgain, [lookAgain] { lookAgain->click(); });
}

void MainMenu::actOnPrinter(DWTMainSettingWindow &printer) {
    pressBy(m_send, printer.sendButton());
    pressBy(m_readAgain, printer.readAgainButton());
    const auto follows = [&printer](QAction *entry, const std::function<void()> &action,
                                    const std::function<bool()> &mayAct) {
        auto *const made = new WidgetEntry(entry, printer.window(), action, mayAct);
        connect(&printer, &DWTMainSettingWindow::editsFollowed, made, &WidgetEntry::follow);
    };
    follows(
        m_revertPage, [&printer] { printer.revertPage(); },
        [&printer] { return printer.canRevertPage(); });
    follows(
        m_applyFile, [&printer] { printer.applyFile(); },
        [&printer] { return printer.canBeChanged(); });
    // Of the page that is shown.
    const auto presses = [&](QAction *entry,
                             QAbstractButton *(DWTMainSettingWindow::*button)() const) {
        follows(
            entry, [&printer, button] { (printer.*button)()->click(); },
            [&printer, button] {
                const QAbstractButton *const pressed = (printer.*button)();
                return pressed && pressed->isEnabled();
            });
    };
    presses(m_test, &DWTMainSettingWindow::testButton);
    presses(m_chooseNetwork, &DWTMainSettingWindow::chooseNetworkButton);
    new WidgetEntry(m_saveSettings, printer.window(), [&printer] { printer.saveSettings(); });
    new WidgetEntry(m_print, printer.window(), [&printer] { printer.printReport(); });
    new WidgetEntry(m_copyAllSettings, printer.window(),
                    [&printer] { QApplication::clipboard()->setText(printer.report()); });
}
