#include "settings/Printers.h"

#include <mutex>

#include "link/DWTCommunicationControl.h"
#include "platform/core/PropertyList.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

// The supported models, by product name.
QVariantMap models() {
    return PropertyList::dictionary(u"ZMPrinterStatusTable"_s, u"plist"_s);
}

// The printers of the last list that are of no supported model.
std::mutex mutex;
QList<PrinterProblem> unknownModels;

PrinterProblem unknownModel(const PrinterEntry &entry) {
    QStringList parts{entry.value(PrinterKey::ProductName), whereaboutsOf(entry)};
    parts.removeAll(QString());
    return {PrinterProblem::UnknownModel, parts.join(u", "_s)};
}

}  // namespace

QList<PrinterEntry> Printers::supported() {
    const QVariantMap known = models();
    const auto link = make<DWTCommunicationControl>();
    QList<PrinterEntry> supported;
    QList<PrinterProblem> unknown;
    for (const PrinterEntry &entry : link->printerList().value_or(QList<PrinterEntry>())) {
        const bool isKnown = known.contains(entry.value(PrinterKey::ProductName));
        if (isKnown && (isUSB(entry) || !link->checkLunchedMode())) supported.append(entry);
        if (!isKnown && isUSB(entry)) unknown.append(unknownModel(entry));
    }
    const std::lock_guard lock(mutex);
    unknownModels = unknown;
    return supported;
}

QString Printers::identityOf(const PrinterEntry &entry) {
    return entry.value(PrinterKey::DeviceURI) + u' ' + entry.value(PrinterKey::Plug);
}

int Printers::statusLengthOf(const PrinterEntry &entry) {
    return models()
        .value(entry.value(PrinterKey::ProductName))
        .toMap()
        .value(u"GDQKStatusLength"_s, ZMLib::defaultStatusLength)
        .toInt();
}

QList<PrinterProblem> Printers::problems() {
    QList<PrinterProblem> problems = make<DWTCommunicationControl>()->printerProblems();
    for (const QString &file : PropertyList::unusable())
        problems.append({PrinterProblem::BadFile, file});
    const std::lock_guard lock(mutex);
    return problems + unknownModels;
}

bool Printers::hasListChanged() {
    return make<DWTCommunicationControl>()->hasPrinterListChanged();
}

bool Printers::isListComplete() {
    return make<DWTCommunicationControl>()->isPrinterListComplete();
}
