#include "cli/SettingCommands.h"

#include <QFileInfo>
#include <QJsonArray>

#include "cli/Choice.h"
#include "cli/Columns.h"
#include "cli/Interrupt.h"
#include "cli/Outcome.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/SettingsFile.h"

using namespace Qt::StringLiterals;

namespace {

// Reads the printer that is named; a printer of which not everything came is a failure.
std::optional<SettingRecord> readNamed(Context &context, const QString &named, Failure &failure) {
    auto session = openPrinter(context, named, failure);
    if (!session) return {};
    const Session::Reading reading = readPrinter(context, *session);
    if (isWaitCancelled())
        failure = {ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped")};
    else if (reading != Session::Reading::Complete)
        failure = {codeOf(reading), session->wordsOf(reading).join(u' ')};
    else
        return session->record();
    return {};
}

// The settings of a name or a group that a printer reports and may show.
QList<const Setting *> shownUnder(const QString &name) {
    QList<const Setting *> found;
    for (const Setting &setting : settings())
        if ((setting.name == name || setting.name.startsWith(name + u'.')) &&
            setting.access() != Setting::Access::Enter)
            found << &setting;
    return found;
}

// What is said of a name under which nothing can be shown.
QString wordsOfUnshown(const QString &name) {
    return settingOf(name) ? localized("DWT_Localize_Cli_NeverShown").arg(name)
                           : name + u": "_s + wordsOfUnknown(name);
}

QJsonValue valueOf(const Setting &setting, const SettingRecord &record) {
    return asJson(setting, record.value(setting.viewKey));
}

// --- What settings may be ---

// The symbol of the unit of a number; empty for one without.
QString unitOf(const Setting &setting) {
    return setting.key == DWT_SaveData_Firmware_Timeout ? u"s"_s : QString();
}

QString wordsOfRule(const Setting &setting) {
    if (setting.access() == Setting::Access::Read) return localized("DWT_Localize_Cli_OnlyShown");
    if (setting.rule && setting.rule->ruleKey) return localized(setting.rule->ruleKey);
    const QString unit = unitOf(setting);
    return wordsOfExpected(setting) + (unit.isEmpty() ? unit : u" [%1]"_s.arg(unit));
}

QJsonObject asJson(const Setting &setting) {
    static const QMap<Setting::Kind, QString> kinds{{Setting::Kind::Text, u"text"_s},
                                                    {Setting::Kind::Number, u"number"_s},
                                                    {Setting::Kind::Address, u"address"_s},
                                                    {Setting::Kind::Choice, u"choice"_s},
                                                    {Setting::Kind::Mac, u"mac"_s}};
    static const QMap<Setting::Access, QString> accesses{{Setting::Access::Read, u"read"_s},
                                                         {Setting::Access::Change, u"change"_s},
                                                         {Setting::Access::Enter, u"enter"_s}};
    QJsonObject object{{u"name"_s, setting.name},
                       {u"kind"_s, kinds[setting.kind]},
                       {u"access"_s, accesses[setting.access()]},
                       {u"secret"_s, setting.isSecret()},
                       {u"rule"_s, wordsOfRule(setting)}};
    if (!setting.codes.isEmpty())
        object.insert(u"values"_s, QJsonArray::fromStringList(setting.codes));
    using Kind = Rules::Rule::Kind;
    const bool hasBounds =
        setting.rule && (setting.rule->kind == Kind::Number || setting.rule->kind == Kind::Text);
    if (hasBounds) {
        object.insert(u"min"_s, setting.rule->min);
        object.insert(u"max"_s, setting.rule->max);
    }
    if (const QString unit = unitOf(setting); !unit.isEmpty()) object.insert(u"unit"_s, unit);
    return object;
}

// --- Differences ---

// Values by the names of settings, of a printer or a file.
using Values = QMap<QString, QJsonValue>;

bool isFile(const QString &named) {
    return named == u"-" || named.endsWith(u".json") || QFileInfo(named).isFile();
}

// Nothing, with words told, when it cannot be had.
std::optional<Values> valuesOf(Context &context, const QString &named, ExitCode &code) {
    Values values;
    if (isFile(named)) {
        const GivenSettings given = settingsFromFile(named);
        if (!given.faults.isEmpty()) {
            code = context.terminal.fail(given.allFaults());
            return {};
        }
        for (const WantedValue &value : given.values)
            if (!value.setting->isSecret())
                values.insert(value.setting->name,
                              asJson(*value.setting, {{value.setting->key, value.value}}));
        return values;
    }
    Failure failure;
    const auto record = readNamed(context, named, failure);
    if (!record) {
        code = context.terminal.fail(failure);
        return {};
    }
    for (const Setting &setting : settings())
        if (setting.access() == Setting::Access::Change)
            values.insert(setting.name, valueOf(setting, *record));
    return values;
}

}  // namespace

ExitCode get(Context &context) {
    const QStringList names = context.options.arguments.mid(1);
    QList<const Setting *> asked;
    for (const QString &name : names) {
        const auto found = shownUnder(name);
        if (found.isEmpty())
            return context.terminal.fail(ExitCode::UsedWrongly, wordsOfUnshown(name));
        asked << found;
    }
    const InterruptibleWait wait;
    Failure failure;
    const auto record = readNamed(context, context.options.arguments.first(), failure);
    if (!record) return context.terminal.fail(failure);
    QJsonObject object;
    QList<const Setting *> missing;
    for (const Setting *const setting : std::as_const(asked)) {
        const QJsonValue value = valueOf(*setting, *record);
        object.insert(setting->name, value);
        if (!record->value(setting->viewKey).contains(setting->key)) missing << setting;
        const QString text = value.toVariant().toString();
        if (!context.isJson())
            context.terminal.print(asked.size() == 1 ? text : setting->name + u'=' + text);
    }
    if (context.isJson()) context.terminal.print(object);
    if (!missing.isEmpty())
        context.terminal.note(localized("DWT_Localize_Cli_NotReported")
                                  .arg(context.options.arguments.first(),
                                       namesOf(missing, Naming::Stable).join(u", "_s)));
    return ExitCode::Done;
}

ExitCode listSettings(Context &context) {
    QJsonArray array;
    QList<std::pair<QString, QString>> rows;
    for (const Setting &setting : settings()) {
        if (setting.name.isEmpty()) continue;
        array << asJson(setting);
        rows << std::pair(setting.name, wordsOfRule(setting));
    }
    if (context.isJson())
        context.terminal.print(array);
    else
        for (const QString &line : explained(rows)) context.terminal.print(line);
    return ExitCode::Done;
}

// A setting that a file does not name is not compared.
ExitCode diff(Context &context) {
    const InterruptibleWait wait;
    ExitCode code = ExitCode::Done;
    const auto first = valuesOf(context, context.options.arguments[0], code);
    const auto second = first ? valuesOf(context, context.options.arguments[1], code) : first;
    if (!second) return code;
    QJsonArray array;
    for (const Setting &setting : settings()) {
        const QString &name = setting.name;
        if (!first->contains(name) || !second->contains(name)) continue;
        const QJsonValue a = first->value(name), b = second->value(name);
        if (a == b) continue;
        array << QJsonObject{{u"name"_s, name}, {u"first"_s, a}, {u"second"_s, b}};
        if (!context.isJson())
            context.terminal.print(u"%1: %2 → %3"_s.arg(name, fileTextOf(a), fileTextOf(b)));
    }
    if (context.isJson()) context.terminal.print(array);
    return context.codeOfRun(array.isEmpty() ? ExitCode::Done : ExitCode::WouldChange);
}
