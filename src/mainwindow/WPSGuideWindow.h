#pragma once

#include "platform/core/Key.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"

DWT_KEY(DWT_View_Key_Main_WPS1);
DWT_KEY(DWT_View_Key_Main_WPS2);

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
    void push_WPSGuide1Next() { MSW_WPSUISelector(DWT_View_Key_Main_WPS2); }
    void push_WPSGuide1Exit() { closeGuide(); }
    void push_WPSGuide2Next() { closeGuide(); }
    void push_WPSGuide2Exit() { closeGuide(); }
    void closeGuide() { Modal::stop(this); }

    QWidget *const view_WPSGuide;
    ViewStack dictionary_WPSViewManagement;
};
