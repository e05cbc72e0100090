#pragma once

#include <QString>

// The user-visible text of `key` in the installed translation (a message id of the .ts files);
// a key without a text shows itself.
QString localized(const QString &key);
