#pragma once

#include "pages/InterfaceView.h"
#include "ui_EthernetPage.h"

// The wired interface: state of the connection test, MAC address, and address setup.
class DWTEthernetView : public InterfaceView, private Ui::EthernetPage {
  public:
    ~DWTEthernetView() override { ETV_Dealloc(); }
    bool init() override { return InterfaceView::init() && ETV_Init(); }

    void initializeUI() override;

  protected:
    Alert::Style alertStyle() const override { return Alert::Style::Critical; }

  private:
    bool ETV_Init();
    void ETV_Dealloc() { mutableDictionary_ViewSettings.clear(); }
    // The action of the address setup's choice.
    void select_EthernetAddressSetup() { chooseAddressSetup(); }
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckEthernetIpAddress() { return store(textField_EthernetIpAddress); }
    bool itemInputCheckEthernetSubnetMask() { return store(textField_EthernetSubnetMask); }
    bool itemInputCheckEthernetGateway() { return store(textField_EthernetDefaultGateway); }

    bool bool_EthernetIPAddressInput = false;
    bool bool_EthernetSubnetMaskInput = false;
    bool bool_EthernetGatewayInput = false;
};
