#pragma once

#include <QTimer>
#include <chrono>

#include "platform/ui/TableView.h"
#include "settings/DWTDataManager.h"
#include "ui_PrinterList.h"

class WaitWindow;

// The table of printers with its filter, its reasons for being empty, and problems. Main thread
// only.
class PrinterList : public QWidget,
                    public TableDataSource,
                    public TableDelegate,
                    private Ui::PrinterList {
    Q_OBJECT
  public:
    // How often is looked for printers that came or went.
    static constexpr std::chrono::milliseconds lookInterval{1000};

    // Empty at first. `parent`'s window is a Window; `wait` outlives the view.
    PrinterList(QWidget *parent, WaitWindow *wait);
    ~PrinterList() override;

    // Fetches the list anew and selects nothing in it.
    void push_PrinterListReload();
    // Every lookInterval: fetches a changed list again, unless the user is busy elsewhere.
    void followPrinters();
    // Asks the table's contents anew; the list stays.
    void reloadData() { tableView_Printerlist->reloadData(); }
    // The selected printer; an empty entry when none is selected.
    PrinterEntry selectedPrinter() const;

    int numberOfRowsInTableView(TableView *) override { return int(array_PrinterList.size()); }
    QVariant objectValueForTableColumn(TableView *table, const QString &column, int row) override;
    QString detailForTableColumn(TableView *table, const QString &column, int row) override;
    QIcon iconForTableColumn(TableView *table, const QString &column, int row) override;
    QString rowKeyInTableView(TableView *table, int row) override;
    void tableViewSelectionDidChange(TableView *table) override;

  Q_SIGNALS:
    // The selected printer is to be opened.
    void chosen();
    // The user leaves the list.
    void left();

  private:
    void DWT_UpdatePrinterList();
    void DWT_DoubleAction(int clickedRow) {
        if (clickedRow >= 0) Q_EMIT chosen();
    }
    // Says below the list why printers may be missing.
    void showProblems();
    // Shows or hides a part of the view; the window grows by one that appears.
    void showPart(QWidget *part, bool shown);

    WaitWindow *const window_Wait;
    std::shared_ptr<DWTDataManager> ndm_Object;
    QList<PrinterEntry> array_PrinterList;
    QTimer m_showing;  // the rows of printers that have just answered, once work lets windows paint
    QTimer m_looking;  // for printers that come or go
};
