#pragma once

#include <QEventLoop>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QTimer>
#include <atomic>

#include "cli/ExitCode.h"
#include "cli/Passwords.h"
#include "cli/PrinterSession.h"
#include "cli/ResultFile.h"
#include "cli/Table.h"
#include "cli/Terminal.h"

// Changes every printer on USB that has a row in a table, several at a time, those that are plugged
// in at the start and those that come. Main thread.
class Provision {
  public:
    // So many printers are worked on at a time.
    static constexpr int printersAtATime = 8;

    // `rows`: with everything that is to be set. `again`: a printer that was done and is plugged in
    // again is done again.
    Provision(Terminal &terminal, Passwords &passwords, QList<TableRow> rows, bool again);

    // Runs until every row is done, the user stops it, the results cannot be written or, with a
    // catalogue, every printer had its turn; a printer that is being written is finished before.
    // Rows of results go to the file, when one is named. Result: Done; Stopped; InputRefused when
    // the file cannot be written; otherwise the largest code of a printer, or NotReached when a
    // row's was not there.
    ExitCode run(const QString &resultFile);

  private:
    // How the work on one printer ended.
    struct Outcome {
        ExitCode code = Done;
        QString word;  // for programs
        QString text;
        const TableRow *row = nullptr;
        bool claimed = false;  // the row is this printer's
    };
    struct RowState {
        bool busy = false;
        QString doneFor;  // the printer for which it was done; empty until then
    };

    void tick();
    void look();
    void startNext();
    void work(const PrinterEntry &entry);
    Outcome provision(PrinterSession &session);
    Outcome claimRow(const PrinterSession &session);
    void changeByRow(PrinterSession &session, Outcome &outcome);
    void finish(const PrinterSession &session, const Outcome &outcome);
    void note(const PrinterSession &session, const Outcome &outcome);
    bool isAllDone() const;
    bool isEnd() const;
    ExitCode result();

    Terminal &m_terminal;
    Passwords &m_passwords;
    const QList<TableRow> m_rows;
    const bool m_again;
    QMap<int, RowState> m_states;  // by the line of the row
    ResultFile m_results;
    QMap<QString, PrinterEntry> m_present;  // the printers of the last look, by URI
    QList<PrinterProblem> m_problems;       // of the last look
    QList<PrinterEntry> m_waiting;
    QSet<QString> m_working;  // URIs of the printers that are worked on
    bool m_looking = false;
    bool m_lookAgain = false;             // a printer came that was still worked on
    std::atomic<bool> m_stopping{false};  // read by the workers
    bool m_writeFailed = false;
    ExitCode m_worst = Done;
    QTimer m_timer;
    QEventLoop m_loop;
};
