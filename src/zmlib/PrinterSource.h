#pragma once

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "zmlib/Transport.h"
#include "zmlib/ZMLib.h"

// What a source finds at one moment.
struct Listing {
    QList<PrinterEntry> entries;
    QList<PrinterProblem> problems;
    bool operator==(const Listing &) const = default;
};

// A stream to a printer, or why there is none.
struct Opened {
    std::unique_ptr<Transport> transport;
    int result = ZMLib::UnknownPrinter;  // a negative ZMLib::Result, when there is no transport
    QString address = {};                // where a network printer was reached
};

// Where printers come from. Callable from several threads.
class PrinterSource {
  public:
    virtual ~PrinterSource() = default;

    // The printers that are known at this moment, at once; opens none of them.
    virtual Listing list() = 0;

    // Whether list() gives all that is there; false while a search goes on.
    virtual bool isSettled() { return true; }

    // Whether list() would give something else than the last time; opens no printer.
    virtual bool hasChanged() { return false; }

    // Whether a printer of this URI is there.
    virtual bool lists(const QString &uri) = 0;

    // Opens the printer of a URI; ZMLib::UnknownPrinter for one that is not of this source.
    virtual Opened open(const QString &uri, const QDeadlineTimer &deadline) = 0;

    // Whether an address itself can be asked: its printers are on this machine's network.
    virtual bool isOnThisNetwork() const { return false; }

    // Otherwise the URIs of the printers to ask whether `address` (dotted IPv4) is theirs.
    virtual QStringList mayHave(const QString & /*address*/) { return {}; }

    // The addresses that the printer of a URI announces at this moment; may be empty.
    virtual std::optional<QList<QHostAddress>> addressesOf(const QString & /*uri*/,
                                                           const QDeadlineTimer & /*deadline*/) {
        return {};
    }
};
