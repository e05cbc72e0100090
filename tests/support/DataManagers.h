#pragma once

#include <QTest>

#include "link/Binding.h"
#include "settings/DWTDataManager.h"
#include "support/Catalogues.h"

// A data manager on a virtual printer, over either transport.
class ServedManager {
  public:
    ServedManager(const QByteArray &profile, OnePrinterLibrary::Transport transport)
        : served(printerOf(profile), transport) {
        installLibrary(served.library());
        manager = DWTDataManager::dataManager(served.entry());
    }
    ~ServedManager() {
        manager.reset();
        installLibrary(nullptr);
    }

    VirtualPrinter &printer() { return served.printer(); }

    // Sets what goes wrong from now on, from the description of the faults.
    void setFaults(const QByteArray &faults) {
        printer().setFaults(printerOf("{\"faults\": " + faults + "}")->faults());
    }

    OnePrinterLibrary served;
    std::shared_ptr<DWTDataManager> manager;
};
