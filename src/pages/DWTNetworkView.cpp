#include "pages/DWTNetworkView.h"

#include "platform/ui/FieldLooks.h"

void DWTNetworkView::initializeUI() {
    DWTBaseView::initializeUI();
    for (const Field &name : fields())
        fitWidth(name.line(), QString(Rules::longestPrinterName, u'n'));
}

bool DWTNetworkView::NNW_Init() {
    SetViewKey(DWT_View_Key_Network);
    setupUi(view_Base);
    addField(textField_NetworkPrinterName, DWT_SaveData_Network_Printer,
             &bool_NetworkPrinterNameInput, [this] { return itemInputCheckNetworkPrinterName(); });
    addField(textField_NetworkBonjour, DWT_SaveData_Network_Bonjour, &bool_NetworkBonjourInput,
             [this] { return itemInputCheckNetworkBonjour(); });
    addField(textField_NetworkBonjourService, DWT_SaveData_Network_BonjourService,
             &bool_NetworkBonjourServiceInput, [this] { return itemInputCheckBonjourService(); });
    return true;
}

void DWTNetworkView::NNW_Dealloc() {}
