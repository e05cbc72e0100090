#pragma once

#include "pages/DWTBaseView.h"
#include "ui_SimpleAPPage.h"

// The printer's own access point: its name and key can be changed, the rest is shown.
class DWTSimpleAPView : public DWTBaseView, private Ui::SimpleAPPage {
    DWT_SETUP(DWTSimpleAPView, DWTBaseView, SAP_Init, SAP_Dealloc)

  public:
    void showDataManager() override;
    // Says above the settings when the printer's communication mode does not use them.
    void showIsUsed(bool used) { textField_SimpleAPNotUsed->setHidden(used); }

  protected:
    // A name or key that the printer does not report empties its field.
    void fill(const Field &field) override;

  private:
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckSimpleAPSSID() { return store(textField_SimpleAPSSID); }
    bool itemInputCheckSimpleAPPSK() { return store(textField_SimpleAPPSK); }

    bool bool_SimpleAPSSIDInput = false, bool_SimpleAPPSKInput = false;
};
