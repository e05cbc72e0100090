#pragma once

class QWidget;

// Application-modal runs with an outcome. Main thread only.
namespace Modal {

// Outcome of a run that was stopped without a value, or that the end of the application ended.
inline constexpr int stoppedOutcome = -1000;

// Runs `window` application-modally until stop(). The outcome comes when the action that stopped it
// has finished; a run started in that action ends first. The end of the application or of the
// window ends the run, too.
int run(QWidget *window);

// Ends the innermost run of `window`, if any, and hides the window.
void stop(QWidget *window, int outcome = stoppedOutcome);

}  // namespace Modal
