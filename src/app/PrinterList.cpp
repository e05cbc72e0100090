#include "app/PrinterList.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "platform/ui/Window.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

namespace {

// Columns of the table, under the names of their identifiers.
// NOLINTBEGIN(bugprone-reserved-identifier)
const QString _MODEL_NAME_ = u"_MODEL_NAME_"_s;
const QString _SERVICE_NAME_ = u"_SERVICE_NAME_"_s;
// NOLINTEND(bugprone-reserved-identifier)

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
        return installer ? u"DWT_Localize_PrinterList_Empty_USB"_s
                         : u"DWT_Localize_PrinterList_Empty"_s;
    if (isOnly(PrinterProblem::EmptyCatalogue))
        return u"DWT_Localize_PrinterList_Empty_Catalogue"_s;
    if (isOnly(PrinterProblem::NoNetworkService))
        return u"DWT_Localize_PrinterList_Empty_NoNetwork"_s;
    return u"DWT_Localize_PrinterList_Empty_Problems"_s;
}

}  // namespace

PrinterList::PrinterList(QWidget *parent) : QWidget(parent) {
    setupUi(this);
    TableView &table = *tableView_Printerlist;
    const auto addColumn = [&](const QString &column, const QString &titleKey) {
        table.addColumn(column);
        table.setHeaderTitle(column, localized(titleKey));
    };
    addColumn(_MODEL_NAME_, u"DWT_Localize_PrinterList_TableView_Name_Column"_s);
    addColumn(_SERVICE_NAME_, u"DWT_Localize_PrinterList_TableView_Service_Column"_s);
    table.setHasDetails();
    table.setNoMatchText(localized("DWT_Localize_PrinterList_NoMatch"));
    table.setTableDataSource(this);
    table.setTableDelegate(this);
    m_connect =
        new QPushButton(localized("DWT_Localize_PrinterList_Button_Connect"), table.viewport());
    m_connect->setObjectName(u"button_PrinterlistConnect"_s);
    m_connect->hide();
    connect(m_connect, &QPushButton::clicked, this, &PrinterList::guideWanted);
    textField_PrinterlistFilter->setTable(&table);
    textField_PrinterlistFilter->hide();
    view_Problems->hide();
    setFocusProxy(&table);
    m_showing.setSingleShot(true);
    m_showing.callOnTimeout([this] { showWhatIsKnown(); });
    m_looking.callOnTimeout([this] { followPrinters(); });
    connect(&table, &TableView::doubleAction, this, &PrinterList::DWT_DoubleAction);
    connect(button_PrinterlistOK, &QPushButton::clicked, this, &PrinterList::chosen);
    connect(button_PrinterlistReload, &QPushButton::clicked, this,
            &PrinterList::push_PrinterListReload);
    connect(button_PrinterlistEXIT, &QPushButton::clicked, this, &PrinterList::left);
}

PrinterList::~PrinterList() {
    tableView_Printerlist->setTableDelegate(nullptr);
    tableView_Printerlist->setTableDataSource(nullptr);
}

void PrinterList::push_PrinterListReload() {
    m_names.askAgain();
    DWT_UpdatePrinterList();
    tableView_Printerlist->deselectAll();
    button_PrinterlistOK->setEnabled(false);
}

void PrinterList::DWT_UpdatePrinterList() {
    if (!ndm_Object) ndm_Object = make<DWTDataManager>();
    array_PrinterList = ndm_Object->printerList().value_or(QList<PrinterEntry>());
    m_isComplete = Printers::isListComplete();
    m_names.ask(array_PrinterList);
    showWhatIsKnown();
    m_looking.start(lookInterval);
}

void PrinterList::showWhatIsKnown() {
    if (m_isComplete)
        tableView_Printerlist->setEmptyText(
            localized(keyOfEmptyList(Printers::problems(), ndm_Object->checkLunchedMode())),
            m_connect);
    else
        tableView_Printerlist->setEmptyText(localized("DWT_Localize_PrinterList_Searching"));
    reloadData();
    growWithRows();
    showPart(textField_PrinterlistFilter, array_PrinterList.size() > printersAtAGlance ||
                                              !textField_PrinterlistFilter->text().isEmpty());
    showProblems();
}

// Once for what was not wished for before, so that the user may make the window smaller.
void PrinterList::growWithRows() {
    const QSize wish = tableView_Printerlist->sizeHint().expandedTo(m_widest);
    if (wish == m_widest || !isVisible()) return;
    m_widest = wish;
    tableView_Printerlist->updateGeometry();
    static_cast<Window *>(window())->growToContents();
}

bool PrinterList::isLooking() const {
    return !m_isComplete || m_names.isAsking() || m_showing.isActive();
}

void PrinterList::followPrinters() {
    const bool idle = isVisible() && !window()->isMinimized() &&
                      !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
    if (idle && (Printers::hasListChanged() || m_isComplete != Printers::isListComplete()))
        DWT_UpdatePrinterList();
}

void PrinterList::showProblems() {
    QList<PrinterProblem> problems = Printers::problems();
    problems.removeIf([](const PrinterProblem &problem) {  // which the list itself says
        return problem.kind == PrinterProblem::EmptyCatalogue;
    });
    QStringList lines;
    for (const PrinterProblem &problem : problems.first(std::min(shownProblems, problems.size())))
        lines << wordsOf(problem);
    if (problems.size() > shownProblems) lines << u"… (+%1)"_s.arg(problems.size() - shownProblems);
    textField_Problems->setText(lines.join(u'\n'));
    showPart(view_Problems, !lines.isEmpty());
}

void PrinterList::showPart(QWidget *part, bool shown) {
    const bool isNew = shown && part->isHidden();
    part->setVisible(shown);
    if (isNew) static_cast<Window *>(window())->growToContents();
}

PrinterEntry PrinterList::selectedPrinter() const {
    return m_names.named(array_PrinterList.value(tableView_Printerlist->selectedRow()));
}

// The name of a printer on USB, or why it is missing.
QString PrinterList::nameOf(const PrinterEntry &entry) const {
    switch (m_names.stateOf(entry)) {
        case PrinterNames::State::Asked:
            return localized("DWT_Localize_PrinterList_Name_Asked");
        case PrinterNames::State::Silent:
            return localized("DWT_Localize_PrinterList_Name_Silent");
        case PrinterNames::State::Known:
            break;
    }
    return readableText(m_names.named(entry).value(PrinterKey::MachineName));
}

QVariant PrinterList::objectValueForTableColumn(TableView *, const QString &column, int row) {
    if (row >= array_PrinterList.size()) return {};
    const PrinterEntry &entry = array_PrinterList[row];
    const bool network = entry.contains(PrinterKey::BonjourServiceName);
    if (column == _MODEL_NAME_ && !network) return nameOf(entry);
    if (column == _MODEL_NAME_) return entry.value(PrinterKey::BonjourServiceName);
    if (column == _SERVICE_NAME_)
        return localized(network ? u"DWT_Localize_PrinterList_BonjourService_Network"_s
                                 : u"DWT_Localize_PrinterList_BonjourService_USB"_s);
    return {};
}

QString PrinterList::detailForTableColumn(TableView *, const QString &column, int row) {
    if (column != _MODEL_NAME_) return {};
    const PrinterEntry entry = array_PrinterList.value(row);
    QStringList parts{entry.value(PrinterKey::ProductName), whereaboutsOf(entry)};
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

QString PrinterList::pictureForTableColumn(TableView *, const QString &column, int row) {
    if (column != _SERVICE_NAME_) return {};
    const bool network = array_PrinterList.value(row).contains(PrinterKey::BonjourServiceName);
    return network ? u":/pictures/network.svg"_s : u":/pictures/usb.svg"_s;
}

QString PrinterList::rowKeyInTableView(TableView *, int row) {
    return Printers::identityOf(array_PrinterList.value(row));
}

void PrinterList::tableViewSelectionDidChange(TableView *table) {
    button_PrinterlistOK->setEnabled(table->selectedRow() >= 0);
}
