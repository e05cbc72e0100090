#include "pages/DWTEthernetView.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "platform/ui/FieldWidth.h"

namespace {

// Tags of the address setup, and its values in the record.
constexpr int automatic = 0;
constexpr int manual = 1;

}  // namespace

DWTEthernetView::~DWTEthernetView() {
    ETV_Dealloc();
}

bool DWTEthernetView::init() {
    return DWTBaseView::init() && ETV_Init();
}

void DWTEthernetView::initializeUI() {
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    textField_EthernetConnection->setText(text("DWT_Localize_Ethernet_Text_Connection_Nolook"));
    button_EthernetConnect->setText(text("DWT_Localize_Ethernet_Button_Connect"));
    box_WiredConnectionState->setTitle(text("DWT_Localize_Ethernet_Box_WiredConnection"));
    textField_Label_ConnectionState->setText(text("DWT_Localize_Ethernet_Text_Connection_Label"));
    box_WiredLANMACAddress->setTitle(text("DWT_Localize_Ethernet_Box_WiredLANMACAddress"));
    textField_Label_WiredMACAddress->setText(
        text("DWT_Localize_Ethernet_Text_WiredMACAddress_Label"));
    box_IPAddressSetup->setTitle(text("DWT_Localize_Ethernet_Box_IPAddressSetup"));
    buttonCell_Auto->setText(text("DWT_Localize_Ethernet_ButtonCell_Auto"));
    buttonCell_Manual->setText(text("DWT_Localize_Ethernet_ButtonCell_Manual"));
    textField_Label_IPAddress->setText(text("DWT_Localize_Ethernet_Text_IPAddress_Label"));
    textField_Label_SubnetMask->setText(text("DWT_Localize_Ethernet_Text_SubnetMask_Label"));
    textField_Label_DefaultGateway->setText(text("DWT_Localize_Ethernet_Text_Gateway_Label"));
    textField_EthernetIpAddress->setToolTip(text("DWT_ToolChip_Ethernet_Text_IPAddress"));
    textField_EthernetSubnetMask->setToolTip(text("DWT_ToolChip_Ethernet_Text_SubnetMask"));
    textField_EthernetDefaultGateway->setToolTip(text("DWT_ToolChip_Ethernet_Text_Gateway"));
    fitWidth(textField_EthernetMACAddress, QStringLiteral("DDDDDDDDDDDD"));
    for (const AddressField &address : addressFields()) {
        *address.input = false;
        fitWidth(address.field, QStringLiteral("255.255.255.255"));
    }
}

void DWTEthernetView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    const CategoryDictionary &saved = mutableDictionary_ViewSettings;
    if (saved.contains(DWT_SaveData_Ethernet_MACAddress))
        textField_EthernetMACAddress->setText(textValue(saved, DWT_SaveData_Ethernet_MACAddress));
    const int setting = integerValue(saved, DWT_SaveData_Ethernet_IPAddressSetting);
    radioButton_EthernetIPAddressSetting->selectTag(setting);
    for (const AddressField &address : addressFields()) {
        *address.input = true;
        const QString &key = setting == automatic ? address.keyInUse : address.key;
        address.field->setText(addressNumberToString(addressValue(saved, key)));
    }
    selectAddressSettingInput();
}

void DWTEthernetView::enableAllItems(bool enabled) {
    radioButton_EthernetIPAddressSetting->setEnabled(enabled);
    for (const AddressField &address : addressFields()) address.field->setEnabled(enabled);
    if (enabled) selectAddressSettingInput();
}

bool DWTEthernetView::itemInputCheck() {
    if (!textField_EthernetIpAddress->isEnabled()) return true;
    QStringList names, rules;
    for (const AddressField &address : addressFields()) {
        if (itemInputCheckAddress(address.field, address.localhostCheck)) continue;
        if (names.isEmpty()) {
            address.field->setFocus();
            address.field->selectAll();
        }
        names << localized(address.messageKey);
        rules << localized(address.informationKey);
    }
    if (names.isEmpty()) return true;
    Alert alert(Alert::Style::Critical);
    showInputError(alert, names.join(u'\n'), rules.join(u'\n'));
    return false;
}

bool DWTEthernetView::itemConnectChangeCheck() {
    if (!textField_EthernetIpAddress->isEnabled()) return true;
    const CategoryDictionary saved = savedCategory();
    const auto addresses = addressFields();
    return std::all_of(addresses.begin(), addresses.end(), [&](const AddressField &address) {
        return isEqualAddress(address.field->text().split(u'.'), addressValue(saved, address.key));
    });
}

void DWTEthernetView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTEthernetView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

void DWTEthernetView::showConnectResult(bool online) {
    textField_EthernetConnection->setText(
        localized(online ? QStringLiteral("DWT_Localize_Ethernet_Text_Connection_Online")
                         : QStringLiteral("DWT_Localize_Ethernet_Text_Connection_Offline")));
}

void DWTEthernetView::settingConnectButtonEnable(bool enabled) {
    button_EthernetConnect->setEnabled(enabled);
}

QStringList DWTEthernetView::getipAddressArray() const {
    return textField_EthernetIpAddress->text().split(u'.');
}

bool DWTEthernetView::textShouldBeginEditing(TextField *control) {
    for (const AddressField &address : addressFields())
        if (address.field == control) *address.input = true;
    settingConnectButtonEnable(false);
    return true;
}

bool DWTEthernetView::textShouldEndEditing(TextField *control) {
    for (const AddressField &address : addressFields())
        if (address.field == control) *address.input = true;
    if (control == textField_EthernetIpAddress) itemInputCheckEthernetIpAddress();
    if (control == textField_EthernetSubnetMask) itemInputCheckEthernetSubnetMask();
    if (control == textField_EthernetDefaultGateway) itemInputCheckEthernetGateway();
    sendNotificationSendOK();
    return true;
}

void DWTEthernetView::controlTextDidChange(TextField *control) {
    checkIPtextField(control);
    postSendState(itemCheckDifferentToDataManager());
}

bool DWTEthernetView::ETV_Init() {
    SetViewKey(DWT_View_Key_Ethernet);
    mutableDictionary_ViewSettings.clear();
    view_Ethernet = new QWidget;
    view_Base = view_Ethernet;
    setupUi(view_Ethernet);
    for (const AddressField &address : addressFields()) address.field->setDelegate(this);
    connect(radioButton_EthernetIPAddressSetting, &RadioGroup::selected, this,
            &DWTEthernetView::select_EthernetAddressSetup);
    return true;
}

void DWTEthernetView::ETV_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    if (!view_Ethernet) return;
    for (const AddressField &address : addressFields()) address.field->setDelegate(nullptr);
}

// In automatic setup the change data returns to the configured addresses; the fields keep what was
// typed.
void DWTEthernetView::select_EthernetAddressSetup() {
    // First, since a field that is disabled while it has the focus stores what was typed.
    selectAddressSettingInput();
    const CategoryDictionary saved = savedCategory();
    const int setting = radioButton_EthernetIPAddressSetting->selectedTag();
    CategoryDictionary &settings = mutableDictionary_ViewSettings;
    settings.insert(DWT_SaveData_Ethernet_IPAddressSetting, setting);
    for (const AddressField &address : addressFields()) {
        if (setting == manual)
            settings.insert(address.key, address.field->text().split(u'.'));
        else if (saved.contains(address.key))
            settings.insert(address.key, saved.value(address.key));
        else
            settings.remove(address.key);
    }
    handOver(settings);
    sendNotificationSendOK();
}

void DWTEthernetView::selectAddressSettingInput() {
    const bool usable = radioButton_EthernetIPAddressSetting->selectedTag() != automatic;
    for (const AddressField &address : addressFields()) address.field->setEnabled(usable);
}

QString DWTEthernetView::addressNumberToString(const QStringList &address) const {
    if (address.size() != 4) return QStringLiteral("0.0.0.0");
    QStringList numbers;
    for (const QString &part : address) numbers << QString::number(integerOf(part));
    return numbers.join(u'.');
}

bool DWTEthernetView::itemInputCheckEthernetIpAddress() {
    return store(DWT_SaveData_Ethernet_IPAddress, textField_EthernetIpAddress);
}

bool DWTEthernetView::itemInputCheckEthernetSubnetMask() {
    return store(DWT_SaveData_Ethernet_Subnetmask, textField_EthernetSubnetMask);
}

bool DWTEthernetView::itemInputCheckEthernetGateway() {
    return store(DWT_SaveData_Ethernet_Gateway, textField_EthernetDefaultGateway);
}

bool DWTEthernetView::store(const QString &key, const TextField *field) {
    mutableDictionary_ViewSettings.insert(key, field->text().split(u'.'));
    handOver(mutableDictionary_ViewSettings);
    return true;
}

std::vector<DWTEthernetView::AddressField> DWTEthernetView::addressFields() {
    return {{textField_EthernetIpAddress, &bool_EthernetIPAddressInput,
             DWT_SaveData_Ethernet_IPAddress, DWT_SaveData_Connect_IPAddress, true,
             QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_IpAddress"),
             QStringLiteral("DWT_Localize_Alert_InfoText_IpAddress_InputErr")},
            {textField_EthernetSubnetMask, &bool_EthernetSubnetMaskInput,
             DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Connect_Subnetmask, false,
             QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_SubnetMask"),
             QStringLiteral("DWT_Localize_Alert_InfoText_Subnetmask_InputErr")},
            {textField_EthernetDefaultGateway, &bool_EthernetGatewayInput,
             DWT_SaveData_Ethernet_Gateway, DWT_SaveData_Connect_Gateway, false,
             QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_Gateway"),
             QStringLiteral("DWT_Localize_Alert_InfoText_Router_InputErr")}};
}

// The saved category with the setup that is chosen now (a setting that no choice stands for stays);
// in automatic setup the configured addresses stay.
CategoryDictionary DWTEthernetView::shownCategory() {
    CategoryDictionary category = savedCategory();
    const int setting = radioButton_EthernetIPAddressSetting->selectedTag();
    if (setting >= 0) category.insert(DWT_SaveData_Ethernet_IPAddressSetting, setting);
    if (setting == automatic) return category;
    for (const AddressField &address : addressFields())
        category.insert(address.key, address.field->text().split(u'.'));
    return category;
}
