#pragma once

#include <QSocketNotifier>

// While it lives, SIGINT, SIGTERM and SIGHUP end the application: waits that can be cancelled end,
// then its event loops, so that transactions are ended, too. A send is finished. One at a time.
class QuitOnSignal : public QObject {
  public:
    QuitOnSignal();
    ~QuitOnSignal() override;
    QuitOnSignal(const QuitOnSignal &) = delete;
    QuitOnSignal &operator=(const QuitOnSignal &) = delete;

  private:
    QSocketNotifier m_notifier{QSocketNotifier::Read};
};
