#include "pages/DWTSecureTextField.h"

#include "settings/Rules.h"

DWTSecureTextField::DWTSecureTextField(QWidget *parent) : TextField(parent) {
    setEchoMode(Password);
    SRF_Init();
}

DWTSecureTextField::~DWTSecureTextField() {
    SRF_Dealloc();
}

void DWTSecureTextField::textDidBeginEditing() {
    string_SaveString = text();
}

void DWTSecureTextField::textDidChange() {
    if (text().size() <= Rules::longestPassword)
        string_SaveString = text();
    else
        replaceText(string_SaveString, static_cast<int>(string_SaveString.size()));
}

bool DWTSecureTextField::SRF_Init() {
    string_SaveString.clear();
    return true;
}

void DWTSecureTextField::SRF_Dealloc() {
    string_SaveString.clear();
}
