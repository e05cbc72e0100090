#pragma once

#include <QMenuBar>
#include <QPointer>

class DWTMainSettingWindow;

// The application's menu bar: Application, Edit, Printer, Window and Help. The titles are
// localisation keys until localize() has replaced them. Main thread only.
class MainMenu : public QMenuBar {
    Q_OBJECT
  public:
    explicit MainMenu(QWidget *parent);

    // Replaces every title of the menus and of their entries by its text. Once.
    void localize();

    // A further bar with the same menus, for another window, which owns it.
    QMenuBar *shareWith(QWidget *parent) const;

    // Lets the entries for a printer act on the one in `printer`, whose window is loaded: Send and
    // Read again press its buttons, Copy all settings copies its report. Each is enabled exactly
    // while a person could do the same in the window. All are disabled before. The window of the
    // printer before must be gone, or hidden.
    void actOnPrinter(const DWTMainSettingWindow &printer);

  Q_SIGNALS:
    // The list of printers is to be shown.
    void printerListChosen();
    // The guide to connecting a printer is to be shown from its beginning.
    void guideChosen();

  private:
    void addEditMenu();
    // Enables what can act on the widget that has the focus.
    void followFocus();
    void copy();

    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    QAction *m_selectAll = nullptr;
    QAction *m_copyAllSettings = nullptr;
    QAction *m_send = nullptr;
    QAction *m_readAgain = nullptr;
    QPointer<QWidget> m_focus;  // the widget that has it, or had it before a menu bar took it
};
