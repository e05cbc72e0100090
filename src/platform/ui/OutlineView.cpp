#include "platform/ui/OutlineView.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <memory>
#include <vector>

#include "platform/ui/Colours.h"

// The data source as Qt's model sees it: the tree is fetched as a whole at every reload.
class OutlineModel : public QAbstractItemModel {
  public:
    explicit OutlineModel(OutlineView *outline) : QAbstractItemModel(outline), m_outline(outline) {}

    OutlineDataSource *source = nullptr;
    QString column;

    void reload() {
        beginResetModel();
        m_root = Node();
        if (source) fetch(m_root);
        endResetModel();
    }
    QVariantMap item(const QModelIndex &index) const { return node(index)->item; }

    QModelIndex index(int row, int column_, const QModelIndex &parent) const override {
        if (!hasIndex(row, column_, parent)) return {};
        return createIndex(row, column_, node(parent)->children[static_cast<size_t>(row)].get());
    }
    QModelIndex parent(const QModelIndex &index) const override {
        const Node *const above = index.isValid() ? node(index)->parent : nullptr;
        return above && above->parent ? createIndex(above->row, 0, above) : QModelIndex();
    }
    int rowCount(const QModelIndex &parent) const override {
        return static_cast<int>(node(parent)->children.size());
    }
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override {
        if (!source || !index.isValid()) return {};
        const QVariantMap &item = node(index)->item;
        switch (role) {
            case Qt::DisplayRole:
                return source->objectValueForTableColumn(m_outline, column, item);
            case Qt::DecorationRole:
                return node(index)->mark.sign;
            case Qt::ToolTipRole:
            case Qt::AccessibleDescriptionRole:
                return node(index)->mark.meaning;
            default:
                return {};
        }
    }
    // The index of an item at or below another; an invalid one when it is not there.
    QModelIndex find(const QVariantMap &item, const QModelIndex &top = {}) const {
        if (top.isValid() && node(top)->item == item) return top;
        for (int row = 0; row < rowCount(top); ++row)
            if (const QModelIndex found = find(item, index(row, 0, top)); found.isValid())
                return found;
        return {};
    }
    void reloadMarks(const QModelIndex &top = {}) {
        const int rows = rowCount(top);
        if (rows == 0) return;
        for (const auto &below : node(top)->children)
            below->mark = source->markOfItem(m_outline, below->item);
        Q_EMIT dataChanged(index(0, 0, top), index(rows - 1, 0, top),
                           {Qt::DecorationRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
        for (int row = 0; row < rows; ++row) reloadMarks(index(row, 0, top));
    }

  private:
    struct Node {
        QVariantMap item;
        OutlineDataSource::Mark mark;  // as it was fetched last
        Node *parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Node>> children;
    };

    void fetch(Node &above) {
        const bool isRoot = above.parent == nullptr;
        if (!isRoot && !source->isItemExpandable(m_outline, above.item)) return;
        const int count = source->numberOfChildrenOfItem(m_outline, above.item);
        for (int i = 0; i < count; ++i) {
            auto below = std::make_unique<Node>();
            below->item = source->child(m_outline, i, above.item);
            below->mark = source->markOfItem(m_outline, below->item);
            below->parent = &above;
            below->row = i;
            fetch(*below);
            above.children.push_back(std::move(below));
        }
    }
    const Node *node(const QModelIndex &index) const {
        return index.isValid() ? static_cast<const Node *>(index.constInternalPointer()) : &m_root;
    }

    OutlineView *const m_outline;
    Node m_root;
};

namespace {

// How much of the highlight's colour a selected row keeps without the focus, in hundredths.
constexpr int pale = 35;

// The room above and below a row's text, in pixels.
constexpr int rowMargin = 3;

// Draws the mark of an item after its text, with room for the frame of a row.
class MarkDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * rowMargin);
    }

  protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationPosition = QStyleOptionViewItem::Right;
    }
};

// Asks before the user's selection moves. Selection and current item move together or not at all.
class AskingSelection : public QItemSelectionModel {
  public:
    AskingSelection(OutlineModel *model, OutlineView *outline)
        : QItemSelectionModel(model, outline), m_outline(outline), m_model(model) {}

    OutlineDelegate *delegate = nullptr;
    bool asks = true;
    bool frozen = false;  // nothing moves

    void setCurrentIndex(const QModelIndex &index, SelectionFlags) override {
        if (frozen || !index.isValid() || index == currentIndex() || !mayMoveTo(index)) return;
        QItemSelectionModel::setCurrentIndex(index, ClearAndSelect);
    }
    // The view selects what it has just made current; nothing else is ever selected, and nothing is
    // deselected but by a reset.
    void select(const QModelIndex &index, SelectionFlags flags) override {
        if (m_resetting || (index == currentIndex() && flags.testFlag(Select)))
            QItemSelectionModel::select(index, flags);
    }
    void select(const QItemSelection &selection, SelectionFlags flags) override {
        const bool current = selection.size() == 1 && selection.contains(currentIndex());
        if (m_resetting || (current && flags.testFlag(Select)))
            QItemSelectionModel::select(selection, flags);
    }
    void reset() override {
        m_resetting = true;
        QItemSelectionModel::reset();
        m_resetting = false;
    }

  private:
    bool mayMoveTo(const QModelIndex &index) {
        return !asks || !delegate || delegate->shouldSelectItem(m_outline, m_model->item(index));
    }

    OutlineView *const m_outline;
    OutlineModel *const m_model;
    bool m_resetting = false;
};

AskingSelection *selectionOf(const OutlineView *outline) {
    return static_cast<AskingSelection *>(outline->selectionModel());
}

}  // namespace

OutlineView::OutlineView(QWidget *parent) : QTreeView(parent), m_model(new OutlineModel(this)) {
    setModel(m_model);
    QItemSelectionModel *const plain = selectionModel();
    setSelectionModel(new AskingSelection(m_model, this));
    delete plain;
    setItemDelegate(new MarkDelegate(this));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHeaderHidden(true);
    setExpandsOnDoubleClick(true);
}

void OutlineView::setColumn(const QString &identifier) {
    m_model->column = identifier;
}

void OutlineView::setOutlineDataSource(OutlineDataSource *source) {
    m_model->source = source;
    reloadData();
}

void OutlineView::setOutlineDelegate(OutlineDelegate *delegate) {
    selectionOf(this)->delegate = delegate;
}

void OutlineView::reloadData() {
    m_model->reload();
}

int OutlineView::numberOfRows() const {
    int rows = 0;
    for (QModelIndex index = indexAtRow(0); index.isValid(); index = indexBelow(index)) ++rows;
    return rows;
}

int OutlineView::selectedRow() const {
    int row = 0;
    for (QModelIndex index = indexAtRow(0); index.isValid(); index = indexBelow(index), ++row)
        if (selectionModel()->isSelected(index)) return row;
    return -1;
}

void OutlineView::expandRow(int row) {
    expandRecursively(indexAtRow(row));
}

void OutlineView::selectRow(int row) {
    AskingSelection *const selection = selectionOf(this);
    selection->asks = false;
    setCurrentIndex(indexAtRow(row));
    selection->asks = true;
}

void OutlineView::pickItem(const QVariantMap &item) {
    setCurrentIndex(m_model->find(item));
}

void OutlineView::reloadMarks() {
    m_model->reloadMarks();
}

void OutlineView::fitWidthToContents() {
    const int scrollBar = verticalScrollBar()->sizeHint().width();
    const int mark = style()->pixelMetric(QStyle::PM_SmallIconSize) +
                     2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    setFixedWidth(sizeHintForColumn(0) + mark + 2 * frameWidth() + scrollBar);
}

// A view without a current item takes its first one when it gets the focus; here that would be a
// selection that nobody made.
void OutlineView::focusInEvent(QFocusEvent *event) {
    selectionOf(this)->frozen = true;
    QTreeView::focusInEvent(event);
    selectionOf(this)->frozen = false;
}

void OutlineView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    QStyleOptionViewItem row = option;
    QPalette &colours = row.palette;
    if (!hasFocus()) {
        colours.setColor(QPalette::Highlight, mixed(colours.color(QPalette::Highlight),
                                                    colours.color(QPalette::Base), pale));
        colours.setColor(QPalette::HighlightedText, colours.color(QPalette::Text));
    }
    QTreeView::drawRow(painter, row, index);
    if (!hasFocus() || index != currentIndex()) return;
    painter->save();
    painter->setPen(colours.color(QPalette::HighlightedText));
    painter->drawRect(row.rect.adjusted(1, 1, -2, -2));
    painter->restore();
}

QModelIndex OutlineView::indexAtRow(int row) const {
    QModelIndex index = m_model->index(0, 0, {});
    for (; index.isValid() && row > 0; --row) index = indexBelow(index);
    return index;
}
