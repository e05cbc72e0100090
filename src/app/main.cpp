#include <QCoreApplication>
#include <cstdio>

#include "link/DWTCommunicationControl.h"

// Prints the printers that the communication library can reach.
int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    const auto link = make<DWTCommunicationControl>();
    const auto printers = link->printerList();
    if (!printers || printers->isEmpty()) {
        std::puts("No printers. ZMLIB_PRINTERS names the catalogue that lists them.");
        return 0;
    }
    for (const PrinterEntry &entry : *printers)
        std::printf("%-8s %-16s %s\n", qUtf8Printable(entry[QStringLiteral("ConnectionType")]),
                    qUtf8Printable(entry[QStringLiteral("ProductName")]),
                    qUtf8Printable(entry[QStringLiteral("DeviceURI")]));
    return 0;
}
