#include "platform/ui/Window.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

void Window::fitToScreen() {
    const QRect room = screen()->availableGeometry();
    resize(sizeHint().boundedTo(room.size()));
    move(room.center() - rect().center());
}

void Window::growToContents() {
    resize(size().expandedTo(sizeHint().boundedTo(screen()->availableGeometry().size() * 2 / 3)));
}

void Window::bringToFront() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void Window::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QWidget::keyPressEvent(event);
    auto *pressed = qobject_cast<QPushButton *>(focusWidget());
    for (QPushButton *button : findChildren<QPushButton *>())
        if (!pressed && button->isVisible() && button->property("defaultButton").toBool())
            pressed = button;
    if (pressed) pressed->click();  // does nothing while the button is disabled
}

PanelScroller::PanelScroller(QWidget *panel) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);  // its controls have the focus
    setWidget(panel);
}

QSize PanelScroller::sizeHint() const {
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}
