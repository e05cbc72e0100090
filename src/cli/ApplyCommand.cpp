#include "cli/ApplyCommand.h"

#include <algorithm>

#include "cli/Change.h"
#include "cli/Choice.h"
#include "cli/Collisions.h"
#include "cli/Interrupt.h"
#include "cli/Notes.h"
#include "cli/Selection.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

namespace {

// The change of the printer that the command line names.
class Work {
  public:
    explicit Work(Context &context)
        : m_context(context),
          m_isDry(context.options.has(u"dry-run"_s)),
          m_isAgreed(context.options.has(u"yes"_s)) {}

    ExitCode run(const GivenSettings &given) {
        if (!m_isAgreed && !m_isDry && (m_context.isJson() || !Terminal::canAsk()))
            return m_context.terminal.fail(
                ExitCode::UsedWrongly, localized("DWT_Localize_Cli_NoTerminal"), u"no-terminal"_s);
        const auto keys = m_context.keys();
        if (!keys) return ExitCode::UsedWrongly;
        if (!given.faults.isEmpty())
            return end(outcomeOf(given.allFaults() + faultsBetween(given.values)));
        Fault fault;
        if (!m_context.passwords.load(m_context.options.value(u"password-file"_s), fault))
            return end(outcomeOf({fault}));
        noteReadOnly(m_context, given);
        auto wait = std::make_unique<InterruptibleWait>();
        Failure failure;
        m_session = openForChange(m_context, m_context.options.arguments.first(), failure);
        if (!m_session) return end(failure);
        const Session::Reading reading = readPrinter(m_context, *m_session);
        if (isWaitCancelled()) return stopped();
        if (reading != Session::Reading::Complete)
            return end(outcomeOf(codeOf(reading), m_session->wordsOf(reading)));
        Change change(*m_session, given.values, *keys);
        if (isWaitCancelled()) return stopped();
        const Outcome &planned = change.planned();
        change.warn(collisionsOf(m_session->entry(), planned.plan));
        if (!planned.faults.isEmpty()) return end(planned);
        if (!m_context.isJson()) tell(planned);
        if (planned.plan.changes.isEmpty() || m_isDry) return end(planned);
        if (!m_isAgreed && !m_context.terminal.confirm(localized("DWT_Localize_Cli_Confirm")))
            return stopped();
        wait.reset();  // what is sent is not broken off
        return make(change);
    }

  private:
    ExitCode make(Change &change) {
        const QString name = m_session->name();
        const auto password = [&] { return m_context.passwords.forPrinter(name); };
        const auto mayBegin = [&] {
            m_context.terminal.showProgress(localized("DWT_Localize_Cli_Sending").arg(name));
            return !Interrupt::isRequested();
        };
        Outcome outcome = change.make(password, mayBegin);
        while (outcome.code == ExitCode::LoginRefused && m_context.passwords.mayRetry()) {
            m_context.terminal.note(outcome.sentences.join(u' '));
            outcome = change.make(password, mayBegin);
        }
        const ExitCode code = end(outcome);
        return code == ExitCode::Done && Interrupt::isRequested() ? ExitCode::Stopped : code;
    }

    // What will change.
    void tell(const Outcome &planned) {
        noteNotReported(m_context, *m_session);
        if (!planned.plan.changes.isEmpty())
            m_context.terminal.print(
                localized("DWT_Localize_Cli_WillChange").arg(m_session->name()));
        notePlan(m_context, planned);
    }

    ExitCode stopped() {
        return end(outcomeOf(ExitCode::Stopped, {localized("DWT_Localize_Cli_Stopped")}));
    }

    ExitCode end(const Failure &failure) {
        Outcome outcome = outcomeOf(failure.code, {failure.text});
        outcome.word = failure.kind;
        m_context.terminal.fail(failure);
        if (m_context.isJson()) m_context.terminal.printLine(asJson(outcome));
        return failure.code;
    }

    ExitCode end(const Outcome &outcome) {
        Terminal &terminal = m_context.terminal;
        const bool isDone = outcome.code == ExitCode::Done;
        if (!outcome.faults.isEmpty())
            terminal.fail(outcome.faults);
        else if (!isDone && outcome.code != ExitCode::WouldChange)
            terminal.fail(outcome.code, outcome.sentences.join(u' '), outcome.word);
        else if (isDone && !m_context.isJson())
            terminal.print(outcome.sentences.join(u' '));
        if (m_context.isJson()) {
            QJsonObject object = asJson(outcome);
            if (m_session) object.insert(u"printer"_s, printerAsJson(*m_session));
            terminal.printLine(object);
        }
        return m_context.codeOfRun(outcome.code);
    }

    Context &m_context;
    const bool m_isDry, m_isAgreed;
    std::optional<Session> m_session;
};

// Adds what an argument gives.
void give(const QString &argument, GivenSettings &given) {
    const qsizetype sign = argument.indexOf(u'=');
    const QString name = argument.left(sign);
    const Setting *const setting = settingOf(name);
    const auto refuse = [&](const QString &words, const QString &kind) {
        given.faults << Fault{{.name = name}, words, kind};
    };
    if (!setting) return refuse(wordsOfUnknown(name), u"unknown-setting"_s);
    if (setting->access() == Setting::Access::Read)
        return refuse(localized("DWT_Localize_Cli_Fault_ReadOnly"), u"read-only"_s);
    if (std::any_of(given.values.begin(), given.values.end(),
                    [&](const WantedValue &value) { return value.setting == setting; }))
        return refuse(localized("DWT_Localize_Cli_Fault_Twice"), u"twice"_s);
    if (sign < 0) return refuse(localized("DWT_Localize_Cli_NoSign"), u"value"_s);
    QString text = argument.mid(sign + 1);
    QString file;
    if (setting->isSecret() && !text.isEmpty()) {
        if (!text.startsWith(u'@'))
            return refuse(localized("DWT_Localize_Cli_SecretArgument"), u"secret-argument"_s);
        Fault fault;
        file = text.mid(1);
        const auto secret = readSecret(file, fault);
        if (!secret) return refuse(fault.text, fault.kind);
        text = *secret;
    }
    const Parsed parsed = parsedText(*setting, text);
    if (!parsed.value) return refuse(parsed.fault, u"value"_s);
    given.values << WantedValue{setting, *parsed.value, {.name = name}, parsed.fault, file};
}

ExitCode run(Context &context, GivenSettings given) {
    const ExitCode code = Work(context).run(given);
    forgetSecrets(given.values);
    return code;
}

}  // namespace

ExitCode apply(Context &context) {
    const Selection selection(context.options.value(u"only"_s),
                              context.options.value(u"without"_s));
    if (const QString unknown = selection.unknown(); !unknown.isEmpty())
        return context.terminal.fail(ExitCode::UsedWrongly,
                                     unknown + u": "_s + wordsOfUnknown(unknown));
    return run(context, selection.of(settingsFromFile(context.options.arguments[1])));
}

ExitCode set(Context &context) {
    GivenSettings given;
    for (const QString &argument : context.options.arguments.mid(1)) give(argument, given);
    return run(context, given);
}
