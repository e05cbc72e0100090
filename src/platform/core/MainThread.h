#pragma once

#include <functional>

// Work that leaves the main thread, and the way back to it.
namespace MainThread {

// True on the thread of the application object.
bool isCurrent();

// Runs `work` on the main thread, from its event loop, idle() or finishBackgroundWork(), and
// returns when it has run. False, without running it, once the application object is gone.
bool callAndWait(const std::function<void()> &work);

// Starts `work` on a detached thread, for which the application object waits before it goes. False,
// without running it, when the system has no thread.
[[nodiscard]] bool startBackgroundWork(std::function<void()> work);

// Waits until no background work is left; runs by itself when the application object goes.
void finishBackgroundWork();

}  // namespace MainThread
