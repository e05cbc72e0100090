#pragma once

#include <QJsonObject>

#include "cli/ExitCode.h"
#include "settings/Plan.h"

// Faults and codes, in words and for programs.

// A fault with its place: "table.csv: line 7, column "address": ...".
QString wordsOf(const Fault &fault);
QJsonObject asJson(const Fault &fault);

// The stable word of a code: "not-reached".
QString wordOf(ExitCode code);
