#include "link/DWTCommunicationControl.h"

#include "link/Binding.h"

namespace {

// Stores a copy of `frame`; true when there is none.
bool store(QByteArray &field, const QByteArray &frame) {
    field = frame;
    return field.isNull();
}

}  // namespace

std::shared_ptr<DWTCommunicationControl> DWTCommunicationControl::communicationControl(
    const PrinterEntry &entry) {
    auto link = make<DWTCommunicationControl>();
    return link && link->NUS_InitMember(entry) ? link : nullptr;
}

void DWTCommunicationControl::communicationToPrinterList(const PrinterEntry &entry) {
    dictionary_PrinterInfomation = entry;
}

bool DWTCommunicationControl::setStartSetting(const QByteArray &frame) {
    return store(settingStartCommand_Data, frame);
}

bool DWTCommunicationControl::setEndSetting(const QByteArray &frame) {
    return store(settingEndCommand_Data, frame);
}

bool DWTCommunicationControl::setUpdateSetting(const QByteArray &frame) {
    return store(settingUpdateCommand_Data, frame);
}

void DWTCommunicationControl::setCommandSettingToArray() {
    settingCommands_Array = {settingStartCommand_Data, settingUpdateCommand_Data,
                             settingEndCommand_Data};
}

void DWTCommunicationControl::qkStatusLength(int length) {
    qkStatusLength_Integer = length;
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

int DWTCommunicationControl::connectPrinter(int) {
    const auto library = installedLibrary();
    const QString uri = deviceURI();
    switch (library->ZMGetEngageStatusSub(uri, callTimeout)) {
        case 0:
            return library->ZMStartCommand(uri, settingCommands_Array, qkStatusLength_Integer,
                                           callTimeout);
        case 1:
            return library->ZMEngageConnectAndStartCommand(uri, settingCommands_Array,
                                                           qkStatusLength_Integer, callTimeout);
        default:
            return 1;
    }
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

bool DWTCommunicationControl::isClosedByPrinter() const {
    return m_exchange == ZMLib::Closed || m_exchange == ZMLib::NotOpen;
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
    return !dictionary_PrinterInfomation.isEmpty();
}

QString DWTCommunicationControl::deviceURI() const {
    return dictionary_PrinterInfomation.value(PrinterKey::DeviceURI);
}

// The reply when the library reported success.
std::optional<QByteArray> DWTCommunicationControl::replyOf(int result, const QByteArray &reply) {
    m_exchange = result;
    return result == ZMLib::Success ? std::optional(reply) : std::nullopt;
}
