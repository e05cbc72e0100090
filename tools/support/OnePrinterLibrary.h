#pragma once

#include <QByteArray>
#include <memory>

#include "platform/core/Waiting.h"
#include "support/PrinterServerThread.h"
#include "support/UsbEmulator.h"
#include "zmlib/CatalogueSource.h"
#include "zmlib/UsbSource.h"

// A library of printers from one source, made with the arguments. Silent printers are given up
// after `wait` ms.
template <typename Source, typename... Arguments>
std::shared_ptr<PrinterLibrary> libraryOf(int wait, ProbePorts ports = {}, Arguments... arguments) {
    std::vector<std::unique_ptr<PrinterSource>> sources;
    sources.push_back(std::make_unique<Source>(arguments...));
    return std::make_shared<PrinterLibrary>(std::move(sources), wait, ports);
}

// A library with the one printer `printer`, reached inside the process ("virtual://printer"), over
// loopback or over an emulated USB. Silent printers are given up after `wait` ms.
class OnePrinterLibrary {
  public:
    enum class Transport { Virtual, Tcp, Usb };
    static constexpr int longestWait = 200;

    OnePrinterLibrary(std::shared_ptr<VirtualPrinter> printer, Transport transport,
                      const PrinterEntry &more = {}, int wait = longestWait)
        : m_printer(std::move(printer)),
          m_entry{{PrinterKey::DeviceURI, QStringLiteral("virtual://printer")},
                  {PrinterKey::ConnectionType, PrinterConnection::USB},
                  {PrinterKey::ProductName, QStringLiteral("Larkfield L200")}} {
        Catalogue catalogue;
        if (transport == Transport::Tcp) {
            m_server = std::make_unique<PrinterServerThread>(m_printer);
            m_entry[PrinterKey::DeviceURI] = m_server->uri();
        } else {
            catalogue.virtualPrinters.insert(uri(), m_printer);
        }
        if (transport == Transport::Usb) {
            m_bed = std::make_unique<UsbBed>();
            m_usb = std::make_unique<UsbEmulator>(*m_bed, m_printer);
            m_entry[PrinterKey::DeviceURI] = QStringLiteral("usb:///Larkfield/L200?serial=0001");
            m_library = libraryOf<UsbSource>(wait);
            return;
        }
        m_entry.insert(more);
        catalogue.entries = {m_entry};
        m_library = catalogueLibrary(std::move(catalogue), wait);
    }

    std::shared_ptr<PrinterLibrary> library() const { return m_library; }
    VirtualPrinter &printer() const { return *m_printer; }
    QString uri() const { return m_entry[PrinterKey::DeviceURI]; }
    const PrinterEntry &entry() const { return m_entry; }

    // What the printer received since the last call, as text: "start", "update", "end", "?1006" for
    // a request, "=1006" for a setting frame. Without the end frame that begins an opening over
    // USB.
    QString received() {
        QStringList names;
        for (const auto &[direction, b] : m_printer->log()) {
            if (direction != VirtualPrinter::LoggedFrame::Received) continue;
            const auto code = [&](qsizetype at) {
                return QString::fromLatin1(b.mid(at + 1, 1).toHex() + b.mid(at, 1).toHex());
            };
            if (b[0] == 'C')
                names << u'=' + code(6);
            else if (b[3] == 'f')
                names << u'?' + code(4);
            else
                names << QLatin1String(b[3] == 'w' ? "update" : b[4] == 1 ? "start" : "end");
        }
        m_printer->clearLog();
        if (m_usb && !names.isEmpty() && names.first() == QLatin1String("end")) names.removeFirst();
        return names.join(u' ');
    }
    // The same, once the transaction has ended: over a socket its last frames may be on their way.
    QString receivedUntilEnd() {
        const QByteArray end = QByteArray::fromHex("1b7b045500557d");
        const auto hasEnded = [&] {
            const auto log = m_printer->log();
            return !log.isEmpty() && log.last().bytes == end;
        };
        waitUntil(hasEnded, QDeadlineTimer(5000));
        return received();
    }

  private:
    std::shared_ptr<VirtualPrinter> m_printer;
    PrinterEntry m_entry;
    std::unique_ptr<PrinterServerThread> m_server;
    std::unique_ptr<UsbBed> m_bed;
    std::unique_ptr<UsbEmulator> m_usb;
    std::shared_ptr<PrinterLibrary> m_library;
};
