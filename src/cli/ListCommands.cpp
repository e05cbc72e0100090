#include "cli/ListCommands.h"

#include <QSet>

#include "cli/Choice.h"
#include "cli/Interrupt.h"
#include "cli/Look.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

// Rows are printed as soon as they are whole; those of silent printers come last.
ExitCode list(Context &context) {
    const InterruptibleWait wait;
    Look look;
    QJsonArray array;
    QList<int> widths;
    QSet<QString> printed;
    const auto print = [&](bool isEnd) {
        QList<QStringList> rows;
        for (const PrinterEntry &entry : look.printers()) {
            const QString identity = Printers::identityOf(entry);
            if (printed.contains(identity) || (look.isAsked(entry) && !isEnd)) continue;
            printed << identity;
            array << asJson(entry);
            rows << cellsOf(entry);
            if (look.isNameless(entry))
                rows.last().first() = localized("DWT_Localize_PrinterList_Name_Silent");
        }
        if (!context.isJson()) context.terminal.print(rows, widths);
        Terminal::flush();
    };
    const QDeadlineTimer deadline(Look::longest);
    for (bool isOver = false; !isOver && !isWaitCancelled();) {
        isOver =
            look.wait(std::min(deadline, QDeadlineTimer(Look::gathering))) || deadline.hasExpired();
        print(isOver);
    }
    if (context.isJson()) context.terminal.print(array);
    context.terminal.note(Printers::problems());
    if (isWaitCancelled()) return context.stopped();
    if (printed.isEmpty() && !context.isJson())
        context.terminal.note(localized("DWT_Localize_Cli_NoPrinters"));
    return ExitCode::Done;
}

ExitCode networks(Context &context) {
    const InterruptibleWait wait;
    Failure failure;
    auto session = openForChange(context, context.options.arguments.first(), failure);
    if (!session) return context.terminal.fail(failure);
    const auto found = session->manager()->SSIDList([&](int polls, int total) {
        const auto left = DWTDataManager::defaultScanInterval * (total - polls);
        context.terminal.showProgress(
            localized("DWT_Localize_Wait_Searching")
                .arg(std::chrono::ceil<std::chrono::seconds>(left).count()));
    });
    if (isWaitCancelled()) return context.stopped();
    if (!found)
        return context.terminal.fail(ExitCode::NotReached,
                                     localized("DWT_Localize_Cli_NoSearch").arg(session->name()));
    if (context.isJson())
        context.terminal.print(asJson(*found));
    else
        context.terminal.print(rowsOf(*found));
    if (found->isEmpty() && !context.isJson())
        context.terminal.note(localized("DWT_Localize_Cli_NoNetworks"));
    return ExitCode::Done;
}
