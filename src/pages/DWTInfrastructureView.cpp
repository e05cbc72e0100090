#include "pages/DWTInfrastructureView.h"

#include "pages/CharacterSets.h"
#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

DWTInfrastructureView::~DWTInfrastructureView() {
    ISV_Dealloc();
}

bool DWTInfrastructureView::init() {
    return DWTBaseView::init() && ISV_Init();
}

void DWTInfrastructureView::initializeUI() {
    mutableDictionary_selectSSID.clear();
    dictionary_itemData =
        PropertyList::dictionary(QStringLiteral("InfrastructureItemData"), QStringLiteral("plist"));
    const auto list = [this](const char *key) {
        return dictionary_itemData.value(QLatin1String(key)).toStringList();
    };
    array_textField_WirelessMode = list("DWT_Item_Key_Infrastructure_WirelessMode");
    array_popUpButton_Authentic = list("DWT_Item_Key_Infrastructure_Authentic");
    array_popUpButton_Encryption = list("DWT_Item_Key_Infrastructure_Encryption");
    array_popUpButton_SelectWEPKey = list("DWT_Item_Key_Infrastructure_WEPSelect");
    popupbutton_InfrastructureAuthentic->clear();
    for (const QString &key : array_popUpButton_Authentic)
        popupbutton_InfrastructureAuthentic->addItem(localized(key));
    initializeEncryption();
    popupbutton_InfrastructureSelectWEPKey->clear();
    for (const QString &key : array_popUpButton_SelectWEPKey)
        popupbutton_InfrastructureSelectWEPKey->addItem(localized(key));
    setTexts();
    showAsValue(textField_InfrastructureWirelessLanMode);
    m_address.fitWidths();
    bool_InfrastructureSSIDInput = false;
    bool_InfrastructurePSKInput = false;
    bool_InfrastructureWEPKeyInput = false;
    bool_SSIDfromSelectSSID = false;
    notificationManager();
}

void DWTInfrastructureView::setTexts() {
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    box_WirelessConnectionState->setTitle(
        text("DWT_Localize_Infrastructure_Box_WirelessConnection"));
    textField_Label_ConnectionState->setText(
        text("DWT_Localize_Infrastructure_Text_Connection_Label"));
    textField_InfrastructureConnection->setText(
        text("DWT_Localize_Infrastructure_Text_Connection_Nolook"));
    button_InfrastructureConnect->setText(text("DWT_Localize_Infrastructure_Button_Connect"));
    textField_Label_WirelessLANMode->setText(
        text("DWT_Localize_Infrastructure_Text_WirelessMode_Label"));
    textField_Label_FieldIntensity->setText(
        text("DWT_Localize_Infrastructure_Text_FieldIntensity_Label"));
    textField_Label_FieldIntensity->hide();  // the printer reports no intensity to stand beside it
    box_IPAddressSetup->setTitle(text("DWT_Localize_Infrastructure_Box_IPAddressSetup"));
    buttonCell_Auto->setText(text("DWT_Localize_Infrastructure_ButtonCell_Auto"));
    buttonCell_Manual->setText(text("DWT_Localize_Infrastructure_ButtonCell_Manual"));
    textField_Label_IPAddress->setText(text("DWT_Localize_Infrastructure_Text_IPAddress_Label"));
    textField_Label_SubnetMask->setText(text("DWT_Localize_Infrastructure_Text_SubnetMask_Label"));
    textField_Label_DefaultGateway->setText(text("DWT_Localize_Infrastructure_Text_Gateway_Label"));
    textField_InfrastructureIpAddress->setToolTip(
        text("DWT_ToolChip_Infrastructure_Text_IPAddress"));
    textField_InfrastructureSubnetMask->setToolTip(
        text("DWT_ToolChip_Infrastructure_Text_SubnetMask"));
    textField_InfrastructureDefaultGateway->setToolTip(
        text("DWT_ToolChip_Infrastructure_Text_Gateway"));
    box_Security->setTitle(text("DWT_Localize_Infrastructure_Box_Security"));
    textField_Label_AuthenticMethod->setText(
        text("DWT_Localize_Infrastructure_Text_Authentic_Label"));
    textField_Label_EncryptionMethod->setText(
        text("DWT_Localize_Infrastructure_Text_Encryption_Label"));
    button_InfrastructureWPSFunction->setText(
        text("DWT_Localize_Infrastructure_Button_WPSFunction"));
    textField_Label_SSID->setText(text("DWT_Localize_Infrastructure_Text_SSID_Label"));
    textField_InfrastructureSSID->setToolTip(text("DWT_ToolChip_Infrastructure_Text_SSID"));
    button_InfrastructureSelectSSID->setText(text("DWT_Localize_Infrastructure_Button_SelectSSID"));
    textField_Label_PSK->setText(text("DWT_Localize_Infrastructure_Text_PSK_Label"));
    textField_InfrastructurePSK->setToolTip(text("DWT_ToolChip_Infrastructure_Text_PSK"));
    textField_Label_WEPKey->setText(text("DWT_Localize_Infrastructure_Text_WEPKey_Label"));
    textField_InfrastructureWEPKey->setToolTip(text("DWT_ToolChip_Infrastructure_Text_WEPKey"));
    textField_Label_SelectWEPKey->setText(
        text("DWT_Localize_Infrastructure_Text_SelectWEPKey_Label"));
}

void DWTInfrastructureView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    const CategoryDictionary &saved = mutableDictionary_ViewSettings;
    const int mode = integerValue(saved, DWT_SaveData_Infrastructure_WirelessMode);
    textField_InfrastructureWirelessLanMode->setText(
        localized(array_textField_WirelessMode.value(mode)));
    m_address.show(saved);
    showSSID();
    const QString psk = textValue(saved, DWT_SaveData_Infrastructure_PSK);
    textField_InfrastructurePSK->setText(psk == QStringLiteral(" ") ? QString() : psk);
    initializeEncryption();
    const auto select = [&](QComboBox *popup, const QString &key) {
        const int code = integerValue(saved, key);
        popup->setCurrentIndex(code < popup->count() ? code : -1);
    };
    select(popupbutton_InfrastructureAuthentic, DWT_SaveData_Infrastructure_Authentic);
    select(popupbutton_InfrastructureEncryption, DWT_SaveData_Infrastructure_Encryption);
    popupbutton_InfrastructureSelectWEPKey->setCurrentIndex(0);
    selectAuthenticCodeInput();
}

void DWTInfrastructureView::showSSID() {
    const CategoryDictionary &saved = mutableDictionary_ViewSettings;
    if (!bytesValue(saved, DWT_SaveData_Infrastructure_SSIDList_SSID).isEmpty()) {
        textField_InfrastructureSSID->setText(selectedListSSID());
        bool_SSIDfromSelectSSID = true;
    } else if (saved.contains(DWT_SaveData_Infrastructure_SSID)) {
        textField_InfrastructureSSID->setText(textValue(saved, DWT_SaveData_Infrastructure_SSID));
    } else {
        return;
    }
    if (!textField_InfrastructureSSID->text().isEmpty()) bool_InfrastructureSSIDInput = true;
}

void DWTInfrastructureView::enableAllItems(bool enabled) {
    m_address.enable(enabled);
    for (QWidget *control : std::initializer_list<QWidget *>{
             textField_InfrastructureSSID, popupbutton_InfrastructureAuthentic,
             popupbutton_InfrastructureEncryption, popupbutton_InfrastructureSelectWEPKey,
             button_InfrastructureSelectSSID, textField_InfrastructurePSK,
             textField_InfrastructureWEPKey})
        control->setEnabled(enabled);
    if (enabled) selectAuthenticCodeInput();
}

bool DWTInfrastructureView::itemInputCheck() {
    Alert alert(Alert::Style::Warning);
    bool passed = m_address.check(*this, alert);
    passed &= checkSSID(alert);
    passed &= checkField(pskField(), alert);
    passed &= checkWEPKey(alert);
    return passed;
}

// A network that was taken over from the list, or that the printer has now, needs no check: its
// name may hold characters that cannot be typed here.
bool DWTInfrastructureView::checkSSID(Alert &alert) {
    const QString current = textValue(savedCategory(), DWT_SaveData_Infrastructure_SSID);
    if (bool_SSIDfromSelectSSID || textField_InfrastructureSSID->text() == current) return true;
    return checkField(ssidField(), alert);
}

bool DWTInfrastructureView::checkWEPKey(Alert &alert) {
    if (!textField_InfrastructureWEPKey->isEnabled() ||
        itemInputCheckWEPKey(textField_InfrastructureWEPKey, bool_InfrastructureWEPKeyInput))
        return true;
    showInputError(
        alert, localized(QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_WEPKey")),
        localized(QStringLiteral("DWT_Localize_Alert_InfoText_WEPKey_InputErr")));
    return false;
}

bool DWTInfrastructureView::itemInputCheckWEPKey(const QLineEdit *field, bool input) const {
    const auto length = int(field->text().size());
    if (length == 5 || length == 13)
        return itemInputCheckString(field, printableCharacters, length, length, true);
    if (length == 10 || length == 26)
        return itemInputCheckString(field, hexadecimalCharacters, length, length, true);
    return length == 0 && !input;
}

bool DWTInfrastructureView::itemConnectChangeCheck() {
    return m_address.isUnchanged(*this, savedCategory());
}

void DWTInfrastructureView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTInfrastructureView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

void DWTInfrastructureView::showConnectResult(bool online) {
    textField_InfrastructureConnection->setText(
        localized(online ? QStringLiteral("DWT_Localize_Infrastructure_Text_Connection_Online")
                         : QStringLiteral("DWT_Localize_Infrastructure_Text_Connection_Offline")));
}

void DWTInfrastructureView::settingConnectButtonEnable(bool enabled) {
    button_InfrastructureConnect->setEnabled(enabled);
}

QStringList DWTInfrastructureView::getipAddressArray() const {
    return AddressSetup::partsOf(textField_InfrastructureIpAddress);
}

void DWTInfrastructureView::showSSIDFromSelectSSID(const SSIDEntry &network) {
    // What the printer says of a network found, as the codes of its own settings.
    const QList<int> authentications{0, 2, 3, 3};
    const QList<int> encryptions{0, 1, 2, 3, 3};
    const int authentic = authentications.value(integerValue(network, DWT_SSIDList_Authentic), 0);
    const int encryption = encryptions.value(integerValue(network, DWT_SSIDList_Encryption), 0);
    mutableDictionary_selectSSID = network;
    mutableDictionary_selectSSID.insert(DWT_SSIDList_Authentic, authentic);
    mutableDictionary_selectSSID.insert(DWT_SSIDList_Encryption, encryption);
    textField_InfrastructureSSID->setText(selectedListSSID());
    popupbutton_InfrastructureAuthentic->setCurrentIndex(authentic);
    initializeEncryption();
    popupbutton_InfrastructureEncryption->setCurrentIndex(encryption);
    bool_SSIDfromSelectSSID = true;
    CategoryDictionary &settings = mutableDictionary_ViewSettings;
    settings.insert(DWT_SaveData_Infrastructure_Authentic,
                    popupbutton_InfrastructureAuthentic->currentIndex());
    settings.insert(DWT_SaveData_Infrastructure_Encryption,
                    popupbutton_InfrastructureEncryption->currentIndex());
    settings.insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                    bytesValue(network, DWT_SSIDList_SSID));
    handOver(settings);
    selectAuthenticCodeInput();
}

void DWTInfrastructureView::clearEncryptionKey(bool) {
    textField_InfrastructurePSK->clear();
    textField_InfrastructureWEPKey->clear();
    popupbutton_InfrastructureSelectWEPKey->setCurrentIndex(0);
    // Enabled, all three follow the encryption.
    const bool usable = popupbutton_InfrastructureEncryption->isEnabled();
    for (QWidget *control : std::initializer_list<QWidget *>{popupbutton_InfrastructureSelectWEPKey,
                                                             textField_InfrastructurePSK,
                                                             textField_InfrastructureWEPKey})
        control->setEnabled(usable);
    if (usable) selectEncryptionCodeInput();
    bool_InfrastructurePSKInput = false;
    bool_InfrastructureWEPKeyInput = false;
}

bool DWTInfrastructureView::textShouldBeginEditing(TextField *control) {
    if (control == textField_InfrastructureSSID && !isListSSID(control->text())) {
        bool_InfrastructureSSIDInput = true;
        bool_SSIDfromSelectSSID = false;
    }
    if (control == textField_InfrastructurePSK) bool_InfrastructurePSKInput = true;
    if (control == textField_InfrastructureWEPKey) bool_InfrastructureWEPKeyInput = true;
    settingConnectButtonEnable(false);
    return true;
}

bool DWTInfrastructureView::textShouldEndEditing(TextField *control) {
    if (control == textField_InfrastructureSSID && !isListSSID(control->text())) {
        bool_InfrastructureSSIDInput = true;
        bool_SSIDfromSelectSSID = false;
        itemInputCheckInfrastructureSSID();
    }
    if (control == textField_InfrastructurePSK) {
        if (!control->text().isEmpty()) bool_InfrastructurePSKInput = true;
        itemInputCheckInfrastructurePSK();
    }
    if (control == textField_InfrastructureWEPKey) {
        if (!control->text().isEmpty()) bool_InfrastructureWEPKeyInput = true;
        itemInputCheckInfrastructureWEPKey();
    }
    if (control == textField_InfrastructureIpAddress) itemInputCheckInfrastructureIpAddress();
    if (control == textField_InfrastructureSubnetMask) itemInputCheckInfrastructureSubnetMask();
    if (control == textField_InfrastructureDefaultGateway) itemInputCheckInfrastructureGateway();
    sendNotificationSendOK();
    return true;
}

void DWTInfrastructureView::controlTextDidChange(TextField *control) {
    if (!textFields().contains(control)) return;
    if (!m_address.keyOf(control).isEmpty()) checkIPtextField(control);
    postSendState(itemCheckDifferentToDataManager());
}

bool DWTInfrastructureView::ISV_Init() {
    SetViewKey(DWT_View_Key_Infrastructure);
    mutableDictionary_ViewSettings.clear();
    mutableDictionary_selectSSID.clear();
    view_Infrastructure = new QWidget;
    view_Base = view_Infrastructure;
    setupUi(view_Infrastructure);
    m_address = AddressSetup(
        radioButton_InfrastructureIPAddressSetting, DWT_SaveData_Infrastructure_IPAddressSetting,
        {{textField_InfrastructureIpAddress, DWT_SaveData_Infrastructure_IPAddress,
          DWT_SaveData_Connect_IPAddress, true,
          QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_IpAddress"),
          QStringLiteral("DWT_Localize_Alert_InfoText_IpAddress_InputErr")},
         {textField_InfrastructureSubnetMask, DWT_SaveData_Infrastructure_Subnetmask,
          DWT_SaveData_Connect_Subnetmask, false,
          QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_SubnetMask"),
          QStringLiteral("DWT_Localize_Alert_InfoText_Subnetmask_InputErr")},
         {textField_InfrastructureDefaultGateway, DWT_SaveData_Infrastructure_Gateway,
          DWT_SaveData_Connect_Gateway, false,
          QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_Gateway"),
          QStringLiteral("DWT_Localize_Alert_InfoText_Router_InputErr")}});
    for (TextField *field : textFields()) field->setDelegate(this);
    using Page = DWTInfrastructureView;
    connect(radioButton_InfrastructureIPAddressSetting, &RadioGroup::selected, this,
            &Page::select_InfrastructureAddressSetup);
    connect(popupbutton_InfrastructureAuthentic, &QComboBox::activated, this,
            &Page::select_InfrastructureAuthentic);
    connect(popupbutton_InfrastructureEncryption, &QComboBox::activated, this,
            &Page::select_InfrastructureEncryption);
    connect(popupbutton_InfrastructureSelectWEPKey, &QComboBox::activated, this,
            &Page::select_InfrastructureSelectWEPKey);
    connect(button_InfrastructureConnect, &QPushButton::clicked, this, &Page::connectRequested);
    connect(button_InfrastructureSelectSSID, &QPushButton::clicked, this,
            &Page::selectSSIDRequested);
    connect(button_InfrastructureWPSFunction, &QPushButton::clicked, this,
            &Page::push_InfrastructureWPSFunction);
    return true;
}

void DWTInfrastructureView::ISV_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    mutableDictionary_selectSSID.clear();
    if (!view_Infrastructure) return;
    for (TextField *field : textFields()) field->setDelegate(nullptr);
}

void DWTInfrastructureView::notificationManager() {
    m_textChanges = observeTextChanges();
}

// In automatic setup the change data returns to the configured addresses; the fields keep what was
// typed.
void DWTInfrastructureView::select_InfrastructureAddressSetup() {
    // First, since a field that is disabled while it has the focus stores what was typed.
    selectAddressSettingInput();
    m_address.putPicked(mutableDictionary_ViewSettings, savedCategory());
    handOver(mutableDictionary_ViewSettings);
    sendNotificationSendOK();
}

void DWTInfrastructureView::select_InfrastructureAuthentic() {
    const int chosen = popupbutton_InfrastructureAuthentic->currentIndex();
    storeNumber(DWT_SaveData_Infrastructure_Authentic, chosen);
    if (chosen != integerValue(mutableDictionary_selectSSID, DWT_SSIDList_Authentic))
        bool_SSIDfromSelectSSID = false;
    selectAuthenticCodeInput();
}

void DWTInfrastructureView::select_InfrastructureEncryption() {
    const int code = itemInputCheckInfrastructureEncryption();
    storeNumber(DWT_SaveData_Infrastructure_Encryption, code);
    if (code != integerValue(mutableDictionary_selectSSID, DWT_SSIDList_Encryption))
        bool_SSIDfromSelectSSID = false;
    selectEncryptionCodeInput();
}

void DWTInfrastructureView::select_InfrastructureSelectWEPKey() {
    if (!popupbutton_InfrastructureSelectWEPKey->isEnabled()) return;
    storeNumber(DWT_SaveData_Infrastructure_WEPKeyIndex,
                popupbutton_InfrastructureSelectWEPKey->currentIndex() + 1);
}

void DWTInfrastructureView::push_InfrastructureWPSFunction() {
    Q_EMIT wpsGuideRequested();
}

void DWTInfrastructureView::selectAddressSettingInput() {
    m_address.enableFieldsByChoice();
}

void DWTInfrastructureView::initializeEncryption() {
    popupbutton_InfrastructureEncryption->clear();
    for (const QString &key : array_popUpButton_Encryption)
        popupbutton_InfrastructureEncryption->addItem(localized(key));
}

void DWTInfrastructureView::selectAuthenticCodeInput() {
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    const QString authentic = popupbutton_InfrastructureAuthentic->currentText();
    if (authentic == text("DWT_Localize_Infrastructure_Popup_Authentic_Open") ||
        authentic == text("DWT_Localize_Infrastructure_Popup_Authentic_Shared"))
        offerEncryptions(0, 1);
    else if (authentic == text("DWT_Localize_Infrastructure_Popup_Authentic_WPA") ||
             authentic == text("DWT_Localize_Infrastructure_Popup_Authentic_WPA2"))
        offerEncryptions(2, 3);
    else
        popupbutton_InfrastructureEncryption->clear();
    selectEncryptionCodeInput();
}

// Offers the encryptions of these two codes. The first stays when it was chosen; anything else
// becomes the second, the better one.
void DWTInfrastructureView::offerEncryptions(int first, int second) {
    const QString chosen = popupbutton_InfrastructureEncryption->currentText();
    popupbutton_InfrastructureEncryption->clear();
    for (const int code : {first, second})
        popupbutton_InfrastructureEncryption->addItem(
            localized(array_popUpButton_Encryption.value(code)));
    if (chosen == popupbutton_InfrastructureEncryption->itemText(0)) return;
    popupbutton_InfrastructureEncryption->setCurrentIndex(1);
    storeNumber(DWT_SaveData_Infrastructure_Encryption, second);
}

void DWTInfrastructureView::selectEncryptionCodeInput() {
    if (popupbutton_InfrastructureEncryption->currentIndex() < 0) return;
    const int code = itemInputCheckInfrastructureEncryption();
    textField_InfrastructurePSK->setEnabled(code == 2 || code == 3);
    textField_InfrastructureWEPKey->setEnabled(code == 1);
    popupbutton_InfrastructureSelectWEPKey->setEnabled(code == 1);
}

void DWTInfrastructureView::storeNumber(const QString &key, int value) {
    store(key, value);
    sendNotificationSendOK();
}

int DWTInfrastructureView::itemInputCheckInfrastructureEncryption() const {
    const QString chosen = popupbutton_InfrastructureEncryption->currentText();
    const QString names[] = {
        localized(QStringLiteral("DWT_Localize_Infrastructure_Popup_Encryption_Nothing")),
        localized(QStringLiteral("DWT_Localize_Infrastructure_Popup_Encryption_WEP")),
        localized(QStringLiteral("DWT_Localize_Infrastructure_Popup_Encryption_TKIP")),
        localized(QStringLiteral("DWT_Localize_Infrastructure_Popup_Encryption_AES"))};
    const auto found = std::find(std::begin(names), std::end(names), chosen);
    return found == std::end(names) ? 0 : int(found - std::begin(names));
}

bool DWTInfrastructureView::itemInputCheckInfrastructureSSID() {
    return store(DWT_SaveData_Infrastructure_SSID, textField_InfrastructureSSID->text());
}

bool DWTInfrastructureView::itemInputCheckInfrastructurePSK() {
    return store(DWT_SaveData_Infrastructure_PSK, textField_InfrastructurePSK->text());
}

bool DWTInfrastructureView::itemInputCheckInfrastructureWEPKey() {
    return store(DWT_SaveData_Infrastructure_WEPKey, textField_InfrastructureWEPKey->text());
}

bool DWTInfrastructureView::itemInputCheckInfrastructureIpAddress() {
    return store(DWT_SaveData_Infrastructure_IPAddress,
                 AddressSetup::partsOf(textField_InfrastructureIpAddress));
}

bool DWTInfrastructureView::itemInputCheckInfrastructureSubnetMask() {
    return store(DWT_SaveData_Infrastructure_Subnetmask,
                 AddressSetup::partsOf(textField_InfrastructureSubnetMask));
}

bool DWTInfrastructureView::itemInputCheckInfrastructureGateway() {
    return store(DWT_SaveData_Infrastructure_Gateway,
                 AddressSetup::partsOf(textField_InfrastructureDefaultGateway));
}

bool DWTInfrastructureView::store(const QString &key, const SettingValue &value) {
    mutableDictionary_ViewSettings.insert(key, value);
    handOver(mutableDictionary_ViewSettings);
    return true;
}

// The name of the network taken over from the list; empty without one.
QString DWTInfrastructureView::selectedListSSID() const {
    return textValue(mutableDictionary_selectSSID, DWT_SSIDList_SSID_String);
}

bool DWTInfrastructureView::isListSSID(const QString &text) const {
    return !mutableDictionary_selectSSID.isEmpty() && text == selectedListSSID();
}

DWTBaseView::CheckedField DWTInfrastructureView::ssidField() {
    return {textField_InfrastructureSSID,
            &bool_InfrastructureSSIDInput,
            DWT_SaveData_Infrastructure_SSID,
            printableCharacters,
            1,
            32,
            QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_SSID"),
            QStringLiteral("DWT_Localize_Alert_InfoText_Infrastructure_SSID_InputErr")};
}

DWTBaseView::CheckedField DWTInfrastructureView::pskField() {
    return {textField_InfrastructurePSK,
            &bool_InfrastructurePSKInput,
            DWT_SaveData_Infrastructure_PSK,
            printableCharacters,
            8,
            63,
            QStringLiteral("DWT_Localize_Alert_MessageText_Infrastructure_PSK"),
            QStringLiteral("DWT_Localize_Alert_InfoText_PSK_InputErr")};
}

QList<TextField *> DWTInfrastructureView::textFields() const {
    return {textField_InfrastructureIpAddress,
            textField_InfrastructureSubnetMask,
            textField_InfrastructureDefaultGateway,
            textField_InfrastructureSSID,
            textField_InfrastructurePSK,
            textField_InfrastructureWEPKey};
}

// The saved category with what the page shows. Codes that no item stands for stay.
CategoryDictionary DWTInfrastructureView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    m_address.putShown(category);
    if (popupbutton_InfrastructureAuthentic->currentIndex() >= 0) {
        category.insert(DWT_SaveData_Infrastructure_Authentic,
                        popupbutton_InfrastructureAuthentic->currentIndex());
        category.insert(DWT_SaveData_Infrastructure_Encryption,
                        itemInputCheckInfrastructureEncryption());
    }
    category.insert(DWT_SaveData_Infrastructure_SSID, textField_InfrastructureSSID->text());
    if (bool_SSIDfromSelectSSID)
        category.insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                        bytesValue(mutableDictionary_selectSSID, DWT_SSIDList_SSID));
    category.insert(DWT_SaveData_Infrastructure_PSK, textField_InfrastructurePSK->text());
    category.insert(DWT_SaveData_Infrastructure_WEPKeyIndex,
                    popupbutton_InfrastructureSelectWEPKey->currentIndex() + 1);
    category.insert(DWT_SaveData_Infrastructure_WEPKey, textField_InfrastructureWEPKey->text());
    return category;
}
