#include "mainwindow/WPSGuideWindow.h"

#include <QVBoxLayout>

#include "mainwindow/WPSGuide.h"
#include "platform/core/Texts.h"

WPSGuideWindow::WPSGuideWindow(QWidget *parent)
    : ModalWindow(parent), view_WPSGuide(new QWidget), dictionary_WPSViewManagement(view_WPSGuide) {
    setWindowTitle(localized("DWT_Localize_App_Name"));
    (new QVBoxLayout(this))->addWidget(view_WPSGuide);
    auto *const guide = new WPSGuide(view_WPSGuide);
    guide->hideBack();
    dictionary_WPSViewManagement.add(DWT_View_Key_Main_WPS1, guide->firstView());
    dictionary_WPSViewManagement.add(DWT_View_Key_Main_WPS2, guide->secondView());
    connect(guide, &WPSGuide::next1, this, &WPSGuideWindow::push_WPSGuide1Next);
    connect(guide, &WPSGuide::exit1, this, &WPSGuideWindow::push_WPSGuide1Exit);
    connect(guide, &WPSGuide::next2, this, &WPSGuideWindow::push_WPSGuide2Next);
    connect(guide, &WPSGuide::exit2, this, &WPSGuideWindow::push_WPSGuide2Exit);
}

void WPSGuideWindow::run() {
    MSW_WPSUISelector(DWT_View_Key_Main_WPS1);
    Modal::run(this);
}

void WPSGuideWindow::MSW_WPSUISelector(const QString &viewKey) {
    dictionary_WPSViewManagement.select(viewKey);
    dictionary_WPSViewManagement.focusFirstControl();
}
