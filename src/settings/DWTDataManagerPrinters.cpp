// Listing printers and checking an address.

#include "settings/DWTDataManager.h"
#include "settings/Frames.h"
#include "settings/Printers.h"
#include "settings/Values.h"

namespace {

constexpr ItemCode nameItem = 0x1006;

}  // namespace

std::optional<QList<PrinterEntry>> DWTDataManager::printerList() {
    if (!make<DWTCommunicationControl>()) return {};
    return Printers::supported();
}

QString DWTDataManager::printerName(const std::shared_ptr<DWTCommunicationControl> &link,
                                    const PrinterEntry &entry) {
    NDM_InitMemberToPrinterList(link, entry);  // the name is asked for whatever it says
    return NDM_DataToPrinterName(link);
}

QString DWTDataManager::openedAddress() const {
    return ncc_Object ? ncc_Object->openedAddress() : QString();
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
