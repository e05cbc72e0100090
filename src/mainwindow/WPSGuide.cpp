#include "mainwindow/WPSGuide.h"

WPSGuide::WPSGuide(QWidget *container) : QObject(container) {
    setupUi(container);
    const auto forward = [this](QAbstractButton *button, void (WPSGuide::*pushed)()) {
        connect(button, &QAbstractButton::clicked, this, pushed);
    };
    forward(button_WPS1Next, &WPSGuide::next1);
    forward(button_WPS1Back, &WPSGuide::back1);
    forward(button_WPS1EXIT, &WPSGuide::exit1);
    forward(button_WPS2Next, &WPSGuide::next2);
    forward(button_WPS2Back, &WPSGuide::back2);
    forward(button_WPS2EXIT, &WPSGuide::exit2);
}

void WPSGuide::hideBack() {
    button_WPS1Back->hide();
    button_WPS2Back->hide();
}
