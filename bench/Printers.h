#pragma once

#include <limits>

#include "Resident.h"
#include "link/Binding.h"
#include "support/OnePrinterLibrary.h"

// A virtual printer with every default, installed as the library's only one: inside the process, or
// served over loopback on a thread of its own.
class BenchPrinter {
  public:
    explicit BenchPrinter(bool tcp)
        : served(std::make_shared<VirtualPrinter>(*profileFromJson({}).profile),
                 tcp ? OnePrinterLibrary::Transport::Tcp : OnePrinterLibrary::Transport::Virtual,
                 {}, std::numeric_limits<int>::max()) {
        installLibrary(served.library());
    }
    ~BenchPrinter() { installLibrary(nullptr); }

    const OnePrinterLibrary served;
    const PrinterEntry entry = served.entry();
};
