#pragma once

#include <memory>

#include "zmlib/ZMLib.h"

// The communication library that every link calls. Until one is installed it is the library of
// the catalogue named by the environment (zmlib/Catalogue.h); what is wrong with that catalogue is
// then said once on standard error.
std::shared_ptr<ZMLib> installedLibrary();

// Installs another library in its place; a null pointer brings the catalogue's back, read anew.
// Call it while no link is being used.
void installLibrary(std::shared_ptr<ZMLib> library);
