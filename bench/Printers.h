#pragma once

#include <QJsonDocument>
#include <memory>

#include "Resident.h"
#include "link/Binding.h"
#include "support/PrinterServerThread.h"
#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/CatalogueSource.h"

// A virtual printer with every default, installed as the library's only one: inside the process, or
// served over loopback on a thread of its own.
class BenchPrinter {
  public:
    explicit BenchPrinter(bool tcp)
        : printer(std::make_shared<VirtualPrinter>(*profileFromJson({}).profile)) {
        Catalogue catalogue;
        QString uri = QStringLiteral("virtual://bench");
        if (tcp) {
            m_server = std::make_unique<PrinterServerThread>(printer);
            uri = m_server->uri();
        } else {
            catalogue.virtualPrinters.insert(uri, printer);
        }
        entry = {{QStringLiteral("DeviceURI"), uri},
                 {QStringLiteral("ConnectionType"), QStringLiteral("USB")},
                 {QStringLiteral("ProductName"), QStringLiteral("Larkfield L200")}};
        catalogue.entries = {entry};
        installLibrary(catalogueLibrary(std::move(catalogue)));
    }
    ~BenchPrinter() { installLibrary(nullptr); }

    const std::shared_ptr<VirtualPrinter> printer;
    PrinterEntry entry;

  private:
    std::unique_ptr<PrinterServerThread> m_server;
};
