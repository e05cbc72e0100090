#pragma once

#include "pages/AddressSetup.h"
#include "pages/DWTBaseView.h"
#include "ui_EthernetPage.h"

// The wired interface: state of the connection test, MAC address, and address setup.
class DWTEthernetView : public DWTBaseView, private Ui::EthernetPage {
    Q_OBJECT
  public:
    ~DWTEthernetView() override;
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

    bool textShouldBeginEditing(TextField *control) override;
    bool textShouldEndEditing(TextField *control) override;
    // Filters an address field and posts whether the page differs.
    void controlTextDidChange(TextField *control) override;

  Q_SIGNALS:
    // The user asks for a test of the printer's address.
    void connectRequested();

  private:
    bool ETV_Init();
    void ETV_Dealloc();
    // The action of the address setup's choice.
    void select_EthernetAddressSetup();
    // Address fields are usable in manual setup only.
    void selectAddressSettingInput();
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckEthernetIpAddress();
    bool itemInputCheckEthernetSubnetMask();
    bool itemInputCheckEthernetGateway();
    bool store(const TextField *field);
    void markInput(const TextField *field);
    void setFieldsDelegate(TextFieldDelegate *delegate);
    CategoryDictionary shownCategory();

    QPointer<QWidget> view_Ethernet;
    bool bool_EthernetIPAddressInput = false;
    bool bool_EthernetSubnetMaskInput = false;
    bool bool_EthernetGatewayInput = false;
    CategoryDictionary mutableDictionary_ViewSettings;
    AddressSetup m_address;
};
