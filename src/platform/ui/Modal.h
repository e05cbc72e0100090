#pragma once

#include <QWidget>

// Application-modal runs with an outcome. Main thread only; runs may nest.
namespace Modal {

// Outcome of a run that was stopped without naming one, whose window was destroyed, or that ended
// because the application did. Never 0.
inline constexpr int stoppedOutcome = -1000;

// Shows `window` (a top-level window, not owned) application-modally and returns the outcome that
// stop() names. The outcome is delivered when the action that called stop() has finished; a run
// started inside that action, also with the same window, ends first.
// Does not hide the window: whoever stops the run hides it. Only when the run ends without a stop()
// (the application is ending) is a window that is still up hidden here.
// Afterwards the window that was active before is active again, unless another one is by then.
int run(QWidget *window);

// Ends the innermost run that has not been stopped yet; nothing when there is none.
void stop(int outcome = stoppedOutcome);

// True while there is a run that has not been stopped.
bool isRunning();

}  // namespace Modal
