#include "mainwindow/ChangeTable.h"

#include <QHeaderView>
#include <algorithm>
#include <numeric>

#include "platform/ui/ItemTip.h"

namespace {

// Between the narrowest that is easy to read and what still fits on a small screen, in characters.
constexpr int fewestCharacters = 52, mostCharacters = 100;

}  // namespace

ChangeTable::ChangeTable(QWidget *parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(style()->pixelMetric(QStyle::PM_SmallIconSize) / 2);
    setUniformRowHeights(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(false);
    header()->setStretchLastSection(true);
    hide();
}

void ChangeTable::setRows(const QStringList &titles, const QList<Row> &rows) {
    clear();
    setColumnCount(int(titles.size()));
    setHeaderLabels(titles);
    m_lines = 0;
    QTreeWidgetItem *group = nullptr;
    for (const Row &row : rows) {
        if (!group || group->text(0) != row.group) {
            group = new QTreeWidgetItem(this, {row.group});
            group->setFirstColumnSpanned(true);
            group->setFlags(Qt::ItemIsEnabled);
            QFont bold = font();
            bold.setBold(true);
            group->setFont(0, bold);
            ++m_lines;
        }
        new QTreeWidgetItem(group, row.cells);
        ++m_lines;
    }
    expandAll();
    fitColumns();
    setVisible(!rows.isEmpty());
    updateGeometry();
}

QSize ChangeTable::sizeHint() const {
    const int character = fontMetrics().averageCharWidth();
    int wide = 0;
    for (int column = 0; column < columnCount(); ++column) wide += wishOf(column);
    const int frame = 2 * frameWidth();
    const int row = topLevelItemCount() > 0 ? sizeHintForRow(0) : fontMetrics().lineSpacing();
    return {std::clamp(wide, fewestCharacters * character, mostCharacters * character) + frame,
            header()->sizeHint().height() + std::min(m_lines, shownRows) * row + frame};
}

QSize ChangeTable::minimumSizeHint() const {
    return {fewestCharacters * fontMetrics().averageCharWidth(), sizeHint().height()};
}

int ChangeTable::wishOf(int column) const {
    return std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
}

void ChangeTable::fitColumns() {
    int left = viewport()->width(), waiting = columnCount();
    QList<int> columns(columnCount());
    std::iota(columns.begin(), columns.end(), 0);
    std::sort(columns.begin(), columns.end(),
              [this](int a, int b) { return wishOf(a) < wishOf(b); });
    for (const int column : std::as_const(columns)) {
        const int width = std::min(wishOf(column), left / waiting--);
        header()->resizeSection(column, width);
        left -= width;
    }
}

void ChangeTable::resizeEvent(QResizeEvent *event) {
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

bool ChangeTable::viewportEvent(QEvent *event) {
    const auto wholeText = [](const QModelIndex &index) { return index.data().toString(); };
    return showItemTip(this, event, wholeText) || QTreeWidget::viewportEvent(event);
}
