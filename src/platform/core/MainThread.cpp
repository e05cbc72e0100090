#include "platform/core/MainThread.h"

#include <QCoreApplication>
#include <QThread>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

// A piece of work on its way to the main thread; it lives on the stack of the thread that waits.
struct Call {
    const std::function<void()> *work;
    bool done = false;
};

struct State {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Call *> calls;
    int running = 0;        // background threads that have not ended
    bool draining = false;  // finishBackgroundWork() takes the calls
};

// Never destroyed: a detached thread may still touch it while the process ends.
State &state() {
    static auto *const shared = new State;
    return *shared;
}

// Runs the oldest waiting call. Calls run one after the other, never one inside another's wait.
void runOldestCall() {
    State &s = state();
    std::unique_lock lock(s.mutex);
    if (s.calls.empty()) return;
    Call *const call = s.calls.front();
    s.calls.pop_front();
    lock.unlock();
    (*call->work)();
    lock.lock();
    call->done = true;
    s.changed.notify_all();
}

}  // namespace

bool MainThread::isCurrent() {
    const auto *app = QCoreApplication::instance();
    return app && app->thread() == QThread::currentThread();
}

bool MainThread::callAndWait(const std::function<void()> &work) {
    if (isCurrent()) {
        work();
        return true;
    }
    State &s = state();
    Call call{&work};
    std::unique_lock lock(s.mutex);
    auto *app = QCoreApplication::instance();
    if (!app && !s.draining) return false;
    s.calls.push_back(&call);
    s.changed.notify_all();
    if (app) QMetaObject::invokeMethod(app, runOldestCall, Qt::QueuedConnection);
    s.changed.wait(lock, [&] { return call.done; });
    return true;
}

bool MainThread::startBackgroundWork(std::function<void()> work) {
    static std::once_flag registered;
    std::call_once(registered, qAddPostRoutine, finishBackgroundWork);
    const auto count = [](int change) {
        const std::lock_guard lock(state().mutex);
        state().running += change;
        state().changed.notify_all();
    };
    count(1);
    try {
        std::thread([work = std::move(work), count]() mutable {
            work();
            work = nullptr;  // what it holds goes before the application is told that it ended
            count(-1);
        }).detach();
    } catch (const std::system_error &) {
        count(-1);
        return false;
    }
    return true;
}

void MainThread::finishBackgroundWork() {
    State &s = state();
    std::unique_lock lock(s.mutex);
    s.draining = true;
    while (s.running > 0 || !s.calls.empty()) {
        s.changed.wait(lock, [&] { return s.running == 0 || !s.calls.empty(); });
        lock.unlock();
        runOldestCall();
        lock.lock();
    }
    s.draining = false;
}
