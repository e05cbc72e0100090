#include "platform/ui/ModalWindow.h"

#include <QAbstractButton>
#include <QCloseEvent>

ModalWindow::ModalWindow(QWidget *parent) : QDialog(parent) {}

void ModalWindow::reject() {
    for (QAbstractButton *button : findChildren<QAbstractButton *>()) {
        if (!button->property("cancelButton").toBool() || !button->isVisible()) continue;
        button->click();  // does nothing while the button is disabled
        return;
    }
}

void ModalWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    reject();
}
