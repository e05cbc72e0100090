#pragma once

#include "pages/DWTBaseView.h"
#include "ui_WirelessPage.h"

// The wireless communication mode, and the MAC addresses of the two wireless interfaces.
class DWTWirelessView : public DWTBaseView, private Ui::WirelessPage {
  public:
    ~DWTWirelessView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemInputCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    // The printer's code of the chosen mode: 1 joins a wireless network; -1 when none is chosen.
    int wirelessCommunicateMode() const;

  private:
    bool NWL_Init();
    void NWL_Dealloc();
    void select_WirelessCommunicateMode();
    CategoryDictionary shownCategory() const;
};
