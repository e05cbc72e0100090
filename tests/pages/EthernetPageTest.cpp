#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "PageInWindow.h"
#include "pages/DWTEthernetView.h"

namespace {

class EthernetPage : public PageInWindow<DWTEthernetView> {
  protected:
    explicit EthernetPage(int setting = 1)
        : PageInWindow(R"({"items": {"0x2000": "02004C000101", "0x2001": {"setting": )" +
                       QByteArray::number(setting) + R"(, "address": "10.0.0.5",
                       "mask": "255.0.0.0", "gateway": "10.0.0.1"}}})") {}
    TextField *address() { return control("textField_EthernetIpAddress"); }
    TextField *mask() { return control("textField_EthernetSubnetMask"); }
    TextField *gateway() { return control("textField_EthernetDefaultGateway"); }
    QPushButton *connectButton() { return control<QPushButton>("button_EthernetConnect"); }
    QStringList changedAddress() {
        return addressValue(changed(), DWT_SaveData_Ethernet_IPAddress);
    }
    void pick(const char *cell) { control<QRadioButton>(cell)->click(); }
};

class AutomaticEthernetPage : public EthernetPage {
  protected:
    AutomaticEthernetPage() : EthernetPage(0) {}
};

TEST_F(EthernetPage, TypedAddressesAreFilteredStoredAndCompared) {
    EXPECT_EQ(address()->text(), text("10.0.0.5"));
    EXPECT_EQ(gateway()->text(), text("10.0.0.1"));
    EXPECT_EQ(control<QLineEdit>("textField_EthernetMACAddress")->text(), text("02004C000101"));
    address()->setFocus();
    address()->end(false);
    QTest::keyClicks(address(), text("x"));
    EXPECT_EQ(address()->text(), text("10.0.0.5"));
    EXPECT_EQ(address()->cursorPosition(), 8);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    EXPECT_FALSE(connectButton()->isEnabled()) << "a test is offered while addresses are edited";
    type(mask(), text("255.255.0.0"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(mask(), Qt::Key_Tab);
    EXPECT_TRUE(gateway()->hasFocus());
    EXPECT_EQ(addressValue(changed(), DWT_SaveData_Ethernet_Subnetmask),
              text("255.255.0.0").split(u'.'));
    EXPECT_FALSE(page->itemConnectChangeCheck());
    type(mask(), text("255.000.0.0"));
    EXPECT_TRUE(page->itemConnectChangeCheck()) << "the same numbers";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager()) << "typed otherwise";
}

TEST_F(EthernetPage, OneAlertNamesEveryWrongAddress) {
    type(address(), text("127.0.0.1"));
    type(mask(), text("127.0.0.1"));
    type(gateway(), text("1.2.3"));
    EXPECT_EQ(alertsOf(false), QStringList{text("IP address\nDefault gateway cannot be used")});
    EXPECT_EQ(address()->selectedText(), text("127.0.0.1"));
    type(address(), text("10.0.0.9"));
    type(gateway(), QString(64 * 1024, u'1'));
    EXPECT_EQ(alertsOf(false), QStringList{text("Default gateway cannot be used")});
    EXPECT_TRUE(gateway()->hasSelectedText());
    EXPECT_EQ(page->getipAddressArray(), text("10.0.0.9").split(u'.'));
    type(gateway(), text("127.0.0.1"));
    EXPECT_TRUE(alertsOf(true).isEmpty());
}

TEST_F(EthernetPage, SwitchingTheSetupTakesTheMatchingAddresses) {
    type(address(), text("10.0.0.9"));
    pick("buttonCell_Auto");
    EXPECT_EQ(changedAddress(), text("10.0.0.5").split(u'.'))
        << "the typed address was not dropped";
    EXPECT_EQ(address()->text(), text("10.0.0.9"));
    EXPECT_FALSE(address()->isEnabled() || mask()->isEnabled() || gateway()->isEnabled());
    EXPECT_TRUE(alertsOf(true).isEmpty() && page->itemConnectChangeCheck());
    page->enableAllItems(true);
    EXPECT_FALSE(address()->isEnabled());
    pick("buttonCell_Manual");
    EXPECT_EQ(changedAddress(), text("10.0.0.9").split(u'.'));
    EXPECT_TRUE(address()->isEnabled());
}

TEST_F(AutomaticEthernetPage, ShowsTheAddressesInUseAndKeepsTheConfiguredOnes) {
    EXPECT_NE(address()->text(), text("10.0.0.5"));
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
    page->itemSetToDataManager();
    EXPECT_EQ(changedAddress(), text("10.0.0.5").split(u'.'));
    auto *shown = control<QLabel>("textField_EthernetConnection");
    const QString untested = shown->text();
    page->showConnectResult(true);
    const QString online = shown->text();
    page->showConnectResult(false);
    EXPECT_TRUE(untested != online && online != shown->text() && shown->text() != untested);
    page->dataManagerObject(make<DWTDataManager>());
    page->showDataManager();
    EXPECT_EQ(address()->text(), text("0.0.0.0"));
}

}  // namespace
