#pragma once

#include <QStringList>

// What a command line asks for.
struct Options {
    QString command;
    QStringList arguments;  // as many as the command takes
    bool json = false;
    bool dryRun = false;
    bool yes = false;
    bool again = false;
    QString passwordFile, templateFile, resultFile;  // empty where none is named

    // What is to be shown instead of running a command.
    enum class Shown { Nothing, Help, Version } shown = Shown::Nothing;
    // Why the line cannot be understood, in words; empty when it can.
    QString error;
};

// Understands a command line, of which the first argument is the program's name.
Options optionsOf(const QStringList &arguments);
