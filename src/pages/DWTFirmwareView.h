#pragma once

#include "pages/DWTBaseView.h"
#include "ui_FirmwarePage.h"

// The firmware version, and the print time-out in seconds, which is forced into its range.
class DWTFirmwareView : public DWTBaseView, private Ui::FirmwarePage {
    DWT_SETUP(DWTFirmwareView, DWTBaseView, NFW_Init, NFW_Dealloc)

  public:
    void initializeUI() override;
};
