#pragma once

#include <QString>

// The user-visible text of `key` in the installed translation (a message id of the .ts files);
// a key without a text shows itself.
QString localized(const QString &key);
inline QString localized(const char *key) {
    return localized(QString(QLatin1String(key)));
}

// The text of a button or a menu entry as other places show it: without the mark of its mnemonic,
// "&Send" and "送信(&S)" become "Send" and "送信".
QString withoutMnemonic(QString text);

// What a label names: its text without the mark of its mnemonic and the colon at its end.
QString nameInLabel(const QString &label);

// A text from outside (a printer, a file, the network) as it is shown: on one line, without control
// characters and without those that change the direction of what follows.
QString shownText(const QString &text);

// A text from outside as it goes to a terminal: on one line, control characters as \\xHH.
QString terminalText(const QString &text);

// Installs the texts of the resources (":/texts/network-setting-tool_LANGUAGE.qm") for the system's
// language, or the English ones when there are none for it. False when neither could be read; the
// keys then show themselves. Main thread; once.
bool installTexts();
