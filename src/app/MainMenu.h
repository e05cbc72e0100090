#pragma once

#include <QMenuBar>
#include <QPointer>

class DWTMainSettingWindow;
class QAbstractButton;

// The application's menu bar, in localisation keys until localize(). Main thread only.
class MainMenu : public QMenuBar {
    Q_OBJECT
  public:
    explicit MainMenu(QWidget *parent);

    // Replaces every title of the menus and of their entries by its text. Once.
    void localize();

    // A further bar with the same menus, for another window, which owns it.
    QMenuBar *shareWith(QWidget *parent) const;

    // Connects the entries for the list with its buttons, each enabled while the button is.
    void actOnList(QAbstractButton *open, QAbstractButton *lookAgain);

    // Connects the entries for a printer with the loaded window `printer`, each enabled while the
    // window's button is. The window before must be gone or hidden.
    void actOnPrinter(DWTMainSettingWindow &printer);

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
    QAction *m_revertPage = nullptr;
    QAction *m_copyAllSettings = nullptr;
    QAction *m_open = nullptr;
    QAction *m_lookAgain = nullptr;
    QAction *m_saveSettings = nullptr;
    QAction *m_applyFile = nullptr;
    QAction *m_print = nullptr;
    QAction *m_test = nullptr;
    QAction *m_chooseNetwork = nullptr;
    QAction *m_send = nullptr;
    QAction *m_readAgain = nullptr;
    QPointer<QWidget> m_focus;  // the widget that has it, or had it before a menu bar took it
};
