#include "app/DWTPrinterSelector.h"

#include <QShortcut>
#include <algorithm>

#include "app/MainMenu.h"
#include "app/TrayIcon.h"
#include "mainwindow/WPSGuide.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

namespace {

const QString DWT_View_Key_ToolPerform = QStringLiteral("DWT_View_Key_ToolPerform");
const QString DWT_View_Key_ChooseConnect = QStringLiteral("DWT_View_Key_ChooseConnect");
const QString DWT_View_Key_USBConnect = QStringLiteral("DWT_View_Key_USBConnect");
const QString DWT_View_Key_WPS1 = QStringLiteral("DWT_View_Key_WPS1");
const QString DWT_View_Key_WPS2 = QStringLiteral("DWT_View_Key_WPS2");
const QString DWT_View_Key_Printerlist = QStringLiteral("DWT_View_Key_Printerlist");

// Columns of the printer table, under the names of their identifiers.
// NOLINTBEGIN(bugprone-reserved-identifier)
const QString _MODEL_NAME_ = QStringLiteral("_MODEL_NAME_");
const QString _SERVICE_NAME_ = QStringLiteral("_SERVICE_NAME_");
// NOLINTEND(bugprone-reserved-identifier)

// Tags of the two ways to connect.
constexpr int connectByUSB = 0;
constexpr int connectByWPS = 1;

// How often is looked for printers that came or went.
constexpr std::chrono::milliseconds lookInterval{1000};

// A list of more printers than these has a field that filters it.
constexpr qsizetype printersAtAGlance = 8;

// So many problems are told in words; there is no room for more.
constexpr qsizetype shownProblems = 4;

// The key of what an empty list says; in installer mode only USB is looked at.
QString keyOfEmptyList(const QList<PrinterProblem> &problems, bool installer) {
    const auto isOnly = [&](PrinterProblem::Kind kind) {
        return std::all_of(problems.begin(), problems.end(),
                           [kind](const PrinterProblem &problem) { return problem.kind == kind; });
    };
    if (problems.isEmpty() || (installer && isOnly(PrinterProblem::NoNetworkService)))
        return installer ? QStringLiteral("DWT_Localize_PrinterList_Empty_USB")
                         : QStringLiteral("DWT_Localize_PrinterList_Empty");
    if (isOnly(PrinterProblem::EmptyCatalogue))
        return QStringLiteral("DWT_Localize_PrinterList_Empty_Catalogue");
    if (isOnly(PrinterProblem::NoNetworkService))
        return QStringLiteral("DWT_Localize_PrinterList_Empty_NoNetwork");
    return QStringLiteral("DWT_Localize_PrinterList_Empty_Problems");
}

}  // namespace

bool DWTPrinterSelector::DWT_Init() {
    dictionary_ViewManagement.reset();
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
    dictionary_ViewManagement.reset();
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
    setupUi(window_PrinterSelector);
    auto *const guide = new WPSGuide(view_PrinterSelector);
    window_Wait = new WaitWindow(window_PrinterSelector);
    dictionary_ViewManagement = std::make_unique<ViewStack>(view_PrinterSelector);
    ViewStack &views = *dictionary_ViewManagement;
    views.add(DWT_View_Key_ToolPerform, view_ToolPerform);
    views.add(DWT_View_Key_ChooseConnect, view_ChooseConnect);
    views.add(DWT_View_Key_USBConnect, view_USBConnect);
    views.add(DWT_View_Key_WPS1, guide->firstView());
    views.add(DWT_View_Key_WPS2, guide->secondView());
    views.add(DWT_View_Key_Printerlist, view_Printerlist);
    m_menu = new MainMenu(window_PrinterSelector);
    window_PrinterSelector->layout()->setMenuBar(m_menu);
    m_menu->localize();
    connect(m_menu, &MainMenu::printerListChosen, this,
            [this] { leaveFor(DWT_View_Key_Printerlist); });
    connect(m_menu, &MainMenu::guideChosen, this, [this] { leaveFor(DWT_View_Key_ToolPerform); });
    window_PrinterSelector->setMinimumWidth(m_menu->sizeHint().width());
    m_tray = new TrayIcon(this);
    m_tray->watch(window_PrinterSelector);
    connect(m_tray, &TrayIcon::windowsWanted, this,
            [this] { applicationShouldHandleReopen(false); });
    connect(m_tray, &TrayIcon::quitWanted, this, [] { Application::terminate(); });
    TableView &table = *tableView_Printerlist;
    table.addColumn(_MODEL_NAME_);
    table.addColumn(_SERVICE_NAME_);
    table.setHasDetails();
    table.setHeaderTitle(
        _MODEL_NAME_, localized(QStringLiteral("DWT_Localize_PrinterList_TableView_Name_Column")));
    table.setHeaderTitle(
        _SERVICE_NAME_,
        localized(QStringLiteral("DWT_Localize_PrinterList_TableView_Service_Column")));
    table.setNoMatchText(localized(QStringLiteral("DWT_Localize_PrinterList_NoMatch")));
    table.setTableDataSource(this);
    table.setTableDelegate(this);
    textField_PrinterlistFilter->setTable(&table);
    textField_PrinterlistFilter->hide();
    view_Problems->hide();
    m_showing.setSingleShot(true);
    m_showing.callOnTimeout([this] { tableView_Printerlist->reloadData(); });
    m_looking.callOnTimeout([this] { followPrinters(); });
    connectButtons(guide);
    window_PrinterSelector->setShouldClose([this] {
        windowWillClose();
        return true;
    });
    window_PrinterSelector->fitToScreen();
}

void DWTPrinterSelector::connectButtons(const WPSGuide *guide) {
    using Self = DWTPrinterSelector;
    const auto pushes = [this](QAbstractButton *button, void (Self::*operation)()) {
        connect(button, &QAbstractButton::clicked, this, operation);
    };
    pushes(button_ToolPerformOK, &Self::push_ToolPerformOK);
    pushes(button_ToolPerformEXIT, &Self::push_ToolPerformExit);
    pushes(button_ChooseConnectNext, &Self::push_ChooseConnectNext);
    pushes(button_ChooseConnectEXIT, &Self::push_ChooseConnectExit);
    pushes(button_USBConnectNext, &Self::push_USBConnectNext);
    connect(guide, &WPSGuide::next1, this, &Self::push_WPSSetting1Next);
    connect(guide, &WPSGuide::back1, this, &Self::push_WPSSetting1Back);
    connect(guide, &WPSGuide::exit1, this, &Self::push_WPSSetting1Exit);
    connect(guide, &WPSGuide::next2, this, &Self::push_WPSSetting2Next);
    connect(guide, &WPSGuide::back2, this, &Self::push_WPSSetting2Back);
    connect(guide, &WPSGuide::exit2, this, &Self::push_WPSSetting2Exit);
    pushes(button_PrinterlistOK, &Self::push_PrinterListOK);
    pushes(button_PrinterlistReload, &Self::push_PrinterListReload);
    pushes(button_PrinterlistEXIT, &Self::push_PrinterListExit);
    connect(new QShortcut(Qt::Key_F5, view_Printerlist), &QShortcut::activated,
            button_PrinterlistReload, &QAbstractButton::click);
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
    dictionary_ViewManagement->select(viewKey);
    dictionary_ViewManagement->focusFirstControl();
    if (viewKey != DWT_View_Key_Printerlist) return;
    tableView_Printerlist->setFocus();
    push_PrinterListReload();
}

void DWTPrinterSelector::DWT_UpdatePrinterList() {
    const WaitSheet waiting = window_Wait->over(window_PrinterSelector);
    if (!ndm_Object) ndm_Object = make<DWTDataManager>();
    array_PrinterList.clear();
    tableView_Printerlist->setEmptyText(
        localized(QStringLiteral("DWT_Localize_PrinterList_Searching")));
    tableView_Printerlist->reloadData();
    ndm_Object->printerList([this](const PrinterEntry &printer) {
        array_PrinterList << printer;
        m_showing.start();
    });
    m_showing.stop();
    tableView_Printerlist->setEmptyText(localized(
        isWaitCancelled() ? QStringLiteral("DWT_Localize_PrinterList_Cancelled")
                          : keyOfEmptyList(Printers::problems(), checkLunchedMode())));
    tableView_Printerlist->reloadData();
    showPart(textField_PrinterlistFilter, array_PrinterList.size() > printersAtAGlance ||
                                              !textField_PrinterlistFilter->text().isEmpty());
    showProblems();
    m_looking.start(lookInterval);
}

void DWTPrinterSelector::showProblems() {
    QList<PrinterProblem> problems = Printers::problems();
    problems.removeIf([](const PrinterProblem &problem) {  // which the list itself says
        return problem.kind == PrinterProblem::EmptyCatalogue;
    });
    QStringList lines;
    for (const PrinterProblem &problem : problems.first(std::min(shownProblems, problems.size())))
        lines << wordsOf(problem);
    if (problems.size() > shownProblems)
        lines << QStringLiteral("… (+%1)").arg(problems.size() - shownProblems);
    textField_Problems->setText(lines.join(u'\n'));
    showPart(view_Problems, !lines.isEmpty());
}

void DWTPrinterSelector::showPart(QWidget *part, bool shown) {
    const bool isNew = shown && part->isHidden();
    part->setVisible(shown);
    if (isNew) window_PrinterSelector->growToContents();
}

void DWTPrinterSelector::followPrinters() {
    const bool idle = view_Printerlist->isVisible() && !window_PrinterSelector->isMinimized() &&
                      !window_Wait->isVisible() && !QApplication::activeModalWidget() &&
                      !QApplication::activePopupWidget();
    if (idle && ndm_Object && Printers::hasListChanged()) DWT_UpdatePrinterList();
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
        const WaitSheet waiting = window_Wait->over(window_PrinterSelector);
        msw_Object->showWindow();
        Window *const opening = msw_Object->window();
        opening->layout()->setMenuBar(m_menu->shareWith(opening));
        m_tray->watch(opening);
        m_menu->actOnPrinter(*msw_Object);
        opened = msw_Object->initializeData(array_PrinterList.value(row), window_Wait);
    }
    if (!opened) return;
    window_PrinterSelector->hide();
    show_mainDialog = true;
    msw_Object->window()->bringToFront();
}

void DWTPrinterSelector::leaveFor(const QString &viewKey) {
    if (show_mainDialog) msw_Object->closeButton()->click();
    if (show_mainDialog) return;  // the user stays there
    m_guideLeadsToList = true;
    window_PrinterSelector->bringToFront();
    if (dictionary_ViewManagement->selectedKey() != viewKey) DWT_UISelector(viewKey);
}

void DWTPrinterSelector::leaveGuide() {
    if (m_guideLeadsToList)
        DWT_UISelector(DWT_View_Key_Printerlist);
    else
        Application::terminate();
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
    const bool network = entry.contains(PrinterKey::BonjourServiceName);
    if (column == _MODEL_NAME_)
        return network ? entry.value(PrinterKey::BonjourServiceName)
                       : readableText(entry.value(PrinterKey::MachineName));
    if (column == _SERVICE_NAME_)
        return localized(network ? QStringLiteral("DWT_Localize_PrinterList_BonjourService_Network")
                                 : QStringLiteral("DWT_Localize_PrinterList_BonjourService_USB"));
    return {};
}

QString DWTPrinterSelector::detailForTableColumn(TableView *, const QString &column, int row) {
    if (column != _MODEL_NAME_) return {};
    const PrinterEntry entry = array_PrinterList.value(row);
    QStringList parts{entry.value(PrinterKey::ProductName), whereaboutsOf(entry)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QIcon DWTPrinterSelector::iconForTableColumn(TableView *, const QString &column, int row) {
    if (column != _SERVICE_NAME_) return {};
    const bool network = array_PrinterList.value(row).contains(PrinterKey::BonjourServiceName);
    return QIcon(network ? QStringLiteral(":/pictures/network.svg")
                         : QStringLiteral(":/pictures/usb.svg"));
}

QString DWTPrinterSelector::rowKeyInTableView(TableView *, int row) {
    return array_PrinterList.value(row).value(PrinterKey::DeviceURI);
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
    leaveGuide();
}

void DWTPrinterSelector::push_ChooseConnectNext() {
    const int chosen = matrix_ChooseConnectSelect->selectedTag();
    if (chosen == connectByUSB) DWT_UISelector(DWT_View_Key_USBConnect);
    if (chosen == connectByWPS) DWT_UISelector(DWT_View_Key_WPS1);
}

void DWTPrinterSelector::push_ChooseConnectExit() {
    leaveGuide();
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
    leaveGuide();
}

void DWTPrinterSelector::push_WPSSetting2Next() {
    leaveGuide();
}

void DWTPrinterSelector::push_WPSSetting2Back() {
    DWT_UISelector(DWT_View_Key_WPS1);
}

void DWTPrinterSelector::push_WPSSetting2Exit() {
    leaveGuide();
}

void DWTPrinterSelector::push_PrinterListOK() {
    DWT_ShowMainSettingWindow();
}

void DWTPrinterSelector::push_PrinterListReload() {
    DWT_UpdatePrinterList();
    tableView_Printerlist->deselectAll();
    button_PrinterlistOK->setEnabled(false);
}

void DWTPrinterSelector::push_PrinterListExit() {
    window_PrinterSelector->hide();
}
