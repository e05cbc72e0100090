#include "virtualprinter/Description.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

DescriptionText failure() {
    return {{}, QString::fromStdString(std::generic_category().message(errno))};
}

bool isPrintable(char32_t character) {
    const QChar::Category category = QChar::category(character);
    return QChar::isPrint(character) && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph;
}

}  // namespace

DescriptionText readDescription(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat about {};
    if (::stat(name.constData(), &about) != 0) return failure();
    if (!S_ISREG(about.st_mode)) return {{}, u"not a regular file"_s};
    // Should a pipe have taken its place meanwhile, it is not waited for either.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) return failure();
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {{}, file.errorString()};
    const QByteArray bytes = file.read(longestDescription + 1);
    if (bytes.size() > longestDescription)
        return {{}, u"larger than %1 MiB"_s.arg(longestDescription >> 20)};
    return {bytes, {}};
}

QString quotable(const QString &text) {
    QString quote;
    const auto characters = text.left(longestQuote).toUcs4();
    for (const char32_t character : characters)
        if (isPrintable(character))
            quote += QString::fromUcs4(&character, 1);
        else
            quote += u"\\u%1"_s.arg(uint{character}, 4, 16, QChar(u'0'));
    if (text.size() > longestQuote) quote += u'…';
    return quote;
}
