#include "PageInWindow.h"

namespace {

SSIDEntry network(const char *name, int authentic, int encryption) {
    return {{DWT_SSIDList_SSID, QByteArray(name)},
            {DWT_SSIDList_SSID_String, text(name)},
            {DWT_SSIDList_Authentic, authentic},
            {DWT_SSIDList_Encryption, encryption}};
}

class InfrastructurePage : public PageTest<DWTInfrastructureView> {
  protected:
    InfrastructurePage() : PageTest(R"("0x3104": "Café", "0x3102": 3, "0x3103": 3)") {}
    QComboBox *authentic() { return control<QComboBox>("popupbutton_InfrastructureAuthentic"); }
    QComboBox *encryption() { return control<QComboBox>("popupbutton_InfrastructureEncryption"); }
    QComboBox *keyNumber() { return control<QComboBox>("popupbutton_InfrastructureSelectWEPKey"); }
    TextField *ssid() { return control("textField_InfrastructureSSID"); }
    TextField *psk() { return control("textField_InfrastructurePSK"); }
    TextField *wepKey() { return control("textField_InfrastructureWEPKey"); }
    // Chooses an item by its text with the keyboard, as a user does.
    void choose(QComboBox *popup, const char *item) {
        popup->setFocus();
        const int target = popup->findText(text(item));
        ASSERT_GE(target, 0) << item;
        while (popup->currentIndex() != target)
            QTest::keyClick(popup, popup->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
    }
    QByteArray changedListSSID() {
        return bytesValue(changed(), DWT_SaveData_Infrastructure_SSIDList_SSID);
    }
};

TEST_F(InfrastructurePage, EveryAuthenticationOffersItsEncryptionsAndKeyFields) {
    const struct {
        const char *before;  // the encryption chosen last
        const char *authentic, *code, *offered, *encryption, *encryptionCode;
        bool key, wep;  // fields that are then usable
    } cases[] = {{"AES", "WPA-Personal", "2", "TKIP AES", "AES", "3", true, false},
                 {"TKIP", "WPA2-Personal", "3", "TKIP AES", "TKIP", "2", true, false},
                 {"TKIP", "Open system", "0", "None WEP", "WEP", "1", false, true},
                 {"None", "Shared key", "1", "None WEP", "None", "0", false, false},
                 {"WEP", "Shared key", "1", "None WEP", "WEP", "1", false, true},
                 {"WEP", "WPA2-Personal", "3", "TKIP AES", "AES", "3", true, false},
                 {"AES", "Shared key", "1", "None WEP", "WEP", "1", false, true},
                 {"None", "WPA-Personal", "2", "TKIP AES", "AES", "3", true, false}};
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.before) + ' ' + c.authentic);
        choose(encryption(), c.before);
        choose(authentic(), c.authentic);
        QStringList offered;
        for (int i = 0; i < encryption()->count(); ++i) offered << encryption()->itemText(i);
        EXPECT_EQ(offered.join(u' '), text(c.offered));
        EXPECT_EQ(encryption()->currentText(), text(c.encryption));
        EXPECT_EQ(stored("wireless.authentication"), text(c.code));
        EXPECT_EQ(stored("wireless.encryption"), text(c.encryptionCode));
        EXPECT_TRUE(psk()->isEnabled() == c.key && wepKey()->isEnabled() == c.wep &&
                    keyNumber()->isEnabled() == c.wep);
        EXPECT_TRUE(psk()->isVisible() == c.key && wepKey()->isVisible() == c.wep &&
                    keyNumber()->isVisible() == c.wep);
        page->enableAllItems(true);
        EXPECT_EQ(psk()->isEnabled(), c.key) << "enabling all enables what is not used";
    }
    page->enableAllItems(false);
    EXPECT_FALSE(psk()->isEnabled() || authentic()->isEnabled() || ssid()->isEnabled());
}

TEST_F(InfrastructurePage, ANetworkOfTheListFillsThePageWithItsSecurity) {
    const struct {
        int authentic, encryption;                            // as the list says
        const char *shownAuthentic, *shownEncryption, *code;  // the code of the encryption
    } cases[] = {{0, 0, "Open system", "None", "0"},   {0, 1, "Open system", "WEP", "1"},
                 {1, 2, "WPA-Personal", "TKIP", "2"},  {2, 3, "WPA2-Personal", "AES", "3"},
                 {3, 4, "WPA2-Personal", "AES", "3"},  {0, 3, "Open system", "WEP", "1"},
                 {99, 99, "Open system", "None", "0"}, {1, 1, "WPA-Personal", "AES", "3"},
                 {-1, -1, "Open system", "None", "0"}};
    for (const auto &c : cases) {
        page->showSSIDFromSelectSSID(network("Lager\xff", c.authentic, c.encryption));
        EXPECT_EQ(authentic()->currentText(), text(c.shownAuthentic)) << c.authentic;
        EXPECT_EQ(encryption()->currentText(), text(c.shownEncryption)) << c.encryption;
        EXPECT_EQ(stored("wireless.encryption"), text(c.code));
        EXPECT_EQ(changedListSSID(), QByteArray("Lager\xff"));
        const bool isKnown = c.authentic >= 0 && c.authentic < 99;
        EXPECT_EQ(noteOf(authentic()).text().isEmpty(), isKnown) << c.authentic;
        EXPECT_EQ(page->ownWarnings().isEmpty(), isKnown);
    }
    page->focusNextEntry();
    EXPECT_TRUE(authentic()->hasFocus());
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a name of the list may hold any character";
    page->itemSetToDataManager();
    EXPECT_EQ(changedListSSID(), QByteArray("Lager\xff"));
}

TEST_F(InfrastructurePage, ChangingWhatTheListGaveMakesItTheUsersOwn) {
    const auto staysTaken = [this](const std::function<void()> &edit) {
        page->showSSIDFromSelectSSID(network("Lager", 2, 3));
        edit();
        page->itemSetToDataManager();
        return changedListSSID() == QByteArray("Lager");
    };
    EXPECT_FALSE(staysTaken([&] { type(ssid(), text("Lager")); })) << "the same name, but typed";
    EXPECT_EQ(stored("wireless.ssid"), text("'Lager'"));
    EXPECT_FALSE(staysTaken([&] { choose(encryption(), "TKIP"); }));
    page->showSSIDFromSelectSSID(network("Lager", 9, 9));
    choose(authentic(), "Shared key");
    EXPECT_TRUE(page->ownWarnings().isEmpty()) << "one was chosen";
    EXPECT_FALSE(staysTaken([&] { choose(authentic(), "WPA-Personal"); }));
    ssid()->setFocus();
    EXPECT_TRUE(staysTaken([&] { QTest::keyClick(ssid(), Qt::Key_Tab); })) << "nothing was typed";
    EXPECT_FALSE(ssid()->hasFocus());
    EXPECT_FALSE(staysTaken([&] { page->showDataManager(); })) << "a new reading forgets the list";
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
    page->showSSIDFromSelectSSID(network("Lager", 1, 2));
    resetOf(authentic()).click();
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && ssid()->text() == text("Café"))
        << "what the list gave goes back as a whole";
    choose(authentic(), "Open system");
    type(wepKey(), text("abcde"));
    resetOf(wepKey()).click();
    EXPECT_TRUE(wepKey()->text().isEmpty() && !resetOf(wepKey()).isVisible());
    resetOf(encryption()).click();
    EXPECT_EQ(changeList(), QString());
}

TEST_F(InfrastructurePage, ClearedKeysCountAsUntouched) {
    type(psk(), text("short"));
    QTest::keyClick(psk(), Qt::Key_Return);
    page->clearEncryptionKey(true);
    EXPECT_FALSE(psk()->isUndoAvailable()) << "a key comes back";
    EXPECT_TRUE(psk()->inputMethodHints() & Qt::ImhSensitiveData);
    EXPECT_TRUE(psk()->text().isEmpty() && psk()->isEnabled() && !wepKey()->isEnabled());
    EXPECT_TRUE(alertsOf(true).isEmpty());
    choose(authentic(), "Open system");
    state.clear();
    choose(keyNumber(), "Key 3");
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_EQ(stored("wireless.wepKeyNumber"), text("3"));
    type(wepKey(), text("abcde"));
    page->enableAllItems(false);
    page->clearEncryptionKey(false);
    EXPECT_EQ(keyNumber()->currentIndex(), 0);
    EXPECT_TRUE(wepKey()->text().isEmpty() && !wepKey()->isEnabled() && !psk()->isEnabled());
    page->enableAllItems(true);
    QTest::keyClick(wepKey(), Qt::Key_Return);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "a key field that was only looked at";
}

TEST_F(InfrastructurePage, NameAndKeysAreStoredWhenEditingEnds) {
    type(ssid(), {});
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message) << "an emptied name is a change";
    EXPECT_FALSE(control<QPushButton>("button_InfrastructureConnect")->isEnabled());
    QTest::keyClick(ssid(), Qt::Key_Return);
    EXPECT_EQ(stored("wireless.ssid"), text("''"));
    EXPECT_EQ(psk()->placeholderText(), text("unchanged"));
    type(psk(), text("k\n\te y😀"));
    EXPECT_EQ(alertsOf(false).join(u'|'),
              text("Network name (SSID) cannot be used|WPA key cannot be used"));
    QTest::keyClick(psk(), Qt::Key_Return);
    EXPECT_NE(psk()->displayText(), psk()->text()) << "a key is shown to everybody";
    psk()->setFocus();
    QTest::keyClick(psk(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget()->accessibleName(), text("Show the key"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(psk()->displayText().startsWith(text("k")));
    EXPECT_EQ(stored("wireless.key"), u'\'' + psk()->text() + u'\'');
    choose(authentic(), "Shared key");
    EXPECT_EQ(changeList(),
              text("Network name (SSID): Café > (empty)|Authentication: WPA2-Personal > Shared key|"
                   "Encryption: AES > WEP|WPA key:  > new"));
    type(wepKey(), text("abcde"));
    QTest::keyClick(wepKey(), Qt::Key_Return);
    EXPECT_EQ(stored("wireless.wepKey"), text("'abcde'"));
    page->showDataManager();
    EXPECT_EQ(ssid()->text() + psk()->text(), text("Café"));
    EXPECT_EQ(authentic()->currentText() + encryption()->currentText(), text("WPA2-PersonalAES"));
}

}  // namespace
