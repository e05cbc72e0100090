#pragma once

#include <QString>

// A constant text that has the value of its own name, as keys and notifications do, so that a key is
// looked for in one way everywhere.
#define DWT_KEY(name) inline const QString name = QStringLiteral(#name)
