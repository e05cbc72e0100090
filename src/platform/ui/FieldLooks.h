#pragma once

class QLineEdit;
class QString;
class QWidget;

// Makes a field as wide as `sample` needs in the field's font, and keeps it there.
void fitWidth(QLineEdit *field, const QString &sample);

// Keeps the selection of a field when the menu bar takes the focus.
void keepSelectionInMenus(QLineEdit *field);

// Lets a field look like a value: read-only, without frame, still selectable; or like a field
// again.
void showAsValue(QLineEdit *field, bool on = true);

// Lets the disabled controls of a panel keep the colours of enabled ones, or no more. Push buttons
// always look as they are.
void keepLegible(QWidget *panel, bool on);

// Names the controls of a panel for assistive technologies by their labels, without the colon;
// those that have a name keep it.
void nameByLabels(const QWidget *panel);

// Shows digits that are compared one by one in a font of equal widths.
void showAsDigits(QLineEdit *field);
