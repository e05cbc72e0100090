#include "platform/core/Texts.h"

#include <QCoreApplication>

QString localized(const QString &key) {
    return qtTrId(key.toUtf8().constData());
}
