#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <deque>
#include <functional>

// Acts later and in order, on one thread with an event loop; dropped with the object.
class DelayedActions : public QObject {
  public:
    using QObject::QObject;

    // Acts in `delay` ms, not before earlier actions; at once when nothing is to be waited for.
    void after(int delay, const std::function<void()> &action);

  private:
    QDeadlineTimer m_last{0};
    std::deque<std::function<void()>> m_waiting;
};
