#include "mainwindow/DWTMainSettingWindow.h"

#include <QStyle>

#include "mainwindow/SendDialog.h"
#include "mainwindow/WPSGuideWindow.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "platform/ui/Alert.h"
#include "settings/PrinterWords.h"

namespace {

QString text(const char *key) {
    return localized(QLatin1String(key));
}

// Marks a page with unsent changes.
QIcon changeSign() {
    return QIcon(QStringLiteral(":/pictures/changed.svg"));
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
    }
    dictionary_ViewManagement.clear();
    dictionary_OutlineView.clear();
    DWTBaseClass::BaseClass()->nsObjectRelease(dataManager_Object);
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
    m_observers.push_back(center.observe(DWT_MainDialog_SendOK_Message,
                                         [this](const Notification &) { MSW_SendButtonEnable(); }));
    m_observers.push_back(center.observe(
        DWT_MainDialog_SendNG_Message, [this](const Notification &) { MSW_SendButtonDisable(); }));
    for (const QString &edit : {DWT_MainDialog_SendOK_Message, DWT_MainDialog_SendNG_Message})
        m_observers.push_back(
            center.observe(edit, [this](const Notification &) { followEdits(); }));
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
    window_SendData = new SendDialog(window_Main);
    window_SelectSSID = new NetworkList(window_Main);
    window_WPSGuide = new WPSGuideWindow(window_Main);
    window_Wait = new WaitWindow(window_Main);
}

void DWTMainSettingWindow::loadOutline() {
    dictionary_OutlineView =
        PropertyList::dictionary(QStringLiteral("OutlineData"), QStringLiteral("plist"));
    m_pageItems = pageItemsIn(dictionary_OutlineView);
    for (const QVariantMap &item : std::as_const(m_pageItems))
        if (const auto page = dictionary_ViewManagement.value(viewKeyOf(item)))
            page->setPageName(localized(item.value(QStringLiteral("name")).toString()));
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
    const auto asks = [this](void (SendDialog::*pushed)(), void (Self::*operation)()) {
        connect(window_SendData, pushed, this, operation);
    };
    asks(&SendDialog::reflectPushed, &Self::push_SendChangeCheckReflect);
    asks(&SendDialog::noReflectPushed, &Self::push_SendChangeCheckNoReflect);
    asks(&SendDialog::updatePushed, &Self::push_UpdateChangeCheckOK);
    asks(&SendDialog::transmissionPushed, &Self::push_SendConfirmTransmission);
    asks(&SendDialog::loginPushed, &Self::push_SendLoginOK);
    asks(&SendDialog::stopped, &Self::sayWhatWasSent);
    asks(&SendDialog::endPushed, &Self::push_SendEndOK);
}

QString DWTMainSettingWindow::viewKeyOf(const QVariantMap &item) {
    return item.value(QStringLiteral("viewID")).toString();
}

QList<QVariantMap> DWTMainSettingWindow::pageItemsIn(const QVariantMap &item) {
    QList<QVariantMap> items;
    if (!viewKeyOf(item).isEmpty()) items << item;
    for (const QVariant &child : item.value(QStringLiteral("child")).toList())
        items << pageItemsIn(child.toMap());
    return items;
}

bool DWTMainSettingWindow::initializeData(const std::optional<PrinterEntry> &entry,
                                          WaitWindow *waiting) {
    if (entry) {
        if (dictionary_PrinterInfo.isEmpty()) dictionary_PrinterInfo = *entry;
        const QString product = entry->value(PrinterKey::ProductName);
        textField_SelectPrinterName->setText(shownText(product));
        if (!dataManager_Object) {
            dataManager_Object = DWTDataManager::dataManager(dictionary_PrinterInfo);
            for (const auto &page : dictionary_ViewManagement)
                page->dataManagerObject(dataManager_Object);
        }
        if (dataManager_Object) dataManager_Object->qkStatusLength(statusLengthOf(product));
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
    if (reached)
        for (const auto &page : dictionary_ViewManagement) page->showDataManager();
    bool_GetDataSuccess = read == ReadResult::Complete && bool_usbPrinter;
    // First, since enabling the pages may find a difference that can be sent.
    if (reached && entry) MSW_SendButtonDisable();
    enableAllViews(bool_GetDataSuccess);
    showReadState();
    showOwnName();
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
    const QString name = printerName();
    return dataManager_Object->setupDataFromPrinter(0, [&](int done, int total) {
        waiting->say(text("DWT_Localize_Wait_Reading")
                         .arg(name, QString::number(done), QString::number(total)),
                     done, total);
    });
}

QString DWTMainSettingWindow::ownName() const {
    if (!dataManager_Object) return {};
    const auto names = dataManager_Object->setupDataToMainView(DWT_View_Key_Network);
    return readableText(
        textValue(names.value_or(CategoryDictionary()), DWT_SaveData_Network_Printer));
}

// Its own name as last read, or what the list of printers calls it.
QString DWTMainSettingWindow::printerName() const {
    const QString name = ownName();
    return name.isEmpty() ? listedName(dictionary_PrinterInfo) : name;
}

int DWTMainSettingWindow::statusLengthOf(const QString &productName) {
    dictionary_PrinterStatusTable =
        PropertyList::dictionary(QStringLiteral("ZMPrinterStatusTable"), QStringLiteral("plist"));
    const auto model = dictionary_PrinterStatusTable.constFind(productName);
    if (model == dictionary_PrinterStatusTable.constEnd()) return ZMLib::defaultStatusLength;
    return model->toMap().value(QStringLiteral("GDQKStatusLength")).toInt();
}

// Says why nothing can be changed, and what the printer did not tell.
void DWTMainSettingWindow::showReadState() {
    QStringList lines;
    if (m_cancelled)
        lines << text("DWT_Localize_MainDialog_Text_ReadOnly_Cancelled");
    else if (!bool_GetDataSuccess)
        lines << text(bool_usbPrinter ? "DWT_Localize_MainDialog_Text_ReadOnly_NotRead"
                                      : "DWT_Localize_MainDialog_Text_ReadOnly_Network");
    const auto notTold = dataManager_Object ? dataManager_Object->notTold() : QList<ItemCode>();
    if (!notTold.isEmpty())
        lines << text("DWT_Localize_MainDialog_Text_NotTold")
                     .arg(namesOf(notTold, QStringLiteral("; ")));
    textField_ReadOnly->setText(lines.join(u'\n'));
    textField_ReadOnly->setVisible(!lines.isEmpty());
}

QString DWTMainSettingWindow::nameOf(ItemCode code) const {
    const Item &item = *itemOf(code);
    const bool isInterface = item.layout == Item::Layout::IntegerAndAddresses;
    const QString &key = isInterface ? item.keys[1] : item.keys.last();
    const auto page = dictionary_ViewManagement.value(item.viewKey);
    return QStringLiteral("%1: %2").arg(page->pageName(), page->labelOf(key));
}

QString DWTMainSettingWindow::namesOf(const QList<ItemCode> &codes,
                                      const QString &separator) const {
    QStringList names;
    for (const ItemCode code : codes) names << nameOf(code);
    return names.join(separator);
}

void DWTMainSettingWindow::showOwnName() {
    const QString own = ownName();
    textField_PrinterOwnName->setText(own.isEmpty() ? QString() : QStringLiteral("· %1").arg(own));
}

void DWTMainSettingWindow::followEdits() {
    const int mode = wireless_ViewObject->wirelessCommunicateMode();
    infrastructure_ViewObject->showIsUsed(mode == CommunicationMode::Infrastructure);
    simpleAP_ViewObject->showIsUsed(mode == CommunicationMode::AccessPoint);
    outlineView_Main->reloadMarks();
}

void DWTMainSettingWindow::goToPage(const QString &viewKey) {
    for (const QVariantMap &item : std::as_const(m_pageItems))
        if (viewKeyOf(item) == viewKey) outlineView_Main->pickItem(item);
}

void DWTMainSettingWindow::enableAllViews(bool enabled) {
    for (const auto &page : dictionary_ViewManagement) {
        page->enableAllItems(enabled);
        page->showForReading(!enabled);
    }
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

DWTMainSettingWindow::Mark DWTMainSettingWindow::markOfItem(OutlineView *,
                                                            const QVariantMap &item) {
    const auto page = dictionary_ViewManagement.value(viewKeyOf(item));
    if (!page || !bool_GetDataSuccess) return {};
    if (page->hasFault())
        return {window_Main->style()->standardIcon(QStyle::SP_MessageBoxWarning),
                text("DWT_Localize_Outline_Fault")};
    if (!page->itemCheckDifferentToDataManager())
        return {changeSign(), text("DWT_Localize_Outline_Changed")};
    return {};
}

// Leaving a page stores its values, whatever they are; they are checked when they are sent.
bool DWTMainSettingWindow::shouldSelectItem(OutlineView *, const QVariantMap &item) {
    if (!item.value(QStringLiteral("select")).toBool()) return false;
    if (!item.contains(QStringLiteral("viewID"))) return true;
    const QString viewKey = viewKeyOf(item);
    const std::optional<QString> shown = MSW_SelectedUIString();
    if (viewKey == shown) return false;
    if (bool_usbPrinter && shown) dictionary_ViewManagement[*shown]->itemSetToDataManager();
    MSW_UISelector(viewKey);
    return true;
}

QString DWTMainSettingWindow::report() const {
    QStringList lines{
        QStringLiteral("%1 %2")
            .arg(textField_SelectPrinterName->text(), textField_PrinterOwnName->text())
            .trimmed()};
    if (!textField_ReadOnly->isHidden()) lines << textField_ReadOnly->text();
    const QString line = text("DWT_Localize_Report_Line");
    for (const QVariantMap &item : m_pageItems) {
        const auto page = dictionary_ViewManagement.value(viewKeyOf(item));
        lines << QString() << page->pageName();
        for (const DWTBaseView::Value &value : page->values())
            lines << line.arg(value.label, orEmpty(value.text));
    }
    return lines.join(u'\n') + u'\n';
}

QString DWTMainSettingWindow::orEmpty(const QString &shown) {
    return shown.isEmpty() ? text("DWT_Localize_Send_Confirm_Empty") : shown;
}

void DWTMainSettingWindow::showStandardAlert(const char *titleKey, const char *kindKey,
                                             const char *informationKey) {
    Alert alert(Alert::Style::Warning);
    alert.setButtonTitle(text("DWT_Localize_Alert_Button_OK"));
    alert.setMessageText(QStringLiteral("%1 %2").arg(text(titleKey), text(kindKey)));
    alert.setInformativeText(text(informationKey));
    alert.runModal(window_Main && window_Main->isVisible() ? window_Main.data() : nullptr);
}
