#pragma once

#include "cli/Context.h"
#include "cli/Outcome.h"
#include "settings/Session.h"
#include "settings/SettingsFile.h"

// What several commands say beside their results.

// The settings that a printer did not report.
void noteNotReported(Context &context, const Session &session);
// The settings of a file that cannot be changed.
void noteReadOnly(Context &context, const GivenSettings &given);
// The changes of a plan, line by line, what it leaves out, and its warnings.
void notePlan(Context &context, const Outcome &planned);
