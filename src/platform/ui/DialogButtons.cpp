#include "platform/ui/DialogButtons.h"

#include <QPushButton>

namespace {

QAbstractButton *markedButton(const QWidget *window, const char *property) {
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->property(property).toBool() && button->isVisibleTo(window) &&
            button->isEnabled())
            return button;
    }
    return nullptr;
}

}  // namespace

QAbstractButton *DialogButtons::defaultButton(const QWidget *window) {
    return markedButton(window, "defaultButton");
}

QAbstractButton *DialogButtons::cancelButton(const QWidget *window) {
    return markedButton(window, "cancelButton");
}

void DialogButtons::showDefaultButton(QWidget *window) {
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        button->setAutoDefault(false);
        button->setDefault(button->property("defaultButton").toBool() &&
                           button->isVisibleTo(window));
    }
}

bool DialogButtons::answerKey(QWidget *window, const QKeyEvent *event) {
    QAbstractButton *button = nullptr;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            button = qobject_cast<QPushButton *>(window->focusWidget());
            if (!button || !button->isVisible()) button = defaultButton(window);
            break;
        case Qt::Key_Escape:
            button = cancelButton(window);
            break;
        default:
            return false;
    }
    if (button) button->click();
    return true;
}
