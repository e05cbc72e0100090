#pragma once

#include <memory>

#include "zmlib/ZMLib.h"

// The communication library that every link calls. Until one is installed it lists the real
// printers; with the environment variable ZMLIB_PRINTERS those of a catalogue instead
// (zmlib/Catalogue.h).
std::shared_ptr<ZMLib> installedLibrary();

// Whether that first one lists a catalogue: its printers neither come nor go.
bool listsCatalogue();

// Installs another library in its place; a null pointer brings the first one back, made anew.
// Call it while no link is being used.
void installLibrary(std::shared_ptr<ZMLib> library);
