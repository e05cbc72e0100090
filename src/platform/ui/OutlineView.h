#pragma once

#include <QTreeView>
#include <QVariantMap>
#include <memory>

class GatedSelectionModel;
class OutlineModel;
class OutlineView;

// Supplies the items of an outline. An item is a map; the empty map stands for the root, which is
// not shown.
struct OutlineDataSource {
    virtual ~OutlineDataSource() = default;
    // Asked for the root and for expandable items. The tree is finite.
    virtual int numberOfChildren(OutlineView *outline, const QVariantMap &item) = 0;
    // `index`: from 0, below the number of children of `item`.
    virtual QVariantMap child(OutlineView *outline, int index, const QVariantMap &item) = 0;
    virtual bool isItemExpandable(OutlineView *outline, const QVariantMap &item) = 0;
    // What `item` shows in `column` (an identifier).
    virtual QVariant objectValueForTableColumn(OutlineView *outline, const QString &column,
                                               const QVariantMap &item) = 0;
};

struct OutlineDelegate {
    virtual ~OutlineDelegate() = default;
    // Asked before the user moves the selection to `item`, once an attempt; false leaves selection
    // and current index where they are. May run windows of its own.
    virtual bool shouldSelectItem(OutlineView *, const QVariantMap &) { return true; }
    // False keeps `item` expanded.
    virtual bool shouldCollapseItem(OutlineView *, const QVariantMap &) { return true; }
};

// A tree of items, filled by a data source, of which one is selected. The user can move the
// selection but not take it away. Rows are counted from 0 as they are shown, from the top; rows
// inside a collapsed item do not count.
class OutlineView : public QTreeView {
    Q_OBJECT
  public:
    explicit OutlineView(QWidget *parent = nullptr);
    ~OutlineView() override;

    // Neither is owned; null takes it away. A new data source is asked at the next reload.
    void setDataSource(OutlineDataSource *source);
    void setDelegate(OutlineDelegate *delegate);

    // Adds a column at the right. A single column has no header.
    void addColumn(const QString &identifier);

    // Asks the data source anew; afterwards everything is collapsed and nothing is selected.
    void reloadData();

    int numberOfRows() const;
    // The item shown at `row`; an empty map when there is no such row.
    QVariantMap itemAtRow(int row) const;
    // Expands the item at `row`, with all items below it when asked to. Nothing without such a row.
    void expandRow(int row, bool withDescendants);
    // Selects without asking the delegate. Nothing without such a row.
    void selectRow(int row);
    // The selected row; -1 when none is selected or it is inside a collapsed item.
    int selectedRow() const;

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex &index, const QEvent *event = nullptr) const override;

  private:
    QModelIndexList visibleRows() const;

    const std::unique_ptr<OutlineModel> m_model;
    GatedSelectionModel *m_selection;  // owned by Qt
    OutlineDelegate *m_delegate = nullptr;
};
