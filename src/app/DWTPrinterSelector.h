#pragma once

#include <QPointer>

#include "app/base/DWTBaseClass.h"
#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/ui/Application.h"
#include "platform/ui/ViewStack.h"
#include "platform/ui/Window.h"
#include "ui_PrinterSelector.h"

class MainMenu;
class PrinterList;
class TrayIcon;
class WPSGuide;
class WaitWindow;

// The application's delegate and its selection window: a small wizard that guides the user in
// connecting a printer and ends at the list from which one is picked. It opens the main setting
// window of the picked printer, hides meanwhile, and lives as long as the application. Main thread
// only.
class DWTPrinterSelector : public DWTBaseClass,
                           public ApplicationDelegate,
                           private Ui::PrinterSelector {
    DWT_SETUP(DWTPrinterSelector, DWTBaseClass, DWT_Init, DWT_Dealloc)

  public:
    // Loads the selection window; it is not shown yet.
    void awakeFromNib() override;
    // Shows the first view: the guide in installer mode, otherwise the printer list.
    void applicationDidFinishLaunching() override;
    // Brings the window forward that the user is likely to miss. Always true.
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;
    // 1 terminate now, 0 cancel: the open main setting window decides, when there is one.
    int applicationShouldTerminate() override;

    // The selection window; null until awakeFromNib().
    Window *window() const { return window_PrinterSelector; }
    // The main setting window that was opened last; null when there was none.
    std::shared_ptr<DWTMainSettingWindow> mainSettingWindow() const { return msw_Object; }

  private:
    void DWT_UIInitialize();
    void connectButtons(const WPSGuide *guide);
    // Shows the view and hides the others; the printer list is fetched anew when it is shown.
    void DWT_UISelector(const QString &viewKey);
    void DWT_CloseMainDialog(const Notification &notification);
    void DWT_ShowMainSettingWindow();
    // Shows a view as the menu asks for it; an open printer is left first, as by its Close button.
    void leaveFor(const QString &viewKey);
    // The end of the guide: it goes to the list when the menu led to it, and otherwise quits.
    void leaveGuide();
    // The user closes the selection window: it hides.
    void windowWillClose();

    void push_ToolPerformOK();
    void push_ToolPerformExit();
    void push_ChooseConnectNext();
    void push_ChooseConnectExit();
    void push_USBConnectNext();
    void push_WPSSetting1Next();
    void push_WPSSetting1Back();
    void push_WPSSetting1Exit();
    void push_WPSSetting2Next();
    void push_WPSSetting2Back();
    void push_WPSSetting2Exit();
    void push_PrinterListOK();
    void push_PrinterListExit();

    QPointer<Window> window_PrinterSelector;
    WaitWindow *window_Wait = nullptr;  // these three belong to the selection window
    PrinterList *view_Printerlist = nullptr;
    MainMenu *m_menu = nullptr;
    TrayIcon *m_tray = nullptr;  // belongs to this object
    std::unique_ptr<ViewStack> dictionary_ViewManagement;
    std::shared_ptr<DWTMainSettingWindow> msw_Object;
    bool show_mainDialog = false;
    bool m_guideLeadsToList = false;
    NotificationCenter::Observer m_closings;
};
