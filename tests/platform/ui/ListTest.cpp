#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTest>

#include "platform/ui/OutlineView.h"
#include "platform/ui/TableView.h"

namespace {

class Table : public testing::Test, public TableDataSource, public TableDelegate {
  protected:
    Table() {
        table.addColumn(QStringLiteral("name"));
        table.addColumn(QStringLiteral("odd"));
        table.setTableDataSource(this);
        table.setTableDelegate(this);
        table.resize(300, 200);
        table.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&table));
        QObject::connect(&table, &TableView::doubleAction, [this](int row) { actions << row; });
    }
    int numberOfRowsInTableView(TableView *) override { return rows; }
    QVariant objectValueForTableColumn(TableView *, const QString &column, int row) override {
        return column == u"name" ? QVariant(QStringLiteral("row %1").arg(row)) : QVariant();
    }
    bool selectionShouldChangeInTableView(TableView *) override { return mayChange; }
    void tableViewSelectionDidChange(TableView *t) override { selections << t->selectedRow(); }
    QPoint centre(int row) const {
        return QPoint(10, table.rowViewportPosition(row) + table.rowHeight(row) / 2);
    }

    TableView table;
    int rows = 3;
    bool mayChange = true;
    QList<int> selections, actions;
};

TEST_F(Table, ShowsItsSourceAndReportsSelections) {
    table.setHeaderTitle(QStringLiteral("name"), QStringLiteral("Name"));
    EXPECT_EQ(table.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    EXPECT_EQ(table.model()->index(1, 0).data().toString(), QStringLiteral("row 1"));
    EXPECT_FALSE(table.model()->index(1, 1).data().isValid());
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, centre(1));
    EXPECT_EQ(table.selectedRow(), 1);
    mayChange = false;
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, centre(2));
    EXPECT_EQ(table.selectedRow(), 1) << "moved although the delegate refused";
    table.deselectAll();
    EXPECT_EQ(selections, (QList<int>{1, -1}));
    table.selectRow(2);
    rows = 1;
    table.reloadData();
    EXPECT_EQ(table.selectedRow(), -1);
    EXPECT_EQ(selections.last(), -1) << "the row went away and nobody was told";
}

TEST_F(Table, DoubleClicksTellTheRowAndTheEmptyAreaNone) {
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, centre(2));
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, QPoint(10, 150));
    QTest::mouseDClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
    EXPECT_EQ(actions, (QList<int>{2, -1, -1}));
    table.selectRow(0);
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(actions.last(), 0);
}

QVariantMap node(const char *name, const QVariantList &children = {}) {
    QVariantMap map{{QStringLiteral("name"), QLatin1String(name)}};
    if (!children.isEmpty()) map.insert(QStringLiteral("child"), children);
    return map;
}

class Outline : public testing::Test, public OutlineDataSource, public OutlineDelegate {
  protected:
    Outline() {
        outline.setColumn(QStringLiteral("name"));
        outline.setOutlineDataSource(this);
        outline.setOutlineDelegate(this);
        outline.resize(200, 200);
        outline.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&outline));
        for (int row = outline.numberOfRows() - 1; row >= 0; --row) outline.expandRow(row);
    }
    int numberOfChildrenOfItem(OutlineView *, const QVariantMap &item) override {
        return static_cast<int>(childrenOf(item).size());
    }
    QVariantMap child(OutlineView *, int index, const QVariantMap &item) override {
        return childrenOf(item)[index].toMap();
    }
    bool isItemExpandable(OutlineView *, const QVariantMap &item) override {
        return item.contains(QStringLiteral("child"));
    }
    QVariant objectValueForTableColumn(OutlineView *, const QString &column,
                                       const QVariantMap &item) override {
        return item.value(column);
    }
    bool shouldSelectItem(OutlineView *, const QVariantMap &item) override {
        asked << item.value(QStringLiteral("name")).toString();
        return asked.last() != refused;
    }
    QVariantList childrenOf(const QVariantMap &item) const {
        return (item.isEmpty() ? root : item).value(QStringLiteral("child")).toList();
    }
    QModelIndex indexAt(int row) const {
        QModelIndex index = outline.model()->index(0, 0);
        while (row-- > 0) index = outline.indexBelow(index);
        return index;
    }
    void click(int row) {
        QTest::mouseClick(outline.viewport(), Qt::LeftButton, {},
                          outline.visualRect(indexAt(row)).center());
    }

    const QVariantMap root =
        node("root", {node("A", {node("a1"), node("a2")}), node("B", {node("b1")})});
    OutlineView outline;
    QStringList asked;
    QString refused;
};

TEST_F(Outline, ARefusedSelectionLeavesSelectionAndCurrentItem) {
    outline.selectRow(1);
    EXPECT_TRUE(asked.isEmpty()) << "asked about a selection from code";
    EXPECT_EQ(outline.selectedRow(), 1);
    refused = QStringLiteral("B");
    click(3);
    EXPECT_EQ(outline.selectedRow(), 1);
    click(2);
    EXPECT_EQ(outline.selectedRow(), 2);
    QTest::keyClick(&outline, Qt::Key_Down);
    EXPECT_EQ(asked, (QStringList{QStringLiteral("B"), QStringLiteral("a2"), QStringLiteral("B")}));
    EXPECT_EQ(outline.selectedRow(), 2);
    QTest::keyClick(&outline, Qt::Key_Up);
    EXPECT_EQ(outline.selectedRow(), 1) << "the current item had moved away from the selection";
    outline.reloadData();
    EXPECT_EQ(outline.selectedRow(), -1);
}

}  // namespace
