#pragma once

#include <QList>

#include "zmlib/ZMLib.h"

// The printers that the communication library lists.
namespace Printers {

// Those of a supported model that are known now; in installer mode only those on USB. None is asked
// for anything.
QList<PrinterEntry> supported();

// Stays the same while a listed printer is plugged in, and differs from that of any other.
QString identityOf(const PrinterEntry &entry);

// The length of the status reply of a listed printer's model, in bytes.
int statusLengthOf(const PrinterEntry &entry);

// Why printers may be missing from the last list, unusable lists of models and USB printers of an
// unknown model included.
QList<PrinterProblem> problems();

// Whether printers came or went since the last list. Asks no printer.
bool hasListChanged();

// Whether the last list had every printer that is there; false while the network is searched.
bool isListComplete();

}  // namespace Printers
