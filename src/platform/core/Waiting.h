#pragma once

#include <QDeadlineTimer>
#include <chrono>
#include <functional>

// Waiting without freezing the windows. Whoever waits on the main thread does so in slices and
// calls idle() between them.

// Longest time between two calls of idle(): short enough that an animation looks smooth.
inline constexpr std::chrono::milliseconds waitSlice{20};

// On the main thread: lets windows paint, timers run and queued calls arrive, and drops (does not
// queue) every keyboard, mouse, touch, input-method, drag and close event that reaches the
// application meanwhile. On every other thread, and without an application: does nothing.
void idle();

// Waits until `done` answers true or `deadline` has passed, asking `done` anew after every slice.
// `pause(slice)` waits at most that long for whatever would change the answer; without one the
// thread sleeps. Result: the last answer of `done`.
bool waitUntil(const std::function<bool()> &done, const QDeadlineTimer &deadline,
               const std::function<void(std::chrono::milliseconds)> &pause = {});

// Waits for `duration` in slices.
void waitFor(std::chrono::milliseconds duration);
