#pragma once

#include "pages/RecallingTextField.h"

// A masked text field that holds at most 8 characters (Rules::longestPassword): a change that would
// make its text longer is undone as a whole.
class DWTSecureTextField : public RecallingTextField {
    Q_OBJECT
  public:
    explicit DWTSecureTextField(QWidget *parent = nullptr);

  protected:
    void textDidChange() override;
};
