#pragma once

#include "cli/Command.h"

// Everything that the program can do, in the order of its help. A command without a help key is for
// other programs.
const QList<Command> &allCommands();
