#include "cli/Notes.h"

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

// So many names of settings are listed where the rest goes without saying.
constexpr qsizetype namesAtAGlance = 4;

}  // namespace

void noteNotReported(Context &context, const Session &session) {
    const auto missing = namesOf(session.manager()->notReported(), Naming::Stable);
    if (!missing.isEmpty())
        context.terminal.note(
            localized("DWT_Localize_Cli_NotReported").arg(session.name(), missing.join(u", "_s)));
}

void noteReadOnly(Context &context, const GivenSettings &given) {
    QStringList names = given.readOnly;
    if (names.size() > namesAtAGlance) names = names.first(namesAtAGlance) << u"…"_s;
    if (!names.isEmpty())
        context.terminal.note(localized("DWT_Localize_Cli_ReadOnly").arg(names.join(u", "_s)));
}

void notePlan(Context &context, const Outcome &planned) {
    for (const Plan::Change &change : planned.plan.changes)
        context.terminal.print(u"  "_s + lineOf(change, planned));
    for (const QString &words : wordsOfLeftOut(planned.plan)) context.terminal.note(words);
    for (const Outcome::Warning &warning : planned.warnings) context.terminal.note(warning.text);
}
