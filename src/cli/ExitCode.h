#pragma once

// What the program ends with. A larger code is a worse ending.
enum class ExitCode : int {
    Done = 0,          // done and verified, or nothing to do
    UsedWrongly = 1,   // the command line
    InputRefused = 2,  // what is in a file; a file that cannot be read or written
    NotReached = 3,    // the printer was not found, or does not answer
    LoginRefused = 4,
    NotAccepted = 5,  // items were refused, or read back differently
    Stopped = 6       // by the user
};
