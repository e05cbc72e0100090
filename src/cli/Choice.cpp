#include "cli/Choice.h"

#include "cli/Look.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"

using namespace Qt::StringLiterals;

// A URI and a serial number that one printer has are known at once; whose a name is shows when all
// names are known.
std::optional<Session> openPrinter(Context &context, const QString &named, Failure &failure) {
    Look look;
    const auto with = [&](const auto &isMeant) {
        QList<PrinterEntry> meant;
        for (const PrinterEntry &entry : look.printers())
            if (isMeant(entry)) meant << entry;
        return meant;
    };
    const auto atOnce = [&] {
        const auto byUri = with(
            [&](const PrinterEntry &entry) { return entry.value(PrinterKey::DeviceURI) == named; });
        const auto bySerial = with([&](const PrinterEntry &entry) {
            return entry.value(PrinterKey::SerialNumber) == named;
        });
        return byUri.isEmpty() ? bySerial : byUri;
    };
    const auto isFound = [&] { return atOnce().size() == 1; };
    if (!isFound()) look.wait(QDeadlineTimer(Look::longest), isFound);
    QList<PrinterEntry> meant = atOnce();
    if (meant.size() != 1)
        meant = with([&](const PrinterEntry &entry) {
            return entry.value(PrinterKey::SerialNumber) == named || listedName(entry) == named;
        });
    if (meant.size() == 1) {
        look.leave(meant.first());
        return Session(meant.first());
    }
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
