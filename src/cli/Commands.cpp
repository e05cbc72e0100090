#include "cli/Commands.h"

#include <QSet>
#include <cerrno>

#include "cli/Interrupt.h"
#include "cli/Look.h"
#include "cli/Options.h"
#include "cli/Passwords.h"
#include "cli/Provision.h"
#include "cli/Table.h"
#include "cli/Terminal.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

namespace {

const QString tableSuffix = u".csv"_s;

// So many names of settings are listed where the rest goes without saying.
constexpr qsizetype namesAtAGlance = 4;

// One run of the program.
class Run {
  public:
    explicit Run(Options options) : m_options(std::move(options)), m_terminal(m_options.json) {}

    ExitCode run() {
        using Command = ExitCode (Run::*)();
        static const QMap<QString, Command> commands{
            {u"list"_s, &Run::list},           {u"show"_s, &Run::show},
            {u"check"_s, &Run::check},         {u"apply"_s, &Run::apply},
            {u"provision"_s, &Run::provision}, {u"networks"_s, &Run::networks}};
        return (this->*commands[m_options.command])();
    }

  private:
    // Rows are printed as soon as they are whole; those of silent printers come last.
    ExitCode list() {
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
            if (!m_options.json) m_terminal.print(rows, widths);
            Terminal::flush();
        };
        const QDeadlineTimer deadline(Look::longest);
        for (bool isOver = false; !isOver && !isWaitCancelled();) {
            isOver = look.wait(std::min(deadline, QDeadlineTimer(Look::gathering))) ||
                     deadline.hasExpired();
            print(isOver);
        }
        if (m_options.json) m_terminal.print(array);
        m_terminal.note(Printers::problems());
        if (isWaitCancelled()) return stopped();
        if (printed.isEmpty() && !m_options.json)
            m_terminal.note(localized("DWT_Localize_Cli_NoPrinters"));
        return ExitCode::Done;
    }

    ExitCode show() {
        const InterruptibleWait wait;
        auto session = open();
        if (!session) return m_code;
        const Session::Reading reading = read(*session);
        if (isWaitCancelled()) return stopped();
        const ExitCode code = codeOf(reading);
        const QString words = session->wordsOf(reading).join(u' ');
        if (code != ExitCode::Done && session->record().value(DWT_View_Key_Network).isEmpty())
            return m_terminal.fail(code, words);
        if (m_options.json)
            m_terminal.print(asJson(session->record()));
        else
            printPages(*session);
        if (code != ExitCode::Done) return m_terminal.fail(code, words);
        noteNotReported(*session);
        return ExitCode::Done;
    }

    ExitCode check() {
        const QString file = m_options.arguments.first();
        if (file.endsWith(tableSuffix, Qt::CaseInsensitive)) {
            const Table table = tableFromFile(file);
            QList<Fault> faults = table.faults;
            for (const TableRow &row : table.rows) faults += faultsBetween(row.values);
            return faults.isEmpty() ? ExitCode::Done : m_terminal.fail(faults);
        }
        const GivenSettings given = settingsFromFile(file);
        noteReadOnly(given);
        const QList<Fault> faults = given.allFaults() + faultsBetween(given.values);
        return faults.isEmpty() ? ExitCode::Done : m_terminal.fail(faults);
    }

    ExitCode apply() {
        if (!m_options.yes && !m_options.dryRun && !Terminal::canAsk())
            return m_terminal.fail(ExitCode::UsedWrongly, localized("DWT_Localize_Cli_NoTerminal"));
        const GivenSettings given = settingsFromFile(m_options.arguments[1]);
        if (!given.faults.isEmpty())
            return m_terminal.fail(given.allFaults() + faultsBetween(given.values));
        Fault fault;
        if (!m_passwords.load(m_options.passwordFile, fault)) return m_terminal.fail({fault});
        noteReadOnly(given);
        auto wait = std::make_unique<InterruptibleWait>();
        auto session = openForChange();
        if (!session) return m_code;
        const Session::Reading reading = read(*session);
        if (isWaitCancelled()) return stopped();
        if (reading != Session::Reading::Complete)
            return m_terminal.fail(codeOf(reading), session->wordsOf(reading).join(u' '));
        noteNotReported(*session);
        const Plan plan = planOf(session->record(), given.values);
        if (!plan.faults.isEmpty()) return m_terminal.fail(plan.faults);
        printPlan(*session, plan);
        if (plan.changes.isEmpty() || m_options.dryRun) return ExitCode::Done;
        if (!m_options.yes && !m_terminal.confirm(localized("DWT_Localize_Cli_Confirm")))
            return stopped();
        wait.reset();  // what is sent is not broken off
        return change(*session, plan);
    }

    ExitCode provision() {
        const Table table = tableFromFile(m_options.arguments.first());
        QList<Fault> faults = table.faults;
        GivenSettings given;
        if (!m_options.templateFile.isEmpty()) {
            given = settingsFromFile(m_options.templateFile);
            faults += given.allFaults();
            noteReadOnly(given);
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
        if (!m_passwords.load(m_options.passwordFile, fault)) faults << fault;
        if (!faults.isEmpty()) return m_terminal.fail(faults);
        return Provision(m_terminal, m_passwords, rows, m_options.again).run(m_options.resultFile);
    }

    ExitCode networks() {
        const InterruptibleWait wait;
        auto session = openForChange();
        if (!session) return m_code;
        const auto found = session->manager()->SSIDList([this](int polls, int total) {
            const auto left = DWTDataManager::defaultScanInterval * (total - polls);
            m_terminal.showProgress(
                localized("DWT_Localize_Wait_Searching")
                    .arg(std::chrono::ceil<std::chrono::seconds>(left).count()));
        });
        if (isWaitCancelled()) return stopped();
        if (!found)
            return m_terminal.fail(ExitCode::NotReached,
                                   localized("DWT_Localize_Cli_NoSearch").arg(session->name()));
        if (m_options.json)
            m_terminal.print(asJson(*found));
        else
            m_terminal.print(rowsOf(*found));
        if (found->isEmpty() && !m_options.json)
            m_terminal.note(localized("DWT_Localize_Cli_NoNetworks"));
        return ExitCode::Done;
    }

    // --- Printers ---

    // The printer that the command names; null, and m_code says why. A URI and a serial number that
    // one printer has are known at once; whose a name is shows when all names are known.
    std::optional<Session> open() {
        const QString named = m_options.arguments.first();
        Look look;
        const auto with = [&](const auto &isMeant) {
            QList<PrinterEntry> meant;
            for (const PrinterEntry &entry : look.printers())
                if (isMeant(entry)) meant << entry;
            return meant;
        };
        const auto atOnce = [&] {
            const auto byUri = with([&](const PrinterEntry &entry) {
                return entry.value(PrinterKey::DeviceURI) == named;
            });
            const auto bySerial = with([&](const PrinterEntry &entry) {
                return entry.value(PrinterKey::SerialNumber) == named;
            });
            return byUri.isEmpty() ? bySerial : byUri;
        };
        const auto isFound = [&] { return atOnce().size() == 1; };
        if (!isFound()) look.wait(QDeadlineTimer(Look::longest), isFound);
        QList<PrinterEntry> meant = atOnce();
        if (meant.size() != 1)
            meant = with([&](const PrinterEntry &entry) {
                return entry.value(PrinterKey::SerialNumber) == named || listedName(entry) == named;
            });
        if (meant.size() == 1) {
            look.leave(meant.first());
            return Session(meant.first());
        }
        if (isWaitCancelled()) {
            m_code = stopped();
            return {};
        }
        if (meant.isEmpty()) m_terminal.note(Printers::problems());
        QStringList candidates;
        for (const PrinterEntry &entry : std::as_const(meant))
            candidates << cellsOf(entry).join(u"  "_s);
        m_code = m_terminal.fail(
            ExitCode::NotReached,
            localized(meant.isEmpty() ? "DWT_Localize_Cli_NotFound" : "DWT_Localize_Cli_Ambiguous")
                .arg(named),
            candidates);
        return {};
    }

    // The same, if its settings can be changed.
    std::optional<Session> openForChange() {
        auto session = open();
        if (!session || isUSB(session->entry())) return session;
        m_code = m_terminal.fail(ExitCode::UsedWrongly,
                                 localized("DWT_Localize_Cli_NotUsb").arg(session->name()));
        return {};
    }

    Session::Reading read(Session &session) {
        const QString name = session.name();
        const Session::Reading reading = session.read([&](int done, int total) {
            m_terminal.showProgress(localized("DWT_Localize_Wait_Reading")
                                        .arg(name, QString::number(done), QString::number(total)));
        });
        m_terminal.showProgress({});
        return reading;
    }

    ExitCode change(Session &session, const Plan &plan) {
        const QString name = session.name();
        const auto password = [&] { return m_passwords.forPrinter(name); };
        const auto mayBegin = [&] {
            m_terminal.showProgress(localized("DWT_Localize_Cli_Sending").arg(name));
            return !Interrupt::isRequested();
        };
        const Ending ending = session.change(plan, password, mayBegin);
        const ExitCode code = codeOf(ending);
        const QString words = session.wordsOf(ending, Naming::Stable).join(u' ');
        if (code != ExitCode::Done) return m_terminal.fail(code, words);
        m_terminal.print(words);
        return Interrupt::isRequested() ? ExitCode::Stopped : ExitCode::Done;
    }

    ExitCode stopped() {
        return m_terminal.fail(ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"));
    }

    // --- What is told ---

    void printPages(const Session &session) {
        const PrinterEntry &entry = session.entry();
        QStringList title{session.name(), entry.value(PrinterKey::ProductName)};
        if (const QString whereabouts = whereaboutsOf(entry); !whereabouts.isEmpty())
            title << whereabouts;
        m_terminal.print(title.join(u", "_s));
        m_terminal.print(rowsOf(session.record()));
    }

    void printPlan(const Session &session, const Plan &plan) {
        if (plan.changes.isEmpty()) {
            m_terminal.print(localized("DWT_Localize_Cli_NothingToDo").arg(session.name()));
            return;
        }
        m_terminal.print(localized("DWT_Localize_Cli_WillChange").arg(session.name()));
        for (const Plan::Change &change : plan.changes)
            m_terminal.print(u"  %1: %2"_s.arg(change.setting->name, change.words()));
        for (const SendWarning &warning : plan.warnings) m_terminal.note(wordsOf(warning));
    }

    void noteNotReported(const Session &session) {
        const auto missing = namesOf(session.manager()->notReported(), Naming::Stable);
        if (!missing.isEmpty())
            m_terminal.note(localized("DWT_Localize_Cli_NotReported")
                                .arg(session.name(), missing.join(u", "_s)));
    }

    void noteReadOnly(const GivenSettings &given) {
        QStringList names = given.readOnly;
        if (names.size() > namesAtAGlance) names = names.first(namesAtAGlance) << u"…"_s;
        if (!names.isEmpty())
            m_terminal.note(localized("DWT_Localize_Cli_ReadOnly").arg(names.join(u", "_s)));
    }

    const Options m_options;
    Terminal m_terminal;
    Passwords m_passwords;
    ExitCode m_code = ExitCode::Done;  // why no printer was opened
};

}  // namespace

ExitCode runCommandLine(const QStringList &arguments) {
    const Options options = optionsOf(arguments);
    Terminal terminal(options.json);
    ExitCode code = ExitCode::Done;
    if (options.shown == Options::Shown::Help) {
        for (const QString &line : localized("DWT_Localize_Cli_Help").split(u'\n'))
            terminal.print(line);
    } else if (options.shown == Options::Shown::Version) {
        terminal.print(u"network-setting " NST_VERSION ""_s);
    } else if (!options.error.isEmpty()) {
        code = terminal.fail(ExitCode::UsedWrongly, options.error);
        terminal.note(localized("DWT_Localize_Cli_SeeHelp"));
    } else {
        Interrupt::ignoreLostReaders();
        code = Run(options).run();
    }
    // Who reads only the beginning of a pipe has got what was wanted.
    if (!Terminal::flush() && errno != EPIPE && code == ExitCode::Done)
        code = terminal.fail(ExitCode::InputRefused, localized("DWT_Localize_Cli_Output"));
    return code;
}
