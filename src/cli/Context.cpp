#include "cli/Context.h"

#include "platform/core/Texts.h"

ExitCode Context::stopped() {
    return terminal.fail(ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"));
}
