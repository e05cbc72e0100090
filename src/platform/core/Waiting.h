#pragma once

#include <QDeadlineTimer>
#include <chrono>
#include <functional>

class QObject;

// Waiting without freezing the windows: the main thread waits in slices, with idle() between them.

// Longest time between two calls of idle(): short enough that an animation looks smooth.
inline constexpr std::chrono::milliseconds waitSlice{20};

// On the main thread: runs paints, timers and queued calls, and drops every input and close event
// but those for a control of a CancellableWait. Otherwise does nothing.
void idle();

// Lets the waits of its thread end early; the last one made counts.
class CancellableWait {
  public:
    // `isCancelled` is asked after every slice, on the thread of the object; once it says yes, it
    // must not say no again. `isControl`: whether input reaches an object even so, as the button
    // that cancels; for the main thread only.
    explicit CancellableWait(
        std::function<bool()> isCancelled,
        std::function<bool(const QObject *)> isControl = [](const QObject *) { return false; });
    ~CancellableWait();
    Q_DISABLE_COPY_MOVE(CancellableWait)

    bool isCancelled() const { return m_isCancelled(); }
    bool hasControl(const QObject *object) const { return m_isControl(object); }

  private:
    const std::function<bool()> m_isCancelled;
    const std::function<bool(const QObject *)> m_isControl;
    CancellableWait *const m_outer;
};

// Whether what this thread waits for was cancelled.
bool isWaitCancelled();

// From now on, everything that a CancellableWait may end counts as cancelled, on every thread: the
// process ends.
void endWaits();

// Waits until `done` answers true, asked after every slice, or `deadline` has passed.
// `pause(slice)` waits at most that long; without one the thread sleeps. A cancelled wait lasts one
// slice more. Result: the last answer of `done`.
bool waitUntil(const std::function<bool()> &done, const QDeadlineTimer &deadline,
               const std::function<void(std::chrono::milliseconds)> &pause = {});

// Waits for `duration` in slices.
void waitFor(std::chrono::milliseconds duration);
