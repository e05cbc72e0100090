#pragma once

#include "pages/RecallingTextField.h"

// A text field into which only digits and dots can be typed; what is typed is filtered at once.
class DWTIPTextField : public RecallingTextField<TextField> {
    Q_OBJECT
  public:
    explicit DWTIPTextField(QWidget *parent = nullptr) : RecallingTextField(parent) {}

  protected:
    void textDidChange() override;
};
