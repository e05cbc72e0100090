#include "platform/ui/Window.h"

#include <QScreen>
#include <QScrollBar>

void Window::fitToScreen() {
    const QRect room = screen()->availableGeometry();
    resize(sizeHint().boundedTo(room.size()));
    move(room.center() - rect().center());
}

void Window::bringToFront() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void Window::closeEvent(QCloseEvent *event) {
    event->setAccepted(!m_shouldClose || m_shouldClose());
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
