#pragma once

#include "pages/DWTBaseView.h"
#include "ui_NetworkPage.h"

// The names under which the printer is known: printer name, Bonjour name, Bonjour service name.
class DWTNetworkView : public DWTBaseView, private Ui::NetworkPage {
    DWT_SETUP(DWTNetworkView, DWTBaseView, NNW_Init, NNW_Dealloc)

  public:
    void initializeUI() override;
    // Every name is one by which the printer is reached.
    bool itemConnectChangeCheck() override { return itemCheckDifferentToDataManager(); }

  private:
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckNetworkPrinterName() { return store(textField_NetworkPrinterName); }
    bool itemInputCheckNetworkBonjour() { return store(textField_NetworkBonjour); }
    bool itemInputCheckBonjourService() { return store(textField_NetworkBonjourService); }

    bool bool_NetworkBonjourInput = false, bool_NetworkBonjourServiceInput = false,
         bool_NetworkPrinterNameInput = false;
};
