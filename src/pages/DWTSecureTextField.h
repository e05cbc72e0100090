#pragma once

#include "pages/RecallingTextField.h"
#include "platform/ui/MaskedField.h"

// A masked text field of at most 8 characters: a change that exceeds them is undone as a whole.
class DWTSecureTextField : public RecallingTextField<MaskedField> {
    Q_OBJECT
  public:
    explicit DWTSecureTextField(QWidget *parent = nullptr);

    // Whether the last change was undone.
    bool hasRefused() const { return m_refused; }
    void forget() override;

  protected:
    void textDidChange() override;

  private:
    bool m_refused = false;
};
