#include "cli/Choice.h"

#include "cli/Look.h"
#include "cli/Table.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

namespace {

bool isSameWord(const QString &a, const QString &b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// By what is known of a printer at once.
bool isKnownBy(const PrinterEntry &entry, const QString &named) {
    return entry.value(PrinterKey::DeviceURI) == named ||
           isSameWord(entry.value(PrinterKey::SerialNumber), named) ||
           entry.value(PrinterKey::Address) == named;
}

QList<PrinterEntry> having(const QList<PrinterEntry> &entries, const auto &isMeant) {
    QList<PrinterEntry> meant;
    for (const PrinterEntry &entry : entries)
        if (isMeant(entry)) meant << entry;
    return meant;
}

// The narrowest choice that is left: one over USB before one on the network, which cannot be
// changed, and one of exactly that name before others.
QList<PrinterEntry> preferred(QList<PrinterEntry> meant, const QString &named) {
    const auto narrow = [&](const auto &isBetter) {
        const QList<PrinterEntry> better = having(meant, isBetter);
        if (meant.size() > 1 && !better.isEmpty()) meant = better;
    };
    narrow([&](const PrinterEntry &entry) { return entry.value(PrinterKey::DeviceURI) == named; });
    narrow([](const PrinterEntry &entry) { return isUSB(entry); });
    narrow([&](const PrinterEntry &entry) {
        return entry.value(PrinterKey::SerialNumber) == named || listedName(entry) == named;
    });
    return meant;
}

// A MAC address shows only when a printer is read.
std::optional<Session> openByMac(const QList<PrinterEntry> &entries, const QString &digits) {
    for (const PrinterEntry &entry : entries) {
        Session session(entry);
        if (isWaitCancelled()) return {};
        if (session.read() != Session::Reading::NotReached &&
            macsOf(session.record()).contains(digits))
            return session;
    }
    return {};
}

}  // namespace

// What is known at once is looked at first; whose a name is shows when all names are known.
std::optional<Session> openPrinter(Context &context, const QString &named, Failure &failure) {
    Look look;
    const auto atOnce = [&] {
        return preferred(having(look.printers(),
                                [&](const PrinterEntry &entry) { return isKnownBy(entry, named); }),
                         named);
    };
    const auto isFound = [&] { return atOnce().size() == 1; };
    if (!isFound()) look.wait(QDeadlineTimer(Look::longest), isFound);
    QList<PrinterEntry> meant = atOnce();
    if (meant.size() != 1)
        meant = preferred(having(look.printers(),
                                 [&](const PrinterEntry &entry) {
                                     return isKnownBy(entry, named) ||
                                            isSameWord(listedName(entry), named);
                                 }),
                          named);
    if (meant.size() == 1) {
        look.leave(meant.first());
        return Session(meant.first());
    }
    if (const QString digits = macDigits(named); meant.isEmpty() && !digits.isEmpty())
        if (auto session = openByMac(look.printers(), digits)) return session;
    if (isWaitCancelled()) {
        failure = {ExitCode::Stopped, localized("DWT_Localize_Cli_Stopped"), u"stopped"_s};
        return {};
    }
    if (meant.isEmpty()) context.terminal.note(Printers::problems());
    QStringList candidates;
    for (const PrinterEntry &entry : std::as_const(meant))
        candidates << cellsOf(entry).join(u"  "_s);
    failure = {
        ExitCode::NotReached,
        localized(meant.isEmpty() ? "DWT_Localize_Cli_NotFound" : "DWT_Localize_Cli_Ambiguous")
            .arg(named),
        meant.isEmpty() ? u"not-found"_s : u"ambiguous"_s, candidates};
    return {};
}

std::optional<Session> openForChange(Context &context, const QString &named, Failure &failure) {
    auto session = openPrinter(context, named, failure);
    if (!session || isUSB(session->entry())) return session;
    failure = {ExitCode::UsedWrongly, localized("DWT_Localize_Cli_NotUsb").arg(session->name()),
               u"not-usb"_s};
    return {};
}

Session::Reading readPrinter(Context &context, Session &session) {
    const QString name = session.name();
    const Session::Reading reading = session.read([&](int done, int total) {
        context.terminal.showProgress(
            localized("DWT_Localize_Wait_Reading")
                .arg(name, QString::number(done), QString::number(total)));
    });
    context.terminal.showProgress({});
    return reading;
}
