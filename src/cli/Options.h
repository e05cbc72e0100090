#pragma once

#include <QMap>
#include <QStringList>

#include "cli/Command.h"

// What a command line asks for.
struct Options {
    // The command; null when none is to be run.
    const Command *command = nullptr;
    QStringList arguments;           // those that the command needs, and as many as it may have
    QMap<QString, QString> options;  // the given ones with their values

    // What is to be shown instead of running the command.
    enum class Shown { Nothing, Help, Version } shown = Shown::Nothing;
    // Why the line cannot be understood, in words; empty when it can.
    QString error;

    // Whether an option is given, by its name without hyphens.
    bool has(const QString &option) const { return options.contains(option); }
    // The value of an option; empty when it is not given.
    QString value(const QString &option) const { return options.value(option); }
};

// What is said of an unknown word: the text of the key, and the word that may be meant instead.
QString wordsOfUnknownWord(const char *key, const QString &word, const QString &meant);

// Understands a command line, of which the first argument is the program's name.
Options optionsOf(const QStringList &arguments, const QList<Command> &commands);
