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
};

// Where printers come from. Callable from several threads.
class PrinterSource {
  public:
    virtual ~PrinterSource() = default;

    // The printers of this moment; opens none of them.
    virtual Listing list() = 0;

    // Whether list() would give something else than the last time; opens no printer.
    virtual bool hasChanged() { return false; }

    // Whether a printer of this URI is there.
    virtual bool lists(const QString &uri) = 0;

    // Opens the printer of a URI; ZMLib::UnknownPrinter for one that is not of this source.
    virtual Opened open(const QString &uri, const QDeadlineTimer &deadline) = 0;

    // Whether the addresses of its printers are those of the network that this machine is on, so
    // that an address itself can be asked whether it answers.
    virtual bool isOnThisNetwork() const { return false; }

    // The printers, by URI, of a source that is not: those to ask whether `address` (dotted IPv4)
    // is theirs.
    virtual QStringList mayHave(const QString & /*address*/) { return {}; }

    // The addresses at which the printer of a URI says that it is, asked at this moment; nothing
    // for a printer that does not say so.
    virtual std::optional<QList<QHostAddress>> addressesOf(const QString & /*uri*/,
                                                           const QDeadlineTimer & /*deadline*/) {
        return {};
    }
};
