#include "settings/SendWarnings.h"

#include "settings/Codes.h"
#include "settings/SettingKeys.h"
#include "support/DataManagers.h"

namespace {

using namespace Qt::StringLiterals;

const QString &net = DWT_View_Key_Infrastructure, &wireless = DWT_View_Key_Wireless;
const QString &mode = DWT_SaveData_Wireless_CommunicateMode;
const QString &setting = DWT_SaveData_Infrastructure_IPAddressSetting;
const QString &mask = DWT_SaveData_Infrastructure_Subnetmask;
const QString &gateway = DWT_SaveData_Infrastructure_Gateway;
const QString &ssid = DWT_SaveData_Infrastructure_SSID;
const QString &encryption = DWT_SaveData_Infrastructure_Encryption;
const QString &psk = DWT_SaveData_Infrastructure_PSK;
const QString &wepKey = DWT_SaveData_Infrastructure_WEPKey;

// A printer in this mode that is reached at 10.0.0.7 in an open network, or at 192.168.1.1 in its
// own.
SettingRecord reachedIn(int communicationMode) {
    return {{wireless, {{mode, communicationMode}}},
            {DWT_View_Key_SimpleAP, {{DWT_SaveData_SimpleAP_IPAddress, address(u"192.168.1.1"_s)}}},
            {net,
             {{DWT_SaveData_Connect_IPAddress, address(u"10.0.0.7"_s)},
              {setting, 1},
              {DWT_SaveData_Infrastructure_IPAddress, address(u"10.0.0.7"_s)},
              {mask, address(u"255.255.0.0"_s)},
              {gateway, address(u"0.0.0.0"_s)},
              {ssid, u"Old"_s},
              {DWT_SaveData_Infrastructure_Authentic, 0},
              {encryption, 0}}}};
}

TEST(SendWarnings, TellWhatMayKeepThePrinterFromBeingReached) {
    const struct {
        QString viewKey;
        CategoryDictionary edits;
        QString warned;  // kind and subject
        int mode = 1;    // before
    } cases[] = {{net, {}, {}},
                 {net, {{ssid, u"New"_s}}, {}},
                 {net, {{encryption, 3}}, u"0 Old"_s},
                 {net, {{encryption, 3}, {psk, u"k"_s}}, {}},
                 {net, {{encryption, 1}, {psk, u"k"_s}}, u"0 Old"_s},
                 {net, {{encryption, 1}, {wepKey, u"k"_s}}, {}},
                 {net, {{mask, address(u"255.0.255.0"_s)}}, u"1 255.0.255.0"_s},
                 {net, {{mask, address(u"128.0.0.0"_s)}}, {}},
                 {net, {{gateway, address(u"10.0.255.255"_s)}}, {}},
                 {net, {{gateway, address(u"10.1.0.1"_s)}}, u"2 10.1.0.1"_s},
                 {net, {{gateway, address(u"10.1.0.1"_s)}, {setting, 0}}, {}},
                 {wireless, {{mode, 2}}, u"3 10.0.0.7"_s},
                 {wireless, {{mode, 0}}, u"3 10.0.0.7"_s},
                 {wireless, {{mode, 1}}, u"3 192.168.1.1"_s, 2}};
    for (const auto &c : cases) {
        const SettingRecord saved = reachedIn(c.mode);
        SettingRecord changed = saved;
        changed[c.viewKey].insert(c.edits);
        QStringList warned;
        for (const SendWarning &warning : warningsOf(saved, changed)) {
            EXPECT_EQ(warning.viewKey, c.viewKey);
            warned << u"%1 %2"_s.arg(warning.kind).arg(warning.subject);
        }
        EXPECT_EQ(warned.join(u'|'), c.warned) << &c - cases;
    }
}

}  // namespace
