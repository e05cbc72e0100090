#include "pages/DWTFirmwareView.h"

#include "platform/ui/FieldLooks.h"

using namespace Qt::StringLiterals;

void DWTFirmwareView::initializeUI() {
    DWTBaseView::initializeUI();
    fitWidth(textField_PrintTimeOut, u"00000"_s);
}

bool DWTFirmwareView::NFW_Init() {
    SetViewKey(DWT_View_Key_Firmware);
    setupUi(view_Base);
    addShown(textField_Firmware, DWT_SaveData_Firmware);
    addField(textField_PrintTimeOut, DWT_SaveData_Firmware_Timeout);
    return true;
}

void DWTFirmwareView::NFW_Dealloc() {}
