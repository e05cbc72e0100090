#pragma once

#include <optional>

#include "cli/Context.h"
#include "settings/Session.h"

// The printer that a command line names.

// The printer that `named` stands for: by URI, serial number, address, name or MAC
// address, in any case. Nothing, with the `failure`,
// when there is none or more than one.
std::optional<Session> openPrinter(Context &context, const QString &named, Failure &failure);

// The same of a printer whose settings can be changed.
std::optional<Session> openForChange(Context &context, const QString &named, Failure &failure);

// Reads an opened printer and shows meanwhile how far it is.
Session::Reading readPrinter(Context &context, Session &session);
