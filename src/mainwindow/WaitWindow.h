#pragma once

#include "platform/ui/WaitSheet.h"
#include "ui_WaitWindow.h"

// Says that work is going on, with an indicator that moves meanwhile. Main thread only.
class WaitWindow : public QWidget, private Ui::WaitWindow {
    Q_OBJECT
  public:
    // Hidden; belongs to `parent`.
    explicit WaitWindow(QWidget *parent);

    // Shows the window over `parent` while the result lives. One result at a time.
    [[nodiscard]] WaitSheet over(QWidget *parent);
};
