#pragma once

#include "cli/Command.h"
#include "cli/Options.h"
#include "cli/Passwords.h"
#include "cli/Terminal.h"
#include "settings/Plan.h"

// One run of the program: what was asked for, and where words and passwords go through.
struct Context {
    const QList<Command> &commands;
    const Options options;
    Terminal &terminal;
    Passwords passwords = {};

    bool isJson() const { return options.has(QStringLiteral("json")); }
    // The code to end with: what would change is one on request only.
    ExitCode codeOfRun(ExitCode code) const;
    // When keys are sent, as the options say; nothing, with words, when they say nothing known.
    std::optional<Keys> keys();
    // Says that the user has stopped it. Result: its code.
    ExitCode stopped();
};
