#include "cli/ApplyCommand.h"

#include "cli/Choice.h"
#include "cli/Interrupt.h"
#include "cli/Notes.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

namespace {

void printPlan(Context &context, const Session &session, const Plan &plan) {
    if (plan.changes.isEmpty()) {
        context.terminal.print(localized("DWT_Localize_Cli_NothingToDo").arg(session.name()));
        return;
    }
    context.terminal.print(localized("DWT_Localize_Cli_WillChange").arg(session.name()));
    for (const Plan::Change &change : plan.changes)
        context.terminal.print(u"  %1: %2"_s.arg(change.setting->name, change.words()));
    for (const SendWarning &warning : plan.warnings) context.terminal.note(wordsOf(warning));
}

ExitCode change(Context &context, Session &session, const Plan &plan) {
    const QString name = session.name();
    const auto password = [&] { return context.passwords.forPrinter(name); };
    const auto mayBegin = [&] {
        context.terminal.showProgress(localized("DWT_Localize_Cli_Sending").arg(name));
        return !Interrupt::isRequested();
    };
    const Ending ending = session.change(plan, password, mayBegin);
    const ExitCode code = codeOf(ending);
    const QString words = session.wordsOf(ending, Naming::Stable).join(u' ');
    if (code != ExitCode::Done) return context.terminal.fail(code, words);
    context.terminal.print(words);
    return Interrupt::isRequested() ? ExitCode::Stopped : ExitCode::Done;
}

}  // namespace

ExitCode apply(Context &context) {
    const bool dryRun = context.options.has(u"dry-run"_s), yes = context.options.has(u"yes"_s);
    Terminal &terminal = context.terminal;
    if (!yes && !dryRun && !Terminal::canAsk())
        return terminal.fail(ExitCode::UsedWrongly, localized("DWT_Localize_Cli_NoTerminal"));
    const GivenSettings given = settingsFromFile(context.options.arguments[1]);
    if (!given.faults.isEmpty())
        return terminal.fail(given.allFaults() + faultsBetween(given.values));
    Fault fault;
    if (!context.passwords.load(context.options.value(u"password-file"_s), fault))
        return terminal.fail({fault});
    noteReadOnly(context, given);
    auto wait = std::make_unique<InterruptibleWait>();
    ExitCode code{};
    auto session = openForChange(context, context.options.arguments.first(), code);
    if (!session) return code;
    const Session::Reading reading = readPrinter(context, *session);
    if (isWaitCancelled()) return context.stopped();
    if (reading != Session::Reading::Complete)
        return terminal.fail(codeOf(reading), session->wordsOf(reading).join(u' '));
    noteNotReported(context, *session);
    const Plan plan = planOf(session->record(), given.values);
    if (!plan.faults.isEmpty()) return terminal.fail(plan.faults);
    printPlan(context, *session, plan);
    if (plan.changes.isEmpty() || dryRun) return ExitCode::Done;
    if (!yes && !terminal.confirm(localized("DWT_Localize_Cli_Confirm"))) return context.stopped();
    wait.reset();  // what is sent is not broken off
    return change(context, *session, plan);
}
