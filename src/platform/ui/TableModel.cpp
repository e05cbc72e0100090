#include "platform/ui/TableModel.h"

#include <QKeySequence>
#include <QPainter>
#include <algorithm>

#include "platform/core/Texts.h"
#include "platform/ui/TableView.h"

namespace {

// Orders names by the rules of the language, "2" before "10"; without one as English does.
QCollator collatorOfNames() {
    QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

}  // namespace

TableModel::TableModel(TableView *table)
    : QAbstractTableModel(table), m_table(table), m_collator(collatorOfNames()) {}

QVariant TableModel::data(const QModelIndex &index, int role) const {
    if (!m_source || !index.isValid()) return {};
    const QString &column = m_identifiers[index.column()];
    if (role == Qt::DecorationRole) {
        const QString picture = m_source->pictureForTableColumn(m_table, column, index.row());
        if (picture.isEmpty()) return {};
        auto icon = m_icons.constFind(picture);
        if (icon == m_icons.constEnd()) icon = m_icons.insert(picture, readable(QIcon(picture)));
        return *icon;
    }
    if (role == DetailRole || role == Qt::AccessibleDescriptionRole)
        return shownText(m_source->detailForTableColumn(m_table, column, index.row()));
    if (role != Qt::DisplayRole) return {};
    return shownText(m_source->objectValueForTableColumn(m_table, column, index.row()).toString());
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return m_titles.value(section);
    if (role != Qt::ToolTipRole) return {};
    const QKeySequence keys(TableView::sortKeyOfColumn(section));
    return localized("DWT_Localize_Table_Sort").arg(keys.toString(QKeySequence::NativeText));
}

void TableModel::addColumn(const QString &identifier) {
    beginResetModel();
    m_identifiers << identifier;
    m_titles << identifier;
    endResetModel();
}

void TableModel::setTitle(const QString &identifier, const QString &title) {
    const auto column = static_cast<int>(m_identifiers.indexOf(identifier));
    if (column < 0) return;
    m_titles[column] = title;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void TableModel::reload() {
    beginResetModel();
    m_sortKeys.clear();
    m_rows = m_source ? m_source->numberOfRowsInTableView(m_table) : 0;
    endResetModel();
}

QString TableModel::keyOf(int row) const {
    return m_source ? m_source->rowKeyInTableView(m_table, row) : QString();
}

int TableModel::rowOf(const QString &key) const {
    for (int row = 0; row < m_rows && !key.isEmpty(); ++row)
        if (keyOf(row) == key) return row;
    return -1;
}

bool TableModel::precedes(int row, int other, int column) const {
    const SortKey key = sortKeyOf({row, column});
    return key < sortKeyOf({other, column});
}

bool TableModel::contains(int row, const QStringList &words) const {
    if (words.isEmpty()) return true;
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column)
        for (const int role : {int{Qt::DisplayRole}, DetailRole})
            texts << data(index(row, column), role).toString();
    const QString shown = texts.join(u'\n');
    return std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return shown.contains(word, Qt::CaseInsensitive);
    });
}

// The icon with a further look for selected rows: in the colour of their text.
QIcon TableModel::readable(QIcon icon) const {
    const int size = m_table->style()->pixelMetric(QStyle::PM_SmallIconSize);
    QPixmap selected = icon.pixmap(QSize(size, size), m_table->devicePixelRatioF());
    QPainter painter(&selected);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(selected.rect(), m_table->palette().color(QPalette::HighlightedText));
    painter.end();
    icon.addPixmap(selected, QIcon::Selected);
    return icon;
}

const TableModel::SortKey &TableModel::sortKeyOf(const Cell &cell) const {
    auto key = m_sortKeys.constFind(cell);
    if (key == m_sortKeys.constEnd()) {
        const QVariant value =
            m_source->sortValueForTableColumn(m_table, m_identifiers[cell.second], cell.first);
        key = m_sortKeys.insert(cell, value.typeId() == QMetaType::Int
                                          ? SortKey(value.toInt())
                                          : SortKey(m_collator.sortKey(value.toString())));
    }
    return *key;
}

ShownRows::ShownRows(TableModel *model) : QSortFilterProxyModel(model), m_model(model) {
    setSourceModel(model);
}

bool ShownRows::filterAcceptsRow(int row, const QModelIndex &) const {
    return m_model->contains(row, m_words);
}

bool ShownRows::lessThan(const QModelIndex &left, const QModelIndex &right) const {
    return m_model->precedes(left.row(), right.row(), left.column());
}
