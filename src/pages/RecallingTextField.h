#pragma once

#include "platform/ui/TextField.h"

// A field, of the kind `Base`, that handles typing itself, reports it to nobody, and can recall a
// text.
template <typename Base>
class RecallingTextField : public Base {
  public:
    explicit RecallingTextField(QWidget *parent) : Base(parent) { SRF_Init(); }
    ~RecallingTextField() override { SRF_Dealloc(); }

  protected:
    void textDidBeginEditing() override { string_SaveString = this->text(); }

    // The text when editing began, and after each accepted change since then.
    QString string_SaveString;

  private:
    bool SRF_Init() {
        string_SaveString.clear();
        return true;
    }
    void SRF_Dealloc() { string_SaveString.clear(); }
};
