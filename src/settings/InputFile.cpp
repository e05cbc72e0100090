#include "settings/InputFile.h"

#include <unistd.h>

#include <QFile>
#include <QStringDecoder>

#include "platform/core/Texts.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

std::optional<QByteArray> readInput(const QString &path, Fault &fault) {
    QFile file(path);
    const bool isOpen =
        path == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const auto refuse = [&](const QString &kind, const QString &words) {
        fault.kind = kind;
        fault.text = words;
        return std::nullopt;
    };
    const auto refuseUnread = [&] {
        return refuse(u"unreadable"_s,
                      localized("DWT_Localize_Cli_Fault_Unreadable").arg(path, file.errorString()));
    };
    if (!isOpen) return refuseUnread();
    QByteArray bytes;
    // A pipe hands over what it has at the moment.
    while (bytes.size() <= longestInput) {
        const QByteArray more = file.read(longestInput + 1 - bytes.size());
        if (more.isEmpty()) break;
        bytes += more;
    }
    if (file.error() != QFileDevice::NoError) return refuseUnread();
    if (bytes.size() > longestInput)
        return refuse(
            u"too-long"_s,
            localized("DWT_Localize_Cli_Fault_TooLong").arg(path).arg(longestInput >> 20));
    return bytes;
}

std::optional<QString> readSecret(const QString &path, Fault &fault) {
    auto bytes = readInput(path, fault);
    if (!bytes) return {};
    qsizetype end = bytes->indexOf('\n');
    if (end < 0) end = bytes->size();
    if (end > 0 && bytes->at(end - 1) == '\r') --end;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString secret = decoder.decode(QByteArrayView(*bytes).first(end));
    wipe(*bytes);
    if (!decoder.hasError() && !secret.isEmpty()) return secret;
    fault.kind = secret.isEmpty() ? u"empty-secret"_s : u"not-utf8"_s;
    fault.text = secret.isEmpty()
                     ? localized("DWT_Localize_Cli_Fault_EmptySecret").arg(path)
                     : u"%1: %2"_s.arg(path, localized("DWT_Localize_Cli_Fault_NotUtf8"));
    return {};
}
