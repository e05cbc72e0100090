#include "pages/DWTSecureTextField.h"

#include "settings/Rules.h"

DWTSecureTextField::DWTSecureTextField(QWidget *parent) : RecallingTextField(parent) {}

void DWTSecureTextField::forget() {
    m_refused = false;
    RecallingTextField::forget();
}

void DWTSecureTextField::textDidChange() {
    m_refused = text().size() > Rules::longestPassword;
    if (m_refused)
        replaceText(string_SaveString, static_cast<int>(string_SaveString.size()));
    else
        string_SaveString = text();
}
