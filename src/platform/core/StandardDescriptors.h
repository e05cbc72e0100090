#pragma once

// Takes those of the standard descriptors 0 to 2 that are closed, so that no file or device which
// is opened later becomes one of them. Reading from them ends, writing to them fails. The first
// call of a program.
void takeStandardDescriptors();
