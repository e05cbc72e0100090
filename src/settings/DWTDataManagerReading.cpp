// Reading: single items, the seven categories, the search for networks.

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Frames.h"

namespace {

// How many items a reading asks for.
constexpr int itemsRead = 24;

constexpr int scanFinished = 2;
// The first network found (counted from 1) whose block is then read.
constexpr std::pair<int, ItemCode> scanBlocks[] = {
    {1, 0x3121}, {6, 0x3122}, {11, 0x3123}, {16, 0x3124}};

using Entry = std::pair<QString, std::optional<SettingValue>>;

// A category in its order of building; it ends before the first key whose value is missing.
CategoryDictionary category(std::initializer_list<Entry> entries) {
    CategoryDictionary values;
    for (const auto &[key, value] : entries) {
        if (!value) break;
        values.insert(key, *value);
    }
    return values;
}

// The value of `key` in a decoded address item.
Entry from(const CategoryDictionary &item, const QString &key) {
    const auto found = item.constFind(key);
    return {key, found == item.constEnd() ? std::nullopt : std::optional(*found)};
}

// A decoder's value, from a reply that may be missing.
template <typename Value>
std::optional<Value> decoded(const QByteArray &reply, ItemCode code,
                             std::optional<Value> (*decoder)(const QByteArray &, ItemCode)) {
    if (reply.isEmpty()) return {};
    return decoder(reply, code);
}

}  // namespace

int DWTDataManager::setupDataFromPrinter(int, const Progress &progress) {
    resultSettingRequest_BOOL = true;
    dictionary_SaveData.reset();
    mutableDictionary_ChangeData.reset();
    m_told.clear();
    m_asked.clear();
    if (!ncc_Object) return ReadResult::NoLink;
    const int connected = ncc_Object->connectPrinter(0);
    if (connected == 0) {
        SettingRecord record;
        m_progress = progress;
        record.insert(DWT_View_Key_Network, NDM_NetworkDataFromPrinter());
        record.insert(DWT_View_Key_Wireless, NDM_WirelessDataFromPrinter());
        record.insert(DWT_View_Key_Infrastructure, NDM_InfrastructureDataFromPrinter());
        record.insert(DWT_View_Key_SimpleAP, NDM_SimpleAPDataFromPrinter());
        record.insert(DWT_View_Key_Ethernet, NDM_EthernetDataFromPrinter());
        record.insert(DWT_View_Key_Password, NDM_PasswordDataFromPrinter());
        record.insert(DWT_View_Key_Firmware, NDM_FirmwareDataFromPrinter());
        m_progress = nullptr;
        dictionary_SaveData = record;
        forgetMissing();
        ncc_Object->disconnectPrinter(0);
    }
    mutableDictionary_ChangeData = dictionary_SaveData.value_or(SettingRecord());
    if (connected != 0) return connected;
    return resultSettingRequest_BOOL ? ReadResult::Complete : ReadResult::MissingReply;
}

std::optional<QList<SSIDEntry>> DWTDataManager::SSIDList(const Progress &progress) {
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) return {};
    const bool answered = resultSettingRequest_BOOL;
    const auto networks = NDM_DataToSSIDArray(progress);
    if (isWaitCancelled()) resultSettingRequest_BOOL = answered;
    const bool closed = ncc_Object->isClosedByPrinter();
    ncc_Object->disconnectPrinter(0);
    if (closed) return {};
    return networks.value_or(QList<SSIDEntry>());
}

QList<ItemCode> DWTDataManager::notTold() const {
    QList<ItemCode> codes;
    for (const SentItem &item : sentItems())
        if (m_asked.contains(item.code) && !m_told.contains(item.code)) codes << item.code;
    return codes;
}

bool DWTDataManager::isTold(const QString &key) const {
    return std::any_of(sentItems().begin(), sentItems().end(), [&](const SentItem &item) {
        return item.keys.contains(key) && m_told.contains(item.code);
    });
}

void DWTDataManager::noteTold(ItemCode code, const QByteArray &reply) {
    m_asked.insert(code);
    if (const auto value = ItemCodec::wholeValue(reply, code)) m_told.insert(code, *value);
}

// A category ends before the first value that is missing, whatever was told of those after it.
void DWTDataManager::forgetMissing() {
    for (const SentItem &item : sentItems())
        if (!savedOf(item.viewKey).contains(item.keys.first())) m_told.remove(item.code);
}

QByteArray DWTDataManager::NDM_SendCommandSettingRequest(ItemCode code) {
    const QByteArray frame = Frames::requestFrame(code);
    QByteArray reply;
    if (ncc_Object) reply = ncc_Object->selectPrinterInfomation(frame).value_or(QByteArray());
    if (reply.isEmpty()) resultSettingRequest_BOOL = false;
    return reply;
}

template <typename Value>
std::optional<Value> DWTDataManager::ask(ItemCode code,
                                         std::optional<Value> (*decoder)(const QByteArray &,
                                                                         ItemCode)) {
    if (!resultSettingRequest_BOOL) return {};
    if (m_progress) m_progress(static_cast<int>(m_asked.size()), itemsRead);
    const QByteArray reply = NDM_SendCommandSettingRequest(code);
    noteTold(code, reply);
    return decoded(reply, code, decoder);
}

QString DWTDataManager::NDM_DataToString(ItemCode code) {
    return ask(code, ItemCodec::text).value_or(unreadable);
}

int DWTDataManager::NDM_DataToInteger(ItemCode code) {
    return ask(code, ItemCodec::integer).value_or(0);
}

QString DWTDataManager::NDM_DataToStringAndLength(ItemCode code) {
    return ask(code, ItemCodec::textWithLength).value_or(unreadable);
}

QString DWTDataManager::NDM_DataToMacAddress(ItemCode code) {
    return ask(code, ItemCodec::macAddress).value_or(unreadable);
}

QString DWTDataManager::NDM_DataToSoftwareVersion(ItemCode code) {
    return ask(code, ItemCodec::softwareVersion).value_or(unreadable);
}

std::optional<CategoryDictionary> DWTDataManager::NDM_DataToArray(ItemCode code) {
    return ask(code, ItemCodec::addresses);
}

std::optional<CategoryDictionary> DWTDataManager::NDM_DataToIntegerAndArray(ItemCode code) {
    return ask(code, ItemCodec::integerAndAddresses);
}

std::optional<QList<SSIDEntry>> DWTDataManager::NDM_SSIDInfo(ItemCode code) {
    return decoded(NDM_SendCommandSettingRequest(code), code, ItemCodec::networks);
}

CategoryDictionary DWTDataManager::NDM_NetworkDataFromPrinter() {
    const QString printer = NDM_DataToString(0x1006);
    const QString bonjour = NDM_DataToString(0x1004);
    const QString service = NDM_DataToString(0x1005);
    networkData_Dictionary = category({{DWT_SaveData_Network_Printer, printer},
                                       {DWT_SaveData_Network_Bonjour, bonjour},
                                       {DWT_SaveData_Network_BonjourService, service}});
    return networkData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_WirelessDataFromPrinter() {
    const int mode = NDM_DataToInteger(0x3000);
    const QString infrastructure = NDM_DataToMacAddress(0x3100);
    const QString simpleAP = NDM_DataToMacAddress(0x3200);
    wirelessData_Dictionary =
        category({{DWT_SaveData_Wireless_CommunicateMode, mode},
                  {DWT_SaveData_Wireless_InfrastructureMACAddress, infrastructure},
                  {DWT_SaveData_Wireless_SampleAPMACAddress, simpleAP}});
    return wirelessData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_InfrastructureDataFromPrinter() {
    infrastructureAddressInfo_Dictionary =
        NDM_DataToIntegerAndArray(0x3108).value_or(CategoryDictionary());
    infrastructureConnectAddressInfo_Dictionary =
        NDM_DataToArray(0x3119).value_or(CategoryDictionary());
    const int mode = NDM_DataToInteger(0x3101);
    const int authentic = NDM_DataToInteger(0x3102);
    const int encryption = NDM_DataToInteger(0x3103);
    const QString ssid = NDM_DataToStringAndLength(0x3104);
    const CategoryDictionary &configured = infrastructureAddressInfo_Dictionary;
    const CategoryDictionary &inUse = infrastructureConnectAddressInfo_Dictionary;
    infrastructureData_Dictionary =
        category({from(configured, DWT_SaveData_Infrastructure_IPAddressSetting),
                  from(configured, DWT_SaveData_Infrastructure_IPAddress),
                  from(configured, DWT_SaveData_Infrastructure_Subnetmask),
                  from(configured, DWT_SaveData_Infrastructure_Gateway),
                  from(inUse, DWT_SaveData_Connect_IPAddress),
                  from(inUse, DWT_SaveData_Connect_Subnetmask),
                  from(inUse, DWT_SaveData_Connect_Gateway),
                  {DWT_SaveData_Infrastructure_WirelessMode, mode},
                  {DWT_SaveData_Infrastructure_Authentic, authentic},
                  {DWT_SaveData_Infrastructure_Encryption, encryption},
                  {DWT_SaveData_Infrastructure_SSID, ssid},
                  // The printer never tells its keys, nor how its network was chosen.
                  {DWT_SaveData_Infrastructure_SSIDList_SSID, QString()},
                  {DWT_SaveData_Infrastructure_WEPKey, QString()},
                  {DWT_SaveData_Infrastructure_WEPKeyIndex, 1},
                  {DWT_SaveData_Infrastructure_PSK, QString()}});
    return infrastructureData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_SimpleAPDataFromPrinter() {
    simpleAPAddressData_Dictionary = NDM_DataToArray(0x3204).value_or(CategoryDictionary());
    simpleAPStartAddressData_Dictionary = NDM_DataToArray(0x3205).value_or(CategoryDictionary());
    const int mode = NDM_DataToInteger(0x3210);
    const int authentic = NDM_DataToInteger(0x3211);
    const int encryption = NDM_DataToInteger(0x3212);
    const QString ssid = NDM_DataToStringAndLength(0x3201);
    const QString psk = NDM_DataToStringAndLength(0x3202);
    simpleAPData_Dictionary =
        category({{DWT_SaveData_SimpleAP_WirelessMode, mode},
                  from(simpleAPStartAddressData_Dictionary, DWT_SaveData_SimpleAP_StartIPAddress),
                  from(simpleAPAddressData_Dictionary, DWT_SaveData_SimpleAP_IPAddress),
                  from(simpleAPAddressData_Dictionary, DWT_SaveData_SimpleAP_Subnetmask),
                  {DWT_SaveData_SimpleAP_Authentic, authentic},
                  {DWT_SaveData_SimpleAP_Encryption, encryption},
                  {DWT_SaveData_SimpleAP_SSID, ssid},
                  {DWT_SaveData_SimpleAP_PSK, psk}});
    return simpleAPData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_EthernetDataFromPrinter() {
    ethernetAddressInfo_Dictionary =
        NDM_DataToIntegerAndArray(0x2001).value_or(CategoryDictionary());
    ethernetConnectAddressInfo_Dictionary = NDM_DataToArray(0x2002).value_or(CategoryDictionary());
    const QString mac = NDM_DataToMacAddress(0x2000);
    const CategoryDictionary &configured = ethernetAddressInfo_Dictionary;
    const CategoryDictionary &inUse = ethernetConnectAddressInfo_Dictionary;
    ethernetData_Dictionary = category({{DWT_SaveData_Ethernet_MACAddress, mac},
                                        from(configured, DWT_SaveData_Ethernet_IPAddressSetting),
                                        from(configured, DWT_SaveData_Ethernet_IPAddress),
                                        from(configured, DWT_SaveData_Ethernet_Subnetmask),
                                        from(configured, DWT_SaveData_Ethernet_Gateway),
                                        from(inUse, DWT_SaveData_Connect_IPAddress),
                                        from(inUse, DWT_SaveData_Connect_Subnetmask),
                                        from(inUse, DWT_SaveData_Connect_Gateway)});
    return ethernetData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_PasswordDataFromPrinter() {
    passwordData_Dictionary =
        category({{DWT_SaveData_Password_Change, 0}, {DWT_SaveData_Password_Password, QString()}});
    return passwordData_Dictionary;
}

CategoryDictionary DWTDataManager::NDM_FirmwareDataFromPrinter() {
    const QString version = NDM_DataToSoftwareVersion(0x1008);
    const int timeout = NDM_DataToInteger(0x1007);
    firmwareData_Dictionary =
        category({{DWT_SaveData_Firmware, version}, {DWT_SaveData_Firmware_Timeout, timeout}});
    return firmwareData_Dictionary;
}

// Nothing when no poll had a well-formed answer.
std::optional<QList<SSIDEntry>> DWTDataManager::NDM_DataToSSIDArray(const Progress &progress) {
    NDM_IntegerToData(0x3120, 1);  // starts the search; whether it says so does not matter
    std::optional<QList<SSIDEntry>> networks;
    std::optional<ItemCodec::ScanStatus> status;
    for (int poll = 0; poll < scanPolls && !isWaitCancelled(); ++poll) {
        if (progress) progress(poll, scanPolls);
        status = ItemCodec::scanStatus(NDM_SendCommandSettingRequest(0x3120));
        if (status) networks = QList<SSIDEntry>();
        if (status && status->state == scanFinished) break;
        if (ncc_Object->isClosedByPrinter()) break;
        waitFor(m_scanInterval);
    }
    if (!status || status->state != scanFinished) return networks;
    for (const auto &[first, code] : scanBlocks)
        if (status->count >= first) *networks += NDM_SSIDInfo(code).value_or(QList<SSIDEntry>());
    return networks;
}
