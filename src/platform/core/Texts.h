#pragma once

#include <QString>

// The text of `key` (a message id of the .ts files); a key without a text shows itself.
QString localized(const QString &key);
inline QString localized(const char *key) {
    return localized(QString(QLatin1String(key)));
}

// A button's text without its mnemonic: "&Send" and "送信(&S)" become "Send" and "送信".
QString withoutMnemonic(QString text);

// What a label names: its text without the mark of its mnemonic and the colon at its end.
QString nameInLabel(const QString &label);

// A text from outside for a window: on one line, without control and direction characters.
QString shownText(const QString &text);

// A text from outside as it goes to a terminal: on one line, control characters as \\xHH.
QString terminalText(const QString &text);

// Installs the texts of the system's language, or the English ones. False when neither could be
// read. Main thread; once.
bool installTexts();
