#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "platform/core/Texts.h"
#include "platform/ui/TableView.h"

namespace {

using namespace Qt::StringLiterals;

struct Source : TableDataSource {
    int numberOfRowsInTableView(TableView *) override { return 1; }
    QVariant objectValueForTableColumn(TableView *, const QString &, int) override { return text; }
    QString pictureForTableColumn(TableView *, const QString &, int) override {
        return u"picture"_s;
    }
    QString text;
};

TEST(Table, ShowsTextFromOutsideAsTextOnOneLineAndMakesPicturesOnce) {
    Source source;
    TableView table;
    table.addColumn(u"c"_s);
    table.setTableDataSource(&source);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.setColumnWidth(0, 10);
    table.show();
    const std::pair<QString, QString> cases[] = {
        {u"a & b"_s, u"a & b"_s},
        {u"<b>x</b>"_s, u"<b>x</b>"_s},
        {u"a\r\n\tb\u2028c"_s, u"a   b c"_s},
        {u"\u202Ea\u2066b\u200F\a\x7f\u061Cé倉"_s, u"abé倉"_s}};
    for (const auto &[given, shown] : cases) {
        source.text = given;
        EXPECT_EQ(table.model()->index(0, 0).data().toString(), shown);
        const QPoint cell = table.visualRect(table.model()->index(0, 0)).center();
        QHelpEvent hover(QEvent::ToolTip, cell, table.viewport()->mapToGlobal(cell));
        QApplication::sendEvent(table.viewport(), &hover);
        const QString tip = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
        EXPECT_EQ(tip.simplified(), shown.simplified());
    }
    const auto icon = [&] {
        return table.model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().cacheKey();
    };
    const auto made = icon();
    table.reloadData();
    EXPECT_EQ(icon(), made);
    EXPECT_EQ(terminalText(u"a\x1b[2Jb\n\u202Eé"_s), u"a\\x1b[2Jb\\x0a\\x202eé"_s);
}

// Rows of a name and the number at its end, which the second column sorts by.
struct Names : TableDataSource, TableDelegate {
    int numberOfRowsInTableView(TableView *) override { return int(names.size()); }
    QVariant objectValueForTableColumn(TableView *, const QString &column, int row) override {
        return column == u"name"_s ? names[row] : u"like any other"_s;
    }
    QVariant sortValueForTableColumn(TableView *, const QString &column, int row) override {
        if (column == u"name"_s) return names[row];
        return names[row].section(u' ', -1).toInt();
    }
    QString rowKeyInTableView(TableView *, int row) override { return names[row]; }
    void tableViewSelectionDidChange(TableView *table) override { told = table->selectedRow(); }
    QStringList names{u"desk 10"_s, u"Desk 9"_s, u"Élan 8"_s, u"Zoo 100"_s, u"elbe 7"_s};
    int told = -2;
};

TEST(Table, KeysReachTheRowThatIsMeantInEveryOrderAndItStaysSelected) {
    Names source;
    TableView table;
    for (const auto &column : {u"name"_s, u"number"_s}) table.addColumn(column);
    table.setTableDataSource(&source);
    table.setTableDelegate(&source);
    table.show();
    // The first letters of what is shown, from top to bottom, the selected one in brackets.
    const auto shown = [&] {
        QString letters;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            const QModelIndex index = table.model()->index(row, 0);
            const QString letter = index.data().toString().left(2);
            letters += table.selectionModel()->isSelected(index) ? u'[' + letter + u']' : letter;
        }
        return letters;
    };
    for (const auto key :
         {Qt::Key_Up, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_Down}) {
        table.deselectAll();
        QFocusEvent focus(QEvent::FocusIn);  // gives the table a current row
        QApplication::sendEvent(&table, &focus);
        QTest::keyClick(&table, key);
        EXPECT_EQ(shown(), u"[de]DeÉlZoel"_s) << key;
    }
    QTest::keyClick(&table, Qt::Key_End);
    EXPECT_EQ(shown(), u"deDeÉlZo[el]"_s);
    const auto centreOf = [&](int row, int column) {
        return table.visualRect(table.model()->index(row, column)).center();
    };
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, centreOf(0, 1));
    QTest::keyClicks(&table, u"zo"_s);  // in the first column, whichever was clicked
    QTest::keyClick(&table, Qt::Key_Up);
    const std::tuple<int, bool, QString> steps[] = {
        {0, false, u"Dede[Él]elZo"_s}, {0, true, u"Zoel[Él]deDe"_s}, {0, false, u"deDe[Él]Zoel"_s},
        {1, false, u"el[Él]DedeZo"_s}, {1, true, u"ZodeDe[Él]el"_s}, {0, true, u"Dede[Él]elZo"_s}};
    for (const auto &[column, byKey, order] : steps) {
        QHeaderView &header = *table.horizontalHeader();
        if (byKey)
            QTest::keyClick(&table, column ? Qt::Key_2 : Qt::Key_1, Qt::ControlModifier);
        else
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                              {header.sectionViewportPosition(column) + 5, header.height() / 2});
        EXPECT_EQ(shown(), order) << column;
    }
    int opened = -1;
    QObject::connect(&table, &TableView::doubleAction, [&](int row) { opened = row; });
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(opened, 2) << "the row of the source, whatever the order";
    for (const QStringList &names : {QStringList{u"Zoo 1"_s, u"Élan 8"_s, u"Abend 2"_s}, {}}) {
        source.names = names;
        table.reloadData();
        EXPECT_EQ(shown(), names.isEmpty() ? QString() : u"Ab[Él]Zo"_s);
        EXPECT_EQ(source.told, names.indexOf(u"Élan 8"_s));
    }
    source.names = {u"B"_s, u"Élan 8"_s};
    table.reloadData();
    EXPECT_EQ(source.told, 1) << "a row that comes back is the same row";
}

}  // namespace
