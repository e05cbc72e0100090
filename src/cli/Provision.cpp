#include "cli/Provision.h"

#include <QDateTime>
#include <algorithm>
#include <utility>

#include "cli/Interrupt.h"
#include "cli/Views.h"
#include "link/Binding.h"
#include "platform/core/MainThread.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

namespace {

// The columns of the file of results.
const QStringList resultColumns{u"time"_s, u"printer"_s, u"serial"_s, u"uri"_s,
                                u"line"_s, u"outcome"_s, u"detail"_s};

// The word of an ending, for programs.
QString wordOf(ExitCode code) {
    static const QMap<ExitCode, QString> words{{ExitCode::Done, u"done"_s},
                                               {ExitCode::InputRefused, u"refused"_s},
                                               {ExitCode::NotReached, u"not-reached"_s},
                                               {ExitCode::LoginRefused, u"login-refused"_s},
                                               {ExitCode::NotAccepted, u"not-accepted"_s}};
    return words.value(code, u"stopped"_s);
}

Rows::Printer printerOf(const Session &session) {
    const PrinterEntry &entry = session.entry();
    Rows::Printer printer{entry.value(PrinterKey::DeviceURI),
                          entry.value(PrinterKey::SerialNumber),
                          session.name(),
                          {}};
    for (const Setting &setting : settings())
        if (setting.kind == Setting::Kind::Mac)
            printer.macs << textValue(session.record().value(setting.viewKey), setting.key);
    printer.macs.removeAll(QString());
    return printer;
}

}  // namespace

Provision::Provision(Terminal &terminal, Passwords &passwords, QList<TableRow> rows, bool again)
    : m_terminal(terminal), m_passwords(passwords), m_rows(std::move(rows), again) {}

ExitCode Provision::run(const QString &resultFile) {
    if (!resultFile.isEmpty() && !m_results.open(resultFile, resultColumns))
        return m_terminal.fail(
            ExitCode::InputRefused,
            localized("DWT_Localize_Cli_Unwritable").arg(resultFile, m_results.errorString()));
    Interrupt::watch();
    look();
    if (!isEnd()) {
        if (m_present.isEmpty()) m_terminal.note(localized("DWT_Localize_Cli_Waiting"));
        m_timer.callOnTimeout([this] { tick(); });
        m_timer.start(lookInterval);
        m_loop.exec();
    }
    return result();
}

void Provision::tick() {
    if (!m_stopping && Interrupt::isRequested()) {
        m_stopping = true;
        m_names.ask({});
        if (!m_working.isEmpty()) m_terminal.note(localized("DWT_Localize_Cli_Stopping"));
    }
    const bool follow = !m_stopping && !listsCatalogue();
    if (follow && (m_lookAgain || Printers::hasListChanged())) look();
    startNext();
    if (isEnd()) m_loop.quit();
}

// A printer that comes again while it is worked on has its turn afterwards.
void Provision::look() {
    m_lookAgain = false;
    const auto before = std::exchange(m_present, {});
    for (const PrinterEntry &entry : Printers::supported()) {
        if (!isUSB(entry)) continue;
        const QString identity = Printers::identityOf(entry);
        if (!before.contains(identity) && m_working.contains(entry.value(PrinterKey::DeviceURI))) {
            m_lookAgain = true;
            continue;
        }
        m_present.insert(identity, entry);
        if (before.contains(identity)) continue;
        m_waiting.removeIf([&](const PrinterEntry &one) {  // as it was plugged in before
            return one.value(PrinterKey::DeviceURI) == entry.value(PrinterKey::DeviceURI);
        });
        m_waiting << entry;
    }
    if (m_rows.needNames()) m_names.ask(m_present.values());
    noteProblems();
    startNext();
}

// Printers on the network have no part in it.
void Provision::noteProblems() {
    auto problems = Printers::problems();
    problems.removeIf([](const PrinterProblem &problem) {
        return problem.kind == PrinterProblem::NoNetworkService ||
               problem.kind == PrinterProblem::SilentNetworkService ||
               problem.kind == PrinterProblem::NotLocated;
    });
    for (const PrinterProblem &problem : std::exchange(m_problems, problems))
        problems.removeOne(problem);
    m_terminal.note(problems);
}

// Whether a name is unique shows when all are known.
void Provision::startNext() {
    if (m_names.isAsking()) return;
    while (!m_stopping && m_working.size() < printersAtATime && !m_waiting.isEmpty()) {
        const PrinterEntry entry = m_waiting.takeFirst();
        if (!MainThread::startBackgroundWork([this, entry] { work(entry); })) {
            m_waiting.prepend(entry);  // the system has no thread for it at the moment
            break;
        }
        m_working.insert(entry.value(PrinterKey::DeviceURI));
    }
}

// On a thread of its own, as provision().
void Provision::work(const PrinterEntry &entry) {
    Session session(entry);
    const Result result = provision(session);
    MainThread::callAndWait([&] { finish(session, result); });
}

Provision::Result Provision::provision(Session &session) {
    const auto isStopped = [this] { return m_stopping || Interrupt::isRequested(); };
    Session::Reading read;
    {
        const CancellableWait wait(isStopped);
        read = session.readWhenReady();
    }
    Result result;
    if (isStopped()) {
        result.code = ExitCode::Stopped;
        result.word = wordOf(result.code);
        result.text = localized("DWT_Localize_Cli_Stopped");
        return result;
    }
    if (read == Session::Reading::Complete) {
        MainThread::callAndWait([&] { result = claim(session); });
        if (result.granted) changeByRow(session, result);
        return result;
    }
    result.code = codeOf(read);
    result.word = wordOf(result.code);
    result.text = session.wordsOf(read).join(u' ');
    return result;
}

void Provision::changeByRow(Session &session, Result &result) {
    const QString name = session.name();
    const auto end = [&](ExitCode code, const QStringList &sentences) {
        result.code = code;
        result.word = wordOf(code);
        result.text = sentences.join(u' ');
    };
    const Plan plan = planOf(session.record(), result.row->values);
    QStringList faults;
    for (const Fault &fault : plan.faults) faults << wordsOf(fault);
    if (!faults.isEmpty()) return end(ExitCode::InputRefused, faults);
    if (plan.changes.isEmpty()) {
        end(ExitCode::Done, {localized("DWT_Localize_Cli_NothingToDo").arg(name)});
        result.word = u"unchanged"_s;
        return;
    }
    const auto mayBegin = [this] { return !m_stopping && !Interrupt::isRequested(); };
    const auto password = [&] {
        std::optional<QString> given;
        MainThread::callAndWait([&] {
            if (mayBegin()) given = m_passwords.forPrinter(name);
        });
        return given;
    };
    const Ending ending = session.change(plan, password, mayBegin);
    end(codeOf(ending), session.wordsOf(ending, Naming::Stable));
}

Provision::Result Provision::claim(const Session &session) {
    Result result;
    result.printer = printerOf(session);
    const QString &name = result.printer.name;
    const auto namesakes =
        std::count_if(m_present.begin(), m_present.end(), [&](const PrinterEntry &entry) {
            return readableText(m_names.named(entry).value(PrinterKey::MachineName)) == name;
        });
    const Rows::Claim claim = m_rows.claim(result.printer, namesakes);
    result.row = claim.row;
    using Kind = Rows::Claim::Kind;
    static const QMap<Kind, const char *> refusals{
        {Kind::SeveralRows, "DWT_Localize_Cli_SeveralRows"},
        {Kind::SeveralPrinters, "DWT_Localize_Cli_SeveralPrinters"},
        {Kind::RowUsed, "DWT_Localize_Cli_RowUsed"}};
    result.granted = claim.kind == Kind::Granted;
    if (const char *const key = refusals.value(claim.kind)) {
        QStringList lines;
        for (const int line : claim.lines) lines << QString::number(line);
        result.code = ExitCode::InputRefused;
        result.word = wordOf(result.code);
        result.text = localized(key).arg(name, lines.join(u", "_s));
    } else if (claim.kind == Kind::NoRow) {
        result.word = u"no-row"_s;
        result.text = localized("DWT_Localize_Cli_NoRow").arg(name);
    } else if (claim.kind == Kind::DoneBefore) {
        result.word = u"done-before"_s;
        result.text = localized("DWT_Localize_Cli_DoneBefore").arg(name);
    }
    return result;
}

void Provision::finish(const Session &session, const Result &result) {
    if (result.granted) m_rows.release(*result.row, result.printer, result.code == ExitCode::Done);
    m_worst = std::max(m_worst, result.code);
    note(session, result);
    m_working.remove(session.entry().value(PrinterKey::DeviceURI));
    startNext();
    if (isEnd()) m_loop.quit();
}

// On the terminal, and in the file of results.
void Provision::note(const Session &session, const Result &result) {
    const PrinterEntry &entry = session.entry();
    const QString uri = entry.value(PrinterKey::DeviceURI), whereabouts = whereaboutsOf(entry);
    m_terminal.print(u"%1: %2"_s.arg(whereabouts.isEmpty() ? uri : whereabouts, result.text));
    Terminal::flush();
    if (!m_results.isOpen() || m_writeFailed) return;
    if (m_results.add({QDateTime::currentDateTimeUtc().toString(Qt::ISODate), session.name(),
                       entry.value(PrinterKey::SerialNumber), uri,
                       result.row ? QString::number(result.row->line) : QString(), result.word,
                       result.text}))
        return;
    m_writeFailed = true;
    m_stopping = true;
    m_terminal.fail(
        ExitCode::InputRefused,
        localized("DWT_Localize_Cli_ResultsEnd").arg(m_results.path(), m_results.errorString()));
}

bool Provision::isEnd() const {
    if (!m_working.isEmpty()) return false;
    return m_stopping || (m_waiting.isEmpty() && (m_rows.isAllDone() || listsCatalogue()));
}

ExitCode Provision::result() {
    if (m_writeFailed) return ExitCode::InputRefused;
    if (m_rows.isAllDone()) return m_worst;
    const QStringList missing = m_rows.unclaimed();
    if (!missing.isEmpty())
        m_terminal.note(localized("DWT_Localize_Cli_RowsLeft").arg(missing.join(u", "_s)));
    if (Interrupt::isRequested())
        return m_terminal.fail(ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"));
    return missing.isEmpty() ? m_worst : std::max(m_worst, ExitCode::NotReached);
}
