#include "PageInWindow.h"

namespace {

struct Interface {
    const char *name, *setup;  // in the names of controls and of settings
    std::shared_ptr<DWTBaseView> (*make)();
};

// Both pages of an interface, in manual setup or, with another setting, in automatic setup.
class AddressSetup : public testing::TestWithParam<Interface>, protected PageInWindow {
  protected:
    explicit AddressSetup(int setting = 1) : PageInWindow(GetParam().make(), items(setting)) {}

    TextField *address() { return control(named("textField_%1IpAddress")); }
    TextField *mask() { return control(named("textField_%1SubnetMask")); }
    TextField *gateway() { return control(named("textField_%1DefaultGateway")); }
    QLabel *connection() { return control<QLabel>(named("textField_%1Connection")); }
    QPushButton *test() { return control<QPushButton>(named("button_%1Connect")); }
    QString storedSetup(const char *part) { return stored(text(GetParam().setup) + text(part)); }
    static QString named(const char *pattern) { return text(pattern).arg(text(GetParam().name)); }

    const std::shared_ptr<InterfaceView> page = std::dynamic_pointer_cast<InterfaceView>(view);

  private:
    static QByteArray items(int setting) {
        const QByteArray value = "{\"setting\": " + QByteArray::number(setting) + R"(,
            "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"})";
        return R"("0x2000": "02004C000101", "0x2001": )" + value + R"(, "0x3108": )" + value;
    }
};

struct AutomaticSetup : AddressSetup {
    AutomaticSetup() : AddressSetup(0) {}
};

const Interface interfaces[] = {{"Ethernet", "wired.address.", a<DWTEthernetView>},
                                {"Infrastructure", "wireless.address.", a<DWTInfrastructureView>}};
const auto nameOf = [](const auto &info) { return std::string(info.param.name); };
INSTANTIATE_TEST_SUITE_P(Every, AddressSetup, testing::ValuesIn(interfaces), nameOf);
INSTANTIATE_TEST_SUITE_P(Every, AutomaticSetup, testing::ValuesIn(interfaces), nameOf);

TEST_P(AddressSetup, TypedAddressesAreFilteredStoredAndCompared) {
    EXPECT_EQ(address()->text(), text("10.0.0.5"));
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && test()->isEnabled());
    address()->setFocus();
    address()->end(false);
    QTest::keyClicks(address(), text("x"));
    EXPECT_EQ(address()->cursorPosition(), 8);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message);
    EXPECT_FALSE(test()->isEnabled()) << "a test while addresses are edited";
    EXPECT_TRUE(test()->toolTip().startsWith(text("A test is possible once")));
    EXPECT_EQ(control<FieldNote>(named("textField_%1WhyNot"))->text(), test()->toolTip());
    QTest::keyClicks(address(), text("1x"));
    EXPECT_EQ(address()->text(), text("10.0.0.51"));
    for (int i = 0; i < 3; ++i) QTest::keySequence(address(), QKeySequence::Undo);
    EXPECT_EQ(address()->text(), text("10.0.0.5")) << "undo stops at the filter";
    address()->end(false);
    QTest::keyClicks(address(), text("0"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_EQ(storedSetup("ip"), text("10.0.0.5")) << "stored before editing has ended";
    type(mask(), text("255.255.0.0"));
    type(gateway(), text("10.0.0.2"));
    QTest::keyClick(gateway(), Qt::Key_Return);
    EXPECT_EQ(storedSetup("ip"), text("10.0.0.50"));
    EXPECT_EQ(storedSetup("gateway"), text("10.0.0.2"));
    EXPECT_EQ(changeList(), text("IP address: 10.0.0.5 > 10.0.0.50|Subnet mask: 255.0.0.0 > "
                                 "255.255.0.0|Default gateway: 10.0.0.1 > 10.0.0.2"));
    EXPECT_EQ(page->getipAddressArray().join(u'.'), text("10.0.0.50"));
}

TEST_P(AddressSetup, OnlyAnotherAddressChangesHowThePrinterIsReached) {
    const auto reached = [this](TextField *field, const char *typed) {
        const QString before = field->text();
        type(field, text(typed));
        const bool same = page->itemConnectChangeCheck();
        EXPECT_FALSE(page->itemCheckDifferentToDataManager()) << typed;
        type(field, before);
        return same;
    };
    EXPECT_TRUE(reached(mask(), "255.000.0.0")) << "the same numbers, typed otherwise";
    for (TextField *field : {address(), mask(), gateway()})
        EXPECT_FALSE(reached(field, "10.0.0.66")) << qPrintable(field->objectName());
}

TEST_P(AddressSetup, AWrongAddressIsMarkedFromTheEndOfItsEditingUntilItIsRight) {
    const auto said = [this] { return noteOf(address()).text(); };
    page->showConnectResult(true);
    type(address(), text("10.0.0."));
    EXPECT_EQ(connection()->text(), text("Not tested yet")) << "the result of another address";
    EXPECT_FALSE(page->hasFault()) << "marked while it is typed";
    QTest::keyClick(address(), Qt::Key_Tab);
    EXPECT_TRUE(page->hasFault());
    EXPECT_EQ(said(), text("An address from 0.0.0.1 to 255.255.255.254, but not 127.0.0.1."));
    EXPECT_TRUE(address()->accessibleDescription().startsWith(said()));
    const int below = noteOf(address()).height();
    QTest::keyClick(address(), Qt::Key_End);
    QTest::keyClicks(address(), text("9"));
    EXPECT_FALSE(page->hasFault());
    QTest::keyClick(address(), Qt::Key_Tab);
    EXPECT_EQ(said(), QString()) << "the rule of a field without the focus";
    EXPECT_EQ(noteOf(address()).height(), below) << "the page jumps";
    EXPECT_FALSE(noteOf(window.focusWidget()).text().isEmpty()) << "a rule before typing";
    type(mask(), text("255.0.255.0"));
    QTest::keyClick(mask(), Qt::Key_Return);
    EXPECT_TRUE(noteOf(mask()).text().startsWith(text("255.0.255.0 is not a usual")));
}

TEST_P(AddressSetup, OneAlertNamesEveryWrongAddressAndSelectsTheFirst) {
    type(mask(), text("0.0.0.0"));
    type(gateway(), text("1.2.3"));
    EXPECT_EQ(alertsOf(false), QStringList{text("Subnet mask\nDefault gateway cannot be used")});
    EXPECT_EQ(explanation.count(u'\n'), 2) << "the page and two rules";
    EXPECT_EQ(window.focusWidget(), mask());
    EXPECT_EQ(mask()->selectedText(), text("0.0.0.0"));
    EXPECT_TRUE(!mask()->fault().isEmpty() && address()->fault().isEmpty());
    pick("buttonCell_Auto");
    EXPECT_FALSE(page->hasFault()) << "addresses that do not count";
}

TEST_P(AddressSetup, SwitchingTheSetupTakesTheMatchingAddresses) {
    type(address(), text("10.0.0.9"));
    pick("buttonCell_Auto");
    EXPECT_EQ(storedSetup("mode"), text("0"));
    EXPECT_EQ(storedSetup("ip"), text("10.0.0.5")) << "the typed address was not dropped";
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_EQ(changeList(), text("Address assignment: Fixed address > Automatic (DHCP)"));
    EXPECT_EQ(address()->text(), text("10.0.0.9"));
    const QWidget *const setup = control<RadioGroup>(named("radioButton_%1IPAddressSetting"));
    EXPECT_TRUE(resetOf(setup).isVisible() && !resetOf(address()).isVisible());
    resetOf(setup).click();
    EXPECT_EQ(storedSetup("mode") + storedSetup("ip"), text("110.0.0.9"));
    resetOf(address()).click();
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && address()->text() == text("10.0.0.5"));
    address()->setText(text("10.0.0.9"));
    pick("buttonCell_Auto");
    EXPECT_FALSE(address()->isEnabled() || mask()->isEnabled() || gateway()->isEnabled());
    gateway()->setText(text("1.2"));
    EXPECT_TRUE(alertsOf(true).isEmpty() && page->itemConnectChangeCheck());
    page->enableAllItems(true);
    EXPECT_FALSE(address()->isEnabled());
    pick("buttonCell_Manual");
    EXPECT_EQ(storedSetup("mode"), text("1"));
    EXPECT_EQ(storedSetup("ip"), text("10.0.0.9"));
    page->enableAllItems(false);
    pick("buttonCell_Auto");
    EXPECT_EQ(storedSetup("mode"), text("1")) << "a disabled choice moved";
}

TEST_P(AutomaticSetup, ShowsTheAddressesInUseAndTheResultOfATest) {
    EXPECT_FALSE(address()->text() == text("10.0.0.5") || address()->text() == text("0.0.0.0"));
    EXPECT_TRUE(page->itemCheckDifferentToDataManager());
    page->itemSetToDataManager();
    EXPECT_EQ(storedSetup("ip"), text("10.0.0.5"));
    EXPECT_EQ(connection()->text(), text("Not tested yet"));
    page->showConnectResult(true);
    const QString online = connection()->text();
    page->showConnectResult(false);
    EXPECT_TRUE(online != text("Not tested yet") && online != connection()->text());
    showNothing();
    EXPECT_EQ(address()->text(), text("0.0.0.0"));
}

}  // namespace
