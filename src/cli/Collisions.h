#pragma once

#include "cli/Outcome.h"

// Warnings that a change would give a printer the name or the address of another listed one. Looks
// for the others only when a name or an address changes, for at most Look::longest.
QList<Outcome::Warning> collisionsOf(const PrinterEntry &own, const Plan &plan);
