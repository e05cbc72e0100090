#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <deque>
#include <functional>

// Acts later and in order: what a virtual printer sends, with the delays of its replies. Lives on
// one thread, which must run an event loop; what still waits when it goes is dropped.
class DelayedActions : public QObject {
  public:
    using QObject::QObject;

    // Acts `delay` ms from now, but not before what was asked for earlier; within this call when
    // neither has to be waited for.
    void after(int delay, const std::function<void()> &action);

  private:
    QDeadlineTimer m_last{0};
    std::deque<std::function<void()>> m_waiting;
};
