#include "cli/Terminal.h"

#include <bsd/readpassphrase.h>
#include <poll.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <cstdio>

#include "cli/Columns.h"
#include "cli/Faults.h"
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

QString compact(const QJsonObject &object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString wordsForTerminal(const PrinterProblem &problem) {
    if (problem.kind == PrinterProblem::InUse)
        return localized("DWT_Localize_Cli_InUse").arg(shownText(problem.subject));
    return wordsOf(problem);
}

}  // namespace

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

void Terminal::printLine(const QJsonObject &object) {
    showProgress({});
    put(stdout, compact(object) + u'\n');
}

bool Terminal::flush() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

ExitCode Terminal::fail(const Failure &failure) {
    if (m_json) {
        QJsonObject error{
            {u"code"_s, int(failure.code)},
            {u"message"_s, failure.text},
            {u"fault"_s, failure.kind.isEmpty() ? wordOf(failure.code) : failure.kind}};
        if (!failure.candidates.isEmpty())
            error.insert(u"candidates"_s, QJsonArray::fromStringList(failure.candidates));
        printError(compact(error));
    } else {
        printError(programName + u": "_s + terminalText(failure.text));
        for (const QString &candidate : failure.candidates)
            printError(u"  "_s + terminalText(candidate));
    }
    return failure.code;
}

ExitCode Terminal::fail(const QList<Fault> &faults) {
    for (const Fault &fault : faults.first(std::min(faults.size(), mostFaults))) {
        if (m_json) {
            QJsonObject error = asJson(fault);
            error.insert(u"code"_s, int(ExitCode::InputRefused));
            printError(compact(error));
        } else {
            printError(terminalText(wordsOf(fault)));
        }
    }
    if (faults.size() > mostFaults)
        note(localized("DWT_Localize_Cli_MoreFaults").arg(faults.size() - mostFaults));
    return ExitCode::InputRefused;
}

void Terminal::note(const QString &text) {
    if (m_json)
        printError(compact({{u"note"_s, text}}));
    else
        printError(terminalText(text));
}

void Terminal::note(const QList<PrinterProblem> &problems) {
    for (const PrinterProblem &problem : problems) note(wordsForTerminal(problem));
}

void Terminal::showProgress(const QString &text) {
    if (m_json || !::isatty(STDERR_FILENO) || (text.isEmpty() && !m_progress)) return;
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
    return QStringList(localized("DWT_Localize_Cli_Yes").split(u' ')).contains(said);
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
