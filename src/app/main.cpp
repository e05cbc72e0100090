#include <QCoreApplication>
#include <cstdio>

#include "settings/DWTDataManager.h"

// Prints the supported printers that can be reached.
int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    const auto printers = make<DWTDataManager>()->printerList().value_or(QList<PrinterEntry>());
    if (printers.isEmpty())
        std::puts("No printers. ZMLIB_PRINTERS names the catalogue that lists them.");
    for (const PrinterEntry &entry : printers) {
        const QString service = entry.value(QStringLiteral("BonjourServiceName"));
        const QString name = entry.value(QStringLiteral("MachineName"), service);
        std::printf(
            "%-8s %-16s %s\n", qUtf8Printable(entry.value(QStringLiteral("ConnectionType"))),
            qUtf8Printable(entry.value(QStringLiteral("ProductName"))), qUtf8Printable(name));
    }
    return 0;
}
