#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>

#include "zmlib/ZMLib.h"

class VirtualPrinter;

// The printers that the library knows, in the order of the catalogue file.
//
// A catalogue is a JSON object {"printers": [entry, ...]}. An entry is an object of texts under
// "DeviceURI" ("virtual://name" or "tcp://host:port"), "ConnectionType", "ProductName" and, for a
// network printer, "BonjourServiceName"; what the list tells beside may stand under "Address",
// "SerialNumber" and "Port". A virtual printer has its description
// (docs/virtual-printer.md) as an object under "profile".
struct Catalogue {
    QList<PrinterEntry> entries;
    // The virtual printers of the process, by PrinterKey::DeviceURI.
    QMap<QString, std::shared_ptr<VirtualPrinter>> virtualPrinters;
    // Faults, a readable line each; entries named here are not listed.
    QStringList problems;

    // Appends an entry whose URI is not listed yet.
    void add(const PrinterEntry &entry) { entries.append(entry); }
};

// Reads a catalogue from JSON text; `source` names it in the problems.
Catalogue catalogueFromJson(const QByteArray &json, const QString &source);

// The catalogue that the environment variable ZMLIB_PRINTERS names: a regular file of at most
// longestDescription bytes, or "demo". Unset: none.
Catalogue catalogueFromEnvironment();
