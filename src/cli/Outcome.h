#pragma once

#include <QJsonObject>
#include <optional>

#include "cli/ExitCode.h"
#include "settings/Session.h"

// What became of the wish to change one printer.
struct Outcome {
    ExitCode code = ExitCode::Done;
    // For programs, stable: "changed", "unchanged", "would-change", "refused", "not-reached", ...
    QString word = {};
    QStringList sentences = {};
    QList<Fault> faults = {};  // of what was given
    // What can be sent, and may still not be what was meant.
    struct Warning {
        QString kind;  // for programs, stable
        QString text;
    };
    QList<Warning> warnings = {};
    // What was to change, and what the printer held before; without changes when it was not read.
    Plan plan = {};
    SettingRecord before = {};
    QList<const Setting *> notReported = {};
    QMap<QString, QString> secretFiles = {};  // that secrets come from, by the settings' names
    std::optional<Ending> ending = {};        // of a send
};

// An outcome without a send, because of a code; its word is that of the code.
Outcome outcomeOf(ExitCode code, const QStringList &sentences);
// An outcome without a send, because of faults.
Outcome outcomeOf(const QList<Fault> &faults);
// What is told of a warning.
Outcome::Warning warningOf(const SendWarning &warning);

// A value of a file, for people.
QString fileTextOf(const QJsonValue &value);
// The line of a change in a list of changes: "device.timeout: 60 → 90", in the words of files.
QString lineOf(const Plan::Change &change, const Outcome &outcome);

// What a plan leaves out, and why, in sentences.
QStringList wordsOfLeftOut(const Plan &plan);

// The outcome for programs.
QJsonObject asJson(const Outcome &outcome);
// What is known of a printer, for programs.
QJsonObject printerAsJson(const Session &session);
