#pragma once

class QLineEdit;
class QString;

// Makes a field as wide as `sample` needs in the field's font, and keeps it there.
void fitWidth(QLineEdit *field, const QString &sample);
