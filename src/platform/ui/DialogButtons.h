#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QWidget>

// The buttons of a window that answer Return and Escape. They are marked in the .ui files by the
// boolean dynamic properties "defaultButton" and "cancelButton". With stacked views only the
// button on the view that is not hidden counts.
namespace DialogButtons {

// The marked button below `window` that is not hidden and enabled; null when there is none.
QAbstractButton *defaultButton(const QWidget *window);
QAbstractButton *cancelButton(const QWidget *window);

// Draws the default button of `window` as such and no other one. To be called when another view is
// shown. Switches off Qt's automatic default buttons, which would bring back one of a hidden view.
void showDefaultButton(QWidget *window);

// Lets `window` answer a key press that no control of it has used: Return and Enter click the push
// button with the focus, else the default button; Escape clicks the Cancel button.
// True when the key was one of these, also when there was no button to click.
bool answerKey(QWidget *window, const QKeyEvent *event);

}  // namespace DialogButtons
