#pragma once

#include "pages/AddressSetup.h"
#include "pages/DWTBaseView.h"
#include "settings/ItemCodec.h"
#include "ui_InfrastructurePage.h"

// How the printer joins an existing wireless network: its address, and the network's security. A
// code that the printer reports beyond the end of a list of items shows an empty text, and is kept.
class DWTInfrastructureView : public DWTBaseView, private Ui::InfrastructurePage {
    Q_OBJECT
  public:
    ~DWTInfrastructureView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemInputCheck() override;
    bool itemConnectChangeCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    // Shows whether a printer answered at the address that the window tested.
    void showConnectResult(bool online);
    void settingConnectButtonEnable(bool enabled);
    // The typed address, split at its dots.
    QStringList getipAddressArray() const;
    // Takes a network over that the user picked in the list of those that the printer sees.
    void showSSIDFromSelectSSID(const SSIDEntry &network);
    // Empties the key fields. The argument is not used.
    void clearEncryptionKey(bool);

    bool textShouldBeginEditing(TextField *control) override;
    bool textShouldEndEditing(TextField *control) override;
    // Filters an address field, and posts whether the page differs.
    void controlTextDidChange(TextField *control) override;

  Q_SIGNALS:
    // The user asks for a test of the printer's address, the list of networks, the WPS guide.
    void connectRequested();
    void selectSSIDRequested();
    void wpsGuideRequested();

  private:
    bool ISV_Init();
    void ISV_Dealloc();
    // Listens to the text changes of every field.
    void notificationManager();
    void setTexts();

    // Actions of the controls.
    void select_InfrastructureAddressSetup();
    void select_InfrastructureAuthentic();
    void select_InfrastructureEncryption();
    void select_InfrastructureSelectWEPKey();
    void push_InfrastructureWPSFunction();

    // Address fields are usable in manual setup only.
    void selectAddressSettingInput();
    // Offers all four encryptions.
    void initializeEncryption();
    // Offers the encryptions that go with the chosen authentication, and changes one that does not.
    void selectAuthenticCodeInput();
    // Enables the key fields that the chosen encryption uses.
    void selectEncryptionCodeInput();
    void offerEncryptions(int first, int preferred);
    void storeNumber(const QString &key, int value);
    // The code of the chosen encryption; 0 when none is chosen.
    int itemInputCheckInfrastructureEncryption() const;
    // A WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits.
    bool itemInputCheckWEPKey(const QLineEdit *field, bool input) const;
    bool checkSSID(Alert &alert);
    bool checkWEPKey(Alert &alert);

    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckInfrastructureSSID();
    bool itemInputCheckInfrastructurePSK();
    bool itemInputCheckInfrastructureWEPKey();
    bool itemInputCheckInfrastructureIpAddress();
    bool itemInputCheckInfrastructureSubnetMask();
    bool itemInputCheckInfrastructureGateway();
    bool store(const QString &key, const SettingValue &value);

    QString selectedListSSID() const;
    // Whether a network was taken over from the list, and this is its name.
    bool isListSSID(const QString &text) const;
    void showSSID();
    CheckedField ssidField();
    CheckedField pskField();
    QList<TextField *> textFields() const;
    CategoryDictionary shownCategory() const;

    QPointer<QWidget> view_Infrastructure;
    QVariantMap dictionary_itemData;
    QStringList array_textField_WirelessMode;
    QStringList array_popUpButton_Authentic;
    QStringList array_popUpButton_Encryption;
    QStringList array_popUpButton_SelectWEPKey;
    CategoryDictionary mutableDictionary_ViewSettings;
    SSIDEntry mutableDictionary_selectSSID;  // empty until one is taken over
    bool bool_InfrastructureSSIDInput = false;
    bool bool_InfrastructurePSKInput = false;
    bool bool_InfrastructureWEPKeyInput = false;
    // SSID and security come from a network of the list, unchanged.
    bool bool_SSIDfromSelectSSID = false;
    AddressSetup m_address;
    NotificationCenter::Observer m_textChanges;
};
