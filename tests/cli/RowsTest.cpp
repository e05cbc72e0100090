// Which row of a table is whose.

#include "cli/Rows.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

enum Then { Keep, GiveBack, Finish };
struct Step {
    const Rows::Printer &printer;
    const char *claim;
    Then then = Finish;  // with a row that was granted
    qsizetype namesakes = 1;
};

const Rows::Printer desk{u"usb:1"_s, u"S1"_s, u"Desk"_s, {u"020000000001"_s, u"020000000011"_s}};
const Rows::Printer elsewhere{u"usb:9"_s, u"S1"_s, u"Desk"_s, desk.macs};
const Rows::Printer other{u"usb:2"_s, u"S1"_s, u"Desk"_s, {u"020000000002"_s}};
const Rows::Printer bare{u"usb:3"_s, {}, u"Dock"_s, {}};

// What a claim came to, and the lines.
std::string asText(const Rows::Claim &claim) {
    const char *const kinds[] = {"granted",          "no row", "several rows",
                                 "several printers", "used",   "done before"};
    QStringList words{QLatin1String(kinds[int(claim.kind)])};
    for (const int line : claim.lines) words << QString::number(line);
    EXPECT_EQ(claim.row ? claim.row->line : 0, claim.lines.value(0));
    return words.join(u' ').toStdString();
}

TEST(TableRows, AreGrantedToTheOnePrinterThatTheyAreFor) {
    const char *const none = "";
    const struct {
        const char *csv;
        bool again;
        QList<Step> steps;
        const char *missing;  // then
        bool allDone = false;
        bool needNames = false;
    } cases[] = {
        {"mac,serial,name\n02:00:00:00:00:11,S9,Dock\n", false, {{desk, "granted 2"}}, "", true},
        {"mac\n02:00:00:00:00:02\n", false, {{desk, "no row"}}, "02:00:00:00:00:02"},
        {"serial,name\nS1,Dock\n", false, {{bare, "no row"}, {desk, "granted 2"}}, "", true},
        {"name\nDock\nDesk\n", false, {{desk, "granted 3"}}, "Dock", false, true},
        {"serial,mac\nS1,\n,020000000001\n", false, {{desk, "several rows 2 3"}}, none},
        {"name\nDesk\n", false, {{desk, "several printers 2", Keep, 2}}, none, false, true},
        {"serial\nS1\n", false, {{desk, "granted 2", Finish, 2}}, "", true},
        // Two printers with one serial number: the first that comes has the row.
        {"serial\nS1\n", false, {{desk, "granted 2", Keep}, {other, "used 2"}}, ""},
        {"serial\nS1\n", false, {{desk, "granted 2"}, {other, "used 2"}}, "", true},
        {"serial\nS1\n", true, {{desk, "granted 2"}, {other, "used 2"}}, "", true},
        {"serial\nS1\n", false, {{desk, "granted 2", GiveBack}, {other, "granted 2"}}, "", true},
        // The same printer once more, plugged in elsewhere.
        {"serial\nS1\n", false, {{desk, "granted 2"}, {elsewhere, "done before 2"}}, "", true},
        {"serial\nS1\n", true, {{desk, "granted 2"}, {elsewhere, "granted 2", GiveBack}}, "", true},
        {"serial\nS1\n", true, {{desk, "granted 2", Keep}, {elsewhere, "used 2"}}, ""},
        {"name\nDock\n", false, {{bare, "granted 2"}, {bare, "done before 2"}}, "", true, true},
        {"serial\nS1\nS2\n", false, {{desk, "granted 2"}}, "S2"},
    };
    for (const auto &c : cases) {
        const Table table = tableFromCsv(c.csv, {});
        Rows rows(table.rows, c.again);
        EXPECT_EQ(rows.needNames(), c.needNames) << c.csv;
        for (const Step &step : c.steps) {
            const Rows::Claim claim = rows.claim(step.printer, step.namesakes);
            EXPECT_EQ(asText(claim), step.claim) << c.csv;
            if (claim.kind == Rows::Claim::Kind::Granted && step.then != Keep)
                rows.release(*claim.row, step.printer, step.then == Finish);
        }
        QStringList missing;
        for (const TableRow *const row : rows.missing()) missing << row->printer();
        EXPECT_EQ(missing.join(u' ').toStdString(), c.missing) << c.csv;
        EXPECT_EQ(rows.isAllDone(), c.allDone) << c.csv;
    }
}

}  // namespace
