#pragma once

#include "pages/DWTBaseView.h"
#include "settings/Codes.h"
#include "ui_PasswordPage.h"

// A new administrator password, typed twice. The printer's own is never read or shown.
class DWTPasswordView : public DWTBaseView, private Ui::PasswordPage {
    DWT_SETUP(DWTPasswordView, DWTBaseView, NPS_Init, NPS_Dealloc)

  public:
    void initializeUI() override;
    void enableAllItems(bool enabled) override;
    void revert() override;
    CategoryDictionary shownCategory() const override;
    // Also checks that both fields agree, and are not empty.
    bool itemInputCheck() override;

    // Says whether the printer has a password: a PasswordState; any other value stands for unknown.
    void showPasswordState(int state);
    bool isStateKnown() const {
        return m_state == PasswordState::Set || m_state == PasswordState::NotSet;
    }
    // Turns the change of the password on or off in the change data. Off empties the fields.
    void passwordChangeSetting(bool on);
    // Empties the fields and turns the change off, in the controls alone. The argument is not used.
    void clearPassword(bool);

  protected:
    // The printer reports no password: reading changes no control.
    void fill(const Field &) override {}
    QString faultOf(const Field &field) const override;
    QString noticeOf(const Field &field) const override;
    void putBack(const Field &field) override;

  private:
    // Actions of the two check boxes, of which at most one is on.
    void push_PasswordChange();
    void push_PasswordRemove();
    // The localised fault of both fields together; empty when there is none.
    QString faultOfBoth() const;
    // Store the password in the change data when both fields agree. Always true.
    bool itemInputCheckPassword() { return !fieldsAgree() || store(secureTextField_Password); }
    bool itemInputCheckPasswordReinput() { return itemInputCheckPassword(); }
    bool fieldsAgree() const {
        return secureTextField_Password->text() == secureTextField_PasswordReinput->text();
    }
    QString passwordName() const { return fieldOf(secureTextField_Password)->name; }
    void enableFields(bool enabled);
    void emptyFields();

    int m_state = 0;        // PasswordState
    bool m_enabled = true;  // the whole page
};
