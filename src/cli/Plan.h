#pragma once

#include <QStringList>

#include "cli/Values.h"

// What given values change in a printer.
struct Plan {
    struct Change {
        const Setting *setting;
        QString oldText, newText;  // for people; of a secret only that there is a new one
    };

    QList<Fault> faults;  // of values that cannot be sent to this printer
    QList<Change> changes;
    QStringList warnings;  // what can be sent, and may still not be what was meant
    SettingRecord record;  // of the printer, with the changes
};

// The plan of giving `values` to a printer that holds `saved`. What the printer has already is no
// change, and no fault whatever rule it breaks.
Plan planOf(const SettingRecord &saved, const QList<GivenValue> &values);

// The faults between values that can be told without a printer.
QList<Fault> faultsBetween(const QList<GivenValue> &values);
