#include "pages/DWTIPTextField.h"

#include "pages/TextFilter.h"
#include "settings/Rules.h"

void DWTIPTextField::textDidChange() {
    filterText(this, Rules::addressCharacters);
    string_SaveString = text();
}
