#include "settings/Printers.h"

#include "link/DWTCommunicationControl.h"
#include "platform/core/PropertyList.h"

using namespace Qt::StringLiterals;

namespace {

// The supported models, by product name.
QVariantMap models() {
    return PropertyList::dictionary(u"ZMPrinterStatusTable"_s, u"plist"_s);
}

}  // namespace

QList<PrinterEntry> Printers::supported() {
    const QVariantMap known = models();
    const auto link = make<DWTCommunicationControl>();
    QList<PrinterEntry> supported;
    for (const PrinterEntry &entry : link->printerList().value_or(QList<PrinterEntry>()))
        if (known.contains(entry.value(PrinterKey::ProductName)) &&
            (isUSB(entry) || !link->checkLunchedMode()))
            supported.append(entry);
    return supported;
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
    return problems;
}

bool Printers::hasListChanged() {
    return make<DWTCommunicationControl>()->hasPrinterListChanged();
}
