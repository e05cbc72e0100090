#include "cli/Provision.h"

#include <QDateTime>
#include <algorithm>
#include <utility>

#include "cli/Change.h"
#include "cli/Interrupt.h"
#include "cli/Views.h"
#include "link/Binding.h"
#include "platform/core/MainThread.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

namespace {

// The columns of the file of results.
const QStringList resultColumns{u"time"_s, u"printer"_s, u"serial"_s, u"uri"_s,
                                u"line"_s, u"outcome"_s, u"detail"_s};

// So many printers that are not there are named.
constexpr qsizetype atAGlance = 10;

Rows::Printer printerOf(const Session &session) {
    const PrinterEntry &entry = session.entry();
    Rows::Printer printer{entry.value(PrinterKey::DeviceURI),
                          entry.value(PrinterKey::SerialNumber),
                          session.name(),
                          {}};
    printer.macs = macsOf(session.record());
    return printer;
}

}  // namespace

Provision::Provision(Terminal &terminal, Passwords &passwords, ProvisionOrder order, bool isJson)
    : m_terminal(terminal),
      m_passwords(passwords),
      m_order(std::move(order)),
      m_isJson(isJson),
      m_rows(m_order.rows, m_order.again) {}

ExitCode Provision::run() {
    if (!m_order.resultFile.isEmpty() &&
        !m_results.open(m_order.resultFile, resultColumns, m_order.inputs))
        return m_terminal.fail(ExitCode::InputRefused, m_results.problem(), u"results"_s);
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
    const bool follow = !m_stopping && !m_order.once && !listsCatalogue();
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
    using enum PrinterProblem::Kind;
    static const QSet ofNetwork{NoNetworkService, SilentNetworkService, NotLocated, ManyAnnounced};
    auto problems = Printers::problems();
    problems.removeIf(
        [](const PrinterProblem &problem) { return ofNetwork.contains(problem.kind); });
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
        result.outcome = outcomeOf(ExitCode::Stopped, {localized("DWT_Localize_Cli_Stopped")});
    } else if (read == Session::Reading::Complete) {
        MainThread::callAndWait([&] { result = claim(session); });
        if (result.granted) result.outcome = changeByRow(session, *result.row);
    } else {
        result.outcome = outcomeOf(codeOf(read), session.wordsOf(read));
    }
    return result;
}

Outcome Provision::changeByRow(Session &session, const TableRow &row) {
    const auto isStopped = [this] { return m_stopping || Interrupt::isRequested(); };
    std::optional<Change> change;
    {
        const CancellableWait wait(isStopped);
        change.emplace(session, row.values, m_order.keys);
    }
    if (isStopped()) return outcomeOf(ExitCode::Stopped, {localized("DWT_Localize_Cli_Stopped")});
    const Outcome &planned = change->planned();
    if (m_order.isDry || planned.plan.changes.isEmpty() || !planned.faults.isEmpty())
        return planned;
    bool hasPassword = true;
    const auto password = [&]() -> std::optional<QString> {
        if (!row.login.isEmpty()) return ownCopy(row.login);
        std::optional<QString> given;
        MainThread::callAndWait([&] {
            if (!isStopped()) given = m_passwords.forPrinter(session.name());
        });
        hasPassword = given.has_value();
        return given;
    };
    // A run that is killed leaves this trace.
    const auto mayBegin = [&] {
        if (isStopped()) return false;
        bool isNoted = true;
        if (hasPassword)
            MainThread::callAndWait([&] { isNoted = write(session, &row, u"begun"_s, {}); });
        return isNoted;
    };
    return change->make(password, mayBegin);
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
    result.granted = claim.kind == Kind::Granted;
    if (result.granted) return result;
    static const QMap<Kind, const char *> words{
        {Kind::SeveralRows, "DWT_Localize_Cli_SeveralRows"},
        {Kind::SeveralPrinters, "DWT_Localize_Cli_SeveralPrinters"},
        {Kind::RowUsed, "DWT_Localize_Cli_RowUsed"},
        {Kind::NoRow, "DWT_Localize_Cli_NoRow"},
        {Kind::DoneBefore, "DWT_Localize_Cli_DoneBefore"}};
    QStringList lines;
    for (const int line : claim.lines) lines << QString::number(line);
    const bool isFault = claim.kind != Kind::NoRow && claim.kind != Kind::DoneBefore;
    QString sentence = localized(words[claim.kind]);
    sentence = isFault ? sentence.arg(name, lines.join(u", "_s)) : sentence.arg(name);
    result.outcome = outcomeOf(isFault ? ExitCode::InputRefused : ExitCode::Done, {sentence});
    if (claim.kind == Kind::NoRow) result.outcome.word = u"no-row"_s;
    if (claim.kind == Kind::DoneBefore) result.outcome.word = u"done-before"_s;
    return result;
}

void Provision::finish(const Session &session, const Result &result) {
    const ExitCode code = result.outcome.code;
    const bool isDone = code == ExitCode::Done || code == ExitCode::WouldChange;
    if (result.granted) m_rows.release(*result.row, result.printer, isDone);
    m_worst = worseOf(m_worst, code);
    note(session, result);
    m_working.remove(session.entry().value(PrinterKey::DeviceURI));
    startNext();
    if (isEnd()) m_loop.quit();
}

// On the terminal, and in the file of results.
void Provision::note(const Session &session, const Result &result) {
    const Outcome &outcome = result.outcome;
    QStringList sentences = outcome.sentences + wordsOfLeftOut(outcome.plan);
    for (const Outcome::Warning &warning : outcome.warnings) sentences << warning.text;
    if (outcome.ending && !outcome.notReported.isEmpty())
        sentences << localized("DWT_Localize_Cli_NotReported")
                         .arg(session.name(),
                              namesOf(outcome.notReported, Naming::Stable).join(u", "_s));
    const QString words = sentences.join(u' ');
    const PrinterEntry &entry = session.entry();
    if (m_isJson) {
        QJsonObject object = asJson(outcome);
        object.insert(u"printer"_s, printerAsJson(session));
        object.insert(u"line"_s, result.row ? QJsonValue(result.row->line) : QJsonValue());
        m_terminal.printLine(object);
    } else {
        const QString whereabouts = whereaboutsOf(entry);
        m_terminal.print(u"%1: %2"_s.arg(
            whereabouts.isEmpty() ? entry.value(PrinterKey::DeviceURI) : whereabouts, words));
        if (m_order.isDry)
            for (const Plan::Change &change : outcome.plan.changes)
                m_terminal.print(u"  "_s + lineOf(change, outcome));
    }
    Terminal::flush();
    write(session, result.row, outcome.word == u"changed" ? u"done"_s : outcome.word, words);
}

// Adds a row to the file of results, if there is one. Without it, nothing more is begun.
bool Provision::write(const Session &session, const TableRow *row, const QString &word,
                      const QString &words) {
    if (!m_results.isOpen()) return true;
    if (m_writeFailed) return false;
    const PrinterEntry &entry = session.entry();
    if (m_results.add({QDateTime::currentDateTimeUtc().toString(Qt::ISODate), session.name(),
                       entry.value(PrinterKey::SerialNumber), entry.value(PrinterKey::DeviceURI),
                       row ? QString::number(row->line) : QString(), word, words}))
        return true;
    m_writeFailed = true;
    m_stopping = true;
    m_terminal.fail(ExitCode::InputRefused,
                    m_results.problem() + u' ' + localized("DWT_Localize_Cli_ResultsEnd"),
                    u"results"_s);
    return false;
}

bool Provision::isEnd() const {
    if (!m_working.isEmpty()) return false;
    const bool isOver = m_order.once || m_order.deadline.hasExpired() || listsCatalogue();
    return m_stopping || (m_waiting.isEmpty() && (m_rows.isAllDone() || isOver));
}

ExitCode Provision::result() {
    if (m_writeFailed) return ExitCode::InputRefused;
    if (m_rows.isAllDone()) return m_worst;
    for (const PrinterEntry &entry : std::as_const(m_present))
        m_rows.see({entry.value(PrinterKey::DeviceURI),
                    entry.value(PrinterKey::SerialNumber),
                    listedName(m_names.named(entry)),
                    {}});
    const auto missing = m_rows.missing();
    if (Interrupt::isRequested())
        return m_terminal.fail(ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"));
    tellMissing(missing);
    return missing.isEmpty() ? m_worst : worseOf(m_worst, ExitCode::NotReached);
}

void Provision::tellMissing(const QList<const TableRow *> &rows) {
    QStringList names;
    for (const TableRow *const row : rows) {
        names << row->printer();
        if (!m_isJson) continue;
        QJsonObject object = asJson(outcomeOf(ExitCode::NotReached, {}));
        object.insert(u"outcome"_s, u"not-there"_s);
        object.insert(u"line"_s, row->line);
        m_terminal.printLine(object);
    }
    if (names.isEmpty()) return;
    QString words = localized("DWT_Localize_Cli_RowsLeft")
                        .arg(names.first(std::min(names.size(), atAGlance)).join(u", "_s));
    if (names.size() > atAGlance)
        words += u' ' + localized("DWT_Localize_Cli_AndMore").arg(names.size() - atAGlance);
    m_terminal.note(words);
}
