#include "platform/core/Texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

QString localized(const QString &key) {
    return qtTrId(key.toUtf8().constData());
}

bool installTexts() {
    // Qt's own texts, such as the context menus of fields; English without them.
    auto *const standard = new QTranslator(QCoreApplication::instance());
    if (standard->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(standard);
    auto *const texts = new QTranslator(QCoreApplication::instance());
    const QString name = QStringLiteral("network-setting-tool");
    const QString folder = QStringLiteral(":/texts");
    return (texts->load(QLocale(), name, QStringLiteral("_"), folder) ||
            texts->load(name + QStringLiteral("_en"), folder)) &&
           QCoreApplication::installTranslator(texts);
}
