#pragma once

#include <QDBusConnection>
#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <functional>
#include <memory>

class Notice;

// A tray icon while no watched window is visible, whose menu brings them back and quits, and a
// notification that the tool goes on. Made when they are first needed. Main thread only.
class TrayIcon : public QObject {
    Q_OBJECT
  public:
    explicit TrayIcon(QObject *parent) : QObject(parent) {}

    // Whether there is a tray, asked when the last visible window hides; by default the desktop's
    // word.
    void setHasTray(std::function<bool()> hasTray) { m_hasTray = std::move(hasTray); }

    // Where the desktop's notifications are, asked once; by default the bus of the session.
    void setBus(std::function<QDBusConnection()> bus) { m_bus = std::move(bus); }

    // A window more whose hiding and showing counts. One that is destroyed counts as hidden.
    void watch(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

  Q_SIGNALS:
    // The windows are to be brought back.
    void windowsWanted();
    // The application is to quit.
    void quitWanted();

  private:
    // Shows the icon, or hides it, as the windows now are.
    void follow();
    void make();

    std::function<bool()> m_hasTray = &QSystemTrayIcon::isSystemTrayAvailable;
    std::function<QDBusConnection()> m_bus = &QDBusConnection::sessionBus;
    QList<QPointer<QWidget>> m_windows;
    std::unique_ptr<QMenu> m_menu;
    QSystemTrayIcon *m_icon = nullptr;  // belongs to this object
    Notice *m_notice = nullptr;         // belongs to this object
    bool m_wasVisible = false;
};
