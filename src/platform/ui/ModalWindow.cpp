#include "platform/ui/ModalWindow.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QWindow>

QAbstractButton *ModalWindow::cancelButton() const {
    for (QAbstractButton *button : findChildren<QAbstractButton *>())
        if (button->property("cancelButton").toBool() && button->isVisible()) return button;
    return nullptr;
}

void ModalWindow::reject() {
    if (QAbstractButton *const button = cancelButton())
        button->click();  // does nothing while the button is disabled
}

void ModalWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    reject();
}

bool ModalWindow::event(QEvent *event) {
    const bool done = QDialog::event(event);
    // The layout is asked anew when another view is shown.
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest) updateCloseBox();
    return done;
}

// Told to the window system directly: QWidget would hide the window.
void ModalWindow::updateCloseBox() {
    if (!isVisible() || !windowHandle()) return;
    Qt::WindowFlags flags = windowFlags();
    flags.setFlag(Qt::WindowCloseButtonHint, cancelButton() != nullptr);
    overrideWindowFlags(flags);
    windowHandle()->setFlags(flags);
}
