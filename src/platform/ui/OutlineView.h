#pragma once

#include <QIcon>
#include <QTreeView>
#include <QVariantMap>

class OutlineView;
class OutlineModel;

// Gives an outline its contents. An item is a dictionary; an empty one stands for the root.
class OutlineDataSource {
  public:
    virtual ~OutlineDataSource() = default;
    virtual int numberOfChildrenOfItem(OutlineView *outline, const QVariantMap &item) = 0;
    virtual QVariantMap child(OutlineView *outline, int index, const QVariantMap &item) = 0;
    virtual bool isItemExpandable(OutlineView *outline, const QVariantMap &item) = 0;
    // What the cell shows; nothing for a column that the source does not know.
    virtual QVariant objectValueForTableColumn(OutlineView *outline, const QString &column,
                                               const QVariantMap &item) = 0;
    // A sign after the cell's text, and what it means; none by default.
    struct Mark {
        QIcon sign;
        QString meaning;
    };
    virtual Mark markOfItem(OutlineView *, const QVariantMap &) { return {}; }
};

// Asked before the user moves the selection.
class OutlineDelegate {
  public:
    virtual ~OutlineDelegate() = default;
    virtual bool shouldSelectItem(OutlineView *, const QVariantMap &) { return true; }
};

// A tree of one column from a data source. The keyboard's current item is the selected one.
class OutlineView : public QTreeView {
    Q_OBJECT
  public:
    explicit OutlineView(QWidget *parent = nullptr);

    // The identifier that the data source is asked with.
    void setColumn(const QString &identifier);

    // Neither is owned; both must outlive the outline or be taken away with a null pointer.
    void setOutlineDataSource(OutlineDataSource *source);
    void setOutlineDelegate(OutlineDelegate *delegate);

    // Fetches everything anew; every item is then collapsed and none selected.
    void reloadData();

    // Rows count the items that are visible, from the top, as they are expanded.
    int numberOfRows() const;
    int selectedRow() const;  // -1 when no item is selected
    // Expands the item of a row, and everything below it.
    void expandRow(int row);
    // Selects from code, without asking the delegate.
    void selectRow(int row);
    // Selects the item as the user does, expanding what is above it.
    void pickItem(const QVariantMap &item);
    // Fetches the marks of all items anew.
    void reloadMarks();

    // Makes the outline as wide as its widest item and a mark.
    void fitWidthToContents();

  protected:
    void focusInEvent(QFocusEvent *event) override;
    // The selected row is pale while the outline has no focus, and framed while it has it.
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

  private:
    QModelIndex indexAtRow(int row) const;

    OutlineModel *const m_model;
};
