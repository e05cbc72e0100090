#pragma once

#include <QByteArray>
#include <QString>

// Empties a secret, and leaves nothing of it in its memory. The buffer must not be shared with a
// text that is still needed.
void wipe(QByteArray &secret);
void wipe(QString &secret);

// A copy that shares no memory with the original.
QString ownCopy(const QString &text);
