#pragma once

#include "pages/DWTBaseView.h"
#include "ui_PasswordPage.h"

// A new administrator password, typed twice. The printer's own is never read or shown.
class DWTPasswordView : public DWTBaseView, private Ui::PasswordPage {
  public:
    ~DWTPasswordView() override;
    bool init() override;

    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemInputCheck() override;
    void itemSetToDataManager() override;
    bool itemCheckDifferentToDataManager() override;

    // Turns the change of the password on or off, and tells the data manager. The fields are usable
    // while it is on, and emptied when it is turned off.
    void passwordChangeSetting(bool on);
    // Empties and disables the fields and turns the change off, without telling the data manager.
    // The argument is not used.
    void clearPassword(bool);

    bool textShouldEndEditing(TextField *control) override;

  private:
    bool NPS_Init();
    void NPS_Dealloc();
    // The check box's action.
    void push_PasswordChange();
    // Store the password in the change data when both fields agree. Always true.
    bool itemInputCheckPassword();
    bool itemInputCheckPasswordReinput();
    void enableFields(bool enabled);
    void emptyFields();
    // Shows an alert when the field's text breaks the rule; true when it does not.
    bool checkField(Alert &alert, const TextField *field, const QString &messageKey) const;
    CategoryDictionary shownCategory() const;

    QPointer<QWidget> view_Password;
    CategoryDictionary mutableDictionary_ViewSettings;
};
