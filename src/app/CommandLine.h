#pragma once

#include <QString>
#include <optional>

// The help for "--help" or the version for "--version"; nothing to start. Needs no display.
std::optional<QString> commandLineAnswer(int argc, char **argv);

// Takes up what else is asked for: "--demo" lists the demo printers, as ZMLIB_PRINTERS=demo does.
void applyOptions(int argc, char **argv);

// Says on standard error what is wrong with the catalogue that the environment names, if any.
void sayProblemsOfCatalogue();
