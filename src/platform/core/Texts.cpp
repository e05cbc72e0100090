#include "platform/core/Texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

bool isLineSeparator(QChar c) {
    return c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

// Marks, embeddings, overrides and isolates.
bool isDirection(QChar c) {
    const char16_t code = c.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

}  // namespace

QString localized(const QString &key) {
    return qtTrId(key.toUtf8().constData());
}

QString withoutMnemonic(QString text) {
    static const QRegularExpression mark(u"\\(&.\\)|&"_s);
    return text.remove(mark);
}

QString nameInLabel(const QString &label) {
    static const QRegularExpression end(u"[\\s:：]+$"_s);
    return withoutMnemonic(label).remove(end);
}

QString shownText(const QString &text) {
    QString shown;
    for (const QChar c : text) {
        const bool separates = c == u'\t' || c == u'\n' || c == u'\r' || isLineSeparator(c);
        if (separates)
            shown += u' ';
        else if (c.category() != QChar::Other_Control && !isDirection(c))
            shown += c;
    }
    return shown;
}

QString terminalText(const QString &text) {
    QString escaped;
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control || isLineSeparator(c) || isDirection(c))
            escaped += u"\\x%1"_s.arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            escaped += c;
    }
    return escaped;
}

bool installTexts() {
    // Qt's own texts, such as the context menus of fields; English without them.
    auto *const standard = new QTranslator(QCoreApplication::instance());
    if (standard->load(QLocale(), u"qtbase"_s, u"_"_s,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(standard);
    auto *const texts = new QTranslator(QCoreApplication::instance());
    const QString name = u"network-setting-tool"_s;
    const QString folder = u":/texts"_s;
    return (texts->load(QLocale(), name, u"_"_s, folder) || texts->load(name + u"_en"_s, folder)) &&
           QCoreApplication::installTranslator(texts);
}
