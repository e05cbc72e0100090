#include "cli/Commands.h"

#include <cerrno>

#include "cli/CommandTable.h"
#include "cli/Context.h"
#include "cli/Help.h"
#include "cli/Interrupt.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

ExitCode run(Context &context) {
    using Shown = Options::Shown;
    const Options &options = context.options;
    if (options.shown == Shown::Version) {
        context.terminal.print(u"network-setting " NST_VERSION ""_s);
    } else if (options.shown == Shown::Help) {
        for (const QString &line :
             options.command ? helpOf(*options.command) : helpOf(allCommands()))
            context.terminal.print(line);
    } else if (options.error.isEmpty()) {
        Interrupt::ignoreLostReaders();
        return options.command->run(context);
    } else {
        context.terminal.fail(ExitCode::UsedWrongly, options.error);
        context.terminal.note(
            options.command ? localized("DWT_Localize_Cli_SeeHelpOf").arg(options.command->name)
                            : localized("DWT_Localize_Cli_SeeHelp"));
        return ExitCode::UsedWrongly;
    }
    return ExitCode::Done;
}

}  // namespace

ExitCode runCommandLine(const QStringList &arguments) {
    const Options options = optionsOf(arguments, allCommands());
    Terminal terminal(options.has(u"json"_s));
    Context context{allCommands(), options, terminal};
    ExitCode code = run(context);
    // Who reads only the beginning of a pipe has got what was wanted.
    if (!Terminal::flush() && errno != EPIPE && code == ExitCode::Done)
        code = terminal.fail(ExitCode::InputRefused, localized("DWT_Localize_Cli_Output"));
    return code;
}
