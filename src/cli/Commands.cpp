#include "cli/Commands.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <cerrno>

#include "cli/Interrupt.h"
#include "cli/Options.h"
#include "cli/Passwords.h"
#include "cli/PrinterSession.h"
#include "cli/Provision.h"
#include "cli/Table.h"
#include "cli/Terminal.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

const QString tableSuffix = u".csv"_s;

// So many names of settings are listed where the rest goes without saying.
constexpr qsizetype namesAtAGlance = 4;

QString text(const char *key) {
    return localized(QLatin1String(key));
}

// A group of settings as JSON: those whose names begin with `prefix`, under the rest of their
// names.
void insert(QJsonObject &object, const QStringList &path, const QJsonValue &value) {
    if (path.size() == 1) {
        object.insert(path.first(), value);
        return;
    }
    QJsonObject group = object.value(path.first()).toObject();
    insert(group, path.mid(1), value);
    object.insert(path.first(), group);
}

// Of the secrets, nothing.
QJsonObject recordAsJson(const SettingRecord &record) {
    QJsonObject object;
    for (const Setting &setting : settings())
        if (setting.access != Setting::Access::Enter && record.contains(setting.viewKey))
            insert(object, setting.name.split(u'.'),
                   valueAsJson(setting, record.value(setting.viewKey)));
    return object;
}

QJsonObject entryAsJson(const PrinterEntry &entry) {
    return recordAsJson({{QString(), listedCategory(entry)}})[u"printer"].toObject();
}

QStringList cellsOf(const PrinterEntry &entry) {
    return {listedName(entry), entry.value(PrinterKey::ProductName),
            text(isUSB(entry) ? "DWT_Localize_PrinterList_BonjourService_USB"
                              : "DWT_Localize_PrinterList_BonjourService_Network"),
            whereaboutsOf(entry), entry.value(PrinterKey::DeviceURI)};
}

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
    ExitCode list() {
        const InterruptibleWait wait;
        const auto manager = make<DWTDataManager>();
        const auto printers = manager->printerList().value_or(QList<PrinterEntry>());
        if (m_options.json) {
            QJsonArray array;
            for (const PrinterEntry &entry : printers) array << entryAsJson(entry);
            m_terminal.print(array);
        } else if (!printers.isEmpty()) {
            QList<QStringList> rows;
            for (const PrinterEntry &entry : printers) rows << cellsOf(entry);
            m_terminal.print(rows);
        }
        const auto problems = manager->printerProblems();
        m_terminal.note(problems);
        if (isWaitCancelled()) return stopped();
        if (printers.isEmpty() && !m_options.json)
            m_terminal.note(text("DWT_Localize_Cli_NoPrinters"));
        return Done;
    }

    ExitCode show() {
        const InterruptibleWait wait;
        auto session = open();
        if (!session) return m_code;
        const Ending read = this->read(*session);
        if (isWaitCancelled()) return stopped();
        if (read.code != Done && session->record().value(DWT_View_Key_Network).isEmpty())
            return m_terminal.fail(read.code, read.text);
        if (m_options.json)
            m_terminal.print(recordAsJson(session->record()));
        else
            printPages(*session);
        if (read.code != Done) return m_terminal.fail(read.code, read.text);
        noteNotTold(*session);
        return Done;
    }

    ExitCode check() {
        const QString file = m_options.arguments.first();
        if (file.endsWith(tableSuffix, Qt::CaseInsensitive)) {
            const Table table = tableFromFile(file);
            QList<Fault> faults = table.faults;
            for (const TableRow &row : table.rows) faults += faultsBetween(row.values);
            return faults.isEmpty() ? Done : m_terminal.fail(faults);
        }
        const GivenSettings given = settingsFromFile(file);
        noteReadOnly(given);
        const QList<Fault> faults = given.allFaults() + faultsBetween(given.values);
        return faults.isEmpty() ? Done : m_terminal.fail(faults);
    }

    ExitCode apply() {
        if (!m_options.yes && !m_options.dryRun && !Terminal::canAsk())
            return m_terminal.fail(UsedWrongly, text("DWT_Localize_Cli_NoTerminal"));
        const GivenSettings given = settingsFromFile(m_options.arguments[1]);
        if (!given.faults.isEmpty())
            return m_terminal.fail(given.allFaults() + faultsBetween(given.values));
        Fault fault;
        if (!m_passwords.load(m_options.passwordFile, fault)) return m_terminal.fail({fault});
        noteReadOnly(given);
        auto wait = std::make_unique<InterruptibleWait>();
        auto session = openForChange();
        if (!session) return m_code;
        const Ending read = this->read(*session);
        if (isWaitCancelled()) return stopped();
        if (read.code != Done) return m_terminal.fail(read.code, read.text);
        noteNotTold(*session);
        const Plan plan = planOf(session->record(), given.values);
        if (!plan.faults.isEmpty()) return m_terminal.fail(plan.faults);
        printPlan(*session, plan);
        if (plan.changes.isEmpty() || m_options.dryRun) return Done;
        if (!m_options.yes && !m_terminal.confirm(text("DWT_Localize_Cli_Confirm")))
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
            row.values = laidOver(given.values, row.values);
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
        const auto found = session->networks([this](int polls, int total) {
            const auto left = DWTDataManager::defaultScanInterval * (total - polls);
            m_terminal.showProgress(
                text("DWT_Localize_Wait_Searching")
                    .arg(std::chrono::ceil<std::chrono::seconds>(left).count()));
        });
        if (isWaitCancelled()) return stopped();
        if (!found)
            return m_terminal.fail(NotReached,
                                   text("DWT_Localize_Cli_NotReached").arg(session->name()));
        printNetworks(*found);
        return Done;
    }

    // --- Printers ---

    // The printer that the command names; null, and m_code says why.
    std::optional<PrinterSession> open() {
        const QString named = m_options.arguments.first();
        const auto manager = make<DWTDataManager>();
        for (const PrinterEntry &entry : manager->supportedPrinters())
            if (entry.value(PrinterKey::DeviceURI) == named) return PrinterSession(entry);
        QList<PrinterEntry> meant;
        for (const PrinterEntry &entry : manager->printerList().value_or(QList<PrinterEntry>()))
            if (entry.value(PrinterKey::SerialNumber) == named || listedName(entry) == named)
                meant << entry;
        if (meant.size() == 1) return PrinterSession(meant.first());
        if (isWaitCancelled()) {
            m_code = stopped();
            return {};
        }
        if (meant.isEmpty()) m_terminal.note(manager->printerProblems());
        QStringList candidates;
        for (const PrinterEntry &entry : std::as_const(meant))
            candidates << cellsOf(entry).join(u"  "_s);
        m_code = m_terminal.fail(
            NotReached,
            text(meant.isEmpty() ? "DWT_Localize_Cli_NotFound" : "DWT_Localize_Cli_Ambiguous")
                .arg(named),
            candidates);
        return {};
    }

    // The same, if its settings can be changed.
    std::optional<PrinterSession> openForChange() {
        auto session = open();
        if (!session || isUSB(session->entry())) return session;
        m_code = m_terminal.fail(UsedWrongly, text("DWT_Localize_Cli_NotUsb").arg(session->name()));
        return {};
    }

    Ending read(PrinterSession &session) {
        const QString name = session.name();
        Ending read = session.read([&](int done, int total) {
            m_terminal.showProgress(text("DWT_Localize_Wait_Reading")
                                        .arg(name, QString::number(done), QString::number(total)));
        });
        m_terminal.showProgress({});
        return read;
    }

    ExitCode change(PrinterSession &session, const Plan &plan) {
        const QString name = session.name();
        const auto password = [&] { return m_passwords.forPrinter(name); };
        const auto mayBegin = [&] {
            m_terminal.showProgress(text("DWT_Localize_Cli_Sending").arg(name));
            return !Interrupt::isRequested();
        };
        const Ending ending = session.change(plan, password, mayBegin);
        if (ending.code != Done) return m_terminal.fail(ending.code, ending.text);
        m_terminal.print(text("DWT_Localize_Cli_Changed").arg(name));
        return Interrupt::isRequested() ? Stopped : Done;
    }

    ExitCode stopped() { return m_terminal.fail(Stopped, text("DWT_Localize_Cli_Stopped")); }

    // --- What is told ---

    void printPages(const PrinterSession &session) {
        const PrinterEntry &entry = session.entry();
        QStringList title{session.name(), entry.value(PrinterKey::ProductName)};
        if (const QString whereabouts = whereaboutsOf(entry); !whereabouts.isEmpty())
            title << whereabouts;
        m_terminal.print(title.join(u", "_s));
        QList<QStringList> rows;
        for (const SettingPage &page : settingPages()) {
            QList<QStringList> lines;
            for (const Setting &setting : settings())
                if (setting.viewKey == page.viewKey && setting.access != Setting::Access::Enter)
                    lines << QStringList{
                        u"  "_s + nameInLabel(localized(setting.labelKey)),
                        valueOrEmpty(setting, session.record().value(page.viewKey))};
            if (!lines.isEmpty())
                rows << QStringList{} << QStringList{localized(page.titleKey)} << lines;
        }
        m_terminal.print(rows);
    }

    void printPlan(const PrinterSession &session, const Plan &plan) {
        if (plan.changes.isEmpty()) {
            m_terminal.print(text("DWT_Localize_Cli_NothingToDo").arg(session.name()));
            return;
        }
        m_terminal.print(text("DWT_Localize_Cli_WillChange").arg(session.name()));
        for (const Plan::Change &change : plan.changes)
            m_terminal.print(u"  %1: %2"_s.arg(
                change.setting->name, change.setting->isSecret()
                                          ? change.newText
                                          : u"%1 → %2"_s.arg(change.oldText, change.newText)));
        for (const QString &warning : plan.warnings) m_terminal.note(warning);
    }

    void printNetworks(const QList<SSIDEntry> &networks) {
        if (!m_options.json) {
            QList<QStringList> rows;
            for (const SSIDEntry &network : networks)
                rows << QStringList{
                    readableText(textValue(network, DWT_SSIDList_SSID_String)),
                    listAuthentications.value(integerValue(network, DWT_SSIDList_Authentic)),
                    listEncryptions.value(integerValue(network, DWT_SSIDList_Encryption)),
                    u"%1 dBm"_s.arg(integerValue(network, DWT_SSIDList_SignalStrength))};
            m_terminal.print(rows);
            if (networks.isEmpty()) m_terminal.note(text("DWT_Localize_Cli_NoNetworks"));
            return;
        }
        QJsonArray array;
        for (const SSIDEntry &network : networks) {
            const auto named = [&](const QStringList &names, const QString &key) -> QJsonValue {
                const int code = integerValue(network, key);
                if (code >= 0 && code < names.size()) return names[code];
                return code;
            };
            array << QJsonObject{
                {u"ssid"_s, readableText(textValue(network, DWT_SSIDList_SSID_String))},
                {u"ssidHex"_s, QString::fromLatin1(bytesValue(network, DWT_SSIDList_SSID).toHex())},
                {u"authentication"_s, named(listAuthentications, DWT_SSIDList_Authentic)},
                {u"encryption"_s, named(listEncryptions, DWT_SSIDList_Encryption)},
                {u"signal"_s, integerValue(network, DWT_SSIDList_SignalStrength)}};
        }
        m_terminal.print(array);
    }

    void noteNotTold(const PrinterSession &session) {
        if (const QStringList names = session.notTold(); !names.isEmpty())
            m_terminal.note(
                text("DWT_Localize_Cli_NotTold").arg(session.name(), names.join(u", "_s)));
    }

    void noteReadOnly(const GivenSettings &given) {
        QStringList names = given.readOnly;
        if (names.size() > namesAtAGlance) names = names.first(namesAtAGlance) << u"…"_s;
        if (!names.isEmpty())
            m_terminal.note(text("DWT_Localize_Cli_ReadOnly").arg(names.join(u", "_s)));
    }

    // The names of the codes of a network of the list.
    const QStringList listAuthentications{u"open"_s, u"wpa"_s, u"wpa2"_s, u"wpa/wpa2"_s};
    const QStringList listEncryptions{u"none"_s, u"wep"_s, u"tkip"_s, u"aes"_s, u"tkip/aes"_s};

    const Options m_options;
    Terminal m_terminal;
    Passwords m_passwords;
    ExitCode m_code = Done;  // why no printer was opened
};

}  // namespace

int runCommandLine(const QStringList &arguments) {
    const Options options = optionsOf(arguments);
    Terminal terminal(options.json);
    ExitCode code = Done;
    if (options.shown == Options::Shown::Help) {
        for (const QString &line : text("DWT_Localize_Cli_Help").split(u'\n')) terminal.print(line);
    } else if (options.shown == Options::Shown::Version) {
        terminal.print(u"network-setting " NST_VERSION ""_s);
    } else if (!options.error.isEmpty()) {
        code = terminal.fail(UsedWrongly, options.error);
        terminal.note(text("DWT_Localize_Cli_SeeHelp"));
    } else {
        Interrupt::watch();
        code = Run(options).run();
    }
    // Who reads only the beginning of a pipe has got what was wanted.
    if (!Terminal::flush() && errno != EPIPE && code == Done)
        code = terminal.fail(InputRefused, text("DWT_Localize_Cli_Output"));
    return code;
}
