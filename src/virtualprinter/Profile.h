#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <optional>

// The description of a virtual printer (docs/virtual-printer.md), as values.

// Limits of a description.
inline constexpr int longestDelay = 60000;  // ms before a reply
inline constexpr int longestPassword = 8;   // bytes
inline constexpr int longestSsid = 32;      // bytes; frames have a field of this width
inline constexpr int mostScanPolls = 1000;  // polls answered before a search has finished

// What goes wrong with the reply to an item; but for resultCode a setting is taken all the same.
struct ItemFault {
    bool noReply = false;
    bool garbage = false;           // random-looking bytes instead of a reply
    bool doubled = false;           // the reply is sent twice
    bool closed = false;            // the channel closes instead of a reply
    bool closeAfterReply = false;   // the channel closes once the reply was sent
    bool reset = false;             // the channel is broken off instead of a reply
    std::optional<int> code;        // another item code in the reply
    std::optional<int> truncate;    // only that many bytes of the reply
    std::optional<int> length;      // another length in the reply's header; its bytes as they are
    std::optional<int> resultCode;  // a setting frame is refused with this code
    int delay = 0;                  // ms before the reply, on top of the printer's own
};

// What goes wrong with connections and replies.
struct SimulatedFaults {
    bool refuseConnection = false;
    // The channel closes after that many frames; 0: never.
    int closeAfterFrames = 0;
    int delay = 0;  // ms before every reply
    // Replies come one byte at a time: over TCP in a packet each, as far as the network lets them.
    bool piecewise = false;
    QMap<quint16, ItemFault> items;
};

// A network that the printer's search finds.
struct Network {
    QByteArray ssid;  // at most longestSsid bytes
    int mode = 0;
    int authentic = 0;
    int encryption = 0;
    int signal = 0;  // dBm, negative
};

struct Profile {
    QByteArray password;               // at most longestPassword bytes; empty: none
    QHash<quint16, QByteArray> items;  // every item, in the layout of Items.h
    QList<Network> networks;
    int scanPolls = 1;  // polls answered before the search has finished
    SimulatedFaults faults;
};

struct ProfileResult {
    std::optional<Profile> profile;
    // The first place that is wrong, and why: "items.0x1006: not a text".
    QString error;
};

// Reads a description. Everything in it is checked; what is unknown is refused.
ProfileResult profileFromJson(const QJsonObject &object);

// Reads a description from a file, which must be a regular one of at most longestDescription bytes.
ProfileResult profileFromFile(const QString &path);
