#include "cli/Context.h"

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

ExitCode Context::codeOfRun(ExitCode code) const {
    const bool isUntold = code == ExitCode::WouldChange && !options.has(u"exit-code"_s);
    return isUntold ? ExitCode::Done : code;
}

std::optional<Keys> Context::keys() {
    static const QMap<QString, Keys> known{{u"when-changed"_s, Keys::WhenChanged},
                                           {u"always"_s, Keys::Always}};
    const QString given = options.has(u"keys"_s) ? options.value(u"keys"_s) : u"when-changed"_s;
    if (known.contains(given)) return known[given];
    terminal.fail(
        ExitCode::UsedWrongly,
        localized("DWT_Localize_Cli_BadKeys").arg(given, QStringList(known.keys()).join(u", "_s)));
    return {};
}

ExitCode Context::stopped() {
    return terminal.fail(ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"));
}
