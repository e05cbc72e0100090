#pragma once

#include <QStringList>

#include "cli/ExitCode.h"

// Runs the program with its arguments, its own name first: help, version, or a command. Main
// thread.
ExitCode runCommandLine(const QStringList &arguments);
