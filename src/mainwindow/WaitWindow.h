#pragma once

#include "platform/ui/WaitSheet.h"
#include "ui_WaitWindow.h"

// Says what is going on and how far it is. Its button, Escape and the close keys cancel it. Main
// thread only.
class WaitWindow : public QWidget, private Ui::WaitWindow {
    Q_OBJECT
  public:
    // Hidden; belongs to `parent`.
    explicit WaitWindow(QWidget *parent);

    // Shows the window over `parent` while the result lives; one result at a time.
    [[nodiscard]] WaitSheet over(QWidget *parent);

    // Says what is going on, and that `done` parts of `total` are behind.
    void say(const QString &text, int done, int total);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
};
