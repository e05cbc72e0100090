#pragma once

#include "cli/Context.h"

// Changes one printer by a file of settings.
ExitCode apply(Context &context);
