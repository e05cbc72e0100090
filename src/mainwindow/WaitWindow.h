#pragma once

#include "platform/ui/WaitSheet.h"
#include "ui_WaitWindow.h"

// Says that work is going on, and how far it is, with a button that cancels it. Escape and the
// window system's close keys press the button, too. Main thread only.
class WaitWindow : public QWidget, private Ui::WaitWindow {
    Q_OBJECT
  public:
    // Hidden; belongs to `parent`.
    explicit WaitWindow(QWidget *parent);

    // Shows the window over `parent` while the result lives, with the general text and an indicator
    // that only moves. One result at a time.
    [[nodiscard]] WaitSheet over(QWidget *parent);

    // Says what is going on, and that `done` parts of `total` are behind; for a window that is
    // shown.
    void say(const QString &text, int done, int total);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
};
