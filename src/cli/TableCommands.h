#pragma once

#include "cli/Context.h"

// Says everything that is wrong with a file of settings, or with a table.
ExitCode check(Context &context);

// Changes every printer that has a row in a table.
ExitCode provision(Context &context);
