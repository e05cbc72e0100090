#include "cli/Help.h"

#include "cli/Columns.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

const QString programName = u"network-setting"_s;

QString withValue(const Option &option) {
    return u"--"_s + option.name +
           (option.value.isEmpty() ? QString() : QString(u' ') + option.value);
}

}  // namespace

QStringList synopsisOf(const Command &command) {
    QStringList parts{programName + u' ' + command.name};
    for (const Argument &argument : command.arguments) {
        const QString name = argument.name + (argument.isMany ? u"..."_s : QString());
        parts << (argument.isOptional ? u'[' + name + u']' : name);
    }
    for (const Option &option : command.options) parts << u'[' + withValue(option) + u']';
    return parts;
}

QStringList helpOf(const QList<Command> &commands) {
    QStringList lines = wrapped({}, localized("DWT_Localize_Cli_Help").split(u' '));
    QList<std::pair<QString, QString>> rows;
    for (const Command &command : commands)
        if (command.helpKey) rows << std::pair(command.name, localized(command.helpKey));
    lines << QString() << explained(rows) << QString();
    for (const char *key : {"DWT_Localize_Cli_Help_Printer", "DWT_Localize_Cli_Help_Codes"})
        lines << wrapped({}, localized(key).split(u' ')) << QString();
    return lines << wrapped({}, localized("DWT_Localize_Cli_Help_More").split(u' '));
}

QStringList helpOf(const Command &command) {
    const QStringList parts = synopsisOf(command);
    QStringList lines = wrapped(parts.first() + u' ', parts.mid(1));
    lines << QString() << wrapped({}, localized(command.helpKey).split(u' '));
    QList<std::pair<QString, QString>> rows;
    for (const Option &option : command.options)
        rows << std::pair(withValue(option), localized(option.helpKey));
    if (!rows.isEmpty()) lines << QString() << explained(rows);
    return lines << QString() << localized("DWT_Localize_Cli_Help_Example")
                 << u"  "_s + programName + u' ' + command.example;
}
