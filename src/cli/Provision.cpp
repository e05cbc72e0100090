#include "cli/Provision.h"

#include <QDateTime>
#include <algorithm>
#include <utility>

#include "cli/Interrupt.h"
#include "link/Binding.h"
#include "platform/core/MainThread.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

// How often is looked for printers that came, and for the user's wish to stop.
constexpr std::chrono::milliseconds lookInterval{250};

// The columns of the file of results.
const QStringList resultColumns{u"time"_s, u"printer"_s, u"serial"_s, u"uri"_s,
                                u"line"_s, u"outcome"_s, u"detail"_s};

QString text(const char *key) {
    return localized(QLatin1String(key));
}

// The word of an ending that is none of the table's.
QString wordOf(ExitCode code) {
    switch (code) {
        case Done:
            return u"done"_s;
        case InputRefused:
            return u"refused"_s;
        case NotReached:
            return u"not-reached"_s;
        case LoginRefused:
            return u"login-refused"_s;
        case NotAccepted:
            return u"not-accepted"_s;
        default:
            return u"stopped"_s;
    }
}

QStringList macsOf(const SettingRecord &record) {
    QStringList macs;
    for (const Setting &setting : settings())
        if (setting.kind == Setting::Kind::Mac)
            macs << textValue(record.value(setting.viewKey), setting.key);
    macs.removeAll(unreadable);
    return macs;
}

// Whether a row is for a printer: the first of what the row knows of it counts.
bool isFor(const TableRow &row, const PrinterSession &session) {
    if (!row.mac.isEmpty()) return macsOf(session.record()).contains(row.mac);
    if (!row.serial.isEmpty()) return session.entry().value(PrinterKey::SerialNumber) == row.serial;
    return session.name() == row.name;
}

bool isByName(const TableRow &row) {
    return row.mac.isEmpty() && row.serial.isEmpty();
}

// What stays the same of a printer when it is plugged in elsewhere.
QString identityOf(const PrinterSession &session) {
    const QStringList macs = macsOf(session.record());
    return macs.isEmpty() ? session.entry().value(PrinterKey::DeviceURI) : macs.first();
}

}  // namespace

Provision::Provision(Terminal &terminal, Passwords &passwords, QList<TableRow> rows, bool again)
    : m_terminal(terminal), m_passwords(passwords), m_rows(std::move(rows)), m_again(again) {}

ExitCode Provision::run(const QString &resultFile) {
    if (!resultFile.isEmpty() && !m_results.open(resultFile, resultColumns))
        return m_terminal.fail(
            InputRefused,
            text("DWT_Localize_Cli_Unwritable").arg(resultFile, m_results.errorString()));
    look();
    if (!isEnd()) {
        if (m_present.isEmpty()) m_terminal.note(text("DWT_Localize_Cli_Waiting"));
        m_timer.callOnTimeout([this] { tick(); });
        m_timer.start(lookInterval);
        m_loop.exec();
    }
    return result();
}

void Provision::tick() {
    if (!m_stopping && Interrupt::isRequested()) {
        m_stopping = true;
        if (!m_working.isEmpty()) m_terminal.note(text("DWT_Localize_Cli_Stopping"));
    }
    const bool follow = !m_stopping && !listsCatalogue();
    if (follow && (m_lookAgain || make<DWTDataManager>()->hasPrinterListChanged())) look();
    startNext();
    if (isEnd()) m_loop.quit();
}

// The name of a printer is asked only where a row is found by it: no two printers may have it then.
// One that comes again while it is still worked on has its turn afterwards.
void Provision::look() {
    if (m_looking) return;
    m_looking = true;
    m_lookAgain = false;
    const auto manager = make<DWTDataManager>();
    const auto link = make<DWTCommunicationControl>();
    const bool byName = std::any_of(m_rows.begin(), m_rows.end(), isByName);
    const auto before = std::exchange(m_present, {});
    QList<PrinterEntry> added;
    for (PrinterEntry entry : manager->supportedPrinters()) {
        if (!isUSB(entry)) continue;
        const QString uri = entry.value(PrinterKey::DeviceURI);
        if (const auto known = before.constFind(uri); known != before.constEnd()) {
            m_present.insert(uri, *known);
            continue;
        }
        if (m_working.contains(uri)) {
            m_lookAgain = true;
            continue;
        }
        if (byName) entry.insert(PrinterKey::MachineName, manager->printerName(link, entry));
        m_present.insert(uri, entry);
        added << entry;
    }
    auto problems = manager->printerProblems();
    for (const PrinterProblem &problem : std::exchange(m_problems, problems))
        problems.removeOne(problem);
    m_terminal.note(problems);
    m_waiting += added;
    m_looking = false;
    startNext();
}

void Provision::startNext() {
    while (!m_stopping && !m_looking && m_working.size() < printersAtATime &&
           !m_waiting.isEmpty()) {
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
    PrinterSession session(entry);
    const Outcome outcome = provision(session);
    MainThread::callAndWait([&] { finish(session, outcome); });
}

Provision::Outcome Provision::provision(PrinterSession &session) {
    const Ending read = session.readWhenReady([this] { return !m_stopping.load(); });
    if (read.code != Done) return {read.code, wordOf(read.code), read.text};
    Outcome outcome;
    MainThread::callAndWait([&] { outcome = claimRow(session); });
    if (outcome.claimed) changeByRow(session, outcome);
    return outcome;
}

void Provision::changeByRow(PrinterSession &session, Outcome &outcome) {
    const QString name = session.name();
    const auto end = [&](ExitCode code, const QString &words) {
        outcome.code = code;
        outcome.word = wordOf(code);
        outcome.text = words;
    };
    const Plan plan = planOf(session.record(), outcome.row->values);
    QStringList faults;
    for (const Fault &fault : plan.faults) faults << wordsOf(fault);
    if (!faults.isEmpty()) return end(InputRefused, faults.join(u' '));
    if (plan.changes.isEmpty()) {
        end(Done, text("DWT_Localize_Cli_NothingToDo").arg(name));
        outcome.word = u"unchanged"_s;
        return;
    }
    const auto password = [&] {
        std::optional<QString> given;
        MainThread::callAndWait([&] { given = m_passwords.forPrinter(name); });
        return given;
    };
    const auto mayBegin = [this] { return !m_stopping && !Interrupt::isRequested(); };
    const Ending ending = session.change(plan, password, mayBegin);
    end(ending.code,
        ending.code == Done ? text("DWT_Localize_Cli_Changed").arg(name) : ending.text);
}

// The row of a printer, which is its own from then on; unless claimed, there is none for it.
Provision::Outcome Provision::claimRow(const PrinterSession &session) {
    const QString name = session.name();
    QList<const TableRow *> rows;
    for (const TableRow &row : m_rows)
        if (isFor(row, session)) rows << &row;
    if (rows.isEmpty()) return {Done, u"no-row"_s, text("DWT_Localize_Cli_NoRow").arg(name)};
    const auto refused = [&](const char *key, const QString &what) -> Outcome {
        return {InputRefused, wordOf(InputRefused), text(key).arg(name, what), rows.first()};
    };
    if (rows.size() > 1) {
        QStringList lines;
        for (const TableRow *row : std::as_const(rows)) lines << QString::number(row->line);
        return refused("DWT_Localize_Cli_SeveralRows", lines.join(u", "_s));
    }
    const TableRow &row = *rows.first();
    const auto named = std::count_if(m_present.begin(), m_present.end(), [&](const auto &entry) {
        return readableText(entry.value(PrinterKey::MachineName)) == name;
    });
    if (isByName(row) && named > 1)
        return refused("DWT_Localize_Cli_SeveralPrinters", QString::number(row.line));
    RowState &state = m_states[row.line];
    const bool isSame = state.doneFor == identityOf(session);
    if (state.busy || (!state.doneFor.isEmpty() && !isSame))
        return refused("DWT_Localize_Cli_RowUsed", QString::number(row.line));
    if (isSame && !m_again)
        return {Done, u"done-before"_s, text("DWT_Localize_Cli_DoneBefore").arg(name), &row};
    state.busy = true;
    return {Done, {}, {}, &row, true};
}

void Provision::finish(const PrinterSession &session, const Outcome &outcome) {
    if (outcome.claimed) {
        RowState &state = m_states[outcome.row->line];
        state.busy = false;
        if (outcome.code == Done) state.doneFor = identityOf(session);
    }
    m_worst = std::max(m_worst, outcome.code);
    note(session, outcome);
    m_working.remove(session.entry().value(PrinterKey::DeviceURI));
    startNext();
    if (isEnd()) m_loop.quit();
}

// On the terminal, and in the file of results.
void Provision::note(const PrinterSession &session, const Outcome &outcome) {
    const PrinterEntry &entry = session.entry();
    const QString uri = entry.value(PrinterKey::DeviceURI), whereabouts = whereaboutsOf(entry);
    m_terminal.print(u"%1: %2"_s.arg(whereabouts.isEmpty() ? uri : whereabouts, outcome.text));
    Terminal::flush();
    if (!m_results.isOpen() || m_writeFailed) return;
    if (m_results.add({QDateTime::currentDateTimeUtc().toString(Qt::ISODate), session.name(),
                       entry.value(PrinterKey::SerialNumber), uri,
                       outcome.row ? QString::number(outcome.row->line) : QString(), outcome.word,
                       outcome.text}))
        return;
    m_writeFailed = true;
    m_stopping = true;
    m_terminal.fail(
        InputRefused,
        text("DWT_Localize_Cli_ResultsEnd").arg(m_results.path(), m_results.errorString()));
}

bool Provision::isAllDone() const {
    return std::all_of(m_rows.begin(), m_rows.end(), [this](const TableRow &row) {
        return !m_states.value(row.line).doneFor.isEmpty();
    });
}

bool Provision::isEnd() const {
    if (!m_working.isEmpty() || m_looking) return false;
    return m_stopping || (m_waiting.isEmpty() && (isAllDone() || listsCatalogue()));
}

ExitCode Provision::result() {
    if (m_writeFailed) return InputRefused;
    if (isAllDone()) return m_worst;
    QStringList missing;
    for (const TableRow &row : m_rows)
        if (!m_states.contains(row.line)) missing << row.printer();
    if (!missing.isEmpty())
        m_terminal.note(text("DWT_Localize_Cli_RowsLeft").arg(missing.join(u", "_s)));
    if (Interrupt::isRequested()) return m_terminal.fail(Stopped, text("DWT_Localize_Cli_Stopped"));
    return missing.isEmpty() ? m_worst : std::max(m_worst, NotReached);
}
