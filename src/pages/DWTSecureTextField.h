#pragma once

#include "pages/RecallingTextField.h"

// A masked text field of at most 8 characters: a change that exceeds them is undone as a whole.
class DWTSecureTextField : public RecallingTextField {
    Q_OBJECT
  public:
    explicit DWTSecureTextField(QWidget *parent = nullptr);

  protected:
    void textDidChange() override;
};
