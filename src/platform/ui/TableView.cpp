#include "platform/ui/TableView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>
#include <utility>

#include "platform/ui/Colours.h"
#include "platform/ui/ItemTip.h"
#include "platform/ui/TableModel.h"

namespace {

constexpr int DetailRole = TableModel::DetailRole;

// How much of its colour a second line keeps, in hundredths: a contrast above 4.5 to 1.
constexpr int quiet = 70;

// So many rows have a say in the width of a column, besides those in sight.
constexpr int rowsMeasured = 50;

// Around what stands in the place of the rows, in pixels.
constexpr int emptyMargin = 12;

// Draws a cell with a second line.
class DetailDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        const QSize first = QStyledItemDelegate::sizeHint(option, index);
        const QFontMetrics metrics(option.font);
        const int sides = first.width() - metrics.horizontalAdvance(index.data().toString());
        const int second = metrics.horizontalAdvance(index.data(DetailRole).toString()) + sides;
        return {std::max(first.width(), second), first.height() + metrics.height()};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &cell,
               const QModelIndex &index) const override {
        const QString detail = index.data(DetailRole).toString();
        if (detail.isEmpty()) return QStyledItemDelegate::paint(painter, cell, index);
        QStyleOptionViewItem option = cell;
        initStyleOption(&option, index);
        const QStyle *const style = option.widget->style();
        const QString text = std::exchange(option.text, {});
        style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const QColor colour =
            option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        const QFontMetrics &metrics = option.fontMetrics;
        const int top = room.top() + (room.height() - 2 * metrics.height()) / 2;
        const auto draw = [&](const QString &line, int number, const QColor &in) {
            painter->setPen(in);
            painter->drawText(
                QRect(room.left(), top + number * metrics.height(), room.width(), metrics.height()),
                Qt::AlignLeft | Qt::AlignVCenter,
                metrics.elidedText(line, Qt::ElideRight, room.width()));
        };
        painter->save();
        painter->setFont(option.font);
        draw(text, 0, colour);
        draw(detail, 1,
             selected ? colour : mixed(colour, option.palette.color(QPalette::Base), quiet));
        painter->restore();
    }
};

}  // namespace

TableView::TableView(QWidget *parent)
    : QTableView(parent), m_model(new TableModel(this)), m_shown(new ShownRows(m_model)) {
    setModel(m_shown);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [this] { Q_EMIT doubleAction(-1); });
    horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const int row = selectedRow();
        m_selectedKey = row < 0 ? QString() : m_model->keyOf(row);
        if (m_delegate) m_delegate->tableViewSelectionDidChange(this);
    });
}

void TableView::setTableDataSource(TableDataSource *source) {
    m_model->setSource(source);
    reloadData();
}

void TableView::addColumn(const QString &identifier) {
    m_model->addColumn(identifier);
    const int last = m_model->columnCount() - 1;
    horizontalHeader()->setSectionResizeMode(
        last, last == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void TableView::setHeaderTitle(const QString &identifier, const QString &title) {
    m_model->setTitle(identifier, title);
}

void TableView::setHasDetails() {
    setItemDelegate(new DetailDelegate(this));
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(5 * fontMetrics().height() / 2);
}

void TableView::reloadData() {
    const bool wasSelected = selectedRow() >= 0;
    m_model->reload();
    const int row = m_model->rowOf(m_selectedKey);
    if (indexOfRow(row).isValid())
        selectRow(row);
    else if (wasSelected && m_delegate)
        m_delegate->tableViewSelectionDidChange(this);
    sayWhyEmpty();
}

void TableView::setFilter(const QString &text) {
    m_shown->setWords(text.simplified().split(u' ', Qt::SkipEmptyParts));
    reloadData();
    if (selectedRow() < 0) m_selectedKey.clear();
}

void TableView::setEmptyText(const QString &text, QWidget *below) {
    m_emptyText = text;
    if (m_below && m_below != below) m_below->hide();
    m_below = below;
    sayWhyEmpty();
}

void TableView::setNoMatchText(const QString &text) {
    m_noMatchText = text;
    sayWhyEmpty();
}

void TableView::sayWhyEmpty() {
    setAccessibleDescription(emptyText());
    if (m_below) {
        m_below->setVisible(m_model->rowCount() == 0);
        placeBelow();
    }
    viewport()->update();
}

void TableView::placeBelow() {
    if (!m_below) return;
    const QSize wish = m_below->sizeHint();
    m_below->setGeometry((viewport()->width() - wish.width()) / 2,
                         viewport()->height() - wish.height() - emptyMargin, wish.width(),
                         wish.height());
}

void TableView::resizeEvent(QResizeEvent *event) {
    QTableView::resizeEvent(event);
    placeBelow();
}

QString TableView::emptyText() const {
    if (m_shown->rowCount() > 0) return {};
    return m_model->rowCount() > 0 ? m_noMatchText : m_emptyText;
}

QSize TableView::sizeHint() const {
    const QFontMetrics metrics(font());
    int wide = verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < m_shown->columnCount(); ++column)
        wide += std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    const int high = horizontalHeader()->sizeHint().height() +
                     m_shown->rowCount() * verticalHeader()->defaultSectionSize();
    const int frame = 2 * frameWidth();
    return {std::max(60 * metrics.averageCharWidth(), wide + frame),
            std::max(14 * metrics.height(), high + frame)};
}

QModelIndex TableView::indexOfRow(int row) const {
    return m_shown->mapFromSource(m_model->index(row, 0));
}

int TableView::selectedRow() const {
    return m_shown->mapToSource(selectionModel()->selectedRows().value(0)).row();
}

void TableView::selectRow(int row) {
    const auto flags = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    selectionModel()->setCurrentIndex(indexOfRow(row), flags);
}

void TableView::deselectAll() {
    selectionModel()->clear();
}

void TableView::changeEvent(QEvent *event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        m_model->forgetIcons();
    QTableView::changeEvent(event);
}

void TableView::mouseDoubleClickEvent(QMouseEvent *event) {
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleAction(m_shown->mapToSource(indexAt(event->position().toPoint())).row());
}

bool TableView::openSelected() {
    if (selectedRow() < 0 && m_shown->rowCount() == 1) setCurrentIndex(m_shown->index(0, 0));
    if (selectedRow() < 0) return false;
    Q_EMIT doubleAction(selectedRow());
    return true;
}

QKeyCombination TableView::sortKeyOfColumn(int column) {
    return Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + column);
}

bool TableView::sortByKey(QKeyCombination pressed) {
    QHeaderView &header = *horizontalHeader();
    for (int column = 0; column < m_shown->columnCount(); ++column) {
        if (pressed != sortKeyOfColumn(column)) continue;
        if (header.sortIndicatorSection() != column)
            header.setSortIndicator(column, Qt::AscendingOrder);
        else if (header.sortIndicatorOrder() == Qt::AscendingOrder)
            header.setSortIndicator(column, Qt::DescendingOrder);
        else
            header.setSortIndicator(-1, Qt::AscendingOrder);
        return true;
    }
    return false;
}

// The current cell of a table without a selection is one that nobody has chosen.
int TableView::rowReachedBy(int key) const {
    static const QSet<int> stepping{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                    Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown};
    if (key == Qt::Key_Home) return 0;
    if (key == Qt::Key_End) return m_shown->rowCount() - 1;
    return stepping.contains(key) && selectedRow() < 0 ? 0 : -1;
}

void TableView::keyPressEvent(QKeyEvent *event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && selectedRow() >= 0 && openSelected()) return;
    const int row = rowReachedBy(event->key());
    if (row >= 0)
        setCurrentIndex(m_shown->index(row, 0));
    else if (!sortByKey(event->keyCombination()))
        QTableView::keyPressEvent(event);
}

void TableView::keyboardSearch(const QString &search) {
    const QModelIndex current = currentIndex();
    if (current.column() > 0)
        selectionModel()->setCurrentIndex(current.siblingAtColumn(0),
                                          QItemSelectionModel::NoUpdate);
    QTableView::keyboardSearch(search);
}

void TableView::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    const QString text = emptyText();
    if (text.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const bool isBelow = m_below && !m_below->isHidden();
    const int bottom = isBelow ? m_below->y() : viewport()->height();
    painter.drawText(QRect(emptyMargin, emptyMargin, viewport()->width() - 2 * emptyMargin,
                           bottom - 2 * emptyMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

QString TableView::wholeTextOf(const QModelIndex &index) {
    QStringList lines{index.data().toString(), index.data(DetailRole).toString()};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

bool TableView::viewportEvent(QEvent *event) {
    return showItemTip(this, event, wholeTextOf) || QTableView::viewportEvent(event);
}

QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const {
    auto *const table = const_cast<TableView *>(this);
    if (m_delegate && !m_delegate->selectionShouldChangeInTableView(table))
        return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}
