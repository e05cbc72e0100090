// An application with a window like the list of printers: the same widgets, texts and pictures in
// plain Qt, and nothing behind them.

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>

#include "FirstPaint.h"

namespace {

void addPrinters(QStandardItemModel &printers) {
    const struct {
        const char *name, *detail, *connection, *picture;
    } rows[] = {
        {"Packing-Desk", "Larkfield L200 · serial number A2E0117", "USB", ":/pictures/usb.svg"},
        {"Dispatch", "Larkfield L400 · serial number B4E0052", "USB", ":/pictures/usb.svg"},
        {"Loading-Bay-faulty", "Larkfield L200 · USB port 1-2", "USB", ":/pictures/usb.svg"},
        {"Does not answer", "Larkfield L200 · serial number A2E0243", "USB", ":/pictures/usb.svg"},
        {"Goods in (first floor)", "Larkfield L400 · 192.168.20.47", "Network",
         ":/pictures/network.svg"}};
    for (const auto &row : rows)
        printers.appendRow({new QStandardItem(QStringLiteral("%1\n%2").arg(
                                QString::fromUtf8(row.name), QString::fromUtf8(row.detail))),
                            new QStandardItem(QIcon(QString::fromUtf8(row.picture)),
                                              QString::fromUtf8(row.connection))});
}

}  // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const FirstPaint shown(nullptr);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/network-setting-tool-64.png")));
    QWidget window;
    window.setWindowTitle(QStringLiteral("Network Setting Tool"));
    QVBoxLayout layout(&window);
    QMenuBar menus;
    for (const char *title : {"&Application", "&Edit", "&Printer", "&Window", "&Help"})
        menus.addMenu(QString::fromUtf8(title))->addAction(QString::fromUtf8(title));
    layout.setMenuBar(&menus);
    QLabel said(
        QStringLiteral("Choose the printer whose settings you want to see. Settings can be changed "
                       "only on a printer that is connected over USB."));
    said.setWordWrap(true);
    layout.addWidget(&said);
    QStandardItemModel printers(0, 2);
    printers.setHorizontalHeaderLabels({QStringLiteral("Printer"), QStringLiteral("Connection")});
    QTableView table;
    table.setModel(&printers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setShowGrid(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(5 * table.fontMetrics().height() / 2);
    table.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    layout.addWidget(&table);
    QHBoxLayout buttons;
    QPushButton reload(QStringLiteral("&Look again")), close(QStringLiteral("&Close")),
        open(QStringLiteral("&Open"));
    buttons.addWidget(&reload);
    buttons.addStretch();
    buttons.addWidget(&close);
    buttons.addWidget(&open);
    open.setEnabled(false);
    layout.addLayout(&buttons);
    window.resize(382, 314);
    window.show();
    // As in the tool, the window comes first.
    QTimer::singleShot(0, &window, [&] { addPrinters(printers); });
    return QApplication::exec();
}
