#pragma once

#include <QByteArray>
#include <QString>

// Empties a secret and its memory, which no other text may share.
void wipe(QByteArray &secret);
void wipe(QString &secret);

// A copy that shares no memory with the original.
QString ownCopy(const QString &text);
