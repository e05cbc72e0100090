#include <gtest/gtest.h>

#include "settings/Codes.h"
#include "settings/SendWarnings.h"
#include "settings/SettingKeys.h"

namespace {

using namespace Qt::StringLiterals;

// A printer that has joined an open network and is reached at 10.0.0.7.
SettingRecord joined() {
    const QStringList none{u"0"_s, u"0"_s, u"0"_s, u"0"_s};
    const QStringList own{u"10"_s, u"0"_s, u"0"_s, u"7"_s};
    const QStringList mask{u"255"_s, u"255"_s, u"0"_s, u"0"_s};
    return {{DWT_View_Key_Wireless, {{DWT_SaveData_Wireless_CommunicateMode, 1}}},
            {DWT_View_Key_Infrastructure,
             {{DWT_SaveData_Connect_IPAddress, own},
              {DWT_SaveData_Infrastructure_IPAddressSetting, 1},
              {DWT_SaveData_Infrastructure_IPAddress, own},
              {DWT_SaveData_Infrastructure_Subnetmask, mask},
              {DWT_SaveData_Infrastructure_Gateway, none},
              {DWT_SaveData_Infrastructure_SSID, u"Old"_s},
              {DWT_SaveData_Infrastructure_Authentic, 0},
              {DWT_SaveData_Infrastructure_Encryption, 0}}}};
}

TEST(SendWarnings, TellWhatMayKeepThePrinterFromBeingReached) {
    const QString &net = DWT_View_Key_Infrastructure, &wireless = DWT_View_Key_Wireless;
    const auto address = [](const char *dotted) { return QString::fromLatin1(dotted).split(u'.'); };
    const struct {
        QString viewKey;
        CategoryDictionary edits;
        QString warned;  // kind and subject
    } cases[] = {
        {net, {}, {}},
        {net, {{DWT_SaveData_Infrastructure_SSID, u"New"_s}}, {}},
        {net, {{DWT_SaveData_Infrastructure_Encryption, 3}}, u"0 Old"_s},
        {net,
         {{DWT_SaveData_Infrastructure_Encryption, 3}, {DWT_SaveData_Infrastructure_PSK, u"k"_s}},
         {}},
        {net,
         {{DWT_SaveData_Infrastructure_Encryption, 1}, {DWT_SaveData_Infrastructure_PSK, u"k"_s}},
         u"0 Old"_s},
        {net,
         {{DWT_SaveData_Infrastructure_Encryption, 1},
          {DWT_SaveData_Infrastructure_WEPKey, u"k"_s}},
         {}},
        {net,
         {{DWT_SaveData_Infrastructure_Subnetmask, address("255.0.255.0")}},
         u"1 255.0.255.0"_s},
        {net, {{DWT_SaveData_Infrastructure_Subnetmask, address("128.0.0.0")}}, {}},
        {net, {{DWT_SaveData_Infrastructure_Gateway, address("10.0.255.255")}}, {}},
        {net, {{DWT_SaveData_Infrastructure_Gateway, address("10.1.0.1")}}, u"2 10.1.0.1"_s},
        {net,
         {{DWT_SaveData_Infrastructure_Gateway, address("10.1.0.1")},
          {DWT_SaveData_Infrastructure_IPAddressSetting, 0}},
         {}},
        {wireless, {{DWT_SaveData_Wireless_CommunicateMode, 2}}, u"3 10.0.0.7"_s},
        {wireless, {{DWT_SaveData_Wireless_CommunicateMode, 0}}, u"3 10.0.0.7"_s}};
    for (const auto &c : cases) {
        SettingRecord changed = joined();
        changed[c.viewKey].insert(c.edits);
        QStringList warned;
        for (const SendWarning &warning : warningsOf(joined(), changed)) {
            EXPECT_EQ(warning.viewKey, c.viewKey);
            warned << u"%1 %2"_s.arg(warning.kind).arg(warning.subject);
        }
        EXPECT_EQ(warned.join(u'|'), c.warned) << &c - cases;
    }
}

TEST(SendWarnings, ThePrintersOwnNetworkIsLeftAsWell) {
    SettingRecord saved = joined(), changed = joined();
    saved[DWT_View_Key_Wireless][DWT_SaveData_Wireless_CommunicateMode] = 2;
    saved[DWT_View_Key_SimpleAP][DWT_SaveData_SimpleAP_IPAddress] =
        QStringList{u"192"_s, u"168"_s, u"1"_s, u"1"_s};
    const auto warnings = warningsOf(saved, changed);
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_EQ(warnings[0].subject, u"192.168.1.1"_s);
}

}  // namespace
