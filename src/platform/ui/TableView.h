#pragma once

#include <QIcon>
#include <QTableView>

class TableView;
class TableModel;

// Gives a table its contents.
class TableDataSource {
  public:
    virtual ~TableDataSource() = default;
    virtual int numberOfRowsInTableView(TableView *table) = 0;
    // What the cell shows; nothing for a column that the source does not know.
    virtual QVariant objectValueForTableColumn(TableView *table, const QString &column,
                                               int row) = 0;
    // A second, quieter line below the cell's text, in a table that has room for it; none by
    // default.
    virtual QString detailForTableColumn(TableView *, const QString &, int) { return {}; }
    // The picture before the cell's text; none by default.
    virtual QIcon iconForTableColumn(TableView *, const QString &, int) { return {}; }
};

// Asked before the selection moves, and told afterwards.
class TableDelegate {
  public:
    virtual ~TableDelegate() = default;
    virtual bool selectionShouldChangeInTableView(TableView *) { return true; }
    virtual void tableViewSelectionDidChange(TableView *) {}
};

// A table whose columns are named and whose contents come from a data source. One whole row may be
// selected.
class TableView : public QTableView {
    Q_OBJECT
  public:
    explicit TableView(QWidget *parent = nullptr);

    // Neither is owned; both must outlive the table or be taken away with a null pointer.
    void setTableDataSource(TableDataSource *source);
    void setTableDelegate(TableDelegate *delegate) { m_delegate = delegate; }

    // Appends a column; its header is the identifier until it gets a title. The first column takes
    // the room that the others, as wide as their contents, leave.
    void addColumn(const QString &identifier);
    void setHeaderTitle(const QString &identifier, const QString &title);

    // Gives every row room for a second line.
    void setHasDetails();

    // Fetches everything anew. The selection stays while its row remains.
    void reloadData();

    // What stands in the place of the rows while there are none.
    void setEmptyText(const QString &text);

    // Room for about 60 characters and half a dozen rows.
    QSize sizeHint() const override;

    // -1 when no row is selected.
    int selectedRow() const;
    // Selects a row from code, without asking the delegate whether it may; it is told.
    void selectRow(int row);
    void deselectAll();

  Q_SIGNALS:
    // Double click, or Return on the selected row; -1 on the header or the empty area.
    void doubleAction(int clickedRow);

  protected:
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

  private:
    static QString wholeTextOf(const QModelIndex &index);

    TableModel *const m_model;
    TableDelegate *m_delegate = nullptr;
    QString m_emptyText;
};
