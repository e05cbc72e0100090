#pragma once

#include <QMap>

#include "cli/Table.h"

// The rows of a table as work: which row is whose, and what is left to do. Pure.
class Rows {
  public:
    // What is known of a printer that was read.
    struct Printer {
        QString uri;
        QString serial;    // empty when it has none
        QString name;      // its own
        QStringList macs;  // of all its interfaces

        // What stays the same when it is plugged in elsewhere.
        QString identity() const { return macs.isEmpty() ? uri : macs.first(); }
    };

    struct Claim {
        enum class Kind {
            Granted,          // the row is the printer's until release()
            NoRow,            // none is for it
            SeveralRows,      // of `lines`
            SeveralPrinters,  // the row finds by a name that several printers have
            RowUsed,          // by another printer
            DoneBefore        // for this one
        };
        Kind kind;
        const TableRow *row = nullptr;  // the first that is for the printer
        QList<int> lines = {};
    };

    // `again`: a row that was done for a printer is granted to it again.
    Rows(QList<TableRow> rows, bool again);

    // Whether a row finds its printer by the name.
    bool needNames() const;

    // Claims the row of a printer; `namesakes` printers have its name, itself included.
    Claim claim(const Printer &printer, qsizetype namesakes);
    // Gives back a row that was granted to a printer, done or not.
    void release(const TableRow &row, const Printer &printer, bool done);

    // Notes that a printer is there, as far as it is known; nobody misses those of its rows.
    void see(const Printer &printer);

    bool isAllDone() const;
    // The rows whose printers were not there.
    QList<const TableRow *> missing() const;

  private:
    struct State {
        bool busy = false;
        QString doneFor;  // the printer's identity; empty until it is done
    };
    const QList<TableRow> m_rows;
    const bool m_again;
    QMap<int, State> m_states;  // by the line of the row
};
