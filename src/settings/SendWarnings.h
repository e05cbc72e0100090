#pragma once

#include <QList>

#include "settings/SettingRecord.h"

// What can be sent, and may still not be what was meant.
struct SendWarning {
    enum Kind {
        KeyKept,         // `subject`, a protected network, is new, and no key was entered for it
        NotAMask,        // the subnet mask `subject` has zeros before ones
        GatewayOutside,  // the gateway `subject` is not in the subnet of the address
        AddressUnreachable,  // with another communication mode, `subject` is not reached any more
        SecurityUnknown      // of the network `subject`; and none was chosen
    };
    Kind kind;
    QString viewKey;  // the category, and page, that it is about
    QString subject;  // a network's name as it is shown, or an address
    QString key;      // of the setting that it is about, in the category
};

// A warning as a sentence.
QString wordsOf(const SendWarning &warning);

// The warnings about sending `changed` to a printer that holds `saved`; of changed categories
// alone.
QList<SendWarning> warningsOf(const SettingRecord &saved, const SettingRecord &changed);
