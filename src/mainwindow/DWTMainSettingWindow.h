#pragma once

#include <QPointer>
#include <QVariantMap>
#include <memory>
#include <optional>
#include <vector>

#include "pages/DWTEthernetView.h"
#include "pages/DWTFirmwareView.h"
#include "pages/DWTInfrastructureView.h"
#include "pages/DWTNetworkView.h"
#include "pages/DWTPasswordView.h"
#include "pages/DWTSimpleAPView.h"
#include "pages/DWTWirelessView.h"
#include "platform/core/NotificationCenter.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/OutlineView.h"
#include "platform/ui/TableView.h"
#include "platform/ui/ViewStack.h"
#include "platform/ui/WaitSheet.h"
#include "platform/ui/Window.h"
#include "settings/DWTDataManager.h"
#include "ui_MainWindow.h"
#include "ui_SelectSSID.h"
#include "ui_SendDialog.h"
#include "ui_WPSViews.h"
#include "ui_WaitWindow.h"

// Posted exactly once for every closing, with the window as sender: without user information when
// the printer could not be read at the first opening, otherwise with the flag, which is false.
inline const QString DWT_MainDialog_Close_Message = QStringLiteral("DWT_MainDialog_Close_Message");
inline const QString DWT_IsShowPrinterSelectDialog_Flag =
    QStringLiteral("DWT_IsShowPrinterSelectDialog_Flag");

// The window in which the settings of one printer are shown and changed. Only a printer that is
// connected over USB, and whose settings were all read, can be changed; otherwise every page is
// disabled. Main thread only.
class DWTMainSettingWindow : public QObject,
                             public OutlineDataSource,
                             public OutlineDelegate,
                             public TableDataSource,
                             public TableDelegate,
                             private Ui::MainWindow,
                             private Ui::SendDialog,
                             private Ui::SelectSSID,
                             private Ui::WPSViews,
                             private Ui::WaitWindow {
    Q_OBJECT
  public:
    DWTMainSettingWindow() = default;
    ~DWTMainSettingWindow() override;
    // First step of the set-up, through make<T>(): fields only.
    bool init();

    // --- Outline and pages (DWTMainSettingWindow.cpp) ---

    // Loads the interface. The window itself appears when its printer has been read.
    void showWindow();
    // The window, for whoever places others beside it; null until showWindow().
    Window *window() const { return window_Main; }
    // With an entry: the first opening, for that printer. Without one: reads the settings again.
    // False when the printer cannot be reached at the first opening; the window is then closed.
    bool initializeData(const std::optional<PrinterEntry> &entry);

    int numberOfChildrenOfItem(OutlineView *outline, const QVariantMap &item) override;
    QVariantMap child(OutlineView *outline, int index, const QVariantMap &item) override;
    bool isItemExpandable(OutlineView *outline, const QVariantMap &item) override;
    QVariant objectValueForTableColumn(OutlineView *outline, const QString &column,
                                       const QVariantMap &item) override;
    bool shouldSelectItem(OutlineView *outline, const QVariantMap &item) override;
    bool shouldCollapseItem(OutlineView *outline, const QVariantMap &item) override;

    // --- Networks in reach (DWTMainSettingWindowSSID.cpp) ---

    int numberOfRowsInTableView(TableView *table) override;
    QVariant objectValueForTableColumn(TableView *table, const QString &column, int row) override;
    QIcon iconForTableColumn(TableView *table, const QString &column, int row) override;
    bool selectionShouldChangeInTableView(TableView *table) override;
    void tableViewSelectionDidChange(TableView *table) override;

    // --- Closing (DWTMainSettingWindowClosing.cpp) ---

    // Asks about unsent changes, as closing does. True when the application may end.
    bool terminateNetworkTool();

  private:
    bool MSW_Init();
    void MSW_Dealloc();

    // Outline and pages.
    void awakeFromNib();
    void MSW_UIInitialize();
    void makePages();
    void makeDialogs();
    void setTexts();
    void loadOutline();
    void connectButtons();
    void push_MainHelp() {}
    void push_MainSetupIsChanged() {}
    int statusLengthOf(const QString &productName);
    void showReadState();
    void enableAllViews(bool enabled);
    void MSW_UISelector(const QString &viewKey);
    std::optional<QString> MSW_SelectedUIString() const;
    void showStandardAlert(const char *titleKey, const char *kindKey, const char *informationKey);

    // Sending (DWTMainSettingWindowSending.cpp).
    void push_MainSend();
    bool checkAndStorePages();
    void warnOfChangedConnection();
    QString sendViewAskingPassword();
    void push_SendConfirmTransmission();
    void push_SendConfirmCancel();
    void push_SendLoginOK();
    void push_SendLoginCancel();
    void push_SendLoginErrorOK();
    void push_SendEndOK();
    void push_SendConnectErrorOK();
    void MSW_SendUISelector(const QString &viewKey);
    int openSendDialog(const QString &viewKey);
    void closeSendDialog();
    void MSW_DataSendStart(const Notification &notification);
    void MSW_DataSendProgress(const Notification &notification);
    void MSW_DataSendStop(const Notification &notification);
    void MSW_SetProgressInfo(const QVariantMap &progress);
    void MSW_SendButtonEnable();
    void MSW_SendButtonDisable();
    void MSW_ClearTextField();
    void push_EthernetConnect();
    void push_InfrastructureConnect();
    // Tests the address of a page; `settingKey` and `addressKey` are that page's keys.
    template <typename Page>
    void checkConnection(Page &page, const QString &settingKey, const QString &addressKey);
    // Shows the wait window over `parent` while the result lives.
    WaitSheet wait(QWidget *parent);

    // Networks in reach, and the WPS guide.
    void push_InfrastructureSelectSSID();
    void MSW_DoubleAction(int clickedRow);
    void push_SelectSSIDWindowOK();
    void push_SelectSSIDWindowCancel();
    void MSW_SetSelectSSID();
    void push_InfrastructureWPSGuide();
    void MSW_WPSUISelector(const QString &viewKey);
    void push_WPSGuide1Next();
    void push_WPSGuide1Exit();
    void push_WPSGuide2Next();
    void push_WPSGuide2Exit();
    void closeWPSGuide();

    // Closing and reading again.
    void push_MainCancel();
    bool windowShouldClose();
    bool MSW_AppClose();
    bool MSW_AppTerminate();
    void closeMainWindow(const QVariantMap &userInfo);
    void push_SendChangeCheckReflect();
    void push_SendChangeCheckNoReflect();
    void push_SendChangeCheckCancel();
    void push_MainNewSetting();
    void push_UpdateChangeCheckOK();
    void push_UpdateChangeCheckCancel();
    void readAgain();

    QPointer<Window> window_Main;
    QPointer<ModalWindow> window_SendData;
    QPointer<ModalWindow> window_SelectSSID;
    QPointer<ModalWindow> window_WPSGuide;
    QPointer<QWidget> window_Wait;
    QPointer<QWidget> view_WPSGuide;
    std::unique_ptr<ViewStack> m_pages;
    std::unique_ptr<ViewStack> m_sendViews;
    std::unique_ptr<ViewStack> m_wpsViews;

    std::shared_ptr<DWTNetworkView> network_ViewObject;
    std::shared_ptr<DWTWirelessView> wireless_ViewObject;
    std::shared_ptr<DWTInfrastructureView> infrastructure_ViewObject;
    std::shared_ptr<DWTSimpleAPView> simpleAP_ViewObject;
    std::shared_ptr<DWTEthernetView> ethernet_ViewObject;
    std::shared_ptr<DWTFirmwareView> firmware_ViewObject;
    std::shared_ptr<DWTPasswordView> password_ViewObject;
    QMap<QString, std::shared_ptr<DWTBaseView>> dictionary_ViewManagement;
    QMap<QString, QWidget *> dictionary_SendViewManagement;
    QMap<QString, QWidget *> dictionary_WPSViewManagement;

    QVariantMap dictionary_OutlineView;
    std::shared_ptr<DWTDataManager> dataManager_Object;
    QList<SSIDEntry> array_SSIDList;
    PrinterEntry dictionary_PrinterInfo;
    QVariantMap dictionary_PrinterStatusTable;
    bool bool_usbPrinter = true;
    bool bool_GetDataSuccess = false;
    bool m_open = false;  // between the first successful reading and the closing
    std::vector<NotificationCenter::Observer> m_observers;
};
