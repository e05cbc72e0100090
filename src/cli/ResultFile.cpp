#include "cli/ResultFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool ResultFile::open(const QString &path, const QStringList &columns) {
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::Append)) return false;
    return m_file.size() > 0 || add(columns);
}

bool ResultFile::add(const QStringList &cells) {
    QStringList quoted;
    for (QString cell : cells) {
        const bool plain = std::none_of(cell.begin(), cell.end(), [](QChar c) {
            return c == u',' || c == u';' || c == u'"' || c == u'\n' || c == u'\r';
        });
        quoted << (plain ? cell : u'"' + cell.replace(u'"', u"\"\""_s) + u'"');
    }
    const QByteArray row = quoted.join(u',').toUtf8() + '\n';
    return m_file.write(row) == row.size() && m_file.flush();
}
