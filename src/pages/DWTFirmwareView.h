#pragma once

#include "pages/DWTBaseView.h"
#include "ui_FirmwarePage.h"

// The firmware version, and the print time-out in seconds, which is forced into its range.
class DWTFirmwareView : public DWTBaseView, private Ui::FirmwarePage {
  public:
    ~DWTFirmwareView() override { NFW_Dealloc(); }
    bool init() override { return DWTBaseView::init() && NFW_Init(); }

    void initializeUI() override;

  private:
    bool NFW_Init();
    void NFW_Dealloc() { mutableDictionary_ViewSettings.clear(); }
};
