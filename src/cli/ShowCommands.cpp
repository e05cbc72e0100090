#include "cli/ShowCommands.h"

#include "cli/Choice.h"
#include "cli/Interrupt.h"
#include "cli/Notes.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

void printPages(Context &context, const Session &session) {
    const PrinterEntry &entry = session.entry();
    QStringList title{session.name(), entry.value(PrinterKey::ProductName)};
    if (const QString whereabouts = whereaboutsOf(entry); !whereabouts.isEmpty())
        title << whereabouts;
    context.terminal.print(title.join(u", "_s));
    context.terminal.print(rowsOf(session.record()));
}

// As `set` takes them.
void printValues(Context &context, const SettingRecord &record) {
    for (const Setting &setting : settings())
        if (setting.access() == Setting::Access::Change)
            context.terminal.print(
                setting.name + u'=' +
                asJson(setting, record.value(setting.viewKey)).toVariant().toString());
}

}  // namespace

ExitCode show(Context &context) {
    const InterruptibleWait wait;
    Failure failure;
    auto session = openPrinter(context, context.options.arguments.first(), failure);
    if (!session) return context.terminal.fail(failure);
    const Session::Reading reading = readPrinter(context, *session);
    if (isWaitCancelled()) return context.stopped();
    const ExitCode code = codeOf(reading);
    const QString words = session->wordsOf(reading).join(u' ');
    if (code != ExitCode::Done && session->record().value(DWT_View_Key_Network).isEmpty())
        return context.terminal.fail(code, words);
    const bool isPart = context.options.has(u"settings"_s);
    if (context.isJson())
        context.terminal.print(asJson(session->record(), isPart ? Part::Changeable : Part::All));
    else if (isPart)
        printValues(context, session->record());
    else
        printPages(context, *session);
    if (code != ExitCode::Done) return context.terminal.fail(code, words);
    noteNotReported(context, *session);
    return ExitCode::Done;
}
