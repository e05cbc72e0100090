#include <gtest/gtest.h>

#include "platform/core/Texts.h"
#include "settings/Settings.h"

namespace {

using namespace Qt::StringLiterals;

// Page by page the name of every setting, its label, its length or range, and the names of its
// codes. Names stay as they are here, since files and tables hold them.
const char *const everySetting = R"(
: printer.uri, printer.model, printer.connection, printer.name, printer.announced, printer.serial,
printer.port, printer.address,
Device: device.firmware Firmware version, device.timeout Print timeout 30-300,
Names: names.printer Printer name 1-31, names.bonjour Bonjour name 1-25,
names.service Bonjour service name 1-31,
Wired network: wired.mac MAC address, wired.address.mode Address assignment [automatic fixed],
wired.address.ip IP address, wired.address.mask Subnet mask or 127.0.0.1,
wired.address.gateway Default gateway or 127.0.0.1,
wired.inUse.ip IP address in use, wired.inUse.mask Subnet mask in use,
wired.inUse.gateway Default gateway in use,
Wireless network: wireless.mode Communication mode [off infrastructure access-point],
wireless.mac MAC address (infrastructure), accessPoint.mac MAC address (access point),
Infrastructure: wireless.address.mode Address assignment [automatic fixed],
wireless.address.ip IP address, wireless.address.mask Subnet mask or 127.0.0.1,
wireless.address.gateway Default gateway or 127.0.0.1, wireless.inUse.ip IP address in use,
wireless.inUse.mask Subnet mask in use, wireless.inUse.gateway Default gateway in use,
wireless.standard Wireless standard [b bg bgn], wireless.ssid Network name (SSID) 1-32,
wireless.authentication Authentication [open shared wpa wpa2],
wireless.encryption Encryption [none wep tkip aes], wireless.key WPA key 8-63,
wireless.wepKeyNumber WEP key number 1-4, wireless.wepKey WEP key,
Access point: accessPoint.standard Wireless standard [b bg bgn],
accessPoint.address.first First address assigned, accessPoint.address.ip Printer’s address,
accessPoint.address.mask Subnet mask,
accessPoint.authentication Authentication [open shared wpa wpa2],
accessPoint.encryption Encryption [none wep tkip aes],
accessPoint.ssid Network name (SSID) of the access point 1-25,
accessPoint.key WPA key of the access point 8-63,
Password: password.administrator New password 0-8,)";

TEST(Settings, HaveTheseNamesAndLabelsOnTheirPages) {
    QString all, page = u"none yet"_s;
    for (const Setting &setting : settings()) {
        if (setting.name.isEmpty()) continue;
        if (setting.viewKey != page) all += titleOfPage(setting.viewKey) + u": "_s;
        page = setting.viewKey;
        all += QStringList{setting.name, setting.label()}.join(u' ').trimmed();
        EXPECT_EQ(setting.codes.size(), setting.codeTexts.size());
        if (const auto rule = setting.rule; rule && rule->max > 0)
            all += u" %1-%2"_s.arg(rule->min).arg(rule->max);
        if (setting.rule && setting.rule->loopback) all += u" or 127.0.0.1"_s;
        if (!setting.codes.isEmpty()) all += u" ["_s + setting.codes.join(u' ') + u']';
        all += u", "_s;
    }
    EXPECT_EQ(all.simplified(), QString::fromUtf8(everySetting).simplified());
}

}  // namespace
