#pragma once

#include <QObject>

#include "ui_WPSGuide.h"

// The two views that explain WPS, for a window that stacks them. Main thread only.
class WPSGuide : public QObject, private Ui::WPSGuide {
    Q_OBJECT
  public:
    // Makes the views as children of `container`, which has no layout yet and owns this guide.
    explicit WPSGuide(QWidget *container);

    QWidget *firstView() const { return view_WPS1; }
    QWidget *secondView() const { return view_WPS2; }
    // Takes the Back buttons away, where there is nothing to go back to.
    void hideBack();

  Q_SIGNALS:
    // The buttons of the first view, then those of the second one.
    void next1();
    void back1();
    void exit1();
    void next2();
    void back2();
    void exit2();
};
