#pragma once

#include "pages/DWTBaseView.h"
#include "ui_WirelessPage.h"

// The wireless communication mode, and the MAC addresses of the two wireless interfaces.
class DWTWirelessView : public DWTBaseView, private Ui::WirelessPage {
    DWT_SETUP(DWTWirelessView, DWTBaseView, NWL_Init, NWL_Dealloc)

  public:
    // The printer's code of the chosen mode (CommunicationMode); -1 when none is chosen.
    int wirelessCommunicateMode() const {
        return radioButton_WirelessCommunicateMode->selectedTag();
    }

  private:
    void select_WirelessCommunicateMode();
};
