#include "mainwindow/WaitWindow.h"

WaitWindow::WaitWindow(QWidget *parent) : QWidget(parent, Qt::Dialog) {
    setupUi(this);
}

WaitSheet WaitWindow::over(QWidget *parent) {
    return WaitSheet(this, parent, progress_Wait);
}
