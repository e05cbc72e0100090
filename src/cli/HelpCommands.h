#pragma once

#include "cli/Context.h"

// Prints what the program, or a command, can do.
ExitCode help(Context &context);

// Prints what a line that is being typed can go on with, for the completion of a shell: "files" or
// "words", then what the last word may become, each on a line of its own. The words of the line
// without the program's name are the arguments.
ExitCode complete(Context &context);
