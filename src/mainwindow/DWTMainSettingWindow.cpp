#include "mainwindow/DWTMainSettingWindow.h"

#include "mainwindow/ViewKeys.h"
#include "mainwindow/WPSTexts.h"
#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"
#include "platform/ui/Alert.h"
#include "platform/ui/FieldLooks.h"

namespace {

// Bytes of the status reply of a model that the status table does not name.
constexpr int usualStatusLength = 20;
// The Network page in the outline, with every node expanded.
constexpr int networkRow = 2;

QString text(const char *key) {
    return localized(QLatin1String(key));
}

}  // namespace

DWTMainSettingWindow::~DWTMainSettingWindow() {
    MSW_Dealloc();
}

bool DWTMainSettingWindow::init() {
    return MSW_Init();
}

bool DWTMainSettingWindow::MSW_Init() {
    return true;
}

void DWTMainSettingWindow::MSW_Dealloc() {
    m_observers.clear();
    if (window_Main) {
        outlineView_Main->setOutlineDelegate(nullptr);
        outlineView_Main->setOutlineDataSource(nullptr);
        tableView_SelectSSIDWindow->setTableDelegate(nullptr);
        tableView_SelectSSIDWindow->setTableDataSource(nullptr);
    }
    dictionary_ViewManagement.clear();
    dictionary_SendViewManagement.clear();
    dictionary_WPSViewManagement.clear();
    dictionary_OutlineView.clear();
    DWTBaseClass::BaseClass()->nsObjectRelease(dataManager_Object);
    array_SSIDList.clear();
    dictionary_PrinterInfo.clear();
    dictionary_PrinterStatusTable.clear();
    delete window_Main;  // and every window that belongs to it
}

void DWTMainSettingWindow::showWindow() {
    if (!window_Main) awakeFromNib();
}

void DWTMainSettingWindow::awakeFromNib() {
    MSW_UIInitialize();
    auto &center = NotificationCenter::shared();
    using Self = DWTMainSettingWindow;
    const auto observe = [&](const QString &name, auto operation) {
        m_observers.push_back(center.observe(
            name, [this, operation](const Notification &n) { (this->*operation)(n); }));
    };
    observe(DWT_DataSend_Start_Message, &Self::MSW_DataSendStart);
    observe(DWT_DataSend_Stop_Message, &Self::MSW_DataSendStop);
    observe(DWT_DataSend_Progress_Message, &Self::MSW_DataSendProgress);
    m_observers.push_back(center.observe(DWT_MainDialog_SendOK_Message,
                                         [this](const Notification &) { MSW_SendButtonEnable(); }));
    m_observers.push_back(center.observe(
        DWT_MainDialog_SendNG_Message, [this](const Notification &) { MSW_SendButtonDisable(); }));
    connect(tableView_SelectSSIDWindow, &TableView::doubleAction, this, &Self::MSW_DoubleAction);
}

void DWTMainSettingWindow::MSW_UIInitialize() {
    window_Main = new Window;
    Ui::MainWindow::setupUi(window_Main);
    makePages();
    makeDialogs();
    setTexts();
    loadOutline();
    connectButtons();
    button_MainSend->setEnabled(false);
    window_Main->setShouldClose([this] { return windowShouldClose(); });
    bool_usbPrinter = true;
}

void DWTMainSettingWindow::makePages() {
    network_ViewObject = make<DWTNetworkView>();
    wireless_ViewObject = make<DWTWirelessView>();
    infrastructure_ViewObject = make<DWTInfrastructureView>();
    simpleAP_ViewObject = make<DWTSimpleAPView>();
    ethernet_ViewObject = make<DWTEthernetView>();
    firmware_ViewObject = make<DWTFirmwareView>();
    password_ViewObject = make<DWTPasswordView>();
    for (const std::shared_ptr<DWTBaseView> &page :
         std::initializer_list<std::shared_ptr<DWTBaseView>>{
             network_ViewObject, wireless_ViewObject, infrastructure_ViewObject,
             simpleAP_ViewObject, ethernet_ViewObject, firmware_ViewObject, password_ViewObject})
        dictionary_ViewManagement.insert(page->viewKey(), page);
    m_pages = std::make_unique<ViewStack>(view_Main);
    for (const auto &page : dictionary_ViewManagement) {
        page->initializeUI();  // first, since the panel's size follows its texts
        m_pages->add(page->viewKey(), new PanelScroller(page->mainCustomView()));
    }
    // The buttons below the pages come after them.
    QWidget *before = window_Main->previousInFocusChain();
    for (QWidget *button :
         {button_MainHelp, button_MainNewSetting, button_MainCancel, button_MainSend}) {
        QWidget::setTabOrder(before, button);
        before = button;
    }
    using Self = DWTMainSettingWindow;
    connect(ethernet_ViewObject.get(), &DWTEthernetView::connectRequested, this,
            &Self::push_EthernetConnect);
    const auto *infrastructure = infrastructure_ViewObject.get();
    connect(infrastructure, &DWTInfrastructureView::connectRequested, this,
            &Self::push_InfrastructureConnect);
    connect(infrastructure, &DWTInfrastructureView::selectSSIDRequested, this,
            &Self::push_InfrastructureSelectSSID);
    connect(infrastructure, &DWTInfrastructureView::wpsGuideRequested, this,
            &Self::push_InfrastructureWPSGuide);
}

void DWTMainSettingWindow::makeDialogs() {
    window_SendData = new ModalWindow(window_Main);
    Ui::SendDialog::setupUi(window_SendData);
    dictionary_SendViewManagement = {{DWT_View_Key_Send_ChangeCheck, view_SendChangeCheck},
                                     {DWT_View_Key_Send_UpdateCheck, view_UpdateChangeCheck},
                                     {DWT_View_Key_Send_Confirm, view_SendConfirm},
                                     {DWT_View_Key_Send_Progress, view_SendProgress},
                                     {DWT_View_Key_Send_End, view_SendEnd},
                                     {DWT_View_Key_Send_Login, view_SendLogin},
                                     {DWT_View_Key_Send_LoginError, view_SendLoginError},
                                     {DWT_View_Key_Send_ConnectError, view_SendConnectError}};
    m_sendViews = std::make_unique<ViewStack>(view_SendData);
    for (auto view = dictionary_SendViewManagement.cbegin();
         view != dictionary_SendViewManagement.cend(); ++view)
        m_sendViews->add(view.key(), view.value());
    fitWidth(textField_Password, QStringLiteral("00000000"));

    window_SelectSSID = new ModalWindow(window_Main);
    Ui::SelectSSID::setupUi(window_SelectSSID);
    for (const char *column : {"SSID", "Security", "Intensity"})
        tableView_SelectSSIDWindow->addColumn(QLatin1String(column));
    tableView_SelectSSIDWindow->setTableDataSource(this);
    tableView_SelectSSIDWindow->setTableDelegate(this);

    window_WPSGuide = new ModalWindow(window_Main);
    view_WPSGuide = new QWidget;
    Ui::WPSViews::setupUi(view_WPSGuide);
    auto *guide = new QVBoxLayout(window_WPSGuide);
    guide->addWidget(view_WPSGuide);
    button_WPS1Back->hide();  // the guide leads forward only
    button_WPS2Back->hide();
    dictionary_WPSViewManagement = {{DWT_View_Key_Main_WPS1, view_WPS1},
                                    {DWT_View_Key_Main_WPS2, view_WPS2}};
    m_wpsViews = std::make_unique<ViewStack>(view_WPSGuide);
    for (auto view = dictionary_WPSViewManagement.cbegin();
         view != dictionary_WPSViewManagement.cend(); ++view)
        m_wpsViews->add(view.key(), view.value());

    window_Wait = new QWidget(window_Main, Qt::Dialog);
    Ui::WaitWindow::setupUi(window_Wait);
}

void DWTMainSettingWindow::setTexts() {
    button_MainSend->setText(text("DWT_Localize_MainDialog_Button_Send"));
    button_MainCancel->setText(text("DWT_Localize_MainDialog_Button_Cancel"));
    button_MainNewSetting->setText(text("DWT_Localize_MainDialog_Button_NewSetting"));
    button_MainHelp->setText(text("DWT_Localize_MainDialog_Button_Help"));
    button_MainHelp->hide();  // neither of the two does anything
    checkbox_MainSetupIsChanged->hide();
    textField_Label_SelectPrinterName->setText(
        text("DWT_Localize_MainDialog_Text_SelectPrinter_Label"));
    textField_WaitMassage->setText(text("DWT_Localize_Wait_TextField"));

    textField_SelectSSIDWindow->setText(text("DWT_Localize_SSIDList_TextField"));
    TableView &networks = *tableView_SelectSSIDWindow;
    networks.setAccessibleName(text("DWT_Localize_SSIDList_TableView_Column_SSID"));
    networks.setHeaderTitle(QStringLiteral("SSID"),
                            text("DWT_Localize_SSIDList_TableView_Column_SSID"));
    networks.setHeaderTitle(QStringLiteral("Security"),
                            text("DWT_Localize_SSIDList_TableView_Column_Security"));
    networks.setHeaderTitle(QStringLiteral("Intensity"),
                            text("DWT_Localize_SSIDList_TableView_Column_Intensity"));
    button_SelectSSIDWindowOK->setText(text("DWT_Localize_SSIDList_Button_OK_Key"));
    button_SelectSSIDWindowCancel->setText(text("DWT_Localize_SSIDList_Button_Cancel_Key"));
    setWPSTexts(*this);

    textField_SendChangeCheck->setText(text("DWT_Localize_Send_ChangeCheck_TextField_Cancel"));
    button_SendChangeCheckReflect->setText(text("DWT_Localize_Send_ChangeCheck_Button_Reflect"));
    button_SendChangeCheckNoReflect->setText(
        text("DWT_Localize_Send_ChangeCheck_Button_NoReflect"));
    button_SendChangeCheckCancel->setText(text("DWT_Localize_Send_ChangeCheck_Button_Cancel"));
    textField_UpdateChangeCheck->setText(text("DWT_Localize_Send_UpdateCheck_TextField_UpDate"));
    button_UpdateChangeCheckOK->setText(text("DWT_Localize_Send_UpdateCheck_Button_OK"));
    button_UpdateChangeCheckCancel->setText(text("DWT_Localize_Send_UpdateCheck_Button_Cancel"));
    textField_SendConfirm->setText(text("DWT_Localize_Send_Confirm_TextField"));
    button_SendConfirmTransmission->setText(text("DWT_Localize_Send_Confirm_Button_Send"));
    button_SendConfirmCancel->setText(text("DWT_Localize_Send_Confirm_Button_Cancel"));
    textField_SendProgress->setText(text("DWT_Localize_Send_Progress_TextField"));
    textField_SendEnd->setText(text("DWT_Localize_Send_End_TextField"));
    button_SendEndOK->setText(text("DWT_Localize_Send_End_Button_OK"));
    textField_SendLogin->setText(text("DWT_Localize_Send_Login_TextField"));
    textField_Label_Password->setText(text("DWT_Localize_Send_Login_Password_Label"));
    button_SendLoginOK->setText(text("DWT_Localize_Send_Login_Button_OK"));
    button_SendLoginCancel->setText(text("DWT_Localize_Send_Login_Button_Cancel"));
    textField_SendLoginError->setText(text("DWT_Localize_Send_LoginErr_TextField"));
    button_SendLoginErrorOK->setText(text("DWT_Localize_Send_LoginErr_Button_OK"));
    textField_SendConnectError->setText(text("DWT_Localize_Send_ConnectErr_TextField"));
    button_SendConnectErrorOK->setText(text("DWT_Localize_Send_ConnectErr_Button_OK"));

    for (QWidget *window : std::initializer_list<QWidget *>{
             window_Main, window_SelectSSID, window_SendData, window_WPSGuide, window_Wait})
        window->setWindowTitle(text("DWT_Localize_App_Name"));
}

void DWTMainSettingWindow::loadOutline() {
    dictionary_OutlineView =
        PropertyList::dictionary(QStringLiteral("OutlineData"), QStringLiteral("plist"));
    outlineView_Main->setAccessibleName(text("DWT_Localize_Outline_Name"));
    outlineView_Main->setColumn(QStringLiteral("name"));
    outlineView_Main->setOutlineDataSource(this);
    outlineView_Main->setOutlineDelegate(this);
    outlineView_Main->reloadData();
    for (int row = outlineView_Main->numberOfRows() - 1; row >= 0; --row)
        outlineView_Main->expandRow(row);
    outlineView_Main->fitWidthToContents();
}

void DWTMainSettingWindow::connectButtons() {
    using Self = DWTMainSettingWindow;
    const auto pushes = [this](QAbstractButton *button, void (Self::*operation)()) {
        connect(button, &QAbstractButton::clicked, this, operation);
    };
    pushes(button_MainSend, &Self::push_MainSend);
    pushes(button_MainCancel, &Self::push_MainCancel);
    pushes(button_MainNewSetting, &Self::push_MainNewSetting);
    pushes(button_MainHelp, &Self::push_MainHelp);
    pushes(checkbox_MainSetupIsChanged, &Self::push_MainSetupIsChanged);
    pushes(button_SendChangeCheckReflect, &Self::push_SendChangeCheckReflect);
    pushes(button_SendChangeCheckNoReflect, &Self::push_SendChangeCheckNoReflect);
    pushes(button_SendChangeCheckCancel, &Self::push_SendChangeCheckCancel);
    pushes(button_UpdateChangeCheckOK, &Self::push_UpdateChangeCheckOK);
    pushes(button_UpdateChangeCheckCancel, &Self::push_UpdateChangeCheckCancel);
    pushes(button_SendConfirmTransmission, &Self::push_SendConfirmTransmission);
    pushes(button_SendConfirmCancel, &Self::push_SendConfirmCancel);
    pushes(button_SendLoginOK, &Self::push_SendLoginOK);
    pushes(button_SendLoginCancel, &Self::push_SendLoginCancel);
    pushes(button_SendLoginErrorOK, &Self::push_SendLoginErrorOK);
    pushes(button_SendEndOK, &Self::push_SendEndOK);
    pushes(button_SendConnectErrorOK, &Self::push_SendConnectErrorOK);
    pushes(button_SelectSSIDWindowOK, &Self::push_SelectSSIDWindowOK);
    pushes(button_SelectSSIDWindowCancel, &Self::push_SelectSSIDWindowCancel);
    pushes(button_WPS1Next, &Self::push_WPSGuide1Next);
    pushes(button_WPS1EXIT, &Self::push_WPSGuide1Exit);
    pushes(button_WPS2Next, &Self::push_WPSGuide2Next);
    pushes(button_WPS2EXIT, &Self::push_WPSGuide2Exit);
}

bool DWTMainSettingWindow::initializeData(const std::optional<PrinterEntry> &entry) {
    if (entry) {
        if (dictionary_PrinterInfo.isEmpty()) dictionary_PrinterInfo = *entry;
        const QString product = entry->value(QStringLiteral("ProductName"));
        textField_SelectPrinterName->setText(product);
        if (!dataManager_Object) {
            dataManager_Object = DWTDataManager::dataManager(dictionary_PrinterInfo);
            for (const auto &page : dictionary_ViewManagement)
                page->dataManagerObject(dataManager_Object);
        }
        if (dataManager_Object) dataManager_Object->qkStatusLength(statusLengthOf(product));
        bool_usbPrinter =
            entry->value(QStringLiteral("ConnectionType")) != QStringLiteral("Network");
    }
    const int read = dataManager_Object ? dataManager_Object->setupDataFromPrinter(0) : 1;
    const bool reached = read == 0 || read == 6;
    if (!reached || (read == 6 && entry))
        showStandardAlert("DWT_Localize_Alert_MessageText_Dowline",
                          "DWT_Localize_Alert_MessageText_Error",
                          "DWT_Localize_Alert_InfoText_Printer_ConnectErr");
    if (!reached && entry) {
        closeMainWindow({});
        return false;
    }
    if (reached)
        for (const auto &page : dictionary_ViewManagement) page->showDataManager();
    bool_GetDataSuccess = read == 0 && bool_usbPrinter;
    enableAllViews(bool_GetDataSuccess);
    showReadState();
    if (reached && entry) {
        outlineView_Main->selectRow(networkRow);
        MSW_UISelector(DWT_View_Key_Network);
        MSW_SendButtonDisable();
        m_open = true;
        window_Main->fitToScreen();
        window_Main->bringToFront();
    }
    return true;
}

int DWTMainSettingWindow::statusLengthOf(const QString &productName) {
    dictionary_PrinterStatusTable =
        PropertyList::dictionary(QStringLiteral("ZMPrinterStatusTable"), QStringLiteral("plist"));
    const auto model = dictionary_PrinterStatusTable.constFind(productName);
    if (model == dictionary_PrinterStatusTable.constEnd()) return usualStatusLength;
    return model->toMap().value(QStringLiteral("GDQKStatusLength")).toInt();
}

// Says why nothing can be changed.
void DWTMainSettingWindow::showReadState() {
    textField_ReadOnly->setVisible(!bool_GetDataSuccess);
    textField_ReadOnly->setText(text(bool_usbPrinter
                                         ? "DWT_Localize_MainDialog_Text_ReadOnly_NotRead"
                                         : "DWT_Localize_MainDialog_Text_ReadOnly_Network"));
}

void DWTMainSettingWindow::enableAllViews(bool enabled) {
    for (const auto &page : dictionary_ViewManagement) page->enableAllItems(enabled);
    if (!enabled) button_MainSend->setEnabled(false);
}

void DWTMainSettingWindow::MSW_UISelector(const QString &viewKey) {
    m_pages->select(viewKey);
}

std::optional<QString> DWTMainSettingWindow::MSW_SelectedUIString() const {
    const QString key = m_pages->selectedKey();
    return key.isNull() ? std::nullopt : std::optional(key);
}

int DWTMainSettingWindow::numberOfChildrenOfItem(OutlineView *, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return int(node.value(QStringLiteral("child")).toList().size());
}

QVariantMap DWTMainSettingWindow::child(OutlineView *, int index, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return node.value(QStringLiteral("child")).toList().value(index).toMap();
}

bool DWTMainSettingWindow::isItemExpandable(OutlineView *, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return node.contains(QStringLiteral("child"));
}

QVariant DWTMainSettingWindow::objectValueForTableColumn(OutlineView *, const QString &column,
                                                         const QVariantMap &item) {
    if (column != QStringLiteral("name")) return {};
    return localized(item.value(QStringLiteral("name")).toString());
}

// Leaving a page stores its values, whatever they are; they are checked when they are sent.
bool DWTMainSettingWindow::shouldSelectItem(OutlineView *, const QVariantMap &item) {
    if (!item.value(QStringLiteral("select")).toBool()) return false;
    if (!item.contains(QStringLiteral("viewID"))) return true;
    const QString viewKey = item.value(QStringLiteral("viewID")).toString();
    const std::optional<QString> shown = MSW_SelectedUIString();
    if (viewKey == shown) return false;
    if (bool_usbPrinter && shown) dictionary_ViewManagement[*shown]->itemSetToDataManager();
    MSW_UISelector(viewKey);
    return true;
}

bool DWTMainSettingWindow::shouldCollapseItem(OutlineView *, const QVariantMap &) {
    return true;
}

void DWTMainSettingWindow::showStandardAlert(const char *titleKey, const char *kindKey,
                                             const char *informationKey) {
    Alert alert(Alert::Style::Warning);
    alert.setButtonTitle(text("DWT_Localize_Alert_Button_OK"));
    alert.setMessageText(QStringLiteral("%1 %2").arg(text(titleKey), text(kindKey)));
    alert.setInformativeText(text(informationKey));
    alert.runModal(window_Main && window_Main->isVisible() ? window_Main.data() : nullptr);
}
