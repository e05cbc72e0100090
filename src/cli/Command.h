#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "cli/ExitCode.h"

struct Context;

// What a command line can hold. Help, the man page's synopsis and completion come from it.

// What an argument, or the value of an option, stands for.
enum class Takes {
    Nothing,
    Word,
    Command,
    Printer,
    PrinterOrFile,
    SettingsFile,
    TableFile,
    AnyFile,
    ShownNames,  // of settings that are shown
    Names,       // of settings that can be changed
    Values,      // the same with "=" and a value
    Keys         // when keys are sent
};

struct Argument {
    QString name;  // in the help: "PRINTER"
    Takes takes;
    bool isOptional = false, isMany = false;
};

struct Option {
    QString name;  // "password-file"
    const char *helpKey;
    Takes takes = Takes::Nothing;
    QString value = {};  // in the help: "F"; empty where it takes nothing
};

struct Command {
    QString name;
    QList<Argument> arguments;
    QList<Option> options;
    const char *helpKey;
    QString example;                  // the words after the program's name
    ExitCode (*run)(Context &) = {};  // does it
};
