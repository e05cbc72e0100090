#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QMap>
#include <QSet>
#include <QTimer>
#include <atomic>

#include "cli/Outcome.h"
#include "cli/Passwords.h"
#include "cli/ResultFile.h"
#include "cli/Rows.h"
#include "cli/Terminal.h"
#include "settings/PrinterNames.h"

// What is to be done by a table.
struct ProvisionOrder {
    QList<TableRow> rows;
    Keys keys = Keys::WhenChanged;
    bool isDry = false;  // nothing is sent
    bool again = false;  // a printer that was done is done again when it is plugged in again
    bool once = false;   // only for printers that are there at the beginning
    // How long printers that are not there are waited for.
    QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever);
    QString resultFile = {};  // empty for none
    QStringList inputs = {};  // files that results may not be written to
};

// Changes every USB printer that has a row in a table, several at a time. Main thread.
class Provision {
  public:
    // Printers that are worked on at a time.
    static constexpr int printersAtATime = 8;
    // How often it looks for printers that came, and for the user's wish to stop.
    static constexpr std::chrono::milliseconds lookInterval{250};

    Provision(Terminal &terminal, Passwords &passwords, ProvisionOrder order, bool isJson);

    // Runs until every row is done, the order's time is over, the user stops it, the results cannot
    // be written or, with a catalogue, every printer had its turn. Printers that are being written
    // are finished. Result: Stopped; InputRefused when the file of results cannot be written;
    // otherwise the worst code of a printer, or NotReached when the printer of a row was not there.
    ExitCode run();

  private:
    // How the work on one printer ended.
    struct Result {
        Rows::Printer printer = {};
        const TableRow *row = nullptr;
        bool granted = false;  // the row was this printer's
        Outcome outcome = {};
    };

    void tick();
    void look();
    void noteProblems();
    void startNext();
    void work(const PrinterEntry &entry);
    Result provision(Session &session);
    Result claim(const Session &session);
    Outcome changeByRow(Session &session, const TableRow &row);
    void finish(const Session &session, const Result &result);
    void note(const Session &session, const Result &result);
    bool write(const Session &session, const TableRow *row, const QString &word,
               const QString &words);
    bool isEnd() const;
    ExitCode result();
    void tellMissing(const QList<const TableRow *> &rows);

    Terminal &m_terminal;
    Passwords &m_passwords;
    const ProvisionOrder m_order;
    const bool m_isJson;
    Rows m_rows;
    ResultFile m_results;
    QMap<QString, PrinterEntry> m_present;  // the printers of the last look, by identity
    PrinterNames m_names{[this] { startNext(); }};
    QList<PrinterProblem> m_problems;  // of the last look
    QList<PrinterEntry> m_waiting;
    QSet<QString> m_working;              // URIs of the printers that are worked on
    bool m_lookAgain = false;             // a printer came that was still worked on
    std::atomic<bool> m_stopping{false};  // read by the workers
    bool m_writeFailed = false;
    ExitCode m_worst = ExitCode::Done;
    QTimer m_timer;
    QEventLoop m_loop;
};
