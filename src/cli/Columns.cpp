#include "cli/Columns.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

using namespace Qt::StringLiterals;

namespace {

// As much of a part as fits into so many columns.
QString fitting(const QString &part, int columns) {
    qsizetype size = part.size();
    while (size > 1 && widthOf(part.left(size)) > columns) --size;
    return part.left(size);
}

}  // namespace

int widthOf(const QString &text) {
    // The locale of the user may not be installed, or know the characters of no other language.
    static const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const locale_t before = ::uselocale(unicode);
    const std::wstring wide = text.toStdWString();
    const int width = ::wcswidth(wide.c_str(), wide.size());
    ::uselocale(before);
    return width < 0 ? int(wide.size()) : width;
}

QStringList aligned(const QList<QStringList> &rows, QList<int> &widths) {
    for (const QStringList &row : rows)
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (widths.size() <= i) widths << 0;
            widths[i] = std::max(widths[i], widthOf(row[i]));
        }
    QStringList lines;
    for (const QStringList &row : rows) {
        QString line;
        int end = 0;  // of the cells so far
        for (qsizetype i = 0; i < row.size(); ++i) {
            line += row[i];
            end += widths[i] + 2;
            if (i + 1 < row.size()) line += QString(std::max(2, end - widthOf(line)), u' ');
        }
        while (line.endsWith(u' ')) line.chop(1);
        lines << line;
    }
    return lines;
}

QStringList wrapped(const QString &head, const QStringList &parts) {
    const int indent = widthOf(head);
    QStringList lines{head};
    bool isEmpty = true;  // nothing but the head or the indent stands on the last line
    for (QString part : parts) {
        while (!part.isEmpty()) {
            const int used = widthOf(lines.last()) + (isEmpty ? 0 : 1);
            const bool fits = used + widthOf(part) <= longestLine;
            if (!fits && !isEmpty) {
                lines << QString(indent, u' ');
                isEmpty = true;
                continue;
            }
            const QString piece = fits ? part : fitting(part, longestLine - used);
            lines.last() += (isEmpty ? QString() : QString(u' ')) + piece;
            isEmpty = false;
            part.remove(0, piece.size());
        }
    }
    return lines;
}

// Japanese and Chinese have no spaces to part a text at.
QStringList explained(const QList<std::pair<QString, QString>> &rows) {
    int width = 0;
    for (const auto &[name, text] : rows) width = std::max(width, widthOf(name));
    QStringList lines;
    for (const auto &[name, text] : rows) {
        const QString gap(width - widthOf(name) + 2, u' ');
        lines << wrapped(u"  "_s + name + gap, text.split(u' '));
    }
    return lines;
}
