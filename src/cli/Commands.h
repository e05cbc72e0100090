#pragma once

#include <QStringList>

#include "cli/ExitCode.h"

// Runs the program with its arguments, of which the first is its own name: help, version, or one of
// the commands that docs/command-line.md describes. Main thread; needs the
// texts (installTexts()).
ExitCode runCommandLine(const QStringList &arguments);
