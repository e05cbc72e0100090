#pragma once

#include <QByteArray>
#include <QString>

#include "settings/SettingsFile.h"

// The printers of a table, a row each, and what is to be set in each.
struct TableRow {
    int line = 0;  // where it begins
    // Which printer it is for: the first of these that is filled counts.
    QString mac;  // 12 capital hexadecimal digits
    QString serial;
    QString name;   // the printer's own
    QString login;  // the administrator password that it has; empty when none is given
    QList<WantedValue> values;

    // What the row calls its printer.
    QString printer() const;
};

struct Table {
    QList<TableRow> rows;
    QList<Fault> faults;  // broken rules included
};

// Reads a table from CSV (RFC 4180, UTF-8; commas, semicolons or tabs, by "sep=" or the first
// line). The first line names the columns: "mac", "serial", "name", "login.password" and settings;
// those without a name and those that begin with "#" are passed over. An empty cell gives nothing.
// Takes any bytes.
Table tableFromCsv(const QByteArray &csv, const QString &file);

// The same from a file.
Table tableFromFile(const QString &path);

// The faults of addresses that more than one row gives: at the value of every row but the first.
QList<Fault> repeatedAddresses(const QList<TableRow> &rows);

// The lines of each group of rows that give one printer name.
QList<QList<int>> repeatedNames(const QList<TableRow> &rows);

// The values of a template and a row; a setting of both has that of the row.
QList<WantedValue> merged(const QList<WantedValue> &below, const QList<WantedValue> &above);

// The 12 digits of a MAC address with or without marks; empty for anything else.
QString macDigits(const QString &text);
