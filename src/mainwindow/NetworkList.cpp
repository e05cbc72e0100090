#include "mainwindow/NetworkList.h"

#include <QShortcut>
#include <algorithm>

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

// Weakest signals (dBm) that count as strong and as middle.
constexpr int strongSignal = -66;
constexpr int middleSignal = -74;

// How strong a signal is said to be: its text and its picture.
struct Intensity {
    const char *key;
    const char *picture;
};

Intensity intensityOf(const SSIDEntry &network) {
    const int strength = integerValue(network, DWT_SSIDList_SignalStrength);
    if (strength >= strongSignal)
        return {"DWT_Localize_SSIDList_Intensity_Strong", ":/pictures/signal-strong.svg"};
    if (strength >= middleSignal)
        return {"DWT_Localize_SSIDList_Intensity_Middle", ":/pictures/signal-middle.svg"};
    return {"DWT_Localize_SSIDList_Intensity_Low", ":/pictures/signal-low.svg"};
}

}  // namespace

NetworkList::NetworkList(QWidget *parent) : ModalWindow(parent) {
    setupUi(this);
    const auto addColumn = [this](const QString &column, const QString &titleKey) {
        tableView_SelectSSIDWindow->addColumn(column);
        tableView_SelectSSIDWindow->setHeaderTitle(column, localized(titleKey));
    };
    addColumn(u"SSID"_s, u"DWT_Localize_SSIDList_TableView_Column_SSID"_s);
    addColumn(u"Security"_s, u"DWT_Localize_SSIDList_TableView_Column_Security"_s);
    addColumn(u"Intensity"_s, u"DWT_Localize_SSIDList_TableView_Column_Intensity"_s);
    tableView_SelectSSIDWindow->setTableDataSource(this);
    tableView_SelectSSIDWindow->setTableDelegate(this);
    connect(tableView_SelectSSIDWindow, &TableView::doubleAction, this,
            &NetworkList::MSW_DoubleAction);
    connect(button_SelectSSIDWindowOK, &QPushButton::clicked, this,
            &NetworkList::push_SelectSSIDWindowOK);
    connect(button_SelectSSIDWindowCancel, &QPushButton::clicked, this,
            &NetworkList::push_SelectSSIDWindowCancel);
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this,
            [this] { searchOver(this); });
}

NetworkList::~NetworkList() {
    tableView_SelectSSIDWindow->setTableDelegate(nullptr);
    tableView_SelectSSIDWindow->setTableDataSource(nullptr);
}

std::optional<SSIDEntry> NetworkList::pick(const Search &search) {
    m_search = search;
    array_SSIDList.clear();
    searchOver(parentWidget());
    tableView_SelectSSIDWindow->deselectAll();
    button_SelectSSIDWindowOK->setEnabled(false);
    tableView_SelectSSIDWindow->setFocus();
    const int row = Modal::run(this);
    return row < 0 ? std::nullopt : std::optional(array_SSIDList.at(row));
}

void NetworkList::searchOver(QWidget *window) {
    const Found found = m_search(window);
    tableView_SelectSSIDWindow->setEmptyText(localized(found.noneKey));
    if (found.networks) array_SSIDList = *found.networks;
    const auto stronger = [](const SSIDEntry &a, const SSIDEntry &b) {
        return integerValue(a, DWT_SSIDList_SignalStrength) >
               integerValue(b, DWT_SSIDList_SignalStrength);
    };
    std::stable_sort(array_SSIDList.begin(), array_SSIDList.end(), stronger);
    tableView_SelectSSIDWindow->reloadData();
}

QVariant NetworkList::objectValueForTableColumn(TableView *, const QString &column, int row) {
    const SSIDEntry network = array_SSIDList.value(row);
    if (column == u"SSID"_s) return readableText(textValue(network, DWT_SSIDList_SSID_String));
    if (column == u"Security"_s)
        return localized(integerValue(network, DWT_SSIDList_Encryption) != 0
                             ? u"DWT_Localize_SSIDList_Security_YES"_s
                             : u"DWT_Localize_SSIDList_Security_NO"_s);
    if (column == u"Intensity"_s) return localized(intensityOf(network).key);
    return {};
}

QString NetworkList::pictureForTableColumn(TableView *, const QString &column, int row) {
    if (column != u"Intensity"_s) return {};
    return QLatin1String(intensityOf(array_SSIDList.value(row)).picture);
}

QVariant NetworkList::sortValueForTableColumn(TableView *table, const QString &column, int row) {
    if (column != u"Intensity"_s) return objectValueForTableColumn(table, column, row);
    return integerValue(array_SSIDList.value(row), DWT_SSIDList_SignalStrength);
}

// Everything but the strength of the signal, which differs from one search to the next.
QString NetworkList::rowKeyInTableView(TableView *, int row) {
    const SSIDEntry network = array_SSIDList.value(row);
    QStringList key{QString::fromLatin1(bytesValue(network, DWT_SSIDList_SSID).toHex())};
    for (const QString &number :
         {DWT_SSIDList_WirelessMode, DWT_SSIDList_Authentic, DWT_SSIDList_Encryption})
        key << QString::number(integerValue(network, number));
    return key.join(u' ');
}

void NetworkList::tableViewSelectionDidChange(TableView *table) {
    button_SelectSSIDWindowOK->setEnabled(table->selectedRow() >= 0);
}

void NetworkList::MSW_SetSelectSSID() {
    const int row = tableView_SelectSSIDWindow->selectedRow();
    if (row >= 0) Modal::stop(this, row);
}
