#pragma once

class QLineEdit;
class QString;
class QWidget;

// Makes a field as wide as `sample` needs in the field's font, and keeps it there.
void fitWidth(QLineEdit *field, const QString &sample);

// Lets a field treat a menu bar that takes the focus like a menu that opens: what is selected in it
// stays selected.
void keepSelectionInMenus(QLineEdit *field);

// Lets a field look like the value that it shows: read-only, without frame and background. It still
// takes the focus, so that its text can be selected, copied and read aloud. Off makes it a field
// again.
void showAsValue(QLineEdit *field, bool on = true);

// Lets the disabled controls of a panel show their texts in the colours of the enabled ones, for a
// panel that is there to be read; off gives them back the looks of disabled ones. Push buttons,
// which tell nothing, always look as disabled as they are.
void keepLegible(QWidget *panel, bool on);

// The same for a value of digits that are compared one by one, such as a MAC address: in the
// system's font of equal widths.
void showAsDigits(QLineEdit *field);
