#include <QCheckBox>
#include <QRadioButton>

#include "PageInWindow.h"
#include "pages/DWTFirmwareView.h"
#include "pages/DWTPasswordView.h"
#include "pages/DWTSimpleAPView.h"
#include "pages/DWTWirelessView.h"

namespace {

class WirelessPage : public PageInWindow<DWTWirelessView> {
  protected:
    WirelessPage() : PageInWindow(R"({"items": {"0x3000": 2, "0x3100": "02004C000102"}})") {}
    void pick(const char *cell) { control<QRadioButton>(cell)->click(); }
};

TEST_F(WirelessPage, TheModeReachesTheChangeDataAtEveryChoice) {
    EXPECT_EQ(page->wirelessCommunicateMode(), 2);
    EXPECT_EQ(control<QLineEdit>("textField_WirelessInfrastructureMACAddress")->text(),
              text("02004C000102"));
    pick("buttonCell_WirelessInfrastructure");
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Wireless_CommunicateMode), 1);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_FALSE(page->itemCheckDifferentToDataManager());
    pick("buttonCell_WirelessSimpleA");
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the first mode was chosen again";
    page->enableAllItems(false);
    pick("buttonCell_WirelessWifiNothing");
    EXPECT_EQ(page->wirelessCommunicateMode(), 2);
    EXPECT_TRUE(alertsOf(true).isEmpty());
}

TEST_F(WirelessPage, AModeThatNoChoiceStandsForIsKept) {
    ServedManager other(R"({"items": {"0x3000": 9}})", OnePrinterLibrary::Transport::Virtual);
    ASSERT_EQ(other.manager->setupDataFromPrinter(0), 0);
    page->dataManagerObject(other.manager);
    page->showDataManager();
    EXPECT_EQ(page->wirelessCommunicateMode(), -1);
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
}

class FirmwarePage : public PageInWindow<DWTFirmwareView> {
  protected:
    FirmwarePage() : PageInWindow(R"({"items": {"0x1008": "2.10A", "0x1007": 45}})") {}
    TextField *timeOut() { return control("textField_PrintTimeOut"); }
};

TEST_F(FirmwarePage, TheTimeOutIsForcedIntoItsRangeWhenEditingEnds) {
    EXPECT_EQ(control<QLineEdit>("textField_Firmware")->text(), text("2.10A"));
    EXPECT_EQ(timeOut()->text(), text("45"));
    const struct {
        const char *typed;
        const char *shown;
        const char *forced;
    } cases[] = {
        {"29", "29", "30"},    {"30", "30", "30"},  {"300", "300", "300"},
        {"301", "301", "300"}, {"", "", "30"},      {"12a34", "1234", "300"},
        {"x", "", "30"},       {"\n4５", "", "30"}, {"99999999999999", "99999999999999", "300"}};
    for (const auto &c : cases) {
        type(timeOut(), text(c.typed));
        EXPECT_EQ(timeOut()->text(), text(c.shown)) << c.typed;
        QTest::keyClick(timeOut(), Qt::Key_Return);
        EXPECT_EQ(timeOut()->text(), text(c.forced)) << c.typed;
        EXPECT_EQ(integerValue(changed(), DWT_SaveData_Firmware_Timeout), text(c.forced).toInt());
    }
}

TEST_F(FirmwarePage, TheSendStateComparesNumbersWhileTyping) {
    type(timeOut(), text("045"));
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    QTest::keyClick(timeOut(), Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    page->itemInputCheck();
    page->itemSetToDataManager();
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Firmware_Timeout), 30)
        << "sent without leaving the field";
}

class PasswordPage : public PageInWindow<DWTPasswordView> {
  protected:
    PasswordPage() : PageInWindow("{}") {}
    QCheckBox *box() { return control<QCheckBox>("checkbox_PasswordChange"); }
    TextField *password() { return control("secureTextField_Password"); }
    TextField *repeated() { return control("secureTextField_PasswordReinput"); }
    void typeBoth(const char *first, const char *second) {
        type(password(), text(first));
        type(repeated(), text(second));
    }
};

TEST_F(PasswordPage, TheBoxOpensTheFieldsAndClosingItForgetsThem) {
    EXPECT_FALSE(password()->isEnabled() || repeated()->isEnabled());
    box()->click();
    EXPECT_TRUE(password()->isEnabled() && repeated()->isEnabled());
    EXPECT_EQ(integerValue(changed(), DWT_SaveData_Password_Change), 1);
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "no password is a password, too";
    typeBoth("abc", "abc");
    box()->setFocus();
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Password_Password), text("abc"));
    typeBoth("abcd", "abc");
    box()->setFocus();
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Password_Password), text("abc")) << "they differ";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager());
    box()->click();
    EXPECT_TRUE(password()->text().isEmpty() && repeated()->text().isEmpty());
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    EXPECT_TRUE(m.manager->isEqualToSaveData() && page->itemCheckDifferentToDataManager());
    box()->click();
    typeBoth("abc", "abc");
    page->clearPassword(true);
    EXPECT_TRUE(box()->isEnabled() && !box()->isChecked() && !password()->isEnabled());
    EXPECT_TRUE(password()->text().isEmpty() && repeated()->text().isEmpty());
}

TEST_F(PasswordPage, ChecksBothFieldsAndThatTheyAgree) {
    box()->click();
    const QString first = text("New password cannot be used");
    const QString second = text("Repeated password cannot be used");
    const struct {
        const char *first;
        const char *second;
        QStringList alerts;
    } cases[] = {
        {"aB3!/{~", "aB3!/{~", {}}, {"12345678", "12345678", {}}, {"a b", "a b", {first, second}},
        {"a_b", "ab", {first}},     {"ab", "a@b", {second}},      {"abc", "abd", {first}},
        {"é", "", {first}}};
    for (const auto &c : cases) {
        typeBoth(c.first, c.second);
        EXPECT_EQ(alertsOf(c.alerts.isEmpty()), c.alerts) << c.first;
    }
    page->enableAllItems(false);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a disabled page is not checked";
}

class SimpleAPPage : public PageInWindow<DWTSimpleAPView> {
  protected:
    explicit SimpleAPPage(const QByteArray &items = R"("0x3201": "Desk", "0x3202": " ")")
        : PageInWindow("{\"items\": {" + items + "}}") {}
    TextField *ssid() { return control("textField_SimpleAPSSID"); }
    TextField *psk() { return control("textField_SimpleAPPSK"); }
    QString shown(const char *name) { return control<QLineEdit>(name)->text(); }
};

class SimpleAPPageUnknownCodes : public SimpleAPPage {
  protected:
    SimpleAPPageUnknownCodes() : SimpleAPPage(R"("0x3210": 9, "0x3211": 4, "0x3212": 65535)") {}
};

TEST_F(SimpleAPPage, NameAndKeyAreStoredAndCheckedByTheirLengths) {
    EXPECT_EQ(ssid()->text(), text("Desk"));
    EXPECT_EQ(psk()->text(), QString());
    EXPECT_EQ(shown("textField_SimpleAPEncryption"), text("AES"));
    EXPECT_NE(shown("textField_SimpleAPIpAddress"), text("0.0.0.0"));
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "the key was not filled and not touched";
    const QString ssidAlert = text("Network name (SSID) of the access point cannot be used");
    const QString pskAlert = text("WPA key of the access point cannot be used");
    const struct {
        TextField *field;
        QString typed;
        QStringList alerts;
    } cases[] = {{psk(), QString(7, u'k'), {pskAlert}},    {psk(), {}, {pskAlert}},
                 {psk(), QString(64, u'k'), {pskAlert}},   {psk(), QString(63, u' '), {}},
                 {ssid(), QString(26, u's'), {ssidAlert}}, {ssid(), QString(25, u's'), {}},
                 {ssid(), text("Büro"), {ssidAlert}},      {ssid(), {}, {ssidAlert}},
                 {psk(), text("x"), {ssidAlert, pskAlert}}};
    for (const auto &c : cases) {
        type(c.field, c.typed);
        EXPECT_EQ(alertsOf(c.alerts.isEmpty()), c.alerts) << qPrintable(c.typed);
    }
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(psk(), Qt::Key_Return);
    EXPECT_EQ(textValue(changed(), DWT_SaveData_SimpleAP_PSK), text("x"));
    page->enableAllItems(false);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a disabled page is not checked";
}

TEST_F(SimpleAPPageUnknownCodes, AreShownAsEmptyTexts) {
    EXPECT_EQ(shown("textField_SimpleAPWirelessLanMode"), QString());
    EXPECT_EQ(shown("textField_SimpleAPAuthentic"), QString());
    EXPECT_EQ(shown("textField_SimpleAPEncryption"), QString());
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
    page->dataManagerObject(make<DWTDataManager>());
    page->showDataManager();
    EXPECT_EQ(shown("textField_SimpleAPStartIpAddress"), text("0.0.0.0"));
}

}  // namespace
