#include "app/DWTPrinterSelector.h"

#include "app/MainMenu.h"
#include "app/PrinterList.h"
#include "app/TrayIcon.h"
#include "mainwindow/WPSGuide.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

// Tags of the two ways to connect.
constexpr int connectByUSB = 0;
constexpr int connectByWPS = 1;

}  // namespace

bool DWTPrinterSelector::DWT_Init() {
    return true;
}

void DWTPrinterSelector::DWT_Dealloc() {
    m_closings = {};
    dictionary_ViewManagement.reset();
    nsObjectRelease(msw_Object);
    delete window_PrinterSelector;
}

void DWTPrinterSelector::awakeFromNib() {
    DWT_UIInitialize();
    m_closings = NotificationCenter::shared().observe(
        DWT_MainDialog_Close_Message, [this](const Notification &n) { DWT_CloseMainDialog(n); });
}

void DWTPrinterSelector::DWT_UIInitialize() {
    QApplication::setWindowIcon(QIcon(u":/icons/network-setting-tool-64.png"_s));
    window_PrinterSelector = new Window;
    Ui::PrinterSelector::setupUi(window_PrinterSelector);
    window_Wait = new WaitWindow(window_PrinterSelector);
    view_Printerlist = new PrinterList(view_PrinterSelector);
    connect(view_Printerlist, &PrinterList::chosen, this, &DWTPrinterSelector::push_PrinterListOK);
    connect(view_Printerlist, &PrinterList::guideWanted, this,
            [this] { leaveFor(DWT_View_Key_ToolPerform); });
    connect(view_Printerlist, &PrinterList::left, this, &DWTPrinterSelector::push_PrinterListExit);
    dictionary_ViewManagement = std::make_unique<ViewStack>(view_PrinterSelector);
    dictionary_ViewManagement->add(DWT_View_Key_Printerlist, view_Printerlist);
    if (checkLunchedMode()) makeGuide();
    m_menu = new MainMenu(window_PrinterSelector);
    window_PrinterSelector->layout()->setMenuBar(m_menu);
    m_menu->localize();
    m_menu->actOnList(view_Printerlist->openButton(), view_Printerlist->lookAgainButton());
    connect(m_menu, &MainMenu::printerListChosen, this,
            [this] { leaveFor(DWT_View_Key_Printerlist); });
    connect(m_menu, &MainMenu::guideChosen, this, [this] { leaveFor(DWT_View_Key_ToolPerform); });
    window_PrinterSelector->setMinimumWidth(m_menu->sizeHint().width());
    m_tray = new TrayIcon(this);
    m_tray->watch(window_PrinterSelector);
    connect(m_tray, &TrayIcon::windowsWanted, this,
            [this] { applicationShouldHandleReopen(false); });
    connect(m_tray, &TrayIcon::quitWanted, this, [] { Application::terminate(); });
    window_PrinterSelector->setShouldClose([this] {
        windowWillClose();
        return true;
    });
    window_PrinterSelector->fitToScreen();
}

// Most starts show the list alone.
void DWTPrinterSelector::makeGuide() {
    Ui::ConnectGuide::setupUi(view_PrinterSelector);
    auto *const guide = new WPSGuide(view_PrinterSelector);
    ViewStack &views = *dictionary_ViewManagement;
    views.add(DWT_View_Key_ToolPerform, view_ToolPerform);
    views.add(DWT_View_Key_ChooseConnect, view_ChooseConnect);
    views.add(DWT_View_Key_USBConnect, view_USBConnect);
    views.add(DWT_View_Key_WPS1, guide->firstView());
    views.add(DWT_View_Key_WPS2, guide->secondView());
    using Self = DWTPrinterSelector;
    const auto pushes = [this](QAbstractButton *button, void (Self::*operation)()) {
        connect(button, &QAbstractButton::clicked, this, operation);
    };
    pushes(button_ToolPerformOK, &Self::push_ToolPerformOK);
    pushes(button_ToolPerformEXIT, &Self::push_ToolPerformExit);
    pushes(button_ChooseConnectNext, &Self::push_ChooseConnectNext);
    pushes(button_ChooseConnectEXIT, &Self::push_ChooseConnectExit);
    pushes(button_ChooseConnectBack, &Self::push_ChooseConnectBack);
    pushes(button_USBConnectNext, &Self::push_USBConnectNext);
    pushes(button_USBConnectBack, &Self::push_USBConnectBack);
    pushes(button_USBConnectEXIT, &Self::push_USBConnectExit);
    connect(guide, &WPSGuide::next1, this, &Self::push_WPSSetting1Next);
    connect(guide, &WPSGuide::back1, this, &Self::push_WPSSetting1Back);
    connect(guide, &WPSGuide::exit1, this, &Self::push_WPSSetting1Exit);
    connect(guide, &WPSGuide::next2, this, &Self::push_WPSSetting2Next);
    connect(guide, &WPSGuide::back2, this, &Self::push_WPSSetting2Back);
    connect(guide, &WPSGuide::exit2, this, &Self::push_WPSSetting2Exit);
    window_PrinterSelector->growToContents();
}

// A guide that the list led to is left, and does not end the tool.
void DWTPrinterSelector::nameExits() {
    if (!m_guideLeadsToList) return;
    for (QPushButton *button : view_PrinterSelector->findChildren<QPushButton *>())
        if (button->objectName().endsWith(u"EXIT"_s) && !view_Printerlist->isAncestorOf(button))
            button->setText(localized("DWT_Localize_Alert_Button_Cancel"));
}

// The window comes first.
void DWTPrinterSelector::applicationDidFinishLaunching() {
    window_PrinterSelector->bringToFront();
    DWT_UISelector(checkLunchedMode() ? DWT_View_Key_ToolPerform : DWT_View_Key_Printerlist);
}

bool DWTPrinterSelector::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (!hasVisibleWindows || window_PrinterSelector->isVisible())
        window_PrinterSelector->bringToFront();
    else if (show_mainDialog)
        msw_Object->window()->bringToFront();
    view_Printerlist->reloadData();
    return true;
}

int DWTPrinterSelector::applicationShouldTerminate() {
    if (!show_mainDialog) return terminateNow;
    return msw_Object->terminateNetworkTool() ? terminateNow : terminateCancel;
}

void DWTPrinterSelector::DWT_UISelector(const QString &viewKey) {
    if (!dictionary_ViewManagement->contains(viewKey)) makeGuide();
    dictionary_ViewManagement->select(viewKey);
    dictionary_ViewManagement->focusFirstControl();
    nameExits();
    if (viewKey != DWT_View_Key_Printerlist) return;
    view_Printerlist->setFocus();
    view_Printerlist->push_PrinterListReload();
}

void DWTPrinterSelector::DWT_CloseMainDialog(const Notification &notification) {
    const QVariantMap &info = notification.userInfo;
    if (info.isEmpty() || info.value(DWT_IsShowPrinterSelectDialog_Flag).toBool())
        window_PrinterSelector->bringToFront();
    view_Printerlist->resume();
    show_mainDialog = false;
}

void DWTPrinterSelector::DWT_ShowMainSettingWindow() {
    const PrinterEntry printer = view_Printerlist->selectedPrinter();
    if (printer.isEmpty()) return;
    msw_Object = make<DWTMainSettingWindow>();
    if (!msw_Object) return;
    bool opened = false;
    {
        const WaitSheet waiting = window_Wait->over(window_PrinterSelector);
        view_Printerlist->leave(printer);
        msw_Object->showWindow();
        Window *const opening = msw_Object->window();
        opening->layout()->setMenuBar(m_menu->shareWith(opening));
        m_tray->watch(opening);
        m_menu->actOnPrinter(*msw_Object);
        opened = msw_Object->initializeData(printer, window_Wait);
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

void DWTPrinterSelector::push_ChooseConnectNext() {
    const int chosen = matrix_ChooseConnectSelect->selectedTag();
    if (chosen == connectByUSB) DWT_UISelector(DWT_View_Key_USBConnect);
    if (chosen == connectByWPS) DWT_UISelector(DWT_View_Key_WPS1);
}
