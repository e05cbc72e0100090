#pragma once

#include "platform/ui/TextField.h"

// A masked text field that holds at most 8 characters (Rules::longestPassword): a change that would
// make its text longer is undone as a whole. Changes are reported to nobody.
class DWTSecureTextField : public TextField {
    Q_OBJECT
  public:
    explicit DWTSecureTextField(QWidget *parent = nullptr);
    ~DWTSecureTextField() override;

  protected:
    void textDidBeginEditing() override;
    void textDidChange() override;

  private:
    bool SRF_Init();
    void SRF_Dealloc();

    // The text that was accepted last.
    QString string_SaveString;
};
