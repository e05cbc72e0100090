#include "cli/Terminal.h"

#include <bsd/readpassphrase.h>
#include <poll.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <cstdio>

#include "cli/Columns.h"
#include "cli/Interrupt.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

// Longest password or answer that is typed, in bytes.
constexpr size_t longestAnswer = 256;

const QString programName = u"network-setting"_s;

void put(std::FILE *stream, const QString &text) {
    std::fputs(text.toLocal8Bit().constData(), stream);
}

QString wordsForTerminal(const PrinterProblem &problem) {
    if (problem.kind == PrinterProblem::InUse)
        return localized("DWT_Localize_Cli_InUse").arg(shownText(problem.subject));
    return wordsOf(problem);
}

}  // namespace

QString wordsOf(const Fault &fault) {
    QStringList place;
    if (fault.place.line > 0)
        place << localized("DWT_Localize_Cli_Place_Line").arg(fault.place.line);
    const QString quoted = u'"' + fault.place.name + u'"';
    if (!fault.place.name.isEmpty())
        place << (fault.place.isColumn ? localized("DWT_Localize_Cli_Place_Column").arg(quoted)
                                       : quoted);
    QStringList parts;
    if (!fault.place.file.isEmpty()) parts << fault.place.file;
    if (!place.isEmpty()) parts << place.join(u", "_s);
    return (parts << fault.text).join(u": "_s);
}

void Terminal::print(const QString &line) {
    showProgress({});
    put(stdout, terminalText(line) + u'\n');
}

void Terminal::print(const QList<QStringList> &rows, QList<int> &widths) {
    QList<QStringList> cells = rows;
    for (QStringList &row : cells)
        for (QString &cell : row) cell = terminalText(cell);
    for (const QString &line : aligned(cells, widths)) print(line);
}

void Terminal::print(const QJsonValue &value) {
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    showProgress({});
    std::fputs(document.toJson().constData(), stdout);
}

bool Terminal::flush() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

ExitCode Terminal::fail(ExitCode code, const QString &text, const QStringList &candidates) {
    if (m_json) {
        QJsonObject error{{u"code"_s, int(code)}, {u"message"_s, text}};
        if (!candidates.isEmpty())
            error.insert(u"candidates"_s, QJsonArray::fromStringList(candidates));
        printError(QString::fromUtf8(QJsonDocument(error).toJson(QJsonDocument::Compact)));
    } else {
        printError(programName + u": "_s + terminalText(text));
        for (const QString &candidate : candidates) printError(u"  "_s + terminalText(candidate));
    }
    return code;
}

ExitCode Terminal::fail(const QList<Fault> &faults) {
    for (const Fault &fault : faults) {
        if (!m_json) {
            printError(terminalText(wordsOf(fault)));
            continue;
        }
        QJsonObject error{{u"code"_s, int(ExitCode::InputRefused)}, {u"message"_s, fault.text}};
        if (!fault.place.file.isEmpty()) error.insert(u"file"_s, fault.place.file);
        if (fault.place.line > 0) error.insert(u"line"_s, fault.place.line);
        if (!fault.place.name.isEmpty()) error.insert(u"name"_s, fault.place.name);
        printError(QString::fromUtf8(QJsonDocument(error).toJson(QJsonDocument::Compact)));
    }
    return ExitCode::InputRefused;
}

void Terminal::note(const QString &text) {
    if (m_json)
        printError(QString::fromUtf8(
            QJsonDocument(QJsonObject{{u"note"_s, text}}).toJson(QJsonDocument::Compact)));
    else
        printError(terminalText(text));
}

void Terminal::note(const QList<PrinterProblem> &problems) {
    for (const PrinterProblem &problem : problems) note(wordsForTerminal(problem));
}

void Terminal::showProgress(const QString &text) {
    if (!::isatty(STDERR_FILENO) || (text.isEmpty() && !m_progress)) return;
    put(stderr, u"\r\x1b[K"_s + terminalText(text));
    m_progress = !text.isEmpty();
}

bool Terminal::canAsk() {
    return ::isatty(STDIN_FILENO) != 0;
}

bool Terminal::confirm(const QString &question) {
    showProgress({});
    flush();
    put(stderr, question + u' ');
    // A signal that comes right before the read would not end it.
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (!Interrupt::isRequested() && ::poll(&input, 1, waitSlice.count()) <= 0) {
    }
    std::array<char, longestAnswer> answer{};
    if (Interrupt::isRequested() || !std::fgets(answer.data(), answer.size(), stdin)) {
        put(stderr, u"\n"_s);
        return false;
    }
    const QString said = QString::fromLocal8Bit(answer.data()).trimmed().toLower();
    return said == u"y" || said == localized("DWT_Localize_Cli_Yes");
}

std::optional<QString> Terminal::askPassword(const QString &question) {
    std::array<char, longestAnswer> answer{};
    const QByteArray asked = (terminalText(question) + u' ').toLocal8Bit();
    const bool answered = ::readpassphrase(asked.constData(), answer.data(), answer.size(),
                                           RPP_ECHO_OFF | RPP_REQUIRE_TTY) != nullptr;
    const QString password = QString::fromUtf8(answer.data());
    ::explicit_bzero(answer.data(), answer.size());
    return answered ? std::optional(password) : std::nullopt;
}

void Terminal::printError(const QString &line) {
    showProgress({});
    flush();  // so that the two streams stay in order on one terminal
    put(stderr, line + u'\n');
}
