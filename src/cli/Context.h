#pragma once

#include "cli/Command.h"
#include "cli/Options.h"
#include "cli/Passwords.h"
#include "cli/Terminal.h"

// One run of the program: what was asked for, and where words and passwords go through.
struct Context {
    const QList<Command> &commands;
    const Options options;
    Terminal &terminal;
    Passwords passwords = {};

    bool isJson() const { return options.has(QStringLiteral("json")); }
    // Says that the user has stopped it. Result: its code.
    ExitCode stopped();
};
