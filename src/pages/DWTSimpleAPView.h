#pragma once

#include <vector>

#include "pages/DWTBaseView.h"
#include "ui_SimpleAPPage.h"

// The printer's own access point: its name and key can be changed, the rest is shown.
class DWTSimpleAPView : public DWTBaseView, private Ui::SimpleAPPage {
  public:
    ~DWTSimpleAPView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemInputCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    bool textShouldBeginEditing(TextField *control) override;
    bool textShouldEndEditing(TextField *control) override;
    // Posts whether the page differs, when `control` is one of its fields.
    void controlTextDidChange(TextField *control) override;

  private:
    bool SAP_Init();
    void SAP_Dealloc();
    // Listens to the text changes of every field.
    void notificationManager();
    // Each stores its field in the change data, whatever it holds. Always true.
    bool itemInputCheckSimpleAPSSID();
    bool itemInputCheckSimpleAPPSK();
    bool store(const QString &key, const TextField *field);
    // The fields in the order in which they are checked.
    std::vector<CheckedField> checkedFields();
    CategoryDictionary shownCategory() const;

    QPointer<QWidget> view_SimpleAP;
    QVariantMap dictionary_itemData;
    QStringList array_textField_WirelessMode;
    QStringList array_textField_Authentic;
    QStringList array_textField_Encryption;
    CategoryDictionary mutableDictionary_ViewSettings;
    bool bool_SimpleAPSSIDInput = false;
    bool bool_SimpleAPPSKInput = false;
    NotificationCenter::Observer m_textChanges;
};
