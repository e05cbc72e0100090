#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>

#include "PageInWindow.h"
#include "pages/DWTInfrastructureView.h"

namespace {

SSIDEntry network(const char *name, int authentic, int encryption) {
    return {{DWT_SSIDList_SSID, QByteArray(name)},
            {DWT_SSIDList_SSID_String, text(name)},
            {DWT_SSIDList_Authentic, authentic},
            {DWT_SSIDList_Encryption, encryption}};
}

class InfrastructurePage : public PageInWindow<DWTInfrastructureView> {
  protected:
    explicit InfrastructurePage(const QByteArray &items = R"("0x3102": 3, "0x3103": 3)")
        : PageInWindow(R"({"items": {"0x3104": "Café", "0x3108": {"setting": 1,
                       "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"}, )" +
                       items + "}}") {}
    QComboBox *authentic() { return control<QComboBox>("popupbutton_InfrastructureAuthentic"); }
    QComboBox *encryption() { return control<QComboBox>("popupbutton_InfrastructureEncryption"); }
    QComboBox *keyNumber() { return control<QComboBox>("popupbutton_InfrastructureSelectWEPKey"); }
    TextField *ssid() { return control("textField_InfrastructureSSID"); }
    TextField *psk() { return control("textField_InfrastructurePSK"); }
    TextField *wepKey() { return control("textField_InfrastructureWEPKey"); }
    TextField *address() { return control("textField_InfrastructureIpAddress"); }
    // Chooses an item by its text with the keyboard, as a user does.
    void choose(QComboBox *popup, const char *item) {
        popup->setFocus();
        const int target = popup->findText(text(item));
        ASSERT_GE(target, 0) << item;
        while (popup->currentIndex() != target)
            QTest::keyClick(popup, popup->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
    }
    int changedNumber(const QString &key) { return integerValue(changed(), key); }
    QByteArray changedListSSID() {
        return bytesValue(changed(), DWT_SaveData_Infrastructure_SSIDList_SSID);
    }
};

class UnknownCodes : public InfrastructurePage {
  protected:
    UnknownCodes() : InfrastructurePage(R"("0x3101": 77, "0x3102": 9, "0x3103": 12)") {}
};

TEST_F(InfrastructurePage, EveryAuthenticationOffersItsEncryptionsAndKeyFields) {
    const struct {
        const char *before;  // the encryption chosen last
        const char *authentic;
        int authenticCode;
        const char *offered;
        const char *encryption;
        int encryptionCode;
        bool key, wep;  // fields that are then usable
    } cases[] = {{"AES", "WPA personal", 2, "TKIP AES", "AES", 3, true, false},
                 {"TKIP", "WPA2 personal", 3, "TKIP AES", "TKIP", 2, true, false},
                 {"TKIP", "Open system", 0, "None WEP", "WEP", 1, false, true},
                 {"None", "Shared key", 1, "None WEP", "None", 0, false, false},
                 {"WEP", "Open system", 0, "None WEP", "WEP", 1, false, true},
                 {"WEP", "Shared key", 1, "None WEP", "WEP", 1, false, true},
                 {"WEP", "WPA2 personal", 3, "TKIP AES", "AES", 3, true, false},
                 {"AES", "Shared key", 1, "None WEP", "WEP", 1, false, true},
                 {"None", "WPA personal", 2, "TKIP AES", "AES", 3, true, false}};
    for (const auto &c : cases) {
        choose(encryption(), c.before);
        choose(authentic(), c.authentic);
        QStringList offered;
        for (int i = 0; i < encryption()->count(); ++i) offered << encryption()->itemText(i);
        EXPECT_EQ(offered.join(u' '), text(c.offered)) << c.before << " " << c.authentic;
        EXPECT_EQ(encryption()->currentText(), text(c.encryption)) << c.before << c.authentic;
        EXPECT_EQ(changedNumber(DWT_SaveData_Infrastructure_Authentic), c.authenticCode);
        EXPECT_EQ(changedNumber(DWT_SaveData_Infrastructure_Encryption), c.encryptionCode);
        EXPECT_TRUE(psk()->isEnabled() == c.key && wepKey()->isEnabled() == c.wep &&
                    keyNumber()->isEnabled() == c.wep)
            << c.before << " " << c.authentic;
        page->enableAllItems(true);
        EXPECT_EQ(psk()->isEnabled(), c.key) << "enabling all enables what is not used";
    }
    page->enableAllItems(false);
    EXPECT_FALSE(psk()->isEnabled() || authentic()->isEnabled() || ssid()->isEnabled());
}

TEST_F(InfrastructurePage, ANetworkOfTheListFillsThePageWithItsSecurity) {
    const struct {
        int authentic, encryption;  // as the list says
        const char *shownAuthentic, *shownEncryption;
        int code;  // of the encryption, in the change data
    } cases[] = {{0, 0, "Open system", "None", 0},   {0, 1, "Open system", "WEP", 1},
                 {1, 2, "WPA personal", "TKIP", 2},  {2, 3, "WPA2 personal", "AES", 3},
                 {3, 4, "WPA2 personal", "AES", 3},  {0, 3, "Open system", "WEP", 1},
                 {99, 99, "Open system", "None", 0}, {1, 1, "WPA personal", "AES", 3},
                 {-1, -1, "Open system", "None", 0}};
    for (const auto &c : cases) {
        page->showSSIDFromSelectSSID(network("Lager\xff", c.authentic, c.encryption));
        EXPECT_EQ(authentic()->currentText(), text(c.shownAuthentic)) << c.authentic;
        EXPECT_EQ(encryption()->currentText(), text(c.shownEncryption)) << c.encryption;
        EXPECT_EQ(changedNumber(DWT_SaveData_Infrastructure_Encryption), c.code);
        EXPECT_EQ(changedListSSID(), QByteArray("Lager\xff"));
    }
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a name of the list may hold any character";
    page->itemSetToDataManager();
    EXPECT_EQ(changedListSSID(), QByteArray("Lager\xff"));
}

TEST_F(InfrastructurePage, ChangingWhatTheListGaveMakesItTheUsersOwn) {
    const auto taken = [this] {
        page->itemSetToDataManager();
        return changedListSSID() == QByteArray("Lager");
    };
    page->showSSIDFromSelectSSID(network("Lager", 2, 3));
    type(ssid(), text("Lager"));
    QTest::keyClick(ssid(), Qt::Key_Tab);
    EXPECT_TRUE(taken()) << "the same name was typed";
    type(ssid(), text("Lager 2"));
    QTest::keyClick(ssid(), Qt::Key_Tab);
    EXPECT_FALSE(taken());
    page->showSSIDFromSelectSSID(network("Lager", 2, 3));
    choose(encryption(), "TKIP");
    EXPECT_FALSE(taken());
    page->showSSIDFromSelectSSID(network("Lager", 2, 3));
    choose(authentic(), "WPA personal");
    EXPECT_FALSE(taken());
    page->showSSIDFromSelectSSID(network("Lager", 2, 3));
    ssid()->setFocus();
    QTest::keyClick(ssid(), Qt::Key_Tab);
    EXPECT_TRUE(taken()) << "looking at the name changed nothing";
}

TEST_F(InfrastructurePage, ChecksNameAndKeysByTheirRules) {
    const QString ssidAlert = text("Network name (SSID) cannot be used");
    const QString pskAlert = text("WPA key cannot be used");
    const QString wepAlert = text("WEP key cannot be used");
    const QString own = ssid()->text();
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "the printer's own name is not checked";
    const auto check = [&](TextField *field, const QString &typed, const QString &alert) {
        type(field, typed);
        EXPECT_EQ(alertsOf(alert.isEmpty()), alert.isEmpty() ? QStringList() : QStringList{alert})
            << qPrintable(typed);
    };
    check(psk(), QString(7, u'k'), pskAlert);
    check(psk(), QString(64, u'k'), pskAlert);
    check(psk(), QString(), pskAlert);
    check(psk(), text("schlüssel"), pskAlert);
    check(psk(), QString(63, u'~'), {});
    check(psk(), text("8 chars."), {});
    page->clearEncryptionKey(true);
    EXPECT_TRUE(psk()->text().isEmpty() && psk()->isEnabled() && !wepKey()->isEnabled());
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a cleared key that nobody touched";
    check(ssid(), QString(33, u's'), ssidAlert);
    check(ssid(), QString(), ssidAlert);
    check(ssid(), text("名前"), ssidAlert);
    check(ssid(), own, {});
    check(ssid(), QString(32, u's'), {});
    choose(authentic(), "Open system");
    EXPECT_TRUE(alertsOf(true).isEmpty());
    check(wepKey(), text("abc e"), {});
    check(wepKey(), text("1234567890"), {});
    check(wepKey(), text("123456789g"), wepAlert);
    check(wepKey(), text("abcdef"), wepAlert);
    check(wepKey(), text("aé de"), wepAlert);
    check(wepKey(), QString(13, u'~'), {});
    check(wepKey(), QString(26, u'F'), {});
    check(wepKey(), QString(64 * 1024, u'F'), wepAlert);
    check(wepKey(), QString(), wepAlert);
    QTest::keyClick(wepKey(), Qt::Key_Tab);
    choose(keyNumber(), "Key 3");
    EXPECT_EQ(changedNumber(DWT_SaveData_Infrastructure_WEPKeyIndex), 3);
    page->clearEncryptionKey(false);
    EXPECT_EQ(keyNumber()->currentIndex(), 0);
}

TEST_F(InfrastructurePage, AlertsOfAddressNameAndKeyComeInThisOrder) {
    type(address(), text("127.0.0.1"));
    type(control("textField_InfrastructureDefaultGateway"), text("1.2"));
    type(ssid(), text("ß"));
    type(psk(), text("short"));
    EXPECT_EQ(alertsOf(false), (QStringList{text("IP address\nDefault gateway cannot be used"),
                                            text("Network name (SSID) cannot be used"),
                                            text("WPA key cannot be used")}));
    EXPECT_EQ(address()->selectedText(), text("127.0.0.1"));
    EXPECT_FALSE(page->itemConnectChangeCheck());
    control<QRadioButton>("buttonCell_Auto")->click();
    EXPECT_TRUE(page->itemConnectChangeCheck());
    EXPECT_EQ(alertsOf(false).size(), 2) << "addresses that are not used are not checked";
    EXPECT_EQ(addressValue(changed(), DWT_SaveData_Infrastructure_IPAddress),
              text("10.0.0.5").split(u'.'));
}

TEST_F(InfrastructurePage, TypingFiltersStoresAndTakesTheTestAway) {
    auto *connectButton = control<QPushButton>("button_InfrastructureConnect");
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && connectButton->isEnabled());
    address()->setFocus();
    address()->end(false);
    QTest::keyClicks(address(), text("0x"));
    EXPECT_EQ(address()->text(), text("10.0.0.50"));
    EXPECT_FALSE(connectButton->isEnabled());
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(address(), Qt::Key_Return);
    EXPECT_EQ(addressValue(changed(), DWT_SaveData_Infrastructure_IPAddress).value(3), text("50"));
    type(address(), text("10.0.0.5"));
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    type(ssid(), {});
    QTest::keyClick(ssid(), Qt::Key_Return);
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Infrastructure_SSID), QString());
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message) << "an emptied name is a change";
    type(psk(), text("k\n\te y😀"));
    EXPECT_FALSE(page->itemCheckDifferentToDataManager());
    QTest::keyClick(psk(), Qt::Key_Return);
    EXPECT_EQ(textValue(changed(), DWT_SaveData_Infrastructure_PSK), psk()->text());
    const int before = authentic()->currentIndex();
    QWheelEvent wheel({5, 5}, authentic()->mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(authentic(), &wheel);
    EXPECT_EQ(authentic()->currentIndex(), before) << "scrolling by changed a choice";
}

TEST_F(UnknownCodes, AreShownAsEmptyTextsAndKept) {
    EXPECT_EQ(control<QLineEdit>("textField_InfrastructureWirelessLanMode")->text(), QString());
    EXPECT_EQ(authentic()->currentText(), QString());
    EXPECT_EQ(encryption()->count(), 0);
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
}

}  // namespace
