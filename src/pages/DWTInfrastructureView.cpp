#include "pages/DWTInfrastructureView.h"

#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

bool DWTInfrastructureView::ISV_Init() {
    SetViewKey(DWT_View_Key_Infrastructure);
    setupUi(view_Base);
    addShown(textField_InfrastructureWirelessLanMode, DWT_SaveData_Infrastructure_WirelessMode);
    addAddressFields();
    addSecurityFields();
    using Page = DWTInfrastructureView;
    QObject::connect(radioButton_InfrastructureIPAddressSetting, &RadioGroup::selected, this,
                     &Page::select_InfrastructureAddressSetup);
    QObject::connect(popupbutton_InfrastructureAuthentic, &QComboBox::activated, this,
                     &Page::select_InfrastructureAuthentic);
    QObject::connect(popupbutton_InfrastructureEncryption, &QComboBox::activated, this,
                     &Page::select_InfrastructureEncryption);
    QObject::connect(popupbutton_InfrastructureSelectWEPKey, &QComboBox::activated, this,
                     &Page::select_InfrastructureSelectWEPKey);
    QObject::connect(button_InfrastructureSelectSSID, &QPushButton::clicked, this,
                     &Page::selectSSIDRequested);
    QObject::connect(button_InfrastructureWPSFunction, &QPushButton::clicked, this,
                     &Page::push_InfrastructureWPSFunction);
    return true;
}

void DWTInfrastructureView::ISV_Dealloc() {}

void DWTInfrastructureView::addAddressFields() {
    addField(radioButton_InfrastructureIPAddressSetting,
             DWT_SaveData_Infrastructure_IPAddressSetting);
    addAddress(textField_InfrastructureIpAddress, DWT_SaveData_Infrastructure_IPAddress,
               DWT_SaveData_Connect_IPAddress, nullptr,
               [this] { return itemInputCheckInfrastructureIpAddress(); });
    addAddress(textField_InfrastructureSubnetMask, DWT_SaveData_Infrastructure_Subnetmask,
               DWT_SaveData_Connect_Subnetmask, nullptr,
               [this] { return itemInputCheckInfrastructureSubnetMask(); });
    addAddress(textField_InfrastructureDefaultGateway, DWT_SaveData_Infrastructure_Gateway,
               DWT_SaveData_Connect_Gateway, nullptr,
               [this] { return itemInputCheckInfrastructureGateway(); });
    setControls({radioButton_InfrastructureIPAddressSetting, textField_InfrastructureIpAddress,
                 textField_InfrastructureConnection, button_InfrastructureConnect,
                 textField_InfrastructureWhyNot,
                 "DWT_Localize_Infrastructure_Text_Connection_Online",
                 "DWT_Localize_Infrastructure_Text_Connection_Offline"});
}

void DWTInfrastructureView::addSecurityFields() {
    addField(textField_InfrastructureSSID, DWT_SaveData_Infrastructure_SSID,
             &bool_InfrastructureSSIDInput, [this] { return itemInputCheckInfrastructureSSID(); });
    addField(popupbutton_InfrastructureAuthentic, DWT_SaveData_Infrastructure_Authentic);
    addField(popupbutton_InfrastructureEncryption, DWT_SaveData_Infrastructure_Encryption);
    addField(textField_InfrastructurePSK, DWT_SaveData_Infrastructure_PSK,
             &bool_InfrastructurePSKInput, [this] { return itemInputCheckInfrastructurePSK(); });
    addField(textField_InfrastructureWEPKey, DWT_SaveData_Infrastructure_WEPKey,
             &bool_InfrastructureWEPKeyInput,
             [this] { return itemInputCheckInfrastructureWEPKey(); });
    addField(popupbutton_InfrastructureSelectWEPKey, DWT_SaveData_Infrastructure_WEPKeyIndex);
}

void DWTInfrastructureView::initializeUI() {
    InterfaceView::initializeUI();
    dictionary_itemData = PropertyList::dictionary(u"InfrastructureItemData"_s, u"plist"_s);
    const auto items = [this](const char *key) {
        return dictionary_itemData.value(QLatin1String(key)).toStringList();
    };
    array_popUpButton_Authentic = items("DWT_Item_Key_Infrastructure_Authentic");
    array_popUpButton_Encryption = items("DWT_Item_Key_Infrastructure_Encryption");
    array_popUpButton_SelectWEPKey = items("DWT_Item_Key_Infrastructure_WEPSelect");
    offer(popupbutton_InfrastructureAuthentic, array_popUpButton_Authentic);
    initializeEncryption();
    offer(popupbutton_InfrastructureSelectWEPKey, array_popUpButton_SelectWEPKey, 1);
    // Room for the choice with most fields, so that nothing moves with the choice.
    showKeyFields(DWT_SaveData_Infrastructure_WEPKey);
    box_Security->setMinimumHeight(box_Security->sizeHint().height());
}

// Codes are selected while all encryptions are offered. A network from the list is forgotten.
void DWTInfrastructureView::showDataManager() {
    forgetNetwork();
    initializeEncryption();
    InterfaceView::showDataManager();
    adjustSecurity();
}

void DWTInfrastructureView::forgetNetwork() {
    mutableDictionary_selectSSID.clear();
    bool_SSIDfromSelectSSID = false;
    m_securityUnknown = false;
    sayKeyOf({});
}

QList<const QWidget *> DWTInfrastructureView::putBackWith(const QWidget *control) const {
    QList<const QWidget *> security{popupbutton_InfrastructureAuthentic,
                                    popupbutton_InfrastructureEncryption};
    QList<const QWidget *> network{textField_InfrastructureSSID, security[0], security[1]};
    if (bool_SSIDfromSelectSSID && network.contains(control)) return network;
    if (security.contains(control)) return security;
    return {control};
}

// Codes are selected while all encryptions are offered.
void DWTInfrastructureView::putBack(const Field &field) {
    const QList<const QWidget *> together = putBackWith(field.control);
    if (together.size() == 1) return InterfaceView::putBack(field);
    forgetNetwork();
    mutableDictionary_ViewSettings.insert(DWT_SaveData_Infrastructure_SSIDList_SSID, QString());
    initializeEncryption();
    for (const QWidget *control : together) restore(*fieldOf(control));
    adjustSecurity();
    InterfaceView::putBack(field);
}

// The printer reports no keys.
void DWTInfrastructureView::fill(const Field &field) {
    if (field.control == popupbutton_InfrastructureSelectWEPKey)
        popupbutton_InfrastructureSelectWEPKey->setCurrentIndex(0);
    else if (isText(field))
        field.showText(readableText(textValue(mutableDictionary_ViewSettings, field.key())));
    else
        InterfaceView::fill(field);
}

void DWTInfrastructureView::enableAllItems(bool enabled) {
    InterfaceView::enableAllItems(enabled);
    button_InfrastructureSelectSSID->setEnabled(enabled);
    if (enabled) adjustSecurity();
}

// A name from the list needs no check: it may hold characters that cannot be typed.
bool DWTInfrastructureView::passes(const Field &field) const {
    if (field.control == textField_InfrastructureSSID && bool_SSIDfromSelectSSID) return true;
    if (field.control == textField_InfrastructureWEPKey)
        return itemInputCheckWEPKey(textField_InfrastructureWEPKey, bool_InfrastructureWEPKeyInput);
    return InterfaceView::passes(field);
}

void DWTInfrastructureView::markInput(const Field &field, bool ended) {
    if (field.control == textField_InfrastructureSSID) {
        if (bool_SSIDfromSelectSSID) return;
    } else if (isText(field) && ended && field.line()->text().isEmpty()) {
        return;  // a key field that was only looked at
    }
    InterfaceView::markInput(field, ended);
}

bool DWTInfrastructureView::textShouldEndEditing(TextField *control) {
    if (control != textField_InfrastructureSSID || !bool_SSIDfromSelectSSID)
        return InterfaceView::textShouldEndEditing(control);
    sendNotificationSendOK();
    return true;
}

// A typed name counts from its first change on.
void DWTInfrastructureView::controlTextDidChange(TextField *control) {
    if (control == textField_InfrastructureSSID && bool_SSIDfromSelectSSID) {
        bool_SSIDfromSelectSSID = false;
        m_securityUnknown = false;
        sayKeyOf({});
        mutableDictionary_ViewSettings.insert(DWT_SaveData_Infrastructure_SSIDList_SSID, QString());
    }
    InterfaceView::controlTextDidChange(control);
}

CategoryDictionary DWTInfrastructureView::shownCategory() const {
    CategoryDictionary category = InterfaceView::shownCategory();
    const QString &key = DWT_SaveData_Infrastructure_SSIDList_SSID;
    if (bool_SSIDfromSelectSSID)
        category.insert(key, bytesValue(mutableDictionary_selectSSID, DWT_SSIDList_SSID));
    else if (category.contains(key))
        category.insert(key, QString());
    return category;
}

void DWTInfrastructureView::showSSIDFromSelectSSID(const SSIDEntry &network) {
    const QMap<int, int> authentications{{ListAuthentication::Open, Authentication::Open},
                                         {ListAuthentication::WPA, Authentication::WPA},
                                         {ListAuthentication::WPA2, Authentication::WPA2},
                                         {ListAuthentication::WPAAndWPA2, Authentication::WPA2}};
    const QMap<int, int> encryptions{{ListEncryption::None, Encryption::None},
                                     {ListEncryption::WEP, Encryption::WEP},
                                     {ListEncryption::TKIP, Encryption::TKIP},
                                     {ListEncryption::AES, Encryption::AES},
                                     {ListEncryption::TKIPAndAES, Encryption::AES}};
    const int listedAuthentic = integerValue(network, DWT_SSIDList_Authentic);
    const int listedEncryption = integerValue(network, DWT_SSIDList_Encryption);
    m_securityUnknown =
        !authentications.contains(listedAuthentic) || !encryptions.contains(listedEncryption);
    const int authentic = authentications.value(listedAuthentic, Authentication::Open);
    const int encryption = encryptions.value(listedEncryption, Encryption::None);
    mutableDictionary_selectSSID = network;
    mutableDictionary_selectSSID.insert(DWT_SSIDList_Authentic, authentic);
    mutableDictionary_selectSSID.insert(DWT_SSIDList_Encryption, encryption);
    textField_InfrastructureSSID->setText(
        readableText(textValue(network, DWT_SSIDList_SSID_String)));
    textField_InfrastructureSSID->setCursorPosition(0);  // a long name shows its beginning
    initializeEncryption();
    CategoryDictionary &settings = mutableDictionary_ViewSettings;
    settings.insert(DWT_SaveData_Infrastructure_Authentic, authentic);
    settings.insert(DWT_SaveData_Infrastructure_Encryption, encryption);
    settings.insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                    bytesValue(network, DWT_SSIDList_SSID));
    InterfaceView::fill(*fieldOf(popupbutton_InfrastructureAuthentic));
    InterfaceView::fill(*fieldOf(popupbutton_InfrastructureEncryption));
    bool_SSIDfromSelectSSID = true;
    handOver(settings);
    selectAuthenticCodeInput();
    sayKeyOf(textField_InfrastructureSSID->text());
    forgetConnectResult();
    followSavedData();
}

QList<SendWarning> DWTInfrastructureView::ownWarnings() const {
    if (!m_securityUnknown) return {};
    return {{SendWarning::SecurityUnknown, viewKey(), textField_InfrastructureSSID->text(),
             DWT_SaveData_Infrastructure_Authentic}};
}

void DWTInfrastructureView::focusNextEntry() {
    if (m_securityUnknown)
        return popupbutton_InfrastructureAuthentic->setFocus(Qt::OtherFocusReason);
    for (TextField *key : std::initializer_list<TextField *>{textField_InfrastructurePSK,
                                                             textField_InfrastructureWEPKey})
        if (key->isEnabled()) key->setFocus(Qt::OtherFocusReason);
}

void DWTInfrastructureView::sayKeyOf(const QString &network) {
    const QString said = network.isEmpty() ? localized("DWT_Localize_Key_Unchanged")
                                           : localized("DWT_Localize_Key_OfNetwork").arg(network);
    textField_InfrastructurePSK->setPlaceholderText(said);
    textField_InfrastructureWEPKey->setPlaceholderText(said);
}

void DWTInfrastructureView::clearEncryptionKey(bool) {
    textField_InfrastructurePSK->forget();
    textField_InfrastructureWEPKey->forget();
    sayKeyOf({});
    popupbutton_InfrastructureSelectWEPKey->setCurrentIndex(0);
    // Enabled, all three follow the encryption.
    const bool usable = popupbutton_InfrastructureEncryption->isEnabledTo(view_Base->window());
    for (QWidget *control : std::initializer_list<QWidget *>{popupbutton_InfrastructureSelectWEPKey,
                                                             textField_InfrastructurePSK,
                                                             textField_InfrastructureWEPKey})
        control->setEnabled(usable);
    if (usable) selectEncryptionCodeInput();
    bool_InfrastructurePSKInput = false;
    bool_InfrastructureWEPKeyInput = false;
    const CategoryDictionary saved = savedCategory();
    for (const QString &key : {DWT_SaveData_Infrastructure_PSK, DWT_SaveData_Infrastructure_WEPKey,
                               DWT_SaveData_Infrastructure_WEPKeyIndex}) {
        mutableDictionary_ViewSettings.remove(key);
        if (saved.contains(key)) mutableDictionary_ViewSettings.insert(key, saved.value(key));
    }
    handOver(shownCategory());
}

void DWTInfrastructureView::select_InfrastructureAuthentic() {
    forgetConnectResult();
    m_securityUnknown = false;
    storeChoice(popupbutton_InfrastructureAuthentic);
    if (popupbutton_InfrastructureAuthentic->currentData() !=
        integerValue(mutableDictionary_selectSSID, DWT_SSIDList_Authentic))
        bool_SSIDfromSelectSSID = false;
    selectAuthenticCodeInput();
}

void DWTInfrastructureView::select_InfrastructureEncryption() {
    forgetConnectResult();
    m_securityUnknown = false;
    storeChoice(popupbutton_InfrastructureEncryption);
    if (itemInputCheckInfrastructureEncryption() !=
        integerValue(mutableDictionary_selectSSID, DWT_SSIDList_Encryption))
        bool_SSIDfromSelectSSID = false;
    selectEncryptionCodeInput();
}

void DWTInfrastructureView::select_InfrastructureSelectWEPKey() {
    if (popupbutton_InfrastructureSelectWEPKey->isEnabled())
        storeChoice(popupbutton_InfrastructureSelectWEPKey);
}

// If the printer reported only one of the two, both stay: a corrected pair would be sent.
void DWTInfrastructureView::adjustSecurity() {
    const auto isReported = [this](const QString &key) {
        return !ndm_Object || ndm_Object->isReported(key);
    };
    const bool authentic = isReported(DWT_SaveData_Infrastructure_Authentic);
    if (authentic == isReported(DWT_SaveData_Infrastructure_Encryption))
        selectAuthenticCodeInput();
    else
        selectEncryptionCodeInput();
}

void DWTInfrastructureView::selectAuthenticCodeInput() {
    const QVariant authentic = popupbutton_InfrastructureAuthentic->currentData();
    if (authentic.isValid())
        offerEncryptions(Rules::encryptionsOf(authentic.toInt()));
    else
        popupbutton_InfrastructureEncryption->clear();
    selectEncryptionCodeInput();
}

// A chosen weaker encryption stays; any other becomes the preferred one, and its code is stored.
void DWTInfrastructureView::offerEncryptions(Rules::Encryptions offered) {
    const auto [first, preferred] = offered;
    QComboBox *const popup = popupbutton_InfrastructureEncryption;
    const QVariant chosen = popup->currentData();
    offer(
        popup,
        {array_popUpButton_Encryption.value(first), array_popUpButton_Encryption.value(preferred)},
        first);
    if (chosen == first) return;
    popup->setCurrentIndex(1);
    storeChoice(popup);
}

void DWTInfrastructureView::selectEncryptionCodeInput() {
    if (popupbutton_InfrastructureEncryption->currentIndex() < 0) return;
    const QString key = networkKeyOf(itemInputCheckInfrastructureEncryption());
    textField_InfrastructurePSK->setEnabled(key == DWT_SaveData_Infrastructure_PSK);
    textField_InfrastructureWEPKey->setEnabled(key == DWT_SaveData_Infrastructure_WEPKey);
    popupbutton_InfrastructureSelectWEPKey->setEnabled(key == DWT_SaveData_Infrastructure_WEPKey);
    showKeyFields(key);
}

void DWTInfrastructureView::showKeyFields(const QString &key) {
    const bool isWEP = key == DWT_SaveData_Infrastructure_WEPKey;
    showRow(textField_InfrastructurePSK, key == DWT_SaveData_Infrastructure_PSK);
    showRow(textField_InfrastructureWEPKey, isWEP);
    showRow(popupbutton_InfrastructureSelectWEPKey, isWEP);
}

void DWTInfrastructureView::storeChoice(const QComboBox *popup) {
    store(popup);
    sendNotificationSendOK();
}
