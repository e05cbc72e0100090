#pragma once

#include "platform/ui/TextField.h"

// A text field into which only digits and dots can be typed. What is typed is filtered at once and
// reported to nobody.
class DWTIPTextField : public TextField {
    Q_OBJECT
  public:
    explicit DWTIPTextField(QWidget *parent = nullptr);
    ~DWTIPTextField() override;

  protected:
    void textDidBeginEditing() override;
    void textDidChange() override;

  private:
    bool SRF_Init();
    void SRF_Dealloc();

    // The text when editing began, and after each change since then.
    QString string_SaveString;
};
