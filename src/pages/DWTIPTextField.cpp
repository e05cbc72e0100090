#include "pages/DWTIPTextField.h"

#include "pages/TextFilter.h"
#include "settings/Rules.h"

DWTIPTextField::DWTIPTextField(QWidget *parent) : TextField(parent) {
    SRF_Init();
}

DWTIPTextField::~DWTIPTextField() {
    SRF_Dealloc();
}

void DWTIPTextField::textDidBeginEditing() {
    string_SaveString = text();
}

void DWTIPTextField::textDidChange() {
    filterText(this, Rules::addressCharacters);
    string_SaveString = text();
}

bool DWTIPTextField::SRF_Init() {
    string_SaveString.clear();
    return true;
}

void DWTIPTextField::SRF_Dealloc() {
    string_SaveString.clear();
}
