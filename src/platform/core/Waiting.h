#pragma once

#include <QDeadlineTimer>
#include <chrono>
#include <functional>

class QObject;

// Waiting without freezing the windows. Whoever waits on the main thread does so in slices and
// calls idle() between them.

// Longest time between two calls of idle(): short enough that an animation looks smooth.
inline constexpr std::chrono::milliseconds waitSlice{20};

// On the main thread: lets windows paint, timers run and queued calls arrive, and drops (does not
// queue) every keyboard, mouse, touch, input-method, drag and close event that reaches the
// application meanwhile, but those for a control of a CancellableWait. On every other thread, and
// without an application: does nothing.
void idle();

// Makes what the main thread waits for while it lives end early, once that is asked for. For the
// main thread; the last one made counts.
class CancellableWait {
  public:
    // `isControl` says of an object whether a person's input reaches it even so: the window and the
    // button that call cancel().
    explicit CancellableWait(std::function<bool(const QObject *)> isControl);
    ~CancellableWait();
    CancellableWait(const CancellableWait &) = delete;
    CancellableWait &operator=(const CancellableWait &) = delete;

    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }
    bool hasControl(const QObject *object) const { return m_isControl(object); }

  private:
    const std::function<bool(const QObject *)> m_isControl;
    CancellableWait *const m_outer;
    bool m_cancelled = false;
};

// Whether a person has cancelled what the main thread waits for; false on every other thread.
bool isWaitCancelled();

// Waits until `done` answers true or `deadline` has passed, asking `done` anew after every slice.
// `pause(slice)` waits at most that long for whatever would change the answer; without one the
// thread sleeps. Once the wait is cancelled it lasts one slice more, enough for what is merely to
// be written. Result: the last answer of `done`.
bool waitUntil(const std::function<bool()> &done, const QDeadlineTimer &deadline,
               const std::function<void(std::chrono::milliseconds)> &pause = {});

// Waits for `duration` in slices.
void waitFor(std::chrono::milliseconds duration);
