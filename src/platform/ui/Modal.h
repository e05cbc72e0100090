#pragma once

class QWidget;

// Application-modal runs with an outcome. Main thread only.
namespace Modal {

// Outcome of a run that was stopped without a value, or that the end of the application ended.
inline constexpr int stoppedOutcome = -1000;

// Shows `window` application-modally and runs until stop() ends this run. The outcome is delivered
// when the action that stopped it has finished; a run started inside that action, also of the same
// window, ends first. Who stops a run also hides its window; a run that ends with the application
// hides it itself, and one whose window is destroyed ends.
int run(QWidget *window);

// Ends the run of `window`, the innermost one that has not been stopped; does nothing when the
// window does not run.
void stop(const QWidget *window, int outcome = stoppedOutcome);

}  // namespace Modal
