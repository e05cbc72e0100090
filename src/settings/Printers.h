#pragma once

#include <QList>

#include "zmlib/ZMLib.h"

// The printers that the communication library lists.
namespace Printers {

// Those of a supported model; in installer mode only those on USB. None is asked for anything.
QList<PrinterEntry> supported();

// The length of the status reply of a listed printer's model, in bytes.
int statusLengthOf(const PrinterEntry &entry);

// Why printers may be missing from the last list, unusable lists of models included.
QList<PrinterProblem> problems();

// Whether printers came or went since the last list. Asks no printer.
bool hasListChanged();

}  // namespace Printers
