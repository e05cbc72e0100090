#pragma once

#include <QString>

// The user-visible text of `key` in the installed translation (a message id of the .ts files);
// a key without a text shows itself.
QString localized(const QString &key);

// Installs the texts of the resources (":/texts/network-setting-tool_LANGUAGE.qm") for the system's
// language, or the English ones when there are none for it. False when neither could be read; the
// keys then show themselves. Main thread; once.
bool installTexts();
