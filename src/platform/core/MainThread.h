#pragma once

#include <functional>

// Work that leaves the main thread, and the way back to it.
namespace MainThread {

// True on the thread of the application object.
bool isCurrent();

// Runs `work` on the main thread and returns when it has run; on the main thread at once.
// The main thread runs it from its event loop, from idle() or from finishBackgroundWork().
// Returns false, without having run it, once the application object is gone.
bool callAndWait(const std::function<void()> &work);

// Starts `work` on a new detached thread. It may use callAndWait(). The application object waits
// for it before it goes (see finishBackgroundWork()), so work that was started is always finished.
// False when the system has no thread for it; the work is then not done.
[[nodiscard]] bool startBackgroundWork(std::function<void()> work);

// Waits on the main thread until no background work is left, running what it hands to the main
// thread meanwhile. Runs by itself when the application object is destroyed.
void finishBackgroundWork();

}  // namespace MainThread
