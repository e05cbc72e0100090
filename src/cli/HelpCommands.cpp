#include "cli/HelpCommands.h"

#include <algorithm>

#include "cli/Help.h"
#include "cli/Look.h"
#include "platform/core/Nearest.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"
#include "settings/Settings.h"

using namespace Qt::StringLiterals;

namespace {

const Command *commandOf(const Context &context, const QString &name) {
    const auto found = std::find_if(context.commands.begin(), context.commands.end(),
                                    [&](const Command &command) { return command.name == name; });
    return found == context.commands.end() ? nullptr : &*found;
}

QStringList namesOf(const QList<Command> &commands) {
    QStringList names;
    for (const Command &command : commands)
        if (command.helpKey) names << command.name;
    return names;
}

QStringList printerNames() {
    QStringList names;
    Look look;
    look.wait(QDeadlineTimer(Look::gathering));
    for (const PrinterEntry &entry : look.printers()) names << listedName(entry);
    names.removeDuplicates();
    return names;
}

// The names of settings for which something holds, each with an ending.
QStringList settingNames(const auto &holds, const QString &ending = {}) {
    QStringList names;
    for (const Setting &setting : settings())
        if (!setting.name.isEmpty() && holds(setting)) names << setting.name + ending;
    return names;
}

bool isShown(const Setting &setting) {
    return setting.access() != Setting::Access::Enter;
}

bool isChangeable(const Setting &setting) {
    return setting.access() != Setting::Access::Read;
}

// What a word can be; its beginning that stays is `kept`, such as "--template=".
struct Offer {
    bool isFiles = false;
    QStringList words = {};
    QString kept = {};
};

Offer offerOf(const Context &context, Takes takes, const QString &word, const QString &kept = {}) {
    switch (takes) {
        case Takes::Command:
            return {false, namesOf(context.commands), kept};
        case Takes::Printer:
            return {false, printerNames(), kept};
        case Takes::PrinterOrFile:
            if (const QStringList names = printerNames().filter(word, Qt::CaseInsensitive);
                !names.isEmpty())
                return {false, names, kept};
            return {true, {}, kept};
        case Takes::SettingsFile:
        case Takes::TableFile:
        case Takes::AnyFile:
            return {true, {}, kept};
        case Takes::ShownNames:
            return {false, settingNames(isShown), kept};
        case Takes::Names: {
            const qsizetype end = word.lastIndexOf(u',') + 1;
            return {false, settingNames(isChangeable), kept + word.left(end)};
        }
        case Takes::Values: {
            const qsizetype end = word.indexOf(u'=') + 1;
            if (end == 0) return {false, settingNames(isChangeable, u"="_s), kept};
            const Setting *const setting = settingOf(word.left(end - 1));
            return {false, setting ? setting->codes : QStringList(), word.left(end)};
        }
        case Takes::Keys:
            return {false, {u"always"_s, u"when-changed"_s}, kept};
        case Takes::Word:
        case Takes::Nothing:
            break;
    }
    return {};
}

Offer offerOf(const Context &context, const Command &command, const QStringList &words) {
    const auto optionOf = [&](const QString &word) -> const Option * {
        for (const Option &option : command.options)
            if (word == u"--"_s + option.name) return &option;
        return nullptr;
    };
    qsizetype given = 0;  // arguments before the last word
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        const Option *const option = optionOf(words[i]);
        const bool takes = option && option->takes != Takes::Nothing;
        if (takes && i + 2 == words.size()) return offerOf(context, option->takes, words.last());
        if (takes) ++i;
        if (!words[i].startsWith(u'-') && !takes) ++given;
    }
    const QString &last = words.last();
    const qsizetype sign = last.indexOf(u'=');
    if (const Option *const option = sign > 0 ? optionOf(last.left(sign)) : nullptr)
        return offerOf(context, option->takes, last.mid(sign + 1), last.left(sign + 1));
    if (last.startsWith(u'-')) {
        Offer offer{false, {u"--help"_s}};
        for (const Option &option : command.options) offer.words << u"--"_s + option.name;
        return offer;
    }
    if (command.arguments.isEmpty()) return {};
    const Argument &end = command.arguments.last();
    if (given >= command.arguments.size() && !end.isMany) return {};
    return offerOf(context, command.arguments.value(given, end).takes, last);
}

}  // namespace

ExitCode help(Context &context) {
    const QString name = context.options.arguments.value(0);
    if (name.isEmpty()) {
        for (const QString &line : helpOf(context.commands)) context.terminal.print(line);
        return ExitCode::Done;
    }
    const Command *const command = commandOf(context, name);
    if (!command || !command->helpKey)
        return context.terminal.fail(
            ExitCode::UsedWrongly, wordsOfUnknownWord("DWT_Localize_Cli_BadCommand", name,
                                                      nearestOf(name, namesOf(context.commands))));
    for (const QString &line : helpOf(*command)) context.terminal.print(line);
    return ExitCode::Done;
}

ExitCode complete(Context &context) {
    const QStringList &words = context.options.arguments;
    Offer offer;
    if (const Command *const command = commandOf(context, words.value(0));
        command && words.size() > 1)
        offer = offerOf(context, *command, words.mid(1));
    else if (words.size() == 1)
        offer.words = namesOf(context.commands) << u"--help"_s << u"--version"_s;
    context.terminal.print(offer.isFiles ? u"files"_s : u"words"_s);
    const QString begun = words.isEmpty() ? QString() : words.last().mid(offer.kept.size());
    if (offer.isFiles) context.terminal.print(begun);
    for (const QString &word : std::as_const(offer.words))
        if (word.startsWith(begun, Qt::CaseInsensitive)) context.terminal.print(offer.kept + word);
    return ExitCode::Done;
}
