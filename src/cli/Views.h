#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "cli/ExitCode.h"
#include "settings/Session.h"
#include "settings/SettingsFile.h"

// What the commands print: as rows of cells for people, as JSON for programs. Secrets are left out.

// A printer of the list.
QStringList cellsOf(const PrinterEntry &entry);
QJsonObject asJson(const PrinterEntry &entry);

// The MAC addresses of all interfaces, 12 capital hexadecimal digits each.
QStringList macsOf(const SettingRecord &record);

// The pages of a record, each under its title. Without the title of the printer.
QList<QStringList> rowsOf(const SettingRecord &record);

// The networks that a printer finds.
QList<QStringList> rowsOf(const QList<SSIDEntry> &networks);
QJsonArray asJson(const QList<SSIDEntry> &networks);

// The codes of endings.
ExitCode codeOf(Session::Reading reading);
ExitCode codeOf(const Ending &ending);
