#pragma once

#include "pages/DWTBaseView.h"
#include "ui_WirelessPage.h"

// The wireless communication mode, and the MAC addresses of the two wireless interfaces.
class DWTWirelessView : public DWTBaseView, private Ui::WirelessPage {
  public:
    ~DWTWirelessView() override { NWL_Dealloc(); }
    bool init() override { return DWTBaseView::init() && NWL_Init(); }

    void initializeUI() override;

    // The printer's code of the chosen mode (CommunicationMode); -1 when none is chosen.
    int wirelessCommunicateMode() const {
        return radioButton_WirelessCommunicateMode->selectedTag();
    }

  private:
    bool NWL_Init();
    void NWL_Dealloc() { mutableDictionary_ViewSettings.clear(); }
    void select_WirelessCommunicateMode();
};
