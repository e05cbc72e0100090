#include "pages/DWTNetworkView.h"

#include <algorithm>

#include "pages/CharacterSets.h"
#include "platform/core/Texts.h"
#include "platform/ui/Alert.h"
#include "platform/ui/FieldLooks.h"

namespace {

// Longest names, in characters.
constexpr int longestPrinterName = 31;
constexpr int longestBonjourName = 25;
constexpr int longestServiceName = 31;

}  // namespace

DWTNetworkView::~DWTNetworkView() {
    NNW_Dealloc();
}

bool DWTNetworkView::init() {
    return DWTBaseView::init() && NNW_Init();
}

void DWTNetworkView::initializeUI() {
    box_PrinterName->setTitle(localized(QStringLiteral("DWT_Localize_Network_Box_PrinterName")));
    box_BonjourName->setTitle(localized(QStringLiteral("DWT_Localize_Network_Box_BonjourName")));
    textField_Label_NetworkBonjour->setText(
        localized(QStringLiteral("DWT_Localize_Network_Text_NetworkBonjour_Label")));
    textField_Label_NetworkBonjourService->setText(
        localized(QStringLiteral("DWT_Localize_Network_Text_NetworkBonjourService_Label")));
    textField_BonjourLocal->setText(
        localized(QStringLiteral("DWT_Localize_Network_Text_BonjourLocal")));
    textField_NetworkBonjour->setToolTip(
        localized(QStringLiteral("DWT_ToolChip_Network_Text_NetworkBonjour")));
    textField_NetworkBonjourService->setToolTip(
        localized(QStringLiteral("DWT_ToolChip_Network_Text_NetworkBonjourService")));
    textField_NetworkPrinterName->setToolTip(
        localized(QStringLiteral("DWT_ToolChip_Network_Text_NetworkHostName")));
    // The printer name has no label beside its box.
    textField_NetworkPrinterName->setAccessibleName(box_PrinterName->title());
    for (const CheckedField &name : nameFields()) {
        *name.input = false;
        fitWidth(name.field, QString(longestPrinterName, u'n'));
    }
    notificationManager();
}

void DWTNetworkView::showDataManager() {
    mutableDictionary_ViewSettings = savedCategory();
    for (const CheckedField &name : nameFields()) {
        if (!mutableDictionary_ViewSettings.contains(name.key)) continue;
        name.field->setText(textValue(mutableDictionary_ViewSettings, name.key));
        *name.input = true;
    }
}

void DWTNetworkView::enableAllItems(bool enabled) {
    for (const CheckedField &name : nameFields()) name.field->setEnabled(enabled);
}

bool DWTNetworkView::itemInputCheck() {
    Alert alert(Alert::Style::Warning);
    bool passed = true;
    for (const CheckedField &name : nameFields()) passed &= checkField(name, alert);
    return passed;
}

bool DWTNetworkView::itemConnectChangeCheck() {
    const CategoryDictionary saved = savedCategory();
    const auto names = nameFields();
    return std::all_of(names.begin(), names.end(), [&](const CheckedField &name) {
        return saved.contains(name.key) && textValue(saved, name.key) == name.field->text();
    });
}

void DWTNetworkView::itemSetToDataManager() {
    handOver(shownCategory());
}

bool DWTNetworkView::itemCheckDifferentToDataManager() {
    return shownCategory() == savedCategory();
}

bool DWTNetworkView::textShouldBeginEditing(TextField *control) {
    for (const CheckedField &name : nameFields())
        if (name.field == control) *name.input = true;
    return true;
}

bool DWTNetworkView::textShouldEndEditing(TextField *control) {
    textShouldBeginEditing(control);
    if (control == textField_NetworkPrinterName) itemInputCheckNetworkPrinterName();
    if (control == textField_NetworkBonjour) itemInputCheckNetworkBonjour();
    if (control == textField_NetworkBonjourService) itemInputCheckBonjourService();
    sendNotificationSendOK();
    return true;
}

void DWTNetworkView::controlTextDidChange(TextField *control) {
    for (const CheckedField &name : nameFields())
        if (name.field == control) postSendState(itemCheckDifferentToDataManager());
}

bool DWTNetworkView::NNW_Init() {
    SetViewKey(DWT_View_Key_Network);
    mutableDictionary_ViewSettings.clear();
    view_Network = new QWidget;
    view_Base = view_Network;
    setupUi(view_Network);
    for (const CheckedField &name : nameFields()) name.field->setDelegate(this);
    return true;
}

void DWTNetworkView::NNW_Dealloc() {
    mutableDictionary_ViewSettings.clear();
    if (!view_Network) return;
    for (const CheckedField &name : nameFields()) name.field->setDelegate(nullptr);
}

void DWTNetworkView::notificationManager() {
    m_textChanges = observeTextChanges();
}

bool DWTNetworkView::itemInputCheckNetworkPrinterName() {
    return store(DWT_SaveData_Network_Printer, textField_NetworkPrinterName);
}

bool DWTNetworkView::itemInputCheckNetworkBonjour() {
    return store(DWT_SaveData_Network_Bonjour, textField_NetworkBonjour);
}

bool DWTNetworkView::itemInputCheckBonjourService() {
    return store(DWT_SaveData_Network_BonjourService, textField_NetworkBonjourService);
}

bool DWTNetworkView::store(const QString &key, const TextField *field) {
    mutableDictionary_ViewSettings.insert(key, field->text());
    handOver(mutableDictionary_ViewSettings);
    return true;
}

std::vector<DWTNetworkView::CheckedField> DWTNetworkView::nameFields() {
    return {{textField_NetworkPrinterName, &bool_NetworkPrinterNameInput,
             DWT_SaveData_Network_Printer, hostNameCharacters, 1, longestPrinterName,
             QStringLiteral("DWT_Localize_Alert_MessageText_Network_PrinterName"),
             QStringLiteral("DWT_Localize_Alert_InfoText_PrinterName_InputErr")},
            {textField_NetworkBonjour, &bool_NetworkBonjourInput, DWT_SaveData_Network_Bonjour,
             hostNameCharacters, 1, longestBonjourName,
             QStringLiteral("DWT_Localize_Alert_MessageText_Network_BonjourName"),
             QStringLiteral("DWT_Localize_Alert_InfoText_BonjourName_InputErr")},
            {textField_NetworkBonjourService, &bool_NetworkBonjourServiceInput,
             DWT_SaveData_Network_BonjourService, printableCharacters, 1, longestServiceName,
             QStringLiteral("DWT_Localize_Alert_MessageText_Network_BonjourServiceName"),
             QStringLiteral("DWT_Localize_Alert_InfoText_BonjourServiceName_InputErr")}};
}

// The saved category with what the fields hold now.
CategoryDictionary DWTNetworkView::shownCategory() {
    CategoryDictionary category = savedCategory();
    for (const CheckedField &name : nameFields()) category.insert(name.key, name.field->text());
    return category;
}
