#include "platform/ui/TableView.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>
#include <utility>

#include "platform/core/Texts.h"

namespace {

constexpr int DetailRole = Qt::UserRole;

// How much of its colour the text of a second line keeps, in hundredths: quieter than the first,
// and still with a contrast of more than 4.5 to 1.
constexpr int quiet = 70;

QColor mixed(const QColor &text, const QColor &base) {
    const auto part = [](int one, int other) {
        return (one * quiet + other * (100 - quiet)) / 100;
    };
    return {part(text.red(), base.red()), part(text.green(), base.green()),
            part(text.blue(), base.blue())};
}

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
        draw(detail, 1, selected ? colour : mixed(colour, option.palette.color(QPalette::Base)));
        painter->restore();
    }
};

}  // namespace

// The data source as Qt's model sees it.
class TableModel : public QAbstractTableModel {
  public:
    explicit TableModel(TableView *table) : QAbstractTableModel(table), m_table(table) {}

    TableDataSource *source = nullptr;
    QStringList identifiers;
    QStringList titles;

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(identifiers.size());
    }
    QVariant data(const QModelIndex &index, int role) const override {
        if (!source || !index.isValid()) return {};
        const QString &column = identifiers[index.column()];
        if (role == Qt::DecorationRole) {
            auto icon = m_icons.constFind({index.row(), index.column()});
            if (icon == m_icons.constEnd())
                icon = m_icons.insert(
                    {index.row(), index.column()},
                    readable(source->iconForTableColumn(m_table, column, index.row())));
            return *icon;
        }
        if (role == DetailRole || role == Qt::AccessibleDescriptionRole)
            return shownText(source->detailForTableColumn(m_table, column, index.row()));
        if (role != Qt::DisplayRole) return {};
        return shownText(
            source->objectValueForTableColumn(m_table, column, index.row()).toString());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return titles.value(section);
    }
    void addColumn(const QString &identifier) {
        beginResetModel();
        identifiers << identifier;
        titles << identifier;
        endResetModel();
    }
    void setTitle(const QString &identifier, const QString &title) {
        const auto column = static_cast<int>(identifiers.indexOf(identifier));
        if (column < 0) return;
        titles[column] = title;
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    }
    // Makes the icons anew, in the colours of now.
    void forgetIcons() { m_icons.clear(); }
    void reload() {
        beginResetModel();
        m_icons.clear();
        m_rows = source ? source->numberOfRowsInTableView(m_table) : 0;
        endResetModel();
    }

  private:
    // The icon with a further look for selected rows: in the colour of their text.
    QVariant readable(QIcon icon) const {
        if (icon.isNull()) return {};
        const int size = m_table->style()->pixelMetric(QStyle::PM_SmallIconSize);
        QPixmap selected = icon.pixmap(QSize(size, size), m_table->devicePixelRatioF());
        QPainter painter(&selected);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(selected.rect(), m_table->palette().color(QPalette::HighlightedText));
        painter.end();
        icon.addPixmap(selected, QIcon::Selected);
        return icon;
    }

    TableView *const m_table;
    int m_rows = 0;
    mutable QHash<std::pair<int, int>, QVariant> m_icons;  // by row and column
};

TableView::TableView(QWidget *parent) : QTableView(parent), m_model(new TableModel(this)) {
    setModel(m_model);
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
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (m_delegate) m_delegate->tableViewSelectionDidChange(this);
    });
}

void TableView::setTableDataSource(TableDataSource *source) {
    m_model->source = source;
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
    const int row = selectedRow();
    m_model->reload();
    if (row >= 0 && row < m_model->rowCount()) {
        const QSignalBlocker unchanged(selectionModel());
        QTableView::selectRow(row);
    } else if (row >= 0 && m_delegate) {
        m_delegate->tableViewSelectionDidChange(this);
    }
}

void TableView::setEmptyText(const QString &text) {
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QSize TableView::sizeHint() const {
    const QFontMetrics metrics(font());
    return {60 * metrics.averageCharWidth(), 14 * metrics.height()};
}

int TableView::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void TableView::selectRow(int row) {
    const auto flags = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    selectionModel()->setCurrentIndex(m_model->index(row, 0), flags);
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
        Q_EMIT doubleAction(indexAt(event->position().toPoint()).row());
}

void TableView::keyPressEvent(QKeyEvent *event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || selectedRow() < 0) return QTableView::keyPressEvent(event);
    event->accept();
    Q_EMIT doubleAction(selectedRow());
}

void TableView::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    if (m_model->rowCount() > 0 || m_emptyText.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    constexpr int margin = 12;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

QString TableView::wholeTextOf(const QModelIndex &index) {
    QStringList lines{index.data().toString(), index.data(DetailRole).toString()};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

// A text that its column cuts is shown whole, as plain text.
bool TableView::viewportEvent(QEvent *event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const bool cut =
        index.isValid() && sizeHintForIndex(index).width() > columnWidth(index.column());
    QToolTip::showText(help->globalPos(),
                       cut ? Qt::convertFromPlainText(wholeTextOf(index)) : QString(), viewport());
    return true;
}

QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const {
    auto *const table = const_cast<TableView *>(this);
    if (m_delegate && !m_delegate->selectionShouldChangeInTableView(table))
        return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}
