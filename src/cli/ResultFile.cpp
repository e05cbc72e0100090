#include "cli/ResultFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray asRow(const QStringList &cells) {
    QStringList quoted;
    for (QString cell : cells) {
        cell = shownText(cell);
        if (!cell.isEmpty() && u"=+-@"_s.contains(cell.front())) cell.prepend(u'\'');
        const bool isPlain = std::none_of(
            cell.begin(), cell.end(), [](QChar c) { return c == u',' || c == u';' || c == u'"'; });
        quoted << (isPlain ? cell : u'"' + cell.replace(u'"', u"\"\""_s) + u'"');
    }
    return quoted.join(u',').toUtf8() + '\n';
}

}  // namespace

ResultFile::~ResultFile() {
    if (m_file >= 0) ::close(m_file);
}

bool ResultFile::open(const QString &path, const QStringList &columns, const QStringList &inputs) {
    m_path = path;
    // What waits for a reader, such as a pipe, is not waited for.
    m_file = ::open(QFile::encodeName(path).constData(),
                    O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    if (m_file < 0) return fail(qt_error_string(errno));
    struct stat own {};
    ::fstat(m_file, &own);
    for (const QString &input : inputs) {
        struct stat other {};
        const bool isThere = ::stat(QFile::encodeName(input).constData(), &other) == 0;
        if (isThere && other.st_dev == own.st_dev && other.st_ino == own.st_ino)
            return fail(localized("DWT_Localize_Cli_Results_Input"));
    }
    const QByteArray row = asRow(columns);
    return S_ISREG(own.st_mode) ? take(row) : write(row);
}

// Takes an existing file only when it is one of results.
bool ResultFile::take(const QByteArray &columns) {
    if (::flock(m_file, LOCK_EX | LOCK_NB) != 0)
        return fail(localized("DWT_Localize_Cli_Results_InUse"));
    const off_t size = ::lseek(m_file, 0, SEEK_END);
    if (size == 0) return write(columns);
    QByteArray first(columns.size(), '\0');
    char last = '\n';
    const bool isRead = ::pread(m_file, first.data(), size_t(first.size()), 0) >= 0 &&
                        ::pread(m_file, &last, 1, size - 1) == 1;
    if (!isRead) return fail(qt_error_string(errno));
    if (first != columns) return fail(localized("DWT_Localize_Cli_Results_Foreign"));
    return last == '\n' || write("\n");
}

bool ResultFile::add(const QStringList &cells) {
    return write(asRow(cells));
}

bool ResultFile::write(const QByteArray &bytes) {
    const off_t begin = ::lseek(m_file, 0, SEEK_END);
    errno = 0;
    const ssize_t written = ::write(m_file, bytes.constData(), size_t(bytes.size()));
    if (written == bytes.size()) return true;
    // A part that fitted still counts as a failure, which the next write would name.
    if (written >= 0) errno = ENOSPC;
    fail(qt_error_string(errno));
    // A pipe has no beginning to go back to.
    if (begin >= 0 && ::ftruncate(m_file, begin) != 0) m_problem += u' ' + qt_error_string(errno);
    return false;
}

bool ResultFile::fail(const QString &words) {
    m_problem = localized("DWT_Localize_Cli_Unwritable").arg(m_path, words);
    return false;
}
