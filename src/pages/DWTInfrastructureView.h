#pragma once

#include "pages/InterfaceView.h"
#include "ui_InfrastructurePage.h"

// How the printer joins a wireless network: address and security. A code beyond the end of a list
// of items shows an empty text, and is kept.
class DWTInfrastructureView : public InterfaceView, private Ui::InfrastructurePage {
    Q_OBJECT
    DWT_SETUP(DWTInfrastructureView, InterfaceView, ISV_Init, ISV_Dealloc)

  public:
    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;

    // Says above the settings when the printer's communication mode does not use them.
    void showIsUsed(bool used) { textField_InfrastructureNotUsed->setHidden(used); }

    // Takes a network over that the user picked in the list of those that the printer sees.
    void showSSIDFromSelectSSID(const SSIDEntry &network);
    // Gives the focus to what is to be entered next: the authentication while the network's is not
    // known, otherwise the key that the chosen encryption uses, if any.
    void focusNextEntry();
    // Empties the key fields. The argument is not used.
    void clearEncryptionKey(bool);

    QList<SendWarning> ownWarnings() const override;
    bool textShouldEndEditing(TextField *control) override;
    void controlTextDidChange(TextField *control) override;

  Q_SIGNALS:
    // The user asks for the list of networks, the WPS guide.
    void selectSSIDRequested();
    void wpsGuideRequested();

  protected:
    void fill(const Field &field) override;
    bool passes(const Field &field) const override;
    void markInput(const Field &field, bool ended) override;
    void putBack(const Field &field) override;
    CategoryDictionary shownCategory() const override;

  private:
    void addAddressFields();
    void addSecurityFields();

    // Actions of the controls.
    void select_InfrastructureAddressSetup() { chooseAddressSetup(); }
    void select_InfrastructureAuthentic();
    void select_InfrastructureEncryption();
    void select_InfrastructureSelectWEPKey();
    void push_InfrastructureWPSFunction() { Q_EMIT wpsGuideRequested(); }

    // Offers all four encryptions.
    void initializeEncryption() {
        offer(popupbutton_InfrastructureEncryption, array_popUpButton_Encryption);
    }
    // Whether a row is a text that is typed: the network's name, or a key.
    static bool isText(const Field &field) {
        return field.edited && field.setting->kind == Setting::Kind::Text;
    }
    // The rows that are put back with one: authentication and encryption together, and with the
    // name when all three are a network's of the list.
    QList<const QWidget *> putBackWith(const QWidget *control) const;
    // Ends what a network of the list has given.
    void forgetNetwork();
    // What filling and enabling do with the security that the printer reported.
    void adjustSecurity();
    // Offers the encryptions that go with the chosen authentication, and changes one that does not.
    void selectAuthenticCodeInput();
    // Enables the key fields that the chosen encryption uses, and shows no others.
    void selectEncryptionCodeInput();
    // Shows the fields of the key that the record holds under `key` alone.
    void showKeyFields(const QString &key);
    void offerEncryptions(Rules::Encryptions offered);
    // Says in the empty key fields whose key belongs there; without a network, "unchanged".
    void sayKeyOf(const QString &network);
    // Stores the choice of a pop-up, and posts the record's state.
    void storeChoice(const QComboBox *popup);
    // The code of the chosen encryption; 0 when none is chosen.
    int itemInputCheckInfrastructureEncryption() const {
        return popupbutton_InfrastructureEncryption->currentData().toInt();
    }
    // A WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits.
    bool itemInputCheckWEPKey(const QLineEdit *field, bool input) const {
        return Rules::isWEPKey(field->text(), input);
    }

    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckInfrastructureSSID() { return store(textField_InfrastructureSSID); }
    bool itemInputCheckInfrastructurePSK() { return store(textField_InfrastructurePSK); }
    bool itemInputCheckInfrastructureWEPKey() { return store(textField_InfrastructureWEPKey); }
    bool itemInputCheckInfrastructureIpAddress() {
        return store(textField_InfrastructureIpAddress);
    }
    bool itemInputCheckInfrastructureSubnetMask() {
        return store(textField_InfrastructureSubnetMask);
    }
    bool itemInputCheckInfrastructureGateway() {
        return store(textField_InfrastructureDefaultGateway);
    }

    QVariantMap dictionary_itemData;
    QStringList array_popUpButton_Authentic;
    QStringList array_popUpButton_Encryption;
    QStringList array_popUpButton_SelectWEPKey;
    SSIDEntry mutableDictionary_selectSSID;  // empty until one is taken over
    bool bool_InfrastructureSSIDInput = false, bool_InfrastructurePSKInput = false,
         bool_InfrastructureWEPKeyInput = false;
    // SSID and security come from a network of the list, unchanged.
    bool bool_SSIDfromSelectSSID = false;
    // They do, but the list does not know the security, and the user has not chosen any.
    bool m_securityUnknown = false;
};
