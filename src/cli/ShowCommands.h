#pragma once

#include "cli/Context.h"

// Prints every setting of a printer but keys and passwords.
ExitCode show(Context &context);
