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
    QString text;       // in words, without the place
    QString kind = {};  // for programs, stable: "unreadable", "value", "same-address"

    bool operator==(const Fault &) const = default;
};

// A value that somebody wants a setting to have.
struct WantedValue {
    const Setting *setting;
    SettingValue value;
    Place place;
    QString brokenRule;       // in words; it counts unless the printer has the value already
    QString secretFile = {};  // the file that holds it; empty when it was given itself
};

// When the key of a wireless network is sent, which no printer reports.
enum class Keys {
    Always,      // whenever it is given
    WhenChanged  // when the network, its security or the use of wireless changes as well
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
    // Values that were given and are not sent.
    struct LeftOut {
        const Setting *setting;
        enum Reason {
            Automatic,   // an address, which comes by itself as it was wanted
            SameNetwork  // a key, of a network that stays as it is
        } reason;
    };
    QList<LeftOut> leftOut;
    SettingRecord record;  // of the printer, with the changes

    // Whether something of a category changes.
    bool changesPage(const QString &viewKey) const;
};

// The plan of making a printer that holds `saved` hold `wanted`; isSame() values are no change.
Plan planOf(const SettingRecord &saved, const SettingRecord &wanted);

// The plan of giving `values` to a printer that holds `saved`. Values that it has are no faults.
Plan planOf(const SettingRecord &saved, const QList<WantedValue> &values, Keys keys = Keys::Always);

// The faults between values that show without a printer.
QList<Fault> faultsBetween(const QList<WantedValue> &values);
