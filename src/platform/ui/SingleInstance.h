#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

// Makes the process the only one of its application for this user, or tells the one that runs
// already that the user has started it again. Lock and socket are in the user's runtime folder.
class SingleInstance : public QObject {
    Q_OBJECT
  public:
    SingleInstance();

    // False when another process was there first, and has been told.
    bool isFirst() const { return m_first; }

  Q_SIGNALS:
    // In the first process: the application was started once more.
    void startedAgain();

  private:
    bool tellFirst(const QString &socket);

    bool m_first = true;
    QLockFile m_lock;
    QLocalServer m_server;
};
