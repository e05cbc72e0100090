#include "platform/core/Waiting.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QSet>
#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

#include "platform/core/MainThread.h"

namespace {

// The innermost one of each thread.
thread_local CancellableWait *cancellable = nullptr;

std::atomic<bool> waitsEnd{false};

// Swallows what a person does while the program waits.
class InputFilter : public QObject {
  public:
    InputFilter() { QCoreApplication::instance()->installEventFilter(this); }

  protected:
    bool eventFilter(QObject *object, QEvent *event) override {
        if (cancellable && cancellable->hasControl(object)) return false;
        // Where the pointer is stays known.
        static const QSet<int> passed{QEvent::Enter, QEvent::HoverEnter, QEvent::HoverMove,
                                      QEvent::HoverLeave};
        static const QSet<int> dropped{QEvent::Close,     QEvent::Shortcut, QEvent::InputMethod,
                                       QEvent::DragEnter, QEvent::DragMove, QEvent::DragLeave,
                                       QEvent::Drop};
        if (event->type() == QEvent::Close) event->ignore();  // the window stays open
        return dropped.contains(event->type()) ||
               (event->isInputEvent() && !passed.contains(event->type()));
    }
};

// When the main thread idled last; used by it alone.
QElapsedTimer lastIdle;

// Many short waits after each other must not freeze the windows either.
bool idleIsDue() {
    return MainThread::isCurrent() &&
           (!lastIdle.isValid() || lastIdle.elapsed() >= waitSlice.count());
}

}  // namespace

void idle() {
    if (!MainThread::isCurrent()) return;
    lastIdle.start();
    const InputFilter filter;
    QCoreApplication::processEvents();
}

CancellableWait::CancellableWait(std::function<bool()> isCancelled,
                                 std::function<bool(const QObject *)> isControl)
    : m_isCancelled(std::move(isCancelled)),
      m_isControl(std::move(isControl)),
      m_outer(std::exchange(cancellable, this)) {}

CancellableWait::~CancellableWait() {
    cancellable = m_outer;
}

bool isWaitCancelled() {
    return cancellable && (waitsEnd || cancellable->isCancelled());
}

void endWaits() {
    waitsEnd = true;
}

bool waitUntil(const std::function<bool()> &done, const QDeadlineTimer &deadline,
               const std::function<void(std::chrono::milliseconds)> &pause) {
    for (;;) {
        if (done()) return true;
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline.remainingTimeAsDuration());
        if (!deadline.isForever() && left.count() <= 0) return false;
        const bool last = isWaitCancelled();
        const auto slice = deadline.isForever() ? waitSlice : std::min(waitSlice, left);
        if (pause)
            pause(slice);
        else
            std::this_thread::sleep_for(slice);
        if (!done() || idleIsDue()) idle();
        if (last) return done();
    }
}

void waitFor(std::chrono::milliseconds duration) {
    waitUntil([] { return false; }, QDeadlineTimer(duration));
}
