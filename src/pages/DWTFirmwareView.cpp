#include "pages/DWTFirmwareView.h"

#include <algorithm>

#include "pages/TextFilter.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

namespace {

// Bounds of the print time-out, in seconds.
constexpr int shortestTimeOut = 30;
constexpr int longestTimeOut = 300;

}  // namespace

DWTFirmwareView::~DWTFirmwareView() {
    NFW_Dealloc();
}

bool DWTFirmwareView::init() {
    return DWTBaseView::init() && NFW_Init();
}

void DWTFirmwareView::initializeUI() {
    box_SoftwareInfomation->setTitle(
        localized(QStringLiteral("DWT_Localize_Firmware_Box_SoftwareInfomation")));
    textField_Label_Firmware->setText(
        localized(QStringLiteral("DWT_Localize_Firmware_Text_Firmware_Label")));
    box_PrintTimeOut->setTitle(localized(QStringLiteral("DWT_Localize_Firmware_Box_PrintTimeOut")));
    textField_Label_Second->setText(
        localized(QStringLiteral("DWT_Localize_Firmware_Text_Second_Label")));
    // The time-out has no label before it.
    textField_PrintTimeOut->setAccessibleName(box_PrintTimeOut->title());
    showAsValue(textField_Firmware);
    fitWidth(textField_PrintTimeOut, QStringLiteral("00000"));
    notificationManager();
}

void DWTFirmwareView::showDataManager() {
    const CategoryDictionary saved = savedCategory();
    if (saved.contains(DWT_SaveData_Firmware))
        textField_Firmware->setText(textValue(saved, DWT_SaveData_Firmware));
    if (saved.contains(DWT_SaveData_Firmware_Timeout))
        textField_PrintTimeOut->setText(
            QString::number(integerValue(saved, DWT_SaveData_Firmware_Timeout)));
}

void DWTFirmwareView::enableAllItems(bool enabled) {
    textField_PrintTimeOut->setEnabled(enabled);
}

bool DWTFirmwareView::itemInputCheck() {
    const int typed = integerOf(textField_PrintTimeOut->text());
    textField_PrintTimeOut->setText(
        QString::number(std::clamp(typed, shortestTimeOut, longestTimeOut)));
    return true;
}

void DWTFirmwareView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTFirmwareView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

bool DWTFirmwareView::textShouldEndEditing(TextField *control) {
    if (control == textField_PrintTimeOut) {
        itemInputCheck();
        itemSetToDataManager();
    }
    sendNotificationSendOK();
    return true;
}

void DWTFirmwareView::controlTextDidChange(TextField *control) {
    if (control != textField_PrintTimeOut) return;
    checkCountTextField(control);
    postSendState(itemCheckDifferentToDataManager());
}

bool DWTFirmwareView::NFW_Init() {
    SetViewKey(DWT_View_Key_Firmware);
    view_Firmware = new QWidget;
    view_Base = view_Firmware;
    setupUi(view_Firmware);
    textField_PrintTimeOut->setDelegate(this);
    return true;
}

void DWTFirmwareView::NFW_Dealloc() {
    if (view_Firmware) textField_PrintTimeOut->setDelegate(nullptr);
}

void DWTFirmwareView::notificationManager() {
    m_textChanges = observeTextChanges();
}

void DWTFirmwareView::checkCountTextField(TextField *field) const {
    filterText(field, QStringLiteral("0123456789"));
}

// The saved category with the time-out that stands in the field now, whatever its range.
CategoryDictionary DWTFirmwareView::shownCategory() const {
    CategoryDictionary category = savedCategory();
    category.insert(DWT_SaveData_Firmware_Timeout, integerOf(textField_PrintTimeOut->text()));
    return category;
}
