#pragma once

#include <QStringList>

// Runs the program with its arguments, of which the first is its own name: help, version, or one of
// the commands that docs/command-line.md describes. Answers an ExitCode. Main thread; needs the
// texts (installTexts()).
int runCommandLine(const QStringList &arguments);
