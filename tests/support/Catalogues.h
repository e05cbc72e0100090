#pragma once

#include <QByteArray>
#include <QTest>
#include <algorithm>
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
                      const PrinterEntry &more = {}, int wait = longestWait)
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
        m_library = std::make_shared<CatalogueLibrary>(std::move(catalogue), wait);
    }

    std::shared_ptr<CatalogueLibrary> library() const { return m_library; }
    VirtualPrinter &printer() const { return *m_printer; }
    const QString &uri() const { return m_uri; }

    // What the printer received since the last call, as text: "start", "update", "end", "?1006" for
    // a request, "=1006" for a setting frame.
    QString received() {
        QStringList names;
        for (const auto &frame : m_printer->log()) {
            if (frame.direction != VirtualPrinter::LoggedFrame::Received) continue;
            const QByteArray &b = frame.bytes;
            if (b[0] == 'C')
                names << u'=' + code(b.mid(6, 2));
            else if (b[3] == 'f')
                names << u'?' + code(b.mid(4, 2));
            else if (b[3] == 'w')
                names << QStringLiteral("update");
            else
                names << (b[4] == 1 ? QStringLiteral("start") : QStringLiteral("end"));
        }
        m_printer->clearLog();
        return names.join(u' ');
    }
    // The same, once the transaction has ended: over a socket its last frames may be on their way.
    QString receivedUntilEnd() {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            const auto log = m_printer->log();
            return !log.isEmpty() && log.last().bytes == hex("1b7b045500557d");
        }));
        return received();
    }
    const PrinterEntry &entry() const { return m_entry; }

  private:
    static QString code(QByteArray bytes) {
        std::reverse(bytes.begin(), bytes.end());
        return QString::fromLatin1(bytes.toHex());
    }

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
