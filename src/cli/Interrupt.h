#pragma once

#include <QTimer>

#include "platform/core/Waiting.h"

// The user's wish to stop: Ctrl+C, an end of the session, a closed terminal.
namespace Interrupt {

// Takes note of the signals SIGINT, SIGTERM and SIGHUP from now on, instead of ending at them. What
// is being written to a printer is never broken off. A reader that ends early (SIGPIPE), and a file
// that is as large as it may get (SIGXFSZ), do not end the program either.
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
