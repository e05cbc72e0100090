#include "settings/Rules.h"

#include <gtest/gtest.h>

#include "settings/SettingKeys.h"

namespace {

// Texts written with "|" between them.
QStringList texts(const char *written) {
    return QString::fromUtf8(written).split(u'|');
}

TEST(Rules, AddressesAreFourNumbersThatCanBeAnAddress) {
    for (const QString &typed : texts("|0.0.0.0|255.255.255.255|1.2.3|1.2.3.4.5|1..2.3|256.1.1.1|"
                                      "1.2.3.256|1.2.3.-4|0001.0002.0003.4|99999999999.1.1"))
        EXPECT_FALSE(Rules::isAddress(typed, true)) << qPrintable(typed);
    for (const QString &typed :
         texts("0.0.0.1|127.0.0.2|255.255.255.0|010.001.000.255|192.168.100.200"))
        EXPECT_TRUE(Rules::isAddress(typed, false)) << qPrintable(typed);
    for (const QString &typed : texts("127.0.0.1|127.000.0.01"))
        EXPECT_TRUE(Rules::isAddress(typed, true) && !Rules::isAddress(typed, false));
    const auto same = [](const char *a, const char *b) {
        return Rules::isSameAddress(QString::fromLatin1(a).split(u'.'),
                                    QString::fromLatin1(b).split(u'.'));
    };
    EXPECT_TRUE(same("010.1.2.3", "10.1.2.03"));
    EXPECT_FALSE(same("10.1.2.3", "10.1.2.4") || same("10.1.2", "10.1.2.4") ||
                 same("10.1.2.4", "10.1.2"));
}

TEST(Rules, TextsHaveALengthAndACharacterSet) {
    const auto passes = [](const QString &typed, bool input) {
        return Rules::isText(typed, QStringLiteral("abc"), 2, 5, input);
    };
    EXPECT_TRUE(passes({}, false)) << "a value that nobody gave may stay empty";
    for (const QString &good : texts("ab|abcab")) EXPECT_TRUE(passes(good, true));
    for (const QString &bad : texts("|a|abcabc|xab|axb|abx|ab |äb|a👍"))
        EXPECT_FALSE(passes(bad, true)) << qPrintable(bad);
}

TEST(Rules, WEPKeysHaveTheLengthOfOneOfTheirSizes) {
    for (const QString &good : texts("abc e|1234567890|123456789012~|abcdefABCDEF12345678901234"))
        EXPECT_TRUE(Rules::isWEPKey(good, true)) << qPrintable(good);
    for (const QString &bad : texts("|abcdef|aé de|123456789g|1234|12345678901234|"
                                    "abcdefABCDEF1234567890123G"))
        EXPECT_FALSE(Rules::isWEPKey(bad, true)) << qPrintable(bad);
    EXPECT_TRUE(Rules::isWEPKey({}, false));
    EXPECT_FALSE(Rules::isWEPKey(QStringLiteral("1"), false));
}

TEST(Rules, KeysAndPasswordsAreSecrets) {
    for (const QString &key : {DWT_SaveData_Infrastructure_PSK, DWT_SaveData_Infrastructure_WEPKey,
                               DWT_SaveData_SimpleAP_PSK, DWT_SaveData_Password_Password})
        EXPECT_TRUE(Rules::ruleOf(key)->secret) << qPrintable(key);
    EXPECT_FALSE(Rules::ruleOf(DWT_SaveData_SimpleAP_SSID)->secret);
    for (const QString &key : {DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Ethernet_Gateway})
        EXPECT_TRUE(Rules::ruleOf(key)->loopback) << qPrintable(key);
    EXPECT_FALSE(Rules::ruleOf(DWT_SaveData_Wireless_CommunicateMode));
}

}  // namespace
