#pragma once

#include <QStringList>

// The known word that may be meant by one that is none of them: it differs in few letters, or it is
// the only one that begins with the word, or ends with it after a dot. Empty when there is none.
QString nearestOf(const QString &word, const QStringList &known);
