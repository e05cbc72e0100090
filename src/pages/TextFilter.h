#pragma once

class QString;
class TextField;

// Removes from a field the stretch from the first to the last character that is not among
// `allowed`, and puts the caret where it began.
void filterText(TextField *field, const QString &allowed);
