#include "settings/Rules.h"

#include <QList>
#include <algorithm>

#include "settings/Codes.h"
#include "settings/SettingRecord.h"

using namespace Qt::StringLiterals;

namespace Rules {

const QString alphanumericCharacters =
    u"1234567890abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"_s;
const QString hostNameCharacters = alphanumericCharacters + u'-';
const QString passwordCharacters = alphanumericCharacters + u"!\"#$%&'()*+,-./{|}~"_s;
const QString hexadecimalCharacters = u"1234567890abcdefABCDEF"_s;
const QString printableCharacters =
    alphanumericCharacters + u"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~ "_s;
const QString addressCharacters = u"0123456789."_s;
const QString digits = u"0123456789"_s;

namespace {

constexpr qsizetype longestAddress = 15;  // "255.255.255.255"
constexpr qsizetype parts = 4;
// Lengths of the two sizes of WEP keys, in characters and in hexadecimal digits.
constexpr int wepTexts[] = {5, 13};
constexpr int wepDigits[] = {10, 26};

}  // namespace

bool keeps(const Rule &rule, const QString &text, bool input) {
    if (rule.kind == Rule::Kind::Address) return isAddress(text, rule.loopback);
    if (rule.kind == Rule::Kind::WEPKey) return isWEPKey(text, input);
    return isText(text, rule.characters, rule.min, rule.max, input);
}

bool isText(const QString &text, const QString &characters, int min, int max, bool input) {
    if (text.size() > max || (input && text.size() < min)) return false;
    return std::all_of(text.begin(), text.end(), [&](QChar c) { return characters.contains(c); });
}

bool isAddress(const QString &text, bool loopback) {
    const QStringList texts = text.split(u'.');
    if (text.size() > longestAddress || texts.size() != parts || texts.contains(QString()))
        return false;
    QList<int> address;
    for (const QString &part : texts) address << integerOf(part);
    const auto inRange = [](int part) { return part >= 0 && part <= 255; };
    if (!std::all_of(address.begin(), address.end(), inRange)) return false;
    const QList<int> nowhere{0, 0, 0, 0}, everywhere{255, 255, 255, 255}, localhost{127, 0, 0, 1};
    if (address == nowhere || address == everywhere) return false;
    return loopback || address != localhost;
}

bool isSameAddress(const QStringList &a, const QStringList &b) {
    if (a.size() < parts || b.size() < parts) return false;
    return std::equal(
        a.begin(), a.begin() + parts, b.begin(),
        [](const QString &x, const QString &y) { return integerOf(x) == integerOf(y); });
}

bool isWEPKey(const QString &text, bool input) {
    const auto length = int(text.size());
    const auto isOne = [length](const auto &lengths) {
        return std::find(std::begin(lengths), std::end(lengths), length) != std::end(lengths);
    };
    if (isOne(wepTexts)) return isText(text, printableCharacters, length, length, true);
    if (isOne(wepDigits)) return isText(text, hexadecimalCharacters, length, length, true);
    return length == 0 && !input;
}

Encryptions encryptionsOf(int authentication) {
    if (authentication < Authentication::WPA) return {Encryption::None, Encryption::WEP};
    return {Encryption::TKIP, Encryption::AES};
}

int numberInRange(const QString &text, const Rule &rule) {
    return std::clamp(integerOf(text), rule.min, rule.max);
}

}  // namespace Rules
