#include "mainwindow/DWTMainSettingWindow.h"

#include "mainwindow/SendDialog.h"
#include "mainwindow/WPSGuideWindow.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

void DWTMainSettingWindow::MSW_Dealloc() {
    m_observers.clear();
    if (window_Main) {
        outlineView_Main->setOutlineDelegate(nullptr);
        outlineView_Main->setOutlineDataSource(nullptr);
    }
    DWTBaseClass::BaseClass()->nsObjectRelease(dataManager_Object);
    delete window_Main;  // and every window that belongs to it
}

void DWTMainSettingWindow::awakeFromNib() {
    MSW_UIInitialize();
    // Of its own pages alone: another window's are not its.
    for (const auto &page : dictionary_ViewManagement)
        for (const bool differs : {true, false})
            m_observers.push_back(NotificationCenter::shared().observe(
                differs ? DWT_MainDialog_SendOK_Message : DWT_MainDialog_SendNG_Message,
                [this, differs](const Notification &) {
                    differs ? MSW_SendButtonEnable() : MSW_SendButtonDisable();
                    followEdits();
                },
                page.get()));
}

void DWTMainSettingWindow::MSW_UIInitialize() {
    window_Main = new Window;
    Ui::MainWindow::setupUi(window_Main);
    makePages();
    makeDialogs();
    loadOutline();
    connectButtons();
    button_MainSend->setEnabled(false);
    window_Main->setShouldClose([this] { return windowShouldClose(); });
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
    while (!(before->focusPolicy() & Qt::TabFocus)) before = before->previousInFocusChain();
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
    window_SendData = new SendDialog(window_Main);
    window_SelectSSID = new NetworkList(window_Main);
    window_WPSGuide = new WPSGuideWindow(window_Main);
    window_Wait = new WaitWindow(window_Main);
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
    const auto asks = [this](void (SendDialog::*pushed)(), void (Self::*operation)()) {
        connect(window_SendData, pushed, this, operation);
    };
    asks(&SendDialog::reflectPushed, &Self::push_SendChangeCheckReflect);
    asks(&SendDialog::noReflectPushed, &Self::push_SendChangeCheckNoReflect);
    asks(&SendDialog::updatePushed, &Self::push_UpdateChangeCheckOK);
    asks(&SendDialog::transmissionPushed, &Self::push_SendConfirmTransmission);
    asks(&SendDialog::loginPushed, &Self::push_SendLoginOK);
    asks(&SendDialog::stopped, &Self::sendHasStopped);
    asks(&SendDialog::endPushed, &Self::push_SendEndOK);
}

bool DWTMainSettingWindow::initializeData(const std::optional<PrinterEntry> &entry,
                                          WaitWindow *waiting) {
    if (entry) {
        if (dictionary_PrinterInfo.isEmpty()) dictionary_PrinterInfo = *entry;
        const QString product = entry->value(PrinterKey::ProductName);
        textField_SelectPrinterName->setText(shownText(product));
        if (!m_session) {
            m_session = std::make_unique<Session>(dictionary_PrinterInfo);
            dataManager_Object = m_session->manager();
            for (const auto &page : dictionary_ViewManagement)
                page->dataManagerObject(dataManager_Object);
        }
        bool_usbPrinter = entry->value(PrinterKey::ConnectionType) != PrinterConnection::Network;
    }
    const int read = readAll(waiting);
    m_cancelled = isWaitCancelled() && (entry || read != ReadResult::Complete);
    const bool reached = read == ReadResult::Complete || read == ReadResult::MissingReply;
    if (!m_cancelled && (!reached || (read == ReadResult::MissingReply && entry)))
        showStandardAlert("DWT_Localize_Alert_MessageText_Dowline",
                          "DWT_Localize_Alert_MessageText_Error",
                          "DWT_Localize_Alert_InfoText_Printer_ConnectErr");
    if ((!reached || m_cancelled) && entry) {
        closeMainWindow({});
        return false;
    }
    // A reading that was cancelled or failed leaves what was shown.
    m_showsOldValues = m_readAt.isValid() && (!reached || m_cancelled);
    if (reached && !m_cancelled) {
        m_readAt = QTime::currentTime();
        for (const auto &page : dictionary_ViewManagement) page->showDataManager();
        password_ViewObject->showPasswordState({});  // asked when its page is shown
        showState(read == ReadResult::Complete);
    }
    bool_GetDataSuccess = read == ReadResult::Complete && bool_usbPrinter;
    // First, since enabling the pages may find a difference that can be sent.
    if (reached && entry) MSW_SendButtonDisable();
    enableAllViews(bool_GetDataSuccess);
    showReadState();
    if (!m_showsOldValues) showOwnName();
    followEdits();
    if (reached && entry) {
        goToPage(DWT_View_Key_Network);
        m_open = true;
        window_Main->fitToScreen();
        window_Main->bringToFront();
    }
    return true;
}

int DWTMainSettingWindow::readAll(WaitWindow *waiting) {
    if (!dataManager_Object) return ReadResult::NoLink;
    if (!waiting) return dataManager_Object->setupDataFromPrinter(0);
    const QString name = m_session->name();
    return dataManager_Object->setupDataFromPrinter(0, [&](int done, int total) {
        waiting->say(localized("DWT_Localize_Wait_Reading")
                         .arg(name, QString::number(done), QString::number(total)),
                     done, total);
    });
}

void DWTMainSettingWindow::enableAllViews(bool enabled) {
    for (const auto &page : dictionary_ViewManagement) {
        page->enableAllItems(enabled);
        page->showForReading(!enabled);
    }
    if (!enabled) button_MainSend->setEnabled(false);
}

std::optional<QString> DWTMainSettingWindow::MSW_SelectedUIString() const {
    const QString key = m_pages->selectedKey();
    return key.isNull() ? std::nullopt : std::optional(key);
}

QString DWTMainSettingWindow::report() const {
    QStringList lines{
        u"%1 %2"_s.arg(textField_SelectPrinterName->text(), textField_PrinterOwnName->text())
            .trimmed()};
    if (!textField_ReadOnly->isHidden()) lines << textField_ReadOnly->text();
    const QString line = localized("DWT_Localize_Report_Line");
    for (const ShownPage &page : shownPages(shownRecord())) {
        lines << QString() << page.title;
        for (const auto &[label, value] : page.lines) lines << line.arg(label, value);
    }
    return lines.join(u'\n') + u'\n';
}

bool DWTMainSettingWindow::showStandardAlert(const char *titleKey, const char *kindKey,
                                             const char *informationKey, Alert::Answers answers) {
    const bool isShown = window_Main && window_Main->isVisible();
    return Alert::runModal(
        Alert::Style::Warning, u"%1 %2"_s.arg(localized(titleKey), localized(kindKey)),
        localized(informationKey), isShown ? window_Main.data() : nullptr, answers);
}
