#pragma once

class QString;
class TextField;

// Takes out of a field's text the stretch from the first to the last character that is not among
// `allowed`, those between them included, and puts the caret where it began. A text of allowed
// characters alone stays as it is, and so does the caret.
void filterText(TextField *field, const QString &allowed);
