#pragma once

#include <QString>

// A constant text that has its own name as its value.
#define DWT_KEY(name) inline const QString name = QStringLiteral(#name)
