#pragma once

#include <QByteArray>
#include <memory>

#include "support/PrinterServerThread.h"
#include "support/Profiles.h"
#include "zmlib/CatalogueLibrary.h"

// A library with the one printer `printer`, reached inside the process ("virtual://printer") or
// over loopback. Silent printers are given up after 200 ms.
class OnePrinterLibrary {
  public:
    enum class Transport { Virtual, Tcp };
    static constexpr int longestWait = 200;

    OnePrinterLibrary(std::shared_ptr<VirtualPrinter> printer, Transport transport,
                      const PrinterEntry &more = {})
        : m_printer(std::move(printer)) {
        Catalogue catalogue;
        m_uri = QStringLiteral("virtual://printer");
        if (transport == Transport::Tcp) {
            m_server = std::make_unique<PrinterServerThread>(m_printer);
            m_uri = m_server->uri();
        } else {
            catalogue.virtualPrinters.insert(m_uri, m_printer);
        }
        m_entry = {{QStringLiteral("DeviceURI"), m_uri},
                   {QStringLiteral("ConnectionType"), QStringLiteral("USB")},
                   {QStringLiteral("ProductName"), QStringLiteral("Larkfield L200")}};
        m_entry.insert(more);
        catalogue.entries = {m_entry};
        m_library = std::make_shared<CatalogueLibrary>(std::move(catalogue), longestWait);
    }

    std::shared_ptr<CatalogueLibrary> library() const { return m_library; }
    VirtualPrinter &printer() const { return *m_printer; }
    const QString &uri() const { return m_uri; }
    const PrinterEntry &entry() const { return m_entry; }

  private:
    std::shared_ptr<VirtualPrinter> m_printer;
    std::unique_ptr<PrinterServerThread> m_server;
    QString m_uri;
    PrinterEntry m_entry;
    std::shared_ptr<CatalogueLibrary> m_library;
};

// Test names by transport.
inline std::string nameOf(OnePrinterLibrary::Transport transport) {
    return transport == OnePrinterLibrary::Transport::Tcp ? "Tcp" : "Virtual";
}
