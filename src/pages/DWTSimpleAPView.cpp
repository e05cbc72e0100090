#include "pages/DWTSimpleAPView.h"

#include "pages/AddressSetup.h"
#include "pages/CharacterSets.h"
#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

DWTSimpleAPView::~DWTSimpleAPView() {
    SAP_Dealloc();
}

bool DWTSimpleAPView::init() {
    return DWTBaseView::init() && SAP_Init();
}

void DWTSimpleAPView::initializeUI() {
    dictionary_itemData =
        PropertyList::dictionary(QStringLiteral("SimpleAPItemData"), QStringLiteral("plist"));
    const auto list = [this](const char *key) {
        return dictionary_itemData.value(QLatin1String(key)).toStringList();
    };
    array_textField_WirelessMode = list("DWT_Item_Key_SimpleAP_WirelessMode");
    array_textField_Authentic = list("DWT_Item_Key_SimpleAP_Authentic");
    array_textField_Encryption = list("DWT_Item_Key_SimpleAP_Encryption");
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    box_WirelessLANMode->setTitle(text("DWT_Localize_SimpleAP_Box_WirelessLANMode"));
    textField_Label_WirelessLANMode->setText(
        text("DWT_Localize_SimpleAP_Text_WirelessLANMode_Label"));
    box_DHCPSetup->setTitle(text("DWT_Localize_SimpleAP_Box_DHCPSetup"));
    textField_Label_DHCPServer->setText(text("DWT_Localize_SimpleAP_Text_DHCPServer_Label"));
    box_IPAddressSetup->setTitle(text("DWT_Localize_SimpleAP_Box_IPAddressSetup"));
    textField_Label_StartIpAddress->setText(
        text("DWT_Localize_SimpleAP_Text_StartIpAddress_Label"));
    textField_Label_IpAddress->setText(text("DWT_Localize_SimpleAP_Text_IpAddress_Label"));
    textField_Label_SubnetMask->setText(text("DWT_Localize_SimpleAP_Text_SubnetMask_Label"));
    box_Security->setTitle(text("DWT_Localize_SimpleAP_Box_Security"));
    textField_Label_Authentic->setText(text("DWT_Localize_SimpleAP_Text_Authentic_Label"));
    textField_Label_Encryption->setText(text("DWT_Localize_SimpleAP_Text_Encryption_Label"));
    textField_Label_SSID->setText(text("DWT_Localize_SimpleAP_Text_SSID_Label"));
    textField_Label_DIRECT->setText(text("DWT_Localize_SimpleAP_Text_DIRECT_Label"));
    textField_Label_PSK->setText(text("DWT_Localize_SimpleAP_Text_PSK_Label"));
    textField_SimpleAPSSID->setToolTip(text("DWT_ToolChip_SimpleAP_Text_SSID"));
    textField_SimpleAPPSK->setToolTip(text("DWT_ToolChip_SimpleAP_Text_PSK"));
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{
             textField_SimpleAPWirelessLanMode, textField_SimpleAPDHCPServer,
             textField_SimpleAPStartIpAddress, textField_SimpleAPIpAddress,
             textField_SimpleAPSubnetMask, textField_SimpleAPAuthentic,
             textField_SimpleAPEncryption})
        showAsValue(field);
    for (const CheckedField &field : checkedFields()) *field.input = false;
    notificationManager();
}

void DWTSimpleAPView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    const CategoryDictionary &saved = mutableDictionary_ViewSettings;
    const auto item = [&](const QStringList &list, const QString &key) {
        return localized(list.value(integerValue(saved, key)));
    };
    const auto address = [&](const QString &key) {
        return AddressSetup::addressNumberToString(addressValue(saved, key));
    };
    textField_SimpleAPWirelessLanMode->setText(
        item(array_textField_WirelessMode, DWT_SaveData_SimpleAP_WirelessMode));
    textField_SimpleAPDHCPServer->setText(
        localized(QStringLiteral("DWT_Localize_SimpleAP_Text_DHCP")));
    textField_SimpleAPStartIpAddress->setText(address(DWT_SaveData_SimpleAP_StartIPAddress));
    textField_SimpleAPIpAddress->setText(address(DWT_SaveData_SimpleAP_IPAddress));
    textField_SimpleAPSubnetMask->setText(address(DWT_SaveData_SimpleAP_Subnetmask));
    for (const CheckedField &field : checkedFields()) {
        const QString text = textValue(saved, field.key);
        if (text.isEmpty() || text == QStringLiteral(" ")) continue;
        field.field->setText(text);
        *field.input = true;
    }
    textField_SimpleAPAuthentic->setText(
        item(array_textField_Authentic, DWT_SaveData_SimpleAP_Authentic));
    textField_SimpleAPEncryption->setText(
        item(array_textField_Encryption, DWT_SaveData_SimpleAP_Encryption));
}

void DWTSimpleAPView::enableAllItems(bool enabled) {
    for (const CheckedField &field : checkedFields()) field.field->setEnabled(enabled);
}

bool DWTSimpleAPView::itemInputCheck() {
    Alert alert(Alert::Style::Warning);
    bool passed = true;
    for (const CheckedField &field : checkedFields()) passed &= checkField(field, alert);
    return passed;
}

void DWTSimpleAPView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTSimpleAPView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

bool DWTSimpleAPView::textShouldBeginEditing(TextField *control) {
    for (const CheckedField &field : checkedFields())
        if (field.field == control) *field.input = true;
    return true;
}

bool DWTSimpleAPView::textShouldEndEditing(TextField *control) {
    textShouldBeginEditing(control);
    if (control == textField_SimpleAPSSID) itemInputCheckSimpleAPSSID();
    if (control == textField_SimpleAPPSK) itemInputCheckSimpleAPPSK();
    sendNotificationSendOK();
    return true;
}

void DWTSimpleAPView::controlTextDidChange(TextField *control) {
    for (const CheckedField &field : checkedFields())
        if (field.field == control) postSendState(itemCheckDifferentToDataManager());
}

bool DWTSimpleAPView::SAP_Init() {
    SetViewKey(DWT_View_Key_SimpleAP);
    mutableDictionary_ViewSettings.clear();
    view_SimpleAP = new QWidget;
    view_Base = view_SimpleAP;
    setupUi(view_SimpleAP);
    for (const CheckedField &field : checkedFields()) field.field->setDelegate(this);
    return true;
}

void DWTSimpleAPView::SAP_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    if (!view_SimpleAP) return;
    for (const CheckedField &field : checkedFields()) field.field->setDelegate(nullptr);
}

void DWTSimpleAPView::notificationManager() {
    m_textChanges = observeTextChanges();
}

bool DWTSimpleAPView::itemInputCheckSimpleAPSSID() {
    return store(DWT_SaveData_SimpleAP_SSID, textField_SimpleAPSSID);
}

bool DWTSimpleAPView::itemInputCheckSimpleAPPSK() {
    return store(DWT_SaveData_SimpleAP_PSK, textField_SimpleAPPSK);
}

bool DWTSimpleAPView::store(const QString &key, const TextField *field) {
    mutableDictionary_ViewSettings.insert(key, field->text());
    handOver(mutableDictionary_ViewSettings);
    return true;
}

// The name is shorter than that of other networks, since the printer puts "DIRECT-" before it.
std::vector<DWTBaseView::CheckedField> DWTSimpleAPView::checkedFields() {
    return {
        {textField_SimpleAPSSID, &bool_SimpleAPSSIDInput, DWT_SaveData_SimpleAP_SSID,
         printableCharacters, 1, 25, QStringLiteral("DWT_Localize_Alert_MessageText_SimpleAP_SSID"),
         QStringLiteral("DWT_Localize_Alert_InfoText_SimpleAP_SSID_InputErr")},
        {textField_SimpleAPPSK, &bool_SimpleAPPSKInput, DWT_SaveData_SimpleAP_PSK,
         printableCharacters, 8, 63, QStringLiteral("DWT_Localize_Alert_MessageText_SimpleAP_PSK"),
         QStringLiteral("DWT_Localize_Alert_InfoText_PSK_InputErr")}};
}

// The saved category with what the fields hold now.
CategoryDictionary DWTSimpleAPView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    category.insert(DWT_SaveData_SimpleAP_SSID, textField_SimpleAPSSID->text());
    category.insert(DWT_SaveData_SimpleAP_PSK, textField_SimpleAPPSK->text());
    return category;
}
