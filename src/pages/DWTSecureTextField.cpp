#include "pages/DWTSecureTextField.h"

#include "settings/Rules.h"

DWTSecureTextField::DWTSecureTextField(QWidget *parent) : RecallingTextField(parent) {
    setEchoMode(Password);
}

void DWTSecureTextField::textDidChange() {
    if (text().size() <= Rules::longestPassword)
        string_SaveString = text();
    else
        replaceText(string_SaveString, static_cast<int>(string_SaveString.size()));
}
