// The outline of the pages, their marks, and what the pages show as a whole.

#include <QStyle>
#include <algorithm>

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

// Marks a page with unsent changes.
QIcon changeSign() {
    return QIcon(u":/pictures/changed.svg"_s);
}

// Marks a page with a fault; in its own colours on the selected row, too.
QIcon faultSign(const QStyle &style) {
    const int side = style.pixelMetric(QStyle::PM_SmallIconSize);
    const QPixmap sign = style.standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(side, side));
    QIcon icon(sign);
    icon.addPixmap(sign, QIcon::Selected);
    return icon;
}

}  // namespace

void DWTMainSettingWindow::loadOutline() {
    dictionary_OutlineView = PropertyList::dictionary(u"OutlineData"_s, u"plist"_s);
    m_pageItems = pageItemsIn(dictionary_OutlineView);
    outlineView_Main->setColumn(u"name"_s);
    outlineView_Main->setOutlineDataSource(this);
    outlineView_Main->setOutlineDelegate(this);
    outlineView_Main->reloadData();
    for (int row = outlineView_Main->numberOfRows() - 1; row >= 0; --row)
        outlineView_Main->expandRow(row);
    outlineView_Main->fitWidthToContents();
}

QList<QVariantMap> DWTMainSettingWindow::pageItemsIn(const QVariantMap &item) {
    QList<QVariantMap> items;
    if (!viewKeyOf(item).isEmpty()) items << item;
    for (const QVariant &child : item.value(u"child"_s).toList())
        items << pageItemsIn(child.toMap());
    return items;
}

void DWTMainSettingWindow::followEdits() {
    const int mode = wireless_ViewObject->wirelessCommunicateMode();
    infrastructure_ViewObject->showIsUsed(mode == CommunicationMode::Infrastructure);
    simpleAP_ViewObject->showIsUsed(mode == CommunicationMode::AccessPoint);
    m_plan = shownPlan();
    outlineView_Main->reloadMarks();
    Q_EMIT editsFollowed();
}

void DWTMainSettingWindow::askPasswordState() {
    if (!bool_GetDataSuccess || password_ViewObject->isStateKnown()) return;
    const WaitSheet waiting = window_Wait->over(window_Main);
    const int state = dataManager_Object->isPassword();
    password_ViewObject->showPasswordState(state);
}

DWTBaseView *DWTMainSettingWindow::shownPage() const {
    return dictionary_ViewManagement.value(MSW_SelectedUIString().value_or(QString())).get();
}

QAbstractButton *DWTMainSettingWindow::buttonOfPage(const QString &end) const {
    const DWTBaseView *const page = shownPage();
    const auto buttons = page ? page->mainCustomView()->findChildren<QAbstractButton *>()
                              : QList<QAbstractButton *>();
    const auto found = std::find_if(
        buttons.begin(), buttons.end(),
        [&](const QAbstractButton *button) { return button->objectName().endsWith(end); });
    return found == buttons.end() ? nullptr : *found;
}

QAbstractButton *DWTMainSettingWindow::testButton() const {
    return buttonOfPage(u"Connect"_s);
}

QAbstractButton *DWTMainSettingWindow::chooseNetworkButton() const {
    return buttonOfPage(u"SelectSSID"_s);
}

bool DWTMainSettingWindow::canRevertPage() const {
    DWTBaseView *const page = shownPage();
    return page && bool_GetDataSuccess &&
           (page->hasFault() || !page->itemCheckDifferentToDataManager());
}

void DWTMainSettingWindow::revertPage() {
    if (DWTBaseView *const page = shownPage()) page->revert();
    followEdits();
}

void DWTMainSettingWindow::goToPage(const QString &viewKey) {
    for (const QVariantMap &item : std::as_const(m_pageItems))
        if (viewKeyOf(item) == viewKey) outlineView_Main->pickItem(item);
}

SettingRecord DWTMainSettingWindow::shownRecord() const {
    SettingRecord record;
    for (const auto &page : dictionary_ViewManagement)
        record.insert(page->viewKey(), page->shownCategory());
    return record;
}

Plan DWTMainSettingWindow::shownPlan() const {
    if (!dataManager_Object) return {};
    Plan plan = planOf(dataManager_Object->savedData(), shownRecord());
    for (const auto &page : dictionary_ViewManagement) plan.warnings << page->ownWarnings();
    return plan;
}

int DWTMainSettingWindow::numberOfChildrenOfItem(OutlineView *, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return int(node.value(u"child"_s).toList().size());
}

QVariantMap DWTMainSettingWindow::child(OutlineView *, int index, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return node.value(u"child"_s).toList().value(index).toMap();
}

bool DWTMainSettingWindow::isItemExpandable(OutlineView *, const QVariantMap &item) {
    const QVariantMap &node = item.isEmpty() ? dictionary_OutlineView : item;
    return node.contains(u"child"_s);
}

QVariant DWTMainSettingWindow::objectValueForTableColumn(OutlineView *, const QString &column,
                                                         const QVariantMap &item) {
    if (column != u"name"_s) return {};
    return localized(item.value(u"name"_s).toString());
}

DWTMainSettingWindow::Mark DWTMainSettingWindow::markOfItem(OutlineView *,
                                                            const QVariantMap &item) {
    const auto page = dictionary_ViewManagement.value(viewKeyOf(item));
    if (!page || !bool_GetDataSuccess) return {};
    if (page->hasFault())
        return {faultSign(*window_Main->style()), localized("DWT_Localize_Outline_Fault")};
    if (m_plan.changesPage(page->viewKey()))
        return {changeSign(), localized("DWT_Localize_Outline_Changed")};
    return {};
}

// Leaving a page stores its values, whatever they are; they are checked when they are sent.
bool DWTMainSettingWindow::shouldSelectItem(OutlineView *, const QVariantMap &item) {
    if (!item.value(u"select"_s).toBool()) return false;
    if (!item.contains(u"viewID"_s)) return true;
    const QString viewKey = viewKeyOf(item);
    const std::optional<QString> shown = MSW_SelectedUIString();
    if (viewKey == shown) return false;
    if (bool_usbPrinter && shown) dictionary_ViewManagement[*shown]->itemSetToDataManager();
    MSW_UISelector(viewKey);
    if (viewKey == DWT_View_Key_Password) askPasswordState();
    Q_EMIT editsFollowed();
    return true;
}
