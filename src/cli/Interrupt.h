#pragma once

#include <QTimer>

#include "platform/core/Waiting.h"

// The user's wish to stop: Ctrl+C, an end of the session, a closed terminal.
namespace Interrupt {

// From now on, SIGINT, SIGTERM and SIGHUP are noted and do not end the program; nor do SIGPIPE and
// SIGXFSZ.
void watch();

// Whether the user wants to stop.
bool isRequested();

}  // namespace Interrupt

// While it lives, what the main thread waits for ends early when the user wants to stop.
class InterruptibleWait {
  public:
    InterruptibleWait();

  private:
    CancellableWait m_wait;
    QTimer m_timer;
};
