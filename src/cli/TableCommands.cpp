#include "cli/TableCommands.h"

#include "cli/Change.h"
#include "cli/Notes.h"
#include "cli/Provision.h"
#include "cli/Table.h"
#include "platform/core/Texts.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

namespace {

const QString tableSuffix = u".csv"_s;

// What a table and its template want of each printer.
struct Wishes {
    QList<TableRow> rows;
    QList<Fault> faults;
};

Wishes wishesOf(Context &context, const QString &file) {
    const Table table = tableFromFile(file);
    Wishes wishes{{}, table.faults};
    GivenSettings given;
    if (const QString common = context.options.value(u"template"_s); !common.isEmpty()) {
        given = settingsFromFile(common);
        wishes.faults += given.allFaults();
        noteReadOnly(context, given);
    }
    for (TableRow row : table.rows) {
        row.values = merged(given.values, row.values);
        for (const Fault &fault : faultsBetween(row.values))
            if (!wishes.faults.contains(fault)) wishes.faults << fault;  // the template's once
        wishes.rows << row;
    }
    if (table.faults.isEmpty()) wishes.faults += repeatedAddresses(wishes.rows);
    for (const QList<int> &lines : repeatedNames(wishes.rows)) {
        QStringList numbers;
        for (const int line : lines) numbers << QString::number(line);
        context.terminal.note(localized("DWT_Localize_Cli_SameName").arg(numbers.join(u", "_s)));
    }
    return wishes;
}

// The seconds that are given; nothing when they are no number.
std::optional<int> secondsOf(const QString &given) {
    bool isNumber = false;
    const int seconds = given.toInt(&isNumber);
    return isNumber && seconds >= 0 ? std::optional(seconds) : std::nullopt;
}

}  // namespace

ExitCode check(Context &context) {
    const QString file = context.options.arguments.first();
    QList<Fault> faults;
    if (file.endsWith(tableSuffix, Qt::CaseInsensitive)) {
        faults = wishesOf(context, file).faults;
    } else {
        const GivenSettings given = settingsFromFile(file);
        noteReadOnly(context, given);
        faults = given.allFaults() + faultsBetween(given.values);
    }
    Outcome outcome = faults.isEmpty() ? outcomeOf(ExitCode::Done, {}) : outcomeOf(faults);
    if (faults.isEmpty()) outcome.word = u"valid"_s;
    if (!faults.isEmpty()) context.terminal.fail(faults);
    if (context.isJson()) context.terminal.printLine(asJson(outcome));
    return outcome.code;
}

ExitCode provision(Context &context) {
    const Options &options = context.options;
    const std::optional<Keys> keys = context.keys();
    if (!keys) return ExitCode::UsedWrongly;
    ProvisionOrder order{.rows = {}, .keys = *keys};
    if (options.has(u"timeout"_s)) {
        const auto seconds = secondsOf(options.value(u"timeout"_s));
        if (!seconds)
            return context.terminal.fail(ExitCode::UsedWrongly,
                                         localized("DWT_Localize_Cli_BadSeconds"));
        order.deadline = QDeadlineTimer(std::chrono::seconds(*seconds));
    }
    const QString table = options.arguments.first();
    const Wishes wishes = wishesOf(context, table);
    QList<Fault> faults = wishes.faults;
    Fault fault;
    if (!context.passwords.load(options.value(u"password-file"_s), fault)) faults << fault;
    if (!faults.isEmpty()) return context.terminal.fail(faults);
    order.rows = wishes.rows;
    order.isDry = options.has(u"dry-run"_s);
    order.again = options.has(u"again"_s);
    order.once = options.has(u"once"_s) || (!options.has(u"timeout"_s) && !Terminal::canAsk());
    order.resultFile = options.value(u"result"_s);
    order.inputs = {table, options.value(u"template"_s), options.value(u"password-file"_s)};
    const ExitCode code =
        Provision(context.terminal, context.passwords, order, context.isJson()).run();
    for (TableRow &row : order.rows) {
        forgetSecrets(row.values);
        wipe(row.login);
    }
    return context.codeOfRun(code);
}
