#pragma once

#include "cli/Context.h"

// Prints the printers on USB and on the network.
ExitCode list(Context &context);

// Lets a printer look for wireless networks, and prints them.
ExitCode networks(Context &context);
