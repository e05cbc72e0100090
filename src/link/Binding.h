#pragma once

#include <memory>

#include "zmlib/ZMLib.h"

// The communication library of every link: by default of the real printers, with the environment
// variable ZMLIB_PRINTERS of a catalogue (zmlib/Catalogue.h).
std::shared_ptr<ZMLib> installedLibrary();

// Whether that first one lists a catalogue: its printers neither come nor go.
bool listsCatalogue();

// Installs another library while no link is used; a null pointer brings the default back, made
// anew.
void installLibrary(std::shared_ptr<ZMLib> library);
