#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "settings/Codes.h"

// A setting item of the protocol: what one request asks for and one setting frame writes.
struct Item {
    // How its payload holds its values.
    enum class Layout {
        Text,
        CountedText,  // after its count of bytes
        Integer,
        Addresses,            // one or several
        IntegerAndAddresses,  // three of them
        IntegerAndText,
        Mac,
        Version
    };

    ItemCode code = 0;
    Layout layout = Layout::Text;
    // Its turn in a reading and in a send, from 1 on; 0: it is not read, or not written.
    int readTurn = 0, sendTurn = 0;
    // Of its values, which are in one category: their keys in the order of the wire.
    QString viewKey = {};
    QStringList keys = {};
    bool isSecret = false;
};

// The items that a reading asks for, and those that a send writes, in the order of the wire.
const QList<Item> &readItems();
const QList<Item> &sentItems();
// The item of a code; a null pointer when no setting is carried by it.
const Item *itemOf(ItemCode code);
