#pragma once

#include <QTimer>
#include <chrono>

#include "platform/ui/TableView.h"
#include "settings/DWTDataManager.h"
#include "settings/PrinterNames.h"
#include "ui_PrinterList.h"

// The table of printers with its filter, its reasons for being empty, and problems. It waits for
// nothing: rows come as they are known. Main thread only.
class PrinterList : public QWidget,
                    public TableDataSource,
                    public TableDelegate,
                    private Ui::PrinterList {
    Q_OBJECT
  public:
    // How often is looked for printers that came or went.
    static constexpr std::chrono::milliseconds lookInterval{500};

    // Empty at first. `parent`'s window is a Window.
    explicit PrinterList(QWidget *parent);
    ~PrinterList() override;

    // Fetches the list anew, asks every printer for its name, and selects nothing.
    void push_PrinterListReload();
    // Whether printers are still looked for, or asked for their names.
    bool isLooking() const;
    // Every lookInterval: fetches a changed list again, unless the user is busy elsewhere.
    void followPrinters();
    // Asks the table's contents anew; the list stays.
    void reloadData() { tableView_Printerlist->reloadData(); }
    // The selected printer; an empty entry when none is selected.
    PrinterEntry selectedPrinter() const;
    // The buttons that entries of a menu press, as long as the list lives.
    QAbstractButton *openButton() const { return button_PrinterlistOK; }
    QAbstractButton *lookAgainButton() const { return button_PrinterlistReload; }
    // Asks a printer nothing more, since it is to be opened.
    void leave(const PrinterEntry &printer) { m_names.leave(printer); }
    // Asks the printer that was left again: its name may be another one now.
    void resume() { m_names.ask(array_PrinterList); }

    int numberOfRowsInTableView(TableView *) override { return int(array_PrinterList.size()); }
    QVariant objectValueForTableColumn(TableView *table, const QString &column, int row) override;
    QString detailForTableColumn(TableView *table, const QString &column, int row) override;
    QString pictureForTableColumn(TableView *table, const QString &column, int row) override;
    QString rowKeyInTableView(TableView *table, int row) override;
    void tableViewSelectionDidChange(TableView *table) override;

  Q_SIGNALS:
    // The selected printer is to be opened.
    void chosen();
    // The user leaves the list.
    void left();
    // The user wants to know how a printer is connected.
    void guideWanted();

  private:
    void DWT_UpdatePrinterList();
    void showWhatIsKnown();
    void growWithRows();
    void DWT_DoubleAction(int clickedRow) {
        if (clickedRow >= 0) Q_EMIT chosen();
    }
    QString nameOf(const PrinterEntry &entry) const;
    // Says below the list why printers may be missing.
    void showProblems();
    // Shows or hides a part of the view; the window grows by one that appears.
    void showPart(QWidget *part, bool shown);

    std::shared_ptr<DWTDataManager> ndm_Object;
    QList<PrinterEntry> array_PrinterList;
    QPushButton *m_connect = nullptr;  // in the empty table
    QSize m_widest;                    // that the table wished for
    bool m_isComplete = false;         // nothing that is there is missing in it
    PrinterNames m_names{[this] { m_showing.start(); }};
    QTimer m_showing;  // what has come, once for all that comes at a time
    QTimer m_looking;  // for printers that come or go
};
