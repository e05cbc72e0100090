#pragma once

#include "cli/Context.h"

// Prints the values of some settings of a printer.
ExitCode get(Context &context);

// Prints the names of all settings, and what each may be.
ExitCode listSettings(Context &context);

// Prints in which settings two printers or files differ.
ExitCode diff(Context &context);
