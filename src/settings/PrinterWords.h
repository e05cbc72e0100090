#pragma once

#include <QString>

#include "zmlib/ZMLib.h"

// Listed printers, and why some are missing, in the words of the tool.

// Why a printer is missing, as a sentence.
QString wordsOf(const PrinterProblem &problem);

// What tells a printer from others of its model: serial number, port or address; may be empty.
QString whereaboutsOf(const PrinterEntry &entry);

// What a listed printer is called: its own name, what it is announced as, or its model.
QString listedName(const PrinterEntry &entry);
