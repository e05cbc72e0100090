#include "link/DWTCommunicationControl.h"

#include "link/Binding.h"

std::shared_ptr<DWTCommunicationControl> DWTCommunicationControl::communicationControl(
    const PrinterEntry &entry) {
    auto link = make<DWTCommunicationControl>();
    return link && link->NUS_InitMember(entry) ? link : nullptr;
}

std::optional<QList<PrinterEntry>> DWTCommunicationControl::printerList() {
    return installedLibrary()->ZMCreatePrinterURI();
}

QList<PrinterProblem> DWTCommunicationControl::printerProblems() {
    return installedLibrary()->problems();
}

bool DWTCommunicationControl::hasPrinterListChanged() {
    return installedLibrary()->hasListChanged();
}

bool DWTCommunicationControl::isPrinterListComplete() {
    return installedLibrary()->isListComplete();
}

QString DWTCommunicationControl::openedAddress() const {
    return installedLibrary()->addressOf(deviceURI());
}

int DWTCommunicationControl::connectPrinter(int) {
    const auto library = installedLibrary();
    const QString uri = deviceURI();
    const int status = library->ZMGetEngageStatusSub(uri, callTimeout);
    if (status == 0)
        return library->ZMStartCommand(uri, settingCommands_Array, qkStatusLength_Integer,
                                       callTimeout);
    if (status == 1)
        return library->ZMEngageConnectAndStartCommand(uri, settingCommands_Array,
                                                       qkStatusLength_Integer, callTimeout);
    return 1;
}

int DWTCommunicationControl::disconnectPrinter(int) {
    return installedLibrary()->ZMEndCommandAndEngageDisConnect(deviceURI(), settingCommands_Array,
                                                               qkStatusLength_Integer, callTimeout);
}

std::optional<QByteArray> DWTCommunicationControl::selectPrinterInfomation(
    const QByteArray &request) {
    QByteArray reply;
    const int result = installedLibrary()->ZMGetSettingData(
        deviceURI(), ZMLib::replyArea, request, reply, settingCommands_Array, callTimeout);
    return replyOf(result, reply);
}

std::optional<QByteArray> DWTCommunicationControl::sendSetting(const QByteArray &frame) {
    QByteArray reply;
    const int result =
        installedLibrary()->ZMSendSettingData(deviceURI(), static_cast<int>(frame.size()), frame,
                                              reply, settingCommands_Array, callTimeout);
    return replyOf(result, reply);
}

int DWTCommunicationControl::checkConnect(const QString &address) {
    const QString target = isUSB(dictionary_PrinterInfomation) ? ZMLib::anyPrinter : deviceURI();
    return installedLibrary()->ZMIOOpenForUDP(target, address, qkStatusLength_Integer, callTimeout);
}

// The fields are values: they begin empty and go with the object.
bool DWTCommunicationControl::NUS_Init() {
    return true;
}

void DWTCommunicationControl::NUS_Dealloc() {}

bool DWTCommunicationControl::NUS_InitMember(const PrinterEntry &entry) {
    dictionary_PrinterInfomation = entry;
    return !entry.isEmpty();
}

// The reply when the library reported success.
std::optional<QByteArray> DWTCommunicationControl::replyOf(int result, const QByteArray &reply) {
    m_exchange = result;
    return result == ZMLib::Success ? std::optional(reply) : std::nullopt;
}
