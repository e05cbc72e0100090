#pragma once

#include "pages/InterfaceView.h"
#include "ui_EthernetPage.h"

// The wired interface: state of the connection test, MAC address, and address setup.
class DWTEthernetView : public InterfaceView, private Ui::EthernetPage {
    DWT_SETUP(DWTEthernetView, InterfaceView, ETV_Init, ETV_Dealloc)

  protected:
    Alert::Style alertStyle() const override { return Alert::Style::Critical; }

  private:
    // The action of the address setup's choice.
    void select_EthernetAddressSetup() { chooseAddressSetup(); }
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckEthernetIpAddress() { return store(textField_EthernetIpAddress); }
    bool itemInputCheckEthernetSubnetMask() { return store(textField_EthernetSubnetMask); }
    bool itemInputCheckEthernetGateway() { return store(textField_EthernetDefaultGateway); }

    bool bool_EthernetIPAddressInput = false, bool_EthernetSubnetMaskInput = false,
         bool_EthernetGatewayInput = false;
};
