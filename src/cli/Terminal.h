#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "cli/ExitCode.h"
#include "settings/Plan.h"
#include "zmlib/ZMLib.h"

// Why the program ends otherwise than it was asked to.
struct Failure {
    ExitCode code = ExitCode::Done;
    QString text = {};
    QString kind = {};            // for programs, stable; empty for that of the code
    QStringList candidates = {};  // what could have been meant
};

// Standard output, standard error, and questions. Control characters are made visible. Main thread.
class Terminal {
  public:
    // With `json`, errors are objects in JSON, one a line.
    explicit Terminal(bool json) : m_json(json) {}

    // --- Results, on standard output ---

    void print(const QString &line);
    // Rows of cells in columns, each wide enough for its cells, and at least as wide as `widths`
    // says, which becomes what they are.
    void print(const QList<QStringList> &rows, QList<int> &widths);
    void print(const QList<QStringList> &rows) {
        QList<int> widths;
        print(rows, widths);
    }
    void print(const QJsonValue &value);
    // An object on a line of its own.
    void printLine(const QJsonObject &object);
    // Hands what was printed to the system. False when it was not taken.
    static bool flush();

    // --- What happens beside, on standard error ---

    // Prints an error. Result: its code.
    ExitCode fail(const Failure &failure);
    ExitCode fail(ExitCode code, const QString &text, const QString &kind = {}) {
        return fail({code, text, kind});
    }
    // Faults of input, of many only the first. Always InputRefused.
    static constexpr qsizetype mostFaults = 100;
    ExitCode fail(const QList<Fault> &faults);
    // What is no error.
    void note(const QString &text);
    void note(const QList<PrinterProblem> &problems);
    // What is being done at the moment; only on a terminal, and never between objects. Replaced by
    // what is told next.
    void showProgress(const QString &text);

    // --- Questions ---

    // Whether there is a person to ask.
    static bool canAsk();
    // Whether the person says yes; anything else is no.
    bool confirm(const QString &question);
    // A password, typed without being shown; nothing when there is no terminal, or no answer.
    static std::optional<QString> askPassword(const QString &question);

  private:
    void printError(const QString &line);

    const bool m_json;
    bool m_progress = false;  // a line of progress stands on the terminal
};
