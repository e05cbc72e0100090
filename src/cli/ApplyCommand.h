#pragma once

#include "cli/Context.h"

// Changes one printer by a file of settings.
ExitCode apply(Context &context);

// The same by settings that are given as arguments, NAME=VALUE; a secret as NAME=@FILE.
ExitCode set(Context &context);
