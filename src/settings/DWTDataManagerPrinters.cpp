// Listing printers and checking an address.

#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Frames.h"
#include "settings/Printers.h"
#include "settings/Values.h"

namespace {

constexpr ItemCode nameItem = 0x1006;

}  // namespace

std::optional<QList<PrinterEntry>> DWTDataManager::printerList(
    const std::function<void(const PrinterEntry &)> &found) {
    const auto link = make<DWTCommunicationControl>();
    if (!link) return {};
    QList<PrinterEntry> reached;
    for (PrinterEntry entry : Printers::supported()) {
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

QString DWTDataManager::printerName(const std::shared_ptr<DWTCommunicationControl> &link,
                                    const PrinterEntry &entry) {
    NDM_InitMemberToPrinterList(link, entry);  // the name is asked for whatever it says
    return NDM_DataToPrinterName(link);
}

int DWTDataManager::isCheckConnectToPrinter(const QStringList &address) {
    const QString dotted = dottedAddress(address);
    return dotted.isEmpty() || !ncc_Object ? -1 : ncc_Object->checkConnect(dotted);
}

bool DWTDataManager::NDM_InitMemberToPrinterList(
    const std::shared_ptr<DWTCommunicationControl> &link, const PrinterEntry &entry) {
    if (!link) return false;
    link->communicationToPrinterList(entry);
    return installCommands(*link);
}

QString DWTDataManager::NDM_DataToPrinterName(
    const std::shared_ptr<DWTCommunicationControl> &link) {
    if (!link || link->connectPrinter(0) != 0) return unreadable;
    const auto reply = link->selectPrinterInfomation(Frames::requestFrame(nameItem));
    link->disconnectPrinter(0);
    return ItemCodec::text(reply.value_or(QByteArray()), nameItem).value_or(unreadable);
}
