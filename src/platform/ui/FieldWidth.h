#pragma once

#include <QLineEdit>

// Fixes the width of `field` so that it holds `characters` (1 or more) characters as wide as those
// of `sample` (not empty) are on average, in the field's font and style. A sample of one letter
// gives that letter's width: setFieldWidth(address, 15, u"0"_qs) holds "255.255.255.255".
void setFieldWidth(QLineEdit *field, int characters, const QString &sample);
