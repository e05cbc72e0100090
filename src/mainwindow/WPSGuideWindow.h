#pragma once

#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"

// The WPS guide as a window of its own, which leads forward only. Main thread only.
class WPSGuideWindow : public ModalWindow {
    Q_OBJECT
  public:
    // Hidden; belongs to `parent`.
    explicit WPSGuideWindow(QWidget *parent);

    // Shows the first view and runs until the user has left the guide.
    void run();

  private:
    // Shows the view of the key.
    void MSW_WPSUISelector(const QString &viewKey);
    void push_WPSGuide1Next();
    void push_WPSGuide1Exit();
    void push_WPSGuide2Next();
    void push_WPSGuide2Exit();
    void closeGuide();

    QWidget *const view_WPSGuide;
    ViewStack dictionary_WPSViewManagement;
};
