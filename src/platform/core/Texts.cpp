#include "platform/core/Texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

QString localized(const QString &key) {
    return qtTrId(key.toUtf8().constData());
}

bool installTexts() {
    auto *const texts = new QTranslator(QCoreApplication::instance());
    const QString name = QStringLiteral("network-setting-tool");
    const QString folder = QStringLiteral(":/texts");
    return (texts->load(QLocale(), name, QStringLiteral("_"), folder) ||
            texts->load(name + QStringLiteral("_en"), folder)) &&
           QCoreApplication::installTranslator(texts);
}
