#include "cli/TableCommands.h"

#include "cli/Notes.h"
#include "cli/Provision.h"
#include "cli/Table.h"

using namespace Qt::StringLiterals;

namespace {

const QString tableSuffix = u".csv"_s;

}  // namespace

ExitCode check(Context &context) {
    const QString file = context.options.arguments.first();
    if (file.endsWith(tableSuffix, Qt::CaseInsensitive)) {
        const Table table = tableFromFile(file);
        QList<Fault> faults = table.faults;
        for (const TableRow &row : table.rows) faults += faultsBetween(row.values);
        return faults.isEmpty() ? ExitCode::Done : context.terminal.fail(faults);
    }
    const GivenSettings given = settingsFromFile(file);
    noteReadOnly(context, given);
    const QList<Fault> faults = given.allFaults() + faultsBetween(given.values);
    return faults.isEmpty() ? ExitCode::Done : context.terminal.fail(faults);
}

ExitCode provision(Context &context) {
    const Table table = tableFromFile(context.options.arguments.first());
    QList<Fault> faults = table.faults;
    GivenSettings given;
    if (const QString common = context.options.value(u"template"_s); !common.isEmpty()) {
        given = settingsFromFile(common);
        faults += given.allFaults();
        noteReadOnly(context, given);
    }
    QList<TableRow> rows;
    for (TableRow row : table.rows) {
        row.values = merged(given.values, row.values);
        for (const Fault &fault : faultsBetween(row.values))
            if (!faults.contains(fault)) faults << fault;  // the template's once
        rows << row;
    }
    if (table.faults.isEmpty()) faults += repeatedAddresses(rows);
    Fault fault;
    if (!context.passwords.load(context.options.value(u"password-file"_s), fault)) faults << fault;
    if (!faults.isEmpty()) return context.terminal.fail(faults);
    return Provision(context.terminal, context.passwords, rows, context.options.has(u"again"_s))
        .run(context.options.value(u"result"_s));
}
