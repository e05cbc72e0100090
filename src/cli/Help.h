#pragma once

#include "cli/Command.h"

// What the program says of its commands, in lines of a terminal.

// All commands, each with what it does.
QStringList helpOf(const QList<Command> &commands);
// One command: its synopsis, what it does, its options, and an example.
QStringList helpOf(const Command &command);

// The parts of a synopsis that stay whole: "network-setting show", "PRINTER", "[--json]".
QStringList synopsisOf(const Command &command);
