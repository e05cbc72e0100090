#include "mainwindow/WaitWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "platform/core/Texts.h"

WaitWindow::WaitWindow(QWidget *parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint) {
    setupUi(this);
}

WaitSheet WaitWindow::over(QWidget *parent) {
    textField_WaitMassage->setText(localized("DWT_Localize_Wait_TextField"));
    return WaitSheet(this, parent, progress_Wait, button_WaitCancel);
}

void WaitWindow::say(const QString &text, int done, int total) {
    textField_WaitMassage->setText(text);
    progress_Wait->setRange(0, total);
    progress_Wait->setValue(done);
    const int wider = sizeHint().width() - width();
    if (wider > 0) setGeometry(geometry().adjusted(-wider / 2, 0, wider - wider / 2, 0));
}

void WaitWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape) button_WaitCancel->click();
}

void WaitWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    button_WaitCancel->click();
}
