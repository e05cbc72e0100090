// Listing printers, checking an address, password state and login.

#include "platform/core/PropertyList.h"
#include "settings/DWTDataManager.h"
#include "settings/Frames.h"

namespace {

const QString connectionType = QStringLiteral("ConnectionType");
const QString productName = QStringLiteral("ProductName");
const QString machineName = QStringLiteral("MachineName");

constexpr ItemCode nameItem = 0x1006;

}  // namespace

std::optional<QList<PrinterEntry>> DWTDataManager::printerList() {
    const auto link = make<DWTCommunicationControl>();
    if (!link) return {};
    QList<PrinterEntry> supported;
    const QVariantMap models =
        PropertyList::dictionary(QStringLiteral("ZMPrinterStatusTable"), QStringLiteral("plist"));
    for (PrinterEntry entry : link->printerList().value_or(QList<PrinterEntry>())) {
        if (!models.contains(entry.value(productName))) continue;
        const bool installer = checkLunchedMode();
        if (entry.value(connectionType) == u"USB") {
            const QString name = printerName(link, entry);
            if (name == unreadable) continue;
            entry.insert(machineName, name);
        } else if (installer) {
            continue;
        }
        supported.append(entry);
    }
    return supported;
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

int DWTDataManager::isPassword() {
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) return PasswordState::NoAnswer;
    const int state = NDM_DataToInteger(0x1000);
    ncc_Object->disconnectPrinter(0);
    switch (state) {
        case 0:
            return PasswordState::NotSet;
        case 1:
            return PasswordState::Set;
        default:
            return PasswordState::NoAnswer;
    }
}

int DWTDataManager::checkLoginPassword(const QString &password) {
    if (!ncc_Object) return LoginResult::NoLink;
    const int result = NDM_StringToData(0x1001, password);
    if (result != SettingResult::Accepted) return result;
    loginPassword_String = password;
    return LoginResult::Accepted;
}

int DWTDataManager::connectPrinter() {
    return ncc_Object ? ncc_Object->connectPrinter(0) : ReadResult::NoLink;
}

void DWTDataManager::disconnectPrinter() {
    if (ncc_Object) ncc_Object->disconnectPrinter(0);
}

void DWTDataManager::qkStatusLength(int length) {
    if (ncc_Object) ncc_Object->qkStatusLength(length);
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
