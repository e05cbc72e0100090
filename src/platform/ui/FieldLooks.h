#pragma once

class QLineEdit;
class QString;

// Makes a field as wide as `sample` needs in the field's font, and keeps it there.
void fitWidth(QLineEdit *field, const QString &sample);

// Lets a field look like the value that it shows: read-only, without frame and background. It still
// takes the focus, so that its text can be selected, copied and read aloud.
void showAsValue(QLineEdit *field);

// The same for a value of digits that are compared one by one, such as a MAC address: in the
// system's font of equal widths.
void showAsDigits(QLineEdit *field);
