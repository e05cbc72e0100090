#pragma once

#include <QtGlobal>

// Codes of the setting protocol and results of the data manager; unscoped, as records hold
// integers.

// The number of a setting item on the wire, 0x1000 to 0x3212.
using ItemCode = quint16;

// Items 0x2001 and 0x3108: how an interface gets its address.
namespace AddressSetting {
enum Code { Automatic = 0, Manual = 1 };
}

// Item 0x3000: which of its wireless interfaces the printer uses.
namespace CommunicationMode {
enum Code { None = 0, Infrastructure = 1, AccessPoint = 2 };
}

// Items 0x3102 and 0x3211.
namespace Authentication {
enum Code { Open = 0, Shared = 1, WPA = 2, WPA2 = 3 };
}

// Items 0x3103 and 0x3212.
namespace Encryption {
enum Code { None = 0, WEP = 1, TKIP = 2, AES = 3 };
}

// How the network of a list entry is protected, as the search for networks reports it.
namespace ListAuthentication {
enum Code { Open = 0, WPA = 1, WPA2 = 2, WPAAndWPA2 = 3 };
}
namespace ListEncryption {
enum Code { None = 0, WEP = 1, TKIP = 2, AES = 3, TKIPAndAES = 4 };
}

// Results of DWTDataManager::setupDataFromPrinter().
namespace ReadResult {
enum Code { Complete = 0, NoLink = 1, MissingReply = 6 };
}

// Results of DWTDataManager::isPassword().
namespace PasswordState {
enum Code { NoAnswer = 1, Set = 2, NotSet = 3 };
}

// What became of an item that was to be written. A printer may refuse with any code.
struct WriteResult {
    enum Kind {
        Accepted,
        Refused,  // by the printer, with `code`
        NoReply,  // or none that can be used
        Unsent    // there is no link, or the value does not fit into a frame
    };
    Kind kind = Unsent;
    int code = 0;  // 1..65535 of Refused

    bool operator==(const WriteResult &) const = default;
};
