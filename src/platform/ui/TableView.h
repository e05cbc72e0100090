#pragma once

#include <QIcon>
#include <QTableView>

class TableView;
class TableModel;
class ShownRows;

// Gives a table its contents. Rows count from 0 in the order of the source.
class TableDataSource {
  public:
    virtual ~TableDataSource() = default;
    virtual int numberOfRowsInTableView(TableView *table) = 0;
    // What the cell shows; nothing for a column that the source does not know.
    virtual QVariant objectValueForTableColumn(TableView *table, const QString &column,
                                               int row) = 0;
    // A second, quieter line of a cell, where the table has room; none by default.
    virtual QString detailForTableColumn(TableView *, const QString &, int) { return {}; }
    // The file of the picture before the cell's text; none by default.
    virtual QString pictureForTableColumn(TableView *, const QString &, int) { return {}; }
    // The value a column sorts by: an int, or a text compared as a name; by default the cell's
    // text.
    virtual QVariant sortValueForTableColumn(TableView *table, const QString &column, int row) {
        return objectValueForTableColumn(table, column, row);
    }
    // Identifies a row across reloads; not empty. By default the row itself.
    virtual QString rowKeyInTableView(TableView *, int row) { return QString::number(row); }
};

// Asked before the selection moves, and told afterwards.
class TableDelegate {
  public:
    virtual ~TableDelegate() = default;
    virtual bool selectionShouldChangeInTableView(TableView *) { return true; }
    virtual void tableViewSelectionDidChange(TableView *) {}
};

// A table of named columns from a data source. One row may be selected. A click on a header, or
// Ctrl and the column's number, sorts: ascending, descending, as the source. Rows are the source's.
class TableView : public QTableView {
    Q_OBJECT
  public:
    explicit TableView(QWidget *parent = nullptr);

    // Neither is owned; both must outlive the table or be taken away with a null pointer.
    void setTableDataSource(TableDataSource *source);
    void setTableDelegate(TableDelegate *delegate) { m_delegate = delegate; }

    // Appends a column, titled by its identifier at first. The first column takes the spare room.
    void addColumn(const QString &identifier);
    void setHeaderTitle(const QString &identifier, const QString &title);

    // Gives every row room for a second line.
    void setHasDetails();

    // Fetches everything anew; order, filter and the selected key stay, also over an absence.
    void reloadData();

    // Shows the rows that contain every word of `text`, in any case. A hidden row is deselected.
    void setFilter(const QString &text);

    // What stands in the place of the rows while there are none, and while the filter leaves none.
    // `below`, a part of the viewport, is shown under the former text alone.
    void setEmptyText(const QString &text, QWidget *below = nullptr);
    void setNoMatchText(const QString &text);

    // Room for all rows, whole; at least for about 60 characters and half a dozen rows.
    QSize sizeHint() const override;

    // -1 when no row is selected.
    int selectedRow() const;
    // Selects a row without asking the delegate, which is notified; nothing when the filter hides
    // it.
    void selectRow(int row);
    void deselectAll();
    // Opens the selected row, or the only one shown, as Return does. False when there is neither.
    bool openSelected();

    // The keys that sort by a column, counted from 0.
    static QKeyCombination sortKeyOfColumn(int column);

    // Looks in the first column, whichever cell was clicked.
    void keyboardSearch(const QString &search) override;

  Q_SIGNALS:
    // Double click, or Return on the selected row; -1 on the header or the empty area.
    void doubleAction(int clickedRow);

  protected:
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

  private:
    static QString wholeTextOf(const QModelIndex &index);
    QModelIndex indexOfRow(int row) const;
    // The shown row to which a key leads, when Qt's table would lead to another one; otherwise -1.
    int rowReachedBy(int key) const;
    bool sortByKey(QKeyCombination pressed);
    // What stands in the place of the rows now; empty while there are rows.
    QString emptyText() const;
    void sayWhyEmpty();
    void placeBelow();

    TableModel *const m_model;
    ShownRows *const m_shown;
    TableDelegate *m_delegate = nullptr;
    QString m_selectedKey;  // of the row that was selected last; empty for none
    QString m_emptyText;
    QWidget *m_below = nullptr;  // the empty text
    QString m_noMatchText;
};
