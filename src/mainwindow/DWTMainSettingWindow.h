#pragma once

#include <QPointer>
#include <QTime>
#include <QVariantMap>
#include <memory>
#include <optional>
#include <vector>

#include "mainwindow/NetworkList.h"
#include "pages/DWTEthernetView.h"
#include "pages/DWTFirmwareView.h"
#include "pages/DWTInfrastructureView.h"
#include "pages/DWTNetworkView.h"
#include "pages/DWTPasswordView.h"
#include "pages/DWTSimpleAPView.h"
#include "pages/DWTWirelessView.h"
#include "platform/core/Key.h"
#include "platform/core/NotificationCenter.h"
#include "platform/core/Waiting.h"
#include "platform/ui/Alert.h"
#include "platform/ui/InertWindow.h"
#include "platform/ui/OutlineView.h"
#include "platform/ui/ViewStack.h"
#include "platform/ui/Window.h"
#include "settings/Session.h"
#include "ui_MainWindow.h"

class SendDialog;
class WPSGuideWindow;
class WaitWindow;

// Posted once for every closing, with the window as sender; without user information when the first
// reading failed, otherwise with the flag, which is false.
DWT_KEY(DWT_MainDialog_Close_Message);
DWT_KEY(DWT_IsShowPrinterSelectDialog_Flag);

// The window of one printer. Only a printer on USB whose settings were all read can be changed;
// otherwise every page is disabled. Main thread only.
class DWTMainSettingWindow : public QObject,
                             public OutlineDataSource,
                             public OutlineDelegate,
                             private Ui::MainWindow {
    Q_OBJECT
  public:
    DWTMainSettingWindow() = default;
    ~DWTMainSettingWindow() override { MSW_Dealloc(); }
    // First step of the set-up, through make<T>(): fields only.
    bool init() { return MSW_Init(); }

    // --- Opening and reading (DWTMainSettingWindow.cpp) ---

    // Loads the interface. The window itself appears when its printer has been read.
    void showWindow() {
        if (!window_Main) awakeFromNib();
    }
    // The window, for whoever places others beside it; null until showWindow().
    Window *window() const { return window_Main; }
    // The buttons that entries of a menu press; from showWindow() on, as long as the window lives.
    QAbstractButton *sendButton() const { return button_MainSend; }
    QAbstractButton *readAgainButton() const { return button_MainNewSetting; }
    QAbstractButton *closeButton() const { return button_MainCancel; }
    // The same of the shown page: null where it has none. editsFollowed() says when to ask anew.
    QAbstractButton *testButton() const;
    QAbstractButton *chooseNetworkButton() const;
    // Whether the shown page differs from what was read; editsFollowed() says when to ask anew.
    bool canRevertPage() const;
    // Puts back what was read on the shown page.
    void revertPage();
    // The settings that the pages show now, as plain text, a line each. Secrets are left out.
    QString report() const;
    // Asks for a file and writes the settings that the pages show into it, as the command line
    // does. Secrets are left out.
    void saveSettings();
    // Whether the settings of the printer can be changed; editsFollowed() says when to ask anew.
    bool canBeChanged() const { return bool_GetDataSuccess; }
    // Asks for a file of settings and, showing what they change, whether they are to be sent. Says
    // why when the printer cannot have them; nothing is sent then.
    void applyFile();
    // Asks for a printer, or a PDF file, and prints the report.
    void printReport();
    // With an entry: the first opening, of that printer. Without: reads again. False when the first
    // opening failed or was cancelled; the window is then closed. `waiting` shows how far it is.
    bool initializeData(const std::optional<PrinterEntry> &entry, WaitWindow *waiting = nullptr);

    // --- Outline and marks (DWTMainSettingWindowOutline.cpp) ---

    int numberOfChildrenOfItem(OutlineView *outline, const QVariantMap &item) override;
    QVariantMap child(OutlineView *outline, int index, const QVariantMap &item) override;
    bool isItemExpandable(OutlineView *outline, const QVariantMap &item) override;
    QVariant objectValueForTableColumn(OutlineView *outline, const QString &column,
                                       const QVariantMap &item) override;
    Mark markOfItem(OutlineView *outline, const QVariantMap &item) override;
    bool shouldSelectItem(OutlineView *outline, const QVariantMap &item) override;

    // --- Closing (DWTMainSettingWindowClosing.cpp) ---

    // Asks about unsent changes, as closing does. True when the application may end.
    bool terminateNetworkTool() { return MSW_AppTerminate(); }

  Q_SIGNALS:
    // A page was edited, filled or chosen.
    void editsFollowed();

  private:
    bool MSW_Init() { return true; }
    void MSW_Dealloc();

    // Outline and pages.
    void awakeFromNib();
    void MSW_UIInitialize();
    void makePages();
    void makeDialogs();
    void loadOutline();
    // The view key of an item of the outline; empty when it stands for no page.
    static QString viewKeyOf(const QVariantMap &item) {
        return item.value(QStringLiteral("viewID")).toString();
    }
    // The items of pages at and below an item, in the outline's order.
    static QList<QVariantMap> pageItemsIn(const QVariantMap &item);
    void connectButtons();
    void push_MainHelp() {}
    void push_MainSetupIsChanged() {}
    // Reads the settings; the data manager's result.
    int readAll(WaitWindow *waiting);
    // What stands above the pages (DWTMainSettingWindowState.cpp): connection and addresses as they
    // were read, why nothing can be changed, what the printer did not report, and its name.
    void showState(bool isComplete);
    void showReadState();
    void showOwnName();
    QString readAt() const;  // the time of the last reading
    // Follows an edit on a page: the marks of the outline, and which pages the printer uses.
    void followEdits();
    // Brings the page forward as a pick in the outline does.
    void goToPage(const QString &viewKey);
    // The record that the pages show, and what it changes in the printer.
    SettingRecord shownRecord() const;
    Plan shownPlan() const;
    void enableAllViews(bool enabled);
    void MSW_UISelector(const QString &viewKey) { m_pages->select(viewKey); }
    // Asks the printer whether it has a password, for the page that says it, unless it
    // is known.
    void askPasswordState();
    // The page that is shown; null when none is.
    DWTBaseView *shownPage() const;
    // The button of the shown page whose name ends in this; null where it has none.
    QAbstractButton *buttonOfPage(const QString &end) const;
    std::optional<QString> MSW_SelectedUIString() const;
    // False when the user chose Cancel.
    bool showStandardAlert(const char *titleKey, const char *kindKey, const char *informationKey,
                           Alert::Answers answers = Alert::Answers::Ok);

    // Sending (DWTMainSettingWindowSending.cpp).
    void push_MainSend();
    bool checkAndStorePages();
    void goToFirstFault();
    bool warnOfChangedConnection();
    void askToSend(const Plan &plan);
    std::optional<QString> sendViewAskingPassword();
    void push_SendConfirmTransmission();
    void push_SendLoginOK();
    void sendHasStopped();
    // Says in the End view how the send ended; `comparing`: the printer is still to be read again.
    void showEnding(bool comparing);
    // Reads the printer again while the End view stands; its button ends that.
    void compareWithPrinter();
    void push_SendEndOK();
    void MSW_SendButtonEnable();
    void MSW_SendButtonDisable();
    void MSW_ClearTextField();

    // Networks in reach, the WPS guide and the connection test (DWTMainSettingWindowNetwork.cpp).
    void push_InfrastructureSelectSSID();
    // The networks that the printer sees; `over` waits. Nothing, after an alert, on failure.
    NetworkList::Found networksInReach(QWidget *over);
    void push_InfrastructureWPSGuide();
    void push_EthernetConnect() {
        checkConnection(*ethernet_ViewObject, DWT_SaveData_Ethernet_IPAddressSetting,
                        DWT_SaveData_Ethernet_IPAddress);
    }
    void push_InfrastructureConnect() {
        checkConnection(*infrastructure_ViewObject, DWT_SaveData_Infrastructure_IPAddressSetting,
                        DWT_SaveData_Infrastructure_IPAddress);
    }
    // Tests the address of a page; `settingKey` and `addressKey` are that page's keys.
    void checkConnection(InterfaceView &page, const QString &settingKey, const QString &addressKey);

    // Closing and reading again.
    void push_MainCancel() { MSW_AppClose(); }
    bool hasUnsentChanges() const;
    bool windowShouldClose();
    bool MSW_AppClose();
    bool MSW_AppTerminate() { return MSW_AppClose(); }
    void closeMainWindow(const QVariantMap &userInfo);
    void push_SendChangeCheckReflect();
    void push_SendChangeCheckNoReflect();
    void push_MainNewSetting();
    void push_UpdateChangeCheckOK();
    void readAgain();

    QPointer<Window> window_Main;
    // Its dialogs belong to the window.
    SendDialog *window_SendData = nullptr;
    NetworkList *window_SelectSSID = nullptr;
    WPSGuideWindow *window_WPSGuide = nullptr;
    WaitWindow *window_Wait = nullptr;
    std::unique_ptr<ViewStack> m_pages;

    std::shared_ptr<DWTNetworkView> network_ViewObject;
    std::shared_ptr<DWTWirelessView> wireless_ViewObject;
    std::shared_ptr<DWTInfrastructureView> infrastructure_ViewObject;
    std::shared_ptr<DWTSimpleAPView> simpleAP_ViewObject;
    std::shared_ptr<DWTEthernetView> ethernet_ViewObject;
    std::shared_ptr<DWTFirmwareView> firmware_ViewObject;
    std::shared_ptr<DWTPasswordView> password_ViewObject;
    QMap<QString, std::shared_ptr<DWTBaseView>> dictionary_ViewManagement;

    QVariantMap dictionary_OutlineView;
    QList<QVariantMap> m_pageItems;      // the outline's items of pages, in its order
    std::unique_ptr<Session> m_session;  // of the printer; null before it is opened
    std::shared_ptr<DWTDataManager> dataManager_Object;  // the session's
    Plan m_plan;                                         // what the marks show
    Ending m_ending;                                     // of the last send
    bool m_comparing = false;                            // the printer is read again
    bool m_endIsRead = false;
    bool m_sendsFile = false;  // what is sent comes from a file, not from the pages
    PrinterEntry dictionary_PrinterInfo;
    bool bool_usbPrinter = true;
    bool bool_GetDataSuccess = false;
    std::optional<InertWindow> m_inert;  // while a send runs
    bool m_cancelled = false;            // the last reading
    QTime m_readAt;                      // of what the pages show; invalid before a reading
    bool m_showsOldValues = false;       // since the last reading brought none
    bool m_open = false;                 // between the first successful reading and the closing
    std::vector<NotificationCenter::Observer> m_observers;
};
