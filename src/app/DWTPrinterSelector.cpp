#include "app/DWTPrinterSelector.h"

#include "app/MainMenu.h"
#include "mainwindow/WPSTexts.h"
#include "platform/core/Texts.h"
#include "platform/ui/WaitSheet.h"

namespace {

const QString DWT_View_Key_ToolPerform = QStringLiteral("DWT_View_Key_ToolPerform");
const QString DWT_View_Key_ChooseConnect = QStringLiteral("DWT_View_Key_ChooseConnect");
const QString DWT_View_Key_USBConnect = QStringLiteral("DWT_View_Key_USBConnect");
const QString DWT_View_Key_WPS1 = QStringLiteral("DWT_View_Key_WPS1");
const QString DWT_View_Key_WPS2 = QStringLiteral("DWT_View_Key_WPS2");
const QString DWT_View_Key_Printerlist = QStringLiteral("DWT_View_Key_Printerlist");

// Columns of the printer table.
const QString _MODEL_NAME_ = QStringLiteral("_MODEL_NAME_");
const QString _SERVICE_NAME_ = QStringLiteral("_SERVICE_NAME_");

// Tags of the two ways to connect.
constexpr int connectByUSB = 0;
constexpr int connectByWPS = 1;

const QString bonjourServiceName = QStringLiteral("BonjourServiceName");

}  // namespace

DWTPrinterSelector::~DWTPrinterSelector() {
    DWT_Dealloc();
}

bool DWTPrinterSelector::init() {
    return DWTBaseClass::init() && DWT_Init();
}

bool DWTPrinterSelector::DWT_Init() {
    dictionary_ViewManagement.clear();
    nsObjectRelease(ndm_Object);
    array_PrinterList.clear();
    nsObjectRelease(msw_Object);
    show_mainDialog = false;
    return true;
}

void DWTPrinterSelector::DWT_Dealloc() {
    m_closings = {};
    if (window_PrinterSelector) {
        tableView_Printerlist->setTableDelegate(nullptr);
        tableView_Printerlist->setTableDataSource(nullptr);
    }
    dictionary_ViewManagement.clear();
    nsObjectRelease(ndm_Object);
    array_PrinterList.clear();
    nsObjectRelease(msw_Object);
    delete window_PrinterSelector;
}

void DWTPrinterSelector::awakeFromNib() {
    DWT_UIInitialize();
    m_closings = NotificationCenter::shared().observe(
        DWT_MainDialog_Close_Message, [this](const Notification &n) { DWT_CloseMainDialog(n); });
    connect(tableView_Printerlist, &TableView::doubleAction, this,
            &DWTPrinterSelector::DWT_DoubleAction);
}

void DWTPrinterSelector::DWT_UIInitialize() {
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/network-setting-tool-64.png")));
    window_PrinterSelector = new Window;
    Ui::PrinterSelector::setupUi(window_PrinterSelector);
    Ui::WPSViews::setupUi(view_PrinterSelector);
    window_Wait = new QWidget(window_PrinterSelector, Qt::Dialog);
    Ui::WaitWindow::setupUi(window_Wait);
    dictionary_ViewManagement = {{DWT_View_Key_ToolPerform, view_ToolPerform},
                                 {DWT_View_Key_ChooseConnect, view_ChooseConnect},
                                 {DWT_View_Key_USBConnect, view_USBConnect},
                                 {DWT_View_Key_WPS1, view_WPS1},
                                 {DWT_View_Key_WPS2, view_WPS2},
                                 {DWT_View_Key_Printerlist, view_Printerlist}};
    m_views = std::make_unique<ViewStack>(view_PrinterSelector);
    for (const QString &key :
         {DWT_View_Key_ToolPerform, DWT_View_Key_ChooseConnect, DWT_View_Key_USBConnect,
          DWT_View_Key_WPS1, DWT_View_Key_WPS2, DWT_View_Key_Printerlist})
        m_views->add(key, dictionary_ViewManagement[key]);
    setTexts();
    m_menu = makeMainMenu(window_PrinterSelector);
    window_PrinterSelector->layout()->setMenuBar(m_menu);
    localizeMenu(m_menu);
    window_PrinterSelector->setMinimumWidth(m_menu->sizeHint().width());
    TableView &table = *tableView_Printerlist;
    table.addColumn(_MODEL_NAME_);
    table.addColumn(_SERVICE_NAME_);
    table.setHeaderTitle(
        _MODEL_NAME_, localized(QStringLiteral("DWT_Localize_PrinterList_TableView_Name_Column")));
    table.setHeaderTitle(
        _SERVICE_NAME_,
        localized(QStringLiteral("DWT_Localize_PrinterList_TableView_Service_Column")));
    table.setAccessibleName(
        localized(QStringLiteral("DWT_Localize_PrinterList_TableView_Name_Column")));
    table.setTableDataSource(this);
    table.setTableDelegate(this);
    connectButtons();
    window_PrinterSelector->setShouldClose([this] {
        windowWillClose();
        return true;
    });
    window_PrinterSelector->fitToScreen();
}

void DWTPrinterSelector::setTexts() {
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    textField_ToolPerform->setText(text("DWT_Localize_ToolPerform_TextField"));
    button_ToolPerformOK->setText(text("DWT_Localize_ToolPerform_Button_OK_Key"));
    button_ToolPerformEXIT->setText(text("DWT_Localize_ToolPerform_Button_Exit_Key"));
    textField_ChooseConnect->setText(text("DWT_Localize_ChooseConnect_TextField"));
    buttonCell_WSPConnect->setText(text("DWT_Localize_ChooseConnect_Matrix_WSP_Key"));
    buttonCell_USBConnect->setText(text("DWT_Localize_ChooseConnect_Matrix_USB_Key"));
    button_ChooseConnectNext->setText(text("DWT_Localize_ChooseConnect_Button_Next_Key"));
    button_ChooseConnectEXIT->setText(text("DWT_Localize_ChooseConnect_Button_Exit_Key"));
    setWPSTexts(*this);
    textField_USBConnect->setText(text("DWT_Localize_USBConnect_TextField"));
    button_USBConnectNext->setText(text("DWT_Localize_USBConnect_Button_Next_Key"));
    textField_Printerlist->setText(text("DWT_Localize_PrinterList_TextField"));
    button_PrinterlistOK->setText(text("DWT_Localize_PrinterList_Button_OK_Key"));
    button_PrinterlistReload->setText(text("DWT_Localize_PrinterList_Button_Reload_Key"));
    button_PrinterlistEXIT->setText(text("DWT_Localize_PrinterList_Button_Exit_Key"));
    textField_WaitMassage->setText(text("DWT_Localize_Wait_TextField"));
    window_PrinterSelector->setWindowTitle(text("DWT_Localize_App_Name"));
    window_Wait->setWindowTitle(text("DWT_Localize_App_Name"));
}

void DWTPrinterSelector::connectButtons() {
    using Self = DWTPrinterSelector;
    const auto pushes = [this](QAbstractButton *button, void (Self::*operation)()) {
        connect(button, &QAbstractButton::clicked, this, operation);
    };
    pushes(button_ToolPerformOK, &Self::push_ToolPerformOK);
    pushes(button_ToolPerformEXIT, &Self::push_ToolPerformExit);
    pushes(button_ChooseConnectNext, &Self::push_ChooseConnectNext);
    pushes(button_ChooseConnectEXIT, &Self::push_ChooseConnectExit);
    pushes(button_USBConnectNext, &Self::push_USBConnectNext);
    pushes(button_WPS1Next, &Self::push_WPSSetting1Next);
    pushes(button_WPS1Back, &Self::push_WPSSetting1Back);
    pushes(button_WPS1EXIT, &Self::push_WPSSetting1Exit);
    pushes(button_WPS2Next, &Self::push_WPSSetting2Next);
    pushes(button_WPS2Back, &Self::push_WPSSetting2Back);
    pushes(button_WPS2EXIT, &Self::push_WPSSetting2Exit);
    pushes(button_PrinterlistOK, &Self::push_PrinterListOK);
    pushes(button_PrinterlistReload, &Self::push_PrinterListReload);
    pushes(button_PrinterlistEXIT, &Self::push_PrinterListExit);
}

// The window comes first: finding the printers may take a while.
void DWTPrinterSelector::applicationDidFinishLaunching() {
    window_PrinterSelector->bringToFront();
    DWT_UISelector(checkLunchedMode() ? DWT_View_Key_ToolPerform : DWT_View_Key_Printerlist);
}

bool DWTPrinterSelector::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (!hasVisibleWindows || window_PrinterSelector->isVisible())
        window_PrinterSelector->bringToFront();
    else if (show_mainDialog)
        msw_Object->window()->bringToFront();
    tableView_Printerlist->reloadData();
    return true;
}

int DWTPrinterSelector::applicationShouldTerminate() {
    if (!show_mainDialog) return terminateNow;
    return msw_Object->terminateNetworkTool() ? terminateNow : terminateCancel;
}

void DWTPrinterSelector::DWT_UISelector(const QString &viewKey) {
    if (viewKey == DWT_View_Key_WPS2) setWPSPicture(*this);
    m_views->select(viewKey);
    m_views->focusFirstControl();
    if (viewKey != DWT_View_Key_Printerlist) return;
    DWT_UpdatePrinterList();
    button_PrinterlistOK->setEnabled(false);
}

void DWTPrinterSelector::DWT_UpdatePrinterList() {
    if (!ndm_Object) ndm_Object = make<DWTDataManager>();
    array_PrinterList.clear();
    tableView_Printerlist->setEmptyText(
        localized(QStringLiteral("DWT_Localize_PrinterList_Searching")));
    tableView_Printerlist->reloadData();
    array_PrinterList = ndm_Object->printerList().value_or(QList<PrinterEntry>());
    tableView_Printerlist->setEmptyText(
        localized(QStringLiteral("DWT_Localize_PrinterList_Empty")));
    tableView_Printerlist->reloadData();
}

void DWTPrinterSelector::DWT_DoubleAction(int clickedRow) {
    if (clickedRow >= 0) DWT_ShowMainSettingWindow();
}

void DWTPrinterSelector::DWT_CloseMainDialog(const Notification &notification) {
    const QVariantMap &info = notification.userInfo;
    if (info.isEmpty() || info.value(DWT_IsShowPrinterSelectDialog_Flag).toBool())
        window_PrinterSelector->bringToFront();
    show_mainDialog = false;
}

void DWTPrinterSelector::DWT_ShowMainSettingWindow() {
    const int row = tableView_Printerlist->selectedRow();
    if (row < 0) return;
    msw_Object = make<DWTMainSettingWindow>();
    if (!msw_Object) return;
    bool opened = false;
    {
        const WaitSheet waiting(window_Wait, window_PrinterSelector, progress_Wait);
        msw_Object->showWindow();
        Window *const opening = msw_Object->window();
        opening->layout()->setMenuBar(sharedMainMenu(m_menu, opening));
        opened = msw_Object->initializeData(array_PrinterList.value(row));
    }
    if (!opened) return;
    window_PrinterSelector->hide();
    show_mainDialog = true;
    msw_Object->window()->bringToFront();
}

void DWTPrinterSelector::windowWillClose() {
    window_PrinterSelector->hide();
}

int DWTPrinterSelector::numberOfRowsInTableView(TableView *) {
    return int(array_PrinterList.size());
}

QVariant DWTPrinterSelector::objectValueForTableColumn(TableView *, const QString &column,
                                                       int row) {
    if (row >= array_PrinterList.size()) return {};
    const PrinterEntry &entry = array_PrinterList[row];
    const bool network = entry.contains(bonjourServiceName);
    if (column == _MODEL_NAME_)
        return network ? entry.value(bonjourServiceName)
                       : entry.value(QStringLiteral("MachineName"));
    if (column == _SERVICE_NAME_)
        return localized(network ? QStringLiteral("DWT_Localize_PrinterList_BonjourService_Network")
                                 : QStringLiteral("DWT_Localize_PrinterList_BonjourService_USB"));
    return {};
}

QIcon DWTPrinterSelector::iconForTableColumn(TableView *, const QString &column, int row) {
    if (column != _SERVICE_NAME_) return {};
    const bool network = array_PrinterList.value(row).contains(bonjourServiceName);
    return QIcon(network ? QStringLiteral(":/pictures/network.svg")
                         : QStringLiteral(":/pictures/usb.svg"));
}

bool DWTPrinterSelector::selectionShouldChangeInTableView(TableView *) {
    return true;
}

void DWTPrinterSelector::tableViewSelectionDidChange(TableView *table) {
    button_PrinterlistOK->setEnabled(table->selectedRow() >= 0);
}

void DWTPrinterSelector::push_ToolPerformOK() {
    DWT_UISelector(DWT_View_Key_ChooseConnect);
}

void DWTPrinterSelector::push_ToolPerformExit() {
    Application::terminate();
}

void DWTPrinterSelector::push_ChooseConnectNext() {
    const int chosen = matrix_ChooseConnectSelect->selectedTag();
    if (chosen == connectByUSB) DWT_UISelector(DWT_View_Key_USBConnect);
    if (chosen == connectByWPS) DWT_UISelector(DWT_View_Key_WPS1);
}

void DWTPrinterSelector::push_ChooseConnectExit() {
    Application::terminate();
}

void DWTPrinterSelector::push_USBConnectNext() {
    DWT_UISelector(DWT_View_Key_Printerlist);
}

void DWTPrinterSelector::push_WPSSetting1Next() {
    DWT_UISelector(DWT_View_Key_WPS2);
}

void DWTPrinterSelector::push_WPSSetting1Back() {
    DWT_UISelector(DWT_View_Key_ChooseConnect);
}

void DWTPrinterSelector::push_WPSSetting1Exit() {
    Application::terminate();
}

void DWTPrinterSelector::push_WPSSetting2Next() {
    Application::terminate();
}

void DWTPrinterSelector::push_WPSSetting2Back() {
    DWT_UISelector(DWT_View_Key_WPS1);
}

void DWTPrinterSelector::push_WPSSetting2Exit() {
    Application::terminate();
}

void DWTPrinterSelector::push_PrinterListOK() {
    DWT_ShowMainSettingWindow();
}

void DWTPrinterSelector::push_PrinterListReload() {
    const WaitSheet waiting(window_Wait, window_PrinterSelector, progress_Wait);
    DWT_UpdatePrinterList();
    tableView_Printerlist->deselectAll();
    button_PrinterlistOK->setEnabled(false);
}

void DWTPrinterSelector::push_PrinterListExit() {
    window_PrinterSelector->hide();
}
