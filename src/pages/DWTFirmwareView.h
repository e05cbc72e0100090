#pragma once

#include "pages/DWTBaseView.h"
#include "ui_FirmwarePage.h"

// The firmware version, and the print time-out in seconds, which is forced into 30 to 300.
class DWTFirmwareView : public DWTBaseView, private Ui::FirmwarePage {
  public:
    ~DWTFirmwareView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    // Forces the time-out into its range; always true.
    bool itemInputCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    bool textShouldEndEditing(TextField *control) override;
    // Takes out what is no digit, and posts whether the page differs, when `control` is the
    // time-out.
    void controlTextDidChange(TextField *control) override;

  private:
    bool NFW_Init();
    void NFW_Dealloc();
    void notificationManager();
    void checkCountTextField(TextField *field) const;
    CategoryDictionary shownCategory() const;

    QPointer<QWidget> view_Firmware;
    NotificationCenter::Observer m_textChanges;
};
