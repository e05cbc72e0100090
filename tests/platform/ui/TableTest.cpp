#include <gtest/gtest.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/core/Texts.h"
#include "platform/ui/TableView.h"

namespace {

using namespace Qt::StringLiterals;

struct Source : TableDataSource {
    int numberOfRowsInTableView(TableView *) override { return 1; }
    QVariant objectValueForTableColumn(TableView *, const QString &, int) override { return text; }
    QIcon iconForTableColumn(TableView *, const QString &, int) override {
        ++icons;
        QPixmap dot(8, 8);
        dot.fill(Qt::red);
        return dot;
    }
    QString text;
    int icons = 0;
};

TEST(Table, ShowsTextFromOutsideAsTextOnOneLineAndMakesIconsOnce) {
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
    for (int i = 0; i < 3; ++i) table.grab();
    EXPECT_EQ(source.icons, 1);
    EXPECT_EQ(terminalText(u"a\x1b[2Jb\n\u202Eé"_s), u"a\\x1b[2Jb\\x0a\\x202eé"_s);
}

}  // namespace
