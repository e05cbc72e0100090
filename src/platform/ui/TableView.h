#pragma once

#include <QTableView>
#include <memory>

class GatedSelectionModel;
class TableView;

// Supplies the rows of a table.
struct TableDataSource {
    virtual ~TableDataSource() = default;
    virtual int numberOfRowsInTableView(TableView *tableView) = 0;
    // What the cell in `column` (an identifier) of `row` (0 or more, below the number of rows at
    // the last reload) shows; an invalid value shows nothing.
    virtual QVariant objectValueForTableColumn(TableView *tableView, const QString &column,
                                               int row) = 0;
};

struct TableDelegate {
    virtual ~TableDelegate() = default;
    // Asked before the user moves the selection; false leaves it where it is.
    virtual bool selectionShouldChangeInTableView(TableView *) { return true; }
    // The selection was moved, by the user or from code, or a reload has dropped its row.
    virtual void tableViewSelectionDidChange(TableView *) {}
};

// A table of whole rows, of which at most one is selected, filled by a data source. Cells whose
// text is cut off show it whole in a tool tip.
class TableView : public QTableView {
    Q_OBJECT
  public:
    explicit TableView(QWidget *parent = nullptr);
    ~TableView() override;

    // Neither is owned; null takes it away. A new data source is asked at the next reload.
    void setDataSource(TableDataSource *source);
    void setDelegate(TableDelegate *delegate);

    // Adds a column at the right; its title is the identifier until setHeaderTitle().
    void addColumn(const QString &identifier);
    // Nothing when there is no such column.
    void setHeaderTitle(const QString &identifier, const QString &title);
    QStringList columnIdentifiers() const;

    // Asks the data source anew. The selected row stays selected if there still is one of its
    // number.
    void reloadData();

    // Number of the selected row, from 0; -1 when none is selected.
    int selectedRow() const;
    // Selects without asking the delegate; a row that does not exist deselects all.
    void selectRow(int row);
    void deselectAll();

  Q_SIGNALS:
    // A double click on a row, or Return with a row selected. -1 for a double click on the header
    // or below the last row.
    void doubleAction(int clickedRow);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

  private:
    class Model;
    void showToolTip(const QPoint &position, const QPoint &globalPosition);

    const std::unique_ptr<Model> m_model;
    GatedSelectionModel *m_selection;  // owned by Qt
    TableDelegate *m_delegate = nullptr;
    bool m_reloading = false;
};
