#include "platform/ui/OutlineView.h"

#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include "platform/ui/Colours.h"

// The data source as Qt's model sees it: the tree is fetched as a whole at every reload.
class OutlineModel : public QStandardItemModel {
  public:
    explicit OutlineModel(OutlineView *outline) : QStandardItemModel(outline), m_outline(outline) {}

    OutlineDataSource *source = nullptr;
    QString column;

    void reload() {
        clear();
        if (!source) return;
        fetchBelow(invisibleRootItem());
        reloadMarks(invisibleRootItem());
    }
    QVariantMap sourceItem(const QModelIndex &index) const { return index.data(ItemRole).toMap(); }
    // The index of an item; an invalid one when it is not there.
    QModelIndex find(const QVariantMap &item) const {
        return match(index(0, 0), ItemRole, item, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    // Fetches the marks of everything below an item.
    void reloadMarks(QStandardItem *above) {
        for (int row = 0; row < above->rowCount(); ++row) {
            QStandardItem *const below = above->child(row);
            const auto mark = source->markOfItem(m_outline, sourceItem(below->index()));
            below->setIcon(mark.sign);
            below->setToolTip(mark.meaning);
            below->setAccessibleDescription(mark.meaning);
            reloadMarks(below);
        }
    }

  private:
    static constexpr int ItemRole = Qt::UserRole;  // the item as the source knows it

    void fetchBelow(QStandardItem *above) {
        const QVariantMap item = sourceItem(above->index());
        if (!item.isEmpty() && !source->isItemExpandable(m_outline, item)) return;
        const int count = source->numberOfChildrenOfItem(m_outline, item);
        for (int i = 0; i < count; ++i) {
            auto *const below = new QStandardItem;
            const QVariantMap child = source->child(m_outline, i, item);
            below->setData(child, ItemRole);
            below->setText(source->objectValueForTableColumn(m_outline, column, child).toString());
            below->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            above->appendRow(below);
            fetchBelow(below);
        }
    }

    OutlineView *const m_outline;
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
        const QSize plain = QStyledItemDelegate::sizeHint(option, index);
        QStyleOptionViewItem marked = option;
        initStyleOption(&marked, index);
        marked.features |= QStyleOptionViewItem::HasDecoration;  // as high with a mark as without
        marked.decorationSize = option.decorationSize;
        const QSize size = marked.widget->style()->sizeFromContents(QStyle::CT_ItemViewItem,
                                                                    &marked, {}, marked.widget);
        return {plain.width(), size.height() + 2 * rowMargin};
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
        m_moves = true;
        QItemSelectionModel::setCurrentIndex(index, ClearAndSelect);
        m_moves = false;
    }
    // Nothing but the current item is ever selected, and nothing is deselected but by a reset.
    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags flags) override {
        if (m_moves) QItemSelectionModel::select(selection, flags);
    }
    void reset() override {
        m_moves = true;
        QItemSelectionModel::reset();
        m_moves = false;
    }

  private:
    bool mayMoveTo(const QModelIndex &index) {
        return !asks || !delegate ||
               delegate->shouldSelectItem(m_outline, m_model->sourceItem(index));
    }

    OutlineView *const m_outline;
    OutlineModel *const m_model;
    bool m_moves = false;
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
    int row = -1;
    for (QModelIndex index = currentIndex(); index.isValid(); index = indexAbove(index)) ++row;
    return row;
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
    m_model->reloadMarks(m_model->invisibleRootItem());
}

void OutlineView::fitWidthToContents() {
    const int scrollBar = verticalScrollBar()->sizeHint().width();
    const int mark = style()->pixelMetric(QStyle::PM_SmallIconSize) +
                     2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    setFixedWidth(sizeHintForColumn(0) + mark + 2 * frameWidth() + scrollBar);
}

// On focus, a view without a current item would take its first: a selection that nobody made.
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
    QModelIndex index = m_model->index(0, 0);
    for (; index.isValid() && row > 0; --row) index = indexBelow(index);
    return index;
}
