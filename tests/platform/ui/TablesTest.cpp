#include <gtest/gtest.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "platform/ui/OutlineView.h"
#include "platform/ui/TableView.h"

namespace {

class TableTest : public testing::Test, public TableDataSource, public TableDelegate {
  protected:
    void SetUp() override {
        table.setDataSource(this);
        table.setDelegate(this);
        table.addColumn(u"name"_qs);
        table.addColumn(u"kind"_qs);
        table.setHeaderTitle(u"kind"_qs, u"Kind"_qs);
        table.resize(400, 300);
        table.reloadData();
        table.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&table));
    }

    int numberOfRowsInTableView(TableView *) override { return static_cast<int>(rows.size()); }
    QVariant objectValueForTableColumn(TableView *, const QString &column, int row) override {
        return column == u"name"_qs ? rows[row] : column;
    }
    bool selectionShouldChangeInTableView(TableView *) override {
        ++asked;
        return allowed;
    }
    void tableViewSelectionDidChange(TableView *) override { changes += table.selectedRow(); }

    QPoint cell(int row) { return table.visualRect(table.model()->index(row, 0)).center(); }
    void click(int row) { QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(row)); }

    TableView table;
    QStringList rows{u"a"_qs, u"b"_qs, u"c"_qs};
    QList<int> changes;
    int asked = 0;
    bool allowed = true;
};

TEST_F(TableTest, SelectionFollowsMouseAndKeysAndTellsTheDelegate) {
    EXPECT_EQ(table.columnIdentifiers(), (QStringList{u"name"_qs, u"kind"_qs}));
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal), u"Kind"_qs);
    EXPECT_EQ(table.selectedRow(), -1);  // having the focus selects nothing
    click(1);
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(changes, (QList<int>{1, 2}));
    EXPECT_EQ(asked, 2);
    allowed = false;
    click(0);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(table.currentIndex().row(), 2);
    table.selectRow(1);  // from code: told, not asked
    table.deselectAll();
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(changes, (QList<int>{1, 2, 1, -1}));
}

TEST_F(TableTest, ReloadKeepsTheRowThatRemainsAndReportsTheOneThatIsGone) {
    table.selectRow(1);
    changes.clear();
    rows = {u"x"_qs, u"y"_qs};
    table.reloadData();
    EXPECT_EQ(table.selectedRow(), 1);
    EXPECT_TRUE(changes.isEmpty());
    rows = {u"x"_qs};
    table.reloadData();
    EXPECT_EQ(table.selectedRow(), -1);
    EXPECT_EQ(changes, QList<int>{-1});
}

TEST_F(TableTest, DoubleActionNamesTheRowOrNone) {
    const QSignalSpy spy(&table, &TableView::doubleAction);
    const auto lastRow = [&] { return spy.isEmpty() ? -2 : spy.last().first().toInt(); };
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_TRUE(spy.isEmpty());  // no row is selected
    click(1);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell(1));
    EXPECT_EQ(lastRow(), 1);
    QTest::mouseDClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
    EXPECT_EQ(lastRow(), -1);
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(lastRow(), 1);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell(2) + QPoint(0, 100));
    EXPECT_EQ(lastRow(), -1);
    EXPECT_EQ(spy.size(), 4);
}

TEST_F(TableTest, CutOffTextIsShownInAToolTipAsItStands) {
    rows[0] = u"<b>"_qs + QString(100, u'x');
    table.reloadData();
    for (const int row : {0, 1}) {
        QHelpEvent event(QEvent::ToolTip, cell(row), table.viewport()->mapToGlobal(cell(row)));
        QApplication::sendEvent(table.viewport(), &event);
        EXPECT_EQ(QToolTip::text().contains(u"&lt;b&gt;x"_qs), row == 0);
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    }
}

// Rows when expanded: 0 group A, 1 A1, 2 A2, 3 B.
class OutlineTest : public testing::Test, public OutlineDataSource, public OutlineDelegate {
  protected:
    void SetUp() override {
        outline.setDataSource(this);
        outline.setDelegate(this);
        outline.addColumn(u"name"_qs);
        outline.resize(200, 300);
        outline.reloadData();
        outline.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&outline));
        ASSERT_EQ(outline.numberOfRows(), 2);
        outline.expandRow(0, true);
        ASSERT_EQ(outline.numberOfRows(), 4);
        outline.selectRow(1);
    }

    static QString name(const QVariantMap &item) { return item.value(u"name"_qs).toString(); }
    int numberOfChildren(OutlineView *, const QVariantMap &item) override {
        return static_cast<int>(tree.value(name(item)).size());
    }
    QVariantMap child(OutlineView *, int index, const QVariantMap &item) override {
        return {{u"name"_qs, tree.value(name(item))[index]}};
    }
    bool isItemExpandable(OutlineView *, const QVariantMap &item) override {
        return tree.contains(name(item));
    }
    QVariant objectValueForTableColumn(OutlineView *, const QString &column,
                                       const QVariantMap &item) override {
        return item.value(column);
    }
    bool shouldSelectItem(OutlineView *, const QVariantMap &item) override {
        asked += name(item);
        selectedWhenAsked = outline.selectedRow();
        return name(item) != refused;
    }
    bool shouldCollapseItem(OutlineView *, const QVariantMap &) override { return mayCollapse; }

    QPoint cell(int row) {
        QModelIndex index = outline.model()->index(0, 0);
        while (row-- > 0) index = outline.indexBelow(index);
        return outline.visualRect(index).center();
    }

    OutlineView outline;
    const QMap<QString, QStringList> tree{{QString(), {u"A"_qs, u"B"_qs}},
                                          {u"A"_qs, {u"A1"_qs, u"A2"_qs}}};
    QStringList asked;
    QString refused;
    int selectedWhenAsked = 1;
    bool mayCollapse = true;
};

TEST_F(OutlineTest, ShowsTheItemsDepthFirst) {
    EXPECT_TRUE(asked.isEmpty());  // selecting from code does not ask
    EXPECT_EQ(outline.selectedRow(), 1);
    for (const auto &[row, text] :
         {std::pair{0, u"A"_qs}, {1, u"A1"_qs}, {3, u"B"_qs}, {4, u""_qs}})
        EXPECT_EQ(name(outline.itemAtRow(row)), text);
    EXPECT_EQ(outline.currentIndex().data(), u"A1"_qs);
    EXPECT_TRUE(outline.isHeaderHidden());
    outline.collapseAll();
    EXPECT_EQ(outline.numberOfRows(), 2);
    EXPECT_EQ(outline.selectedRow(), -1);
}

TEST_F(OutlineTest, AsksOnceBeforeMovingAndStaysWhenRefused) {
    struct Case {
        const char *name;
        QString refused;
        std::function<void()> move;
        QStringList asked;
        int row;
    };
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(outline.viewport(), Qt::LeftButton, modifiers, cell(row));
    };
    const Case cases[] = {
        {"mouse", {}, [&] { click(3); }, {u"B"_qs}, 3},
        {"mouse refused", u"B"_qs, [&] { click(3); }, {u"B"_qs}, 1},
        {"double click refused",
         u"B"_qs,
         [&] { QTest::mouseDClick(outline.viewport(), Qt::LeftButton, {}, cell(3)); },
         {u"B"_qs, u"B"_qs},  // a press and a double click
         1},
        {"key", {}, [&] { QTest::keyClick(&outline, Qt::Key_Down); }, {u"A2"_qs}, 2},
        {"key refused", u"A2"_qs, [&] { QTest::keyClick(&outline, Qt::Key_Down); }, {u"A2"_qs}, 1},
        {"typed name refused",
         u"B"_qs,
         [&] { QTest::keyClick(&outline, Qt::Key_B); },
         {u"B"_qs},
         1},
        {"selected one again", {}, [&] { click(1); }, {}, 1},
        {"deselecting", {}, [&] { click(1, Qt::ControlModifier); }, {}, 1},
        {"empty area",
         {},
         [&] { QTest::mouseClick(outline.viewport(), Qt::LeftButton, {}, QPoint(100, 280)); },
         {},
         1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        outline.selectRow(1);
        refused = c.refused;
        asked.clear();
        c.move();
        EXPECT_EQ(asked, c.asked);
        EXPECT_EQ(selectedWhenAsked, 1);
        EXPECT_EQ(outline.selectedRow(), c.row);
        EXPECT_EQ(outline.currentIndex().data().toString(), name(outline.itemAtRow(c.row)));
    }
}

TEST_F(OutlineTest, CollapsingCanBeRefused) {
    outline.selectRow(0);
    for (const bool allowed : {false, true}) {
        mayCollapse = allowed;
        QTest::keyClick(&outline, Qt::Key_Left);
        EXPECT_EQ(outline.numberOfRows(), allowed ? 2 : 4);
    }
}

}  // namespace
