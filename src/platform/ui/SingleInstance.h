#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

// Makes the process the user's only one, or notifies the one that runs. Uses the runtime folder.
class SingleInstance : public QObject {
    Q_OBJECT
  public:
    // A first process may take `longestAnswer` milliseconds to answer.
    explicit SingleInstance(int longestAnswer = 5000);

    // False when another process was there first, and has been told.
    bool isFirst() const { return m_first; }
    // Of a process that is not the first: whether the first has answered; otherwise it hangs.
    bool isAnswered() const { return m_answered; }

  Q_SIGNALS:
    // In the first process: the application was started once more.
    void startedAgain();

  private:
    bool m_first = true;
    bool m_answered = false;
    QLockFile m_lock;
    QLocalServer m_server;
};
