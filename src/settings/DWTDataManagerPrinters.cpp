// Listing printers and checking an address.

#include "platform/core/PropertyList.h"
#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Frames.h"

namespace {

constexpr ItemCode nameItem = 0x1006;

}  // namespace

std::optional<QList<PrinterEntry>> DWTDataManager::printerList(
    const std::function<void(const PrinterEntry &)> &found) {
    const auto link = make<DWTCommunicationControl>();
    if (!link) return {};
    QList<PrinterEntry> reached;
    for (PrinterEntry entry : supportedPrinters()) {
        if (isUSB(entry)) {
            if (isWaitCancelled()) continue;
            const QString name = printerName(link, entry);
            if (name == unreadable) continue;
            entry.insert(PrinterKey::MachineName, name);
        }
        reached.append(entry);
        if (found) found(entry);
    }
    return reached;
}

QList<PrinterEntry> DWTDataManager::supportedPrinters() {
    const QVariantMap models =
        PropertyList::dictionary(QStringLiteral("ZMPrinterStatusTable"), QStringLiteral("plist"));
    const auto listed = make<DWTCommunicationControl>()->printerList();
    QList<PrinterEntry> supported;
    for (const PrinterEntry &entry : listed.value_or(QList<PrinterEntry>()))
        if (models.contains(entry.value(PrinterKey::ProductName)) &&
            (isUSB(entry) || !checkLunchedMode()))
            supported.append(entry);
    return supported;
}

QList<PrinterProblem> DWTDataManager::printerProblems() {
    QList<PrinterProblem> problems = make<DWTCommunicationControl>()->printerProblems();
    for (const QString &file : PropertyList::unusable())
        problems.append({PrinterProblem::BadFile, file});
    return problems;
}

bool DWTDataManager::hasPrinterListChanged() {
    return make<DWTCommunicationControl>()->hasPrinterListChanged();
}

QString DWTDataManager::printerName(const std::shared_ptr<DWTCommunicationControl> &link,
                                    const PrinterEntry &entry) {
    NDM_InitMemberToPrinterList(link, entry);  // the name is asked for whatever it says
    return NDM_DataToPrinterName(link);
}

int DWTDataManager::isCheckConnectToPrinter(const QStringList &address) {
    if (address.size() != 4 || !ncc_Object) return -1;
    QStringList octets;
    for (const QString &part : address) octets << QString::number(integerOf(part));
    return ncc_Object->checkConnect(octets.join(u'.'));
}

bool DWTDataManager::NDM_InitMemberToPrinterList(
    const std::shared_ptr<DWTCommunicationControl> &link, const PrinterEntry &entry) {
    if (!link) return false;
    link->communicationToPrinterList(entry);
    return installCommands(*link);
}

// Asks through a link of its own, beside the read-failure flag.
QString DWTDataManager::NDM_DataToPrinterName(
    const std::shared_ptr<DWTCommunicationControl> &link) {
    if (!link || link->connectPrinter(0) != 0) return unreadable;
    const auto reply = link->selectPrinterInfomation(Frames::requestFrame(nameItem));
    link->disconnectPrinter(0);
    return ItemCodec::text(reply.value_or(QByteArray()), nameItem).value_or(unreadable);
}
