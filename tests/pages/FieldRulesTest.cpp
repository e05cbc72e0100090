#include "PageInWindow.h"

namespace {

// Texts written with "|" between them; "31*a" is 31 times the character.
QStringList texts(const char *written) {
    QStringList list = text(written).split(u'|');
    for (QString &one : list)
        if (one.contains(u'*')) one = QString(one.section(u'*', 0, 0).toInt(), one.back());
    return list;
}

#define SETUP R"({"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"})"
const char *const manual =
    R"("0x2001": )" SETUP R"(, "0x3108": )" SETUP R"(, "0x3104": "Café", "0x3102": 3, "0x3103": 3)";
const char *const wep = R"("0x3104": "Lager", "0x3102": 1, "0x3103": 1)";

// Which texts a field accepts and stores, and what the alert says of the others: the setting's
// label, and the explanation's key without its common parts.
const struct {
    std::shared_ptr<DWTBaseView> (*page)();
    const char *items, *field, *setting, *explanation, *good, *bad;
} fields[] = {
    {a<DWTNetworkView>, "", "textField_NetworkPrinterName", "names.printer", "PrinterName",
     "31*a|my-printer|Z9", "32*a|my_printer|my printer|"},
    {a<DWTNetworkView>, "", "textField_NetworkBonjour", "names.bonjour", "BonjourName", "25*B|-",
     "26*B|a.b|"},
    {a<DWTNetworkView>, "", "textField_NetworkBonjourService", "names.service",
     "BonjourServiceName", "31*~|a ~!\"\\`{}", "32*~|é|"},
    {a<DWTEthernetView>, manual, "textField_EthernetIpAddress", "wired.address.ip", "IpAddress",
     "10.0.0.9", "127.0.0.1|1.2.3|"},
    {a<DWTEthernetView>, manual, "textField_EthernetSubnetMask", "wired.address.mask", "Subnetmask",
     "127.0.0.1", "1.2.3"},
    {a<DWTEthernetView>, manual, "textField_EthernetDefaultGateway", "wired.address.gateway",
     "Router", "127.0.0.1", "0.0.0.0|65536*1"},
    {a<DWTInfrastructureView>, manual, "textField_InfrastructureSSID", "wireless.ssid",
     "Infrastructure_SSID", "32*s| |Café", "33*s|名前|"},  // the printer's own is not checked
    {a<DWTInfrastructureView>, manual, "textField_InfrastructurePSK", "wireless.key", "PSK",
     "63*~|8 chars.", "7*k|64*k|schlüssel|"},
    {a<DWTInfrastructureView>, wep, "textField_InfrastructureWEPKey", "wireless.wepKey", "WEPKey",
     "abc e|26*F", "abcdef|65536*F|"},
    {a<DWTSimpleAPView>, "", "textField_SimpleAPSSID", "accessPoint.ssid", "SimpleAP_SSID", "25*s",
     "26*s|Büro|"},
    {a<DWTSimpleAPView>, "", "textField_SimpleAPPSK", "accessPoint.key", "PSK", "63* |8*k",
     "64*k|7*k|"}};

QString explanationOf(const char *name) {
    return localized(text("DWT_Localize_Alert_InfoText_%1_InputErr").arg(text(name)));
}

TEST(FieldRules, EveryFieldAcceptsWhatThePrinterDoesAndSaysWhatItDoesNot) {
    for (const auto &f : fields) {
        const auto page = f.page();
        PageInWindow shown(page, f.items);
        const QString label = settingOf(text(f.setting))->label();
        for (const QString &good : texts(f.good)) {
            shown.type(f.field, good);
            EXPECT_EQ(shown.alertsOf(true), QStringList()) << f.field << " " << qPrintable(good);
            QTest::keyClick(shown.control(f.field), Qt::Key_Return);
            EXPECT_TRUE(readableText(shown.stored(f.setting)).contains(good)) << f.setting;
        }
        for (const QString &bad : texts(f.bad)) {
            shown.type(f.field, bad);
            EXPECT_EQ(shown.alertsOf(false), QStringList{label + text(" cannot be used")})
                << qPrintable(bad.left(80));
            EXPECT_TRUE(shown.explanation.endsWith(explanationOf(f.explanation))) << f.field;
            const bool critical = page->viewKey() == DWT_View_Key_Ethernet;
            EXPECT_EQ(shown.style, critical ? QMessageBox::Critical : QMessageBox::Warning);
        }
        page->enableAllItems(false);
        EXPECT_TRUE(shown.alertsOf(true).isEmpty()) << f.field << " is disabled";
        page->enableAllItems(true);
        shown.showNothing();
        EXPECT_TRUE(shown.alertsOf(true).isEmpty()) << f.field << " was never filled or touched";
    }
}

TEST(FieldRules, BothPasswordsAreCheckedAndMustAgree) {
    const auto page = make<DWTPasswordView>();
    PageInWindow shown(page, "");
    const struct {
        const char *first, *second, *alerts;
    } cases[] = {
        {"aB3!/{~", "aB3!/{~", ""},     {"12345678", "12345678", ""},
        {"", "", "New password"},       {"a b", "a b", "New password|Password confirmation"},
        {"a_b", "ab", "New password"},  {"ab", "a@b", "Password confirmation"},
        {"abc", "abd", "New password"}, {"é", "e", "New password"}};
    page->passwordChangeSetting(true);
    for (const auto &c : cases) {
        shown.type("secureTextField_Password", text(c.first));
        shown.type("secureTextField_PasswordReinput", text(c.second));
        QStringList alerts = text(c.alerts).split(u'|', Qt::SkipEmptyParts);
        for (QString &alert : alerts) alert += text(" cannot be used");
        EXPECT_EQ(shown.alertsOf(alerts.isEmpty()), alerts) << c.first;
        if (alerts.isEmpty()) continue;
        const bool differ = text(c.first) == text("abc") || text(c.second).isEmpty();
        EXPECT_EQ(shown.explanation == explanationOf("Password"), !differ) << c.first;
    }
    EXPECT_EQ(shown.style, QMessageBox::Warning);
    page->enableAllItems(false);
    EXPECT_TRUE(shown.alertsOf(true).isEmpty()) << "a disabled page is not checked";
}

}  // namespace
