#include "cli/Options.h"

#include <QCommandLineParser>
#include <algorithm>

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

struct Command {
    QString name;
    int arguments;
    QStringList flags;
    QStringList files;  // options that name a file
};

const QList<Command> &commands() {
    static const QList<Command> all{
        {u"list"_s, 0, {u"json"_s}, {}},
        {u"show"_s, 1, {u"json"_s}, {}},
        {u"check"_s, 1, {u"json"_s}, {}},
        {u"apply"_s, 2, {u"dry-run"_s, u"yes"_s}, {u"password-file"_s}},
        {u"provision"_s, 1, {u"again"_s}, {u"template"_s, u"password-file"_s, u"result"_s}},
        {u"networks"_s, 1, {u"json"_s}, {}}};
    return all;
}

}  // namespace

Options optionsOf(const QStringList &arguments) {
    Options options;
    QCommandLineParser parser;
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    parser.addOptions({help, version});
    const QString name = arguments.value(1);
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&](const Command &c) { return c.name == name; });
    if (command != commands().end()) {
        for (const QString &flag : command->flags) parser.addOption(QCommandLineOption(flag));
        for (const QString &file : command->files)
            parser.addOption(QCommandLineOption(file, {}, u"file"_s));
    }
    // Without a command, the first argument can only be an option.
    const bool understood = parser.parse(arguments);
    if (understood && parser.isSet(help)) options.shown = Options::Shown::Help;
    if (understood && parser.isSet(version)) options.shown = Options::Shown::Version;
    if (options.shown != Options::Shown::Nothing) return options;
    if (name.isEmpty() || (command == commands().end() && !name.startsWith(u'-'))) {
        options.error = name.isEmpty() ? localized("DWT_Localize_Cli_NoCommand")
                                       : localized("DWT_Localize_Cli_BadCommand").arg(name);
        return options;
    }
    if (!understood) {
        options.error = parser.errorText();
        return options;
    }
    options.command = name;
    const auto has = [&](const QString &flag) {
        return command->flags.contains(flag) && parser.isSet(flag);
    };
    options.json = has(u"json"_s);
    options.arguments = parser.positionalArguments().mid(1);
    if (options.arguments.size() != command->arguments) {
        options.error = localized("DWT_Localize_Cli_BadArguments")
                            .arg(name, QString::number(command->arguments),
                                 QString::number(options.arguments.size()));
        return options;
    }
    const auto file = [&](const QString &option) {
        return command->files.contains(option) ? parser.value(option) : QString();
    };
    options.dryRun = has(u"dry-run"_s);
    options.yes = has(u"yes"_s);
    options.again = has(u"again"_s);
    options.passwordFile = file(u"password-file"_s);
    options.templateFile = file(u"template"_s);
    options.resultFile = file(u"result"_s);
    return options;
}
