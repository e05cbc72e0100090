// An application with an empty window: what any start on this machine costs.

#include <QApplication>
#include <QWidget>

#include "FirstPaint.h"

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const FirstPaint shown(nullptr);
    QWidget window;
    window.resize(400, 300);
    window.show();
    return QApplication::exec();
}
