#include "platform/ui/ModalWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "platform/ui/DialogButtons.h"

void ModalWindow::accept() {}

void ModalWindow::reject() {
    if (QAbstractButton *button = DialogButtons::cancelButton(this)) button->click();
}

void ModalWindow::done(int) {}

void ModalWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    reject();
}

void ModalWindow::keyPressEvent(QKeyEvent *event) {
    if (!DialogButtons::answerKey(this, event)) QDialog::keyPressEvent(event);
}

void ModalWindow::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    DialogButtons::showDefaultButton(this);
}
