#pragma once

#include "platform/core/Waiting.h"

// The user's wish to stop: Ctrl+C, an end of the session, a closed terminal.
namespace Interrupt {

// From now on, SIGINT, SIGTERM and SIGHUP are noted and do not end the program. Before, while
// inputs are read that may never come, they end it at once.
void watch();

// From now on, SIGPIPE and SIGXFSZ do not end the program: the write fails instead.
void ignoreLostReaders();

// Whether the user wants to stop.
bool isRequested();

}  // namespace Interrupt

// While it lives, what its thread waits for ends early when the user wants to stop.
class InterruptibleWait {
  public:
    InterruptibleWait() { Interrupt::watch(); }

  private:
    const CancellableWait m_wait{Interrupt::isRequested};
};
