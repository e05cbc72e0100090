#pragma once

// What the program ends with.
enum class ExitCode : int {
    Done = 0,          // done and verified, or nothing to do
    UsedWrongly = 1,   // the command line
    InputRefused = 2,  // what is in a file; a file that cannot be read or written
    NotReached = 3,    // the printer was not found, or does not answer
    LoginRefused = 4,
    NotAccepted = 5,  // items were refused, or read back differently
    Stopped = 6,      // by the user
    WouldChange = 7   // if it were done; only on request
};

// The worse of two endings: the larger code, but what would change is no fault.
inline ExitCode worseOf(ExitCode a, ExitCode b) {
    if (a == ExitCode::WouldChange) return b == ExitCode::Done ? a : b;
    if (b == ExitCode::WouldChange) return a == ExitCode::Done ? b : a;
    return a < b ? b : a;
}
