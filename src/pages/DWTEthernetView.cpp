#include "pages/DWTEthernetView.h"

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

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
    showAsDigits(textField_EthernetMACAddress);
    m_address.fitWidths();
    bool_EthernetIPAddressInput = false;
    bool_EthernetSubnetMaskInput = false;
    bool_EthernetGatewayInput = false;
}

void DWTEthernetView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    const CategoryDictionary &saved = mutableDictionary_ViewSettings;
    if (saved.contains(DWT_SaveData_Ethernet_MACAddress))
        textField_EthernetMACAddress->setText(textValue(saved, DWT_SaveData_Ethernet_MACAddress));
    m_address.show(saved);
    bool_EthernetIPAddressInput = true;
    bool_EthernetSubnetMaskInput = true;
    bool_EthernetGatewayInput = true;
}

void DWTEthernetView::enableAllItems(bool enabled) {
    m_address.enable(enabled);
}

bool DWTEthernetView::itemInputCheck() {
    Alert alert(Alert::Style::Critical);
    return m_address.check(*this, alert);
}

bool DWTEthernetView::itemConnectChangeCheck() {
    return m_address.isUnchanged(*this, savedCategory());
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
    return AddressSetup::partsOf(textField_EthernetIpAddress);
}

bool DWTEthernetView::textShouldBeginEditing(TextField *control) {
    markInput(control);
    settingConnectButtonEnable(false);
    return true;
}

bool DWTEthernetView::textShouldEndEditing(TextField *control) {
    markInput(control);
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
    m_address =
        AddressSetup(radioButton_EthernetIPAddressSetting, DWT_SaveData_Ethernet_IPAddressSetting,
                     {{textField_EthernetIpAddress, DWT_SaveData_Ethernet_IPAddress,
                       DWT_SaveData_Connect_IPAddress, true,
                       QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_IpAddress"),
                       QStringLiteral("DWT_Localize_Alert_InfoText_IpAddress_InputErr")},
                      {textField_EthernetSubnetMask, DWT_SaveData_Ethernet_Subnetmask,
                       DWT_SaveData_Connect_Subnetmask, false,
                       QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_SubnetMask"),
                       QStringLiteral("DWT_Localize_Alert_InfoText_Subnetmask_InputErr")},
                      {textField_EthernetDefaultGateway, DWT_SaveData_Ethernet_Gateway,
                       DWT_SaveData_Connect_Gateway, false,
                       QStringLiteral("DWT_Localize_Alert_MessageText_Ethernet_Gateway"),
                       QStringLiteral("DWT_Localize_Alert_InfoText_Router_InputErr")}});
    setFieldsDelegate(this);
    connect(button_EthernetConnect, &QPushButton::clicked, this,
            &DWTEthernetView::connectRequested);
    connect(radioButton_EthernetIPAddressSetting, &RadioGroup::selected, this,
            &DWTEthernetView::select_EthernetAddressSetup);
    return true;
}

void DWTEthernetView::ETV_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    if (view_Ethernet) setFieldsDelegate(nullptr);
}

// In automatic setup the change data returns to the configured addresses; the fields keep what was
// typed.
void DWTEthernetView::select_EthernetAddressSetup() {
    // First, since a field that is disabled while it has the focus stores what was typed.
    selectAddressSettingInput();
    m_address.putPicked(mutableDictionary_ViewSettings, savedCategory());
    handOver(mutableDictionary_ViewSettings);
    sendNotificationSendOK();
}

void DWTEthernetView::selectAddressSettingInput() {
    m_address.enableFieldsByChoice();
}

bool DWTEthernetView::itemInputCheckEthernetIpAddress() {
    return store(textField_EthernetIpAddress);
}

bool DWTEthernetView::itemInputCheckEthernetSubnetMask() {
    return store(textField_EthernetSubnetMask);
}

bool DWTEthernetView::itemInputCheckEthernetGateway() {
    return store(textField_EthernetDefaultGateway);
}

bool DWTEthernetView::store(const TextField *field) {
    mutableDictionary_ViewSettings.insert(m_address.keyOf(field), AddressSetup::partsOf(field));
    handOver(mutableDictionary_ViewSettings);
    return true;
}

void DWTEthernetView::markInput(const TextField *field) {
    if (field == textField_EthernetIpAddress) bool_EthernetIPAddressInput = true;
    if (field == textField_EthernetSubnetMask) bool_EthernetSubnetMaskInput = true;
    if (field == textField_EthernetDefaultGateway) bool_EthernetGatewayInput = true;
}

void DWTEthernetView::setFieldsDelegate(TextFieldDelegate *delegate) {
    for (TextField *field : {textField_EthernetIpAddress, textField_EthernetSubnetMask,
                             textField_EthernetDefaultGateway})
        field->setDelegate(delegate);
}

CategoryDictionary DWTEthernetView::shownCategory() {
    CategoryDictionary category = savedCategory();
    m_address.putShown(category);
    return category;
}
