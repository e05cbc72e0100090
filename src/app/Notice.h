#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QObject>
#include <QString>
#include <utility>

// A notification of the desktop (org.freedesktop.Notifications) that the tool goes on without a
// window; its action brings the windows back. Without such a service nothing happens, and nobody
// waits for one. Main thread only.
class Notice : public QObject {
    Q_OBJECT
  public:
    // `bus`: where the service is.
    Notice(QDBusConnection bus, QObject *parent) : QObject(parent), m_bus(std::move(bus)) {}

    // Shows the notification, in the place of the former one.
    void show();
    // Takes the notification away.
    void close();

  Q_SIGNALS:
    // The windows are to be brought back.
    void windowsWanted();

  private Q_SLOTS:
    void actionInvoked(uint id, const QString &action);

  private:
    void noteShown(QDBusPendingCallWatcher *call);

    QDBusConnection m_bus;
    bool m_isWanted = false;
    bool m_listens = false;  // to the service's signals
    uint m_id = 0;           // that the service gave; 0 for none
};
