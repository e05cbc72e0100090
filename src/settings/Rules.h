#pragma once

#include <QString>
#include <QStringList>

// The rules of typed values, as pure functions on texts. Lengths count UTF-16 units.
namespace Rules {

// --- Characters ---------------------------------------------------------------------------------

// Digits, small and capital letters: 62 characters.
extern const QString alphanumericCharacters;
// What a host name may hold: those and the hyphen.
extern const QString hostNameCharacters;
// What an administrator password may hold: 81 characters.
extern const QString passwordCharacters;
// Digits of hexadecimal numbers.
extern const QString hexadecimalCharacters;
// The 95 printable ASCII characters, space to tilde.
extern const QString printableCharacters;
// What can be typed into the field of an address, and of a number.
extern const QString addressCharacters;
extern const QString digits;

// --- Limits -------------------------------------------------------------------------------------

inline constexpr int longestPrinterName = 31;
inline constexpr int longestBonjourName = 25;
inline constexpr int longestServiceName = 31;
inline constexpr int longestSSID = 32;
// Shorter than that of other networks, since the printer puts "DIRECT-" before it.
inline constexpr int longestAccessPointSSID = 25;
inline constexpr int shortestPSK = 8;
inline constexpr int longestPSK = 63;
inline constexpr int longestPassword = 8;
// Bounds of the print time-out, in seconds.
inline constexpr int shortestTimeOut = 30;
inline constexpr int longestTimeOut = 300;

// --- The rule of every value that a user can type ------------------------------------------------

struct Rule {
    enum class Kind {
        Text,     // `min` to `max` of the characters of `characters`
        Address,  // an IPv4 address; 127.0.0.1 only with `loopback`
        WEPKey,   // 5 or 13 printable characters, or 10 or 26 hexadecimal digits
        Number    // `min` to `max`; another number becomes the nearer bound
    };
    Kind kind;
    const char *ruleKey;  // localisation key of what is said of a value that breaks the rule
    QString characters;   // what can be typed, for an address and a number
    int min = 0;
    int max = 0;
    bool loopback = false;
    bool secret = false;  // a key or password: never shown or printed
};

// Whether a text keeps the rule of a text, an address or a WEP key. `input` as below.
bool keeps(const Rule &rule, const QString &text, bool input = true);

// --- The rules one by one -----------------------------------------------------------------------

// Whether the text has `min` to `max` characters, all among `characters`; without `input` any
// shorter one passes.
bool isText(const QString &text, const QString &characters, int min, int max, bool input);

// Whether the text is an IPv4 address in at most 15 characters, leading zeros included, other than
// 0.0.0.0, 255.255.255.255 and, unless `loopback` allows it, 127.0.0.1.
bool isAddress(const QString &text, bool loopback);

// Whether the four parts of two addresses are the same numbers; both need four parts.
bool isSameAddress(const QStringList &a, const QStringList &b);

// Whether the text has 5 or 13 printable characters, or 10 or 26 hexadecimal digits; an empty one
// passes without `input`.
bool isWEPKey(const QString &text, bool input);

// The two encryptions that go with an authentication (settings/Codes.h).
struct Encryptions {
    int weaker, preferred;
};
Encryptions encryptionsOf(int authentication);

// The number that a text stands for (integerOf()), forced into the rule's bounds.
int numberInRange(const QString &text, const Rule &rule);

}  // namespace Rules
