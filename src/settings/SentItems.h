#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "settings/Codes.h"

// The items that a send writes, and where their values stand in the record.
struct SentItem {
    enum class Kind { Text, CountedText, Integer, Interface, WEPKey };

    ItemCode code;
    Kind kind;
    QString viewKey;
    // In the record: the value's; of an interface those of its setting, address, mask and gateway;
    // of a WEP key those of its index and of the key.
    QStringList keys;
    bool told = true;  // the printer tells the value; it never tells keys and the password
};

// All of them, in the order in which they are written.
const QList<SentItem> &sentItems();

// The item of a code; a null pointer when it is none of them.
const SentItem *sentItem(ItemCode code);
