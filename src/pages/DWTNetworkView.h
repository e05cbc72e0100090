#pragma once

#include <vector>

#include "pages/DWTBaseView.h"
#include "platform/core/NotificationCenter.h"
#include "ui_NetworkPage.h"

// The names under which the printer is known: printer name, Bonjour name, Bonjour service name.
class DWTNetworkView : public DWTBaseView, private Ui::NetworkPage {
  public:
    ~DWTNetworkView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemInputCheck() override;
    bool itemConnectChangeCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    bool textShouldBeginEditing(TextField *control) override;
    bool textShouldEndEditing(TextField *control) override;
    // Posts whether the page differs, when `control` is one of its fields.
    void controlTextDidChange(TextField *control) override;

  private:
    bool NNW_Init();
    void NNW_Dealloc();
    // Listens to the text changes of every field.
    void notificationManager();
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckNetworkPrinterName();
    bool itemInputCheckNetworkBonjour();
    bool itemInputCheckBonjourService();
    bool store(const QString &key, const TextField *field);
    // The fields in the order in which they are checked.
    std::vector<CheckedField> nameFields();
    CategoryDictionary shownCategory();

    QPointer<QWidget> view_Network;
    bool bool_NetworkBonjourInput = false;
    bool bool_NetworkBonjourServiceInput = false;
    bool bool_NetworkPrinterNameInput = false;
    CategoryDictionary mutableDictionary_ViewSettings;
    NotificationCenter::Observer m_textChanges;
};
