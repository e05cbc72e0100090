#pragma once

#include <QPointer>

#include "app/base/DWTBaseClass.h"
#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/ui/Application.h"
#include "platform/ui/ViewStack.h"
#include "platform/ui/Window.h"
#include "ui_ConnectGuide.h"
#include "ui_PrinterSelector.h"

class MainMenu;
class PrinterList;
class TrayIcon;
class WaitWindow;

// The application's delegate and its selection window: a wizard that ends at the list of printers.
// It opens the window of the picked one and hides meanwhile. Main thread only.
class DWTPrinterSelector : public DWTBaseClass,
                           public ApplicationDelegate,
                           private Ui::PrinterSelector,
                           private Ui::ConnectGuide {
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
    // The keys of the views.
    static inline const QString DWT_View_Key_ToolPerform =
        QStringLiteral("DWT_View_Key_ToolPerform");
    static inline const QString DWT_View_Key_ChooseConnect =
        QStringLiteral("DWT_View_Key_ChooseConnect");
    static inline const QString DWT_View_Key_USBConnect = QStringLiteral("DWT_View_Key_USBConnect");
    static inline const QString DWT_View_Key_WPS1 = QStringLiteral("DWT_View_Key_WPS1");
    static inline const QString DWT_View_Key_WPS2 = QStringLiteral("DWT_View_Key_WPS2");
    static inline const QString DWT_View_Key_Printerlist =
        QStringLiteral("DWT_View_Key_Printerlist");

    void DWT_UIInitialize();
    // Makes the views of the guide to connecting a printer.
    void makeGuide();
    void nameExits();
    // Shows the view and hides the others; the printer list is fetched anew when it is shown.
    void DWT_UISelector(const QString &viewKey);
    void DWT_CloseMainDialog(const Notification &notification);
    void DWT_ShowMainSettingWindow();
    // Shows a view as the menu asks for it; an open printer is left first, as by its Close button.
    void leaveFor(const QString &viewKey);
    // The end of the guide: it goes to the list when the list led to it, and otherwise quits.
    void leaveGuide();
    // The user closes the selection window: it hides.
    void windowWillClose() { window_PrinterSelector->hide(); }

    void push_ToolPerformOK() { DWT_UISelector(DWT_View_Key_ChooseConnect); }
    void push_ToolPerformExit() { leaveGuide(); }
    void push_ChooseConnectNext();
    void push_ChooseConnectExit() { leaveGuide(); }
    void push_ChooseConnectBack() { DWT_UISelector(DWT_View_Key_ToolPerform); }
    void push_USBConnectBack() { DWT_UISelector(DWT_View_Key_ChooseConnect); }
    void push_USBConnectExit() { leaveGuide(); }
    void push_USBConnectNext() { DWT_UISelector(DWT_View_Key_Printerlist); }
    void push_WPSSetting1Next() { DWT_UISelector(DWT_View_Key_WPS2); }
    void push_WPSSetting1Back() { DWT_UISelector(DWT_View_Key_ChooseConnect); }
    void push_WPSSetting1Exit() { leaveGuide(); }
    void push_WPSSetting2Next() { leaveGuide(); }
    void push_WPSSetting2Back() { DWT_UISelector(DWT_View_Key_WPS1); }
    void push_WPSSetting2Exit() { leaveGuide(); }
    void push_PrinterListOK() { DWT_ShowMainSettingWindow(); }
    void push_PrinterListExit() { window_PrinterSelector->hide(); }

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
