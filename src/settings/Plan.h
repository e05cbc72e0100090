#pragma once

#include "settings/SendWarnings.h"
#include "settings/Values.h"

// Wanted values held against those of a printer: pure, without printer, window or terminal.

// Where something was given.
struct Place {
    QString file = {};      // as it was named; empty when it is no file's
    int line = 0;           // counted from 1; 0 when it is none's
    QString name = {};      // of a setting, or of a column
    bool isColumn = false;  // `name` is that of a column

    bool operator==(const Place &) const = default;
};

// What is wrong with something given, and where.
struct Fault {
    Place place;
    QString text;  // in words, without the place

    bool operator==(const Fault &) const = default;
};

// A value that somebody wants a setting to have.
struct WantedValue {
    const Setting *setting;
    SettingValue value;
    Place place;
    QString brokenRule;  // in words; it counts unless the printer has the value already
};

// What changes in a printer.
struct Plan {
    struct Change {
        const Setting *setting;
        QString oldText, newText;  // for people; of a secret only that there is a new one

        // Both on one line; of a secret only the new one.
        QString words() const;
    };

    QList<Fault> faults;    // of values that cannot be sent to this printer
    QList<Change> changes;  // in the order of the table of settings
    QList<SendWarning> warnings;
    SettingRecord record;  // of the printer, with the changes

    // Whether something of a category changes.
    bool changesPage(const QString &viewKey) const;
};

// The plan of making a printer that holds `saved` hold `wanted`; isSame() values are no change.
Plan planOf(const SettingRecord &saved, const SettingRecord &wanted);

// The plan of giving `values` to a printer that holds `saved`. Values that it has are no faults.
Plan planOf(const SettingRecord &saved, const QList<WantedValue> &values);

// The faults between values that show without a printer.
QList<Fault> faultsBetween(const QList<WantedValue> &values);
