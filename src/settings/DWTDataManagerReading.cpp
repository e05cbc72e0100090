// Reading: single items, the seven categories, the search for networks.

#include <algorithm>
#include <utility>

#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Frames.h"

namespace {

constexpr int scanFinished = 2;
// The first network found (counted from 1) whose block is then read.
constexpr std::pair<int, ItemCode> scanBlocks[] = {
    {1, 0x3121}, {6, 0x3122}, {11, 0x3123}, {16, 0x3124}};

}  // namespace

int DWTDataManager::setupDataFromPrinter(int, const Progress &progress) {
    resultSettingRequest_BOOL = true;
    dictionary_SaveData.reset();
    mutableDictionary_ChangeData.reset();
    m_reported.clear();
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
    auto networks = NDM_DataToSSIDArray(progress);
    ncc_Object->disconnectPrinter(0);
    return networks;
}

QList<const Setting *> DWTDataManager::notReported() const {
    QList<const Setting *> missing;
    for (const Setting &setting : settings())
        if (setting.isSent() && m_asked.contains(setting.item.code) &&
            !m_reported.contains(setting.item.code))
            missing << &setting;
    return missing;
}

bool DWTDataManager::isReported(const QString &key) const {
    return std::any_of(sentItems().begin(), sentItems().end(), [&](const Item &item) {
        return item.keys.contains(key) && m_reported.contains(item.code);
    });
}

void DWTDataManager::noteReported(ItemCode code, const QByteArray &reply) {
    m_asked.insert(code);
    if (const auto value = ItemCodec::wholeValue(reply, code)) m_reported.insert(code, *value);
}

// A category ends before the first value that is missing, whatever was reported after it.
void DWTDataManager::forgetMissing() {
    for (const Item &item : sentItems())
        if (!savedData().value(item.viewKey).contains(item.keys.first()))
            m_reported.remove(item.code);
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
    if (m_progress) m_progress(int(m_asked.size()), int(readItems().size()));
    const QByteArray reply = NDM_SendCommandSettingRequest(code);
    noteReported(code, reply);
    return decoder(reply, code);
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
    return ItemCodec::networks(NDM_SendCommandSettingRequest(code), code);
}

CategoryDictionary DWTDataManager::valuesOf(const Item &item) {
    using Layout = Item::Layout;
    const auto one = [&](const SettingValue &value) {
        return CategoryDictionary{{item.keys.first(), value}};
    };
    switch (item.layout) {
        case Layout::Text:
            return one(NDM_DataToString(item.code));
        case Layout::CountedText:
            return one(NDM_DataToStringAndLength(item.code));
        case Layout::Mac:
            return one(NDM_DataToMacAddress(item.code));
        case Layout::Version:
            return one(NDM_DataToSoftwareVersion(item.code));
        case Layout::Addresses:
            return NDM_DataToArray(item.code).value_or(CategoryDictionary());
        case Layout::IntegerAndAddresses:
            return NDM_DataToIntegerAndArray(item.code).value_or(CategoryDictionary());
        default:  // no printer reports the text of IntegerAndText
            return one(NDM_DataToInteger(item.code));
    }
}

CategoryDictionary DWTDataManager::readCategory(const QString &viewKey) {
    CategoryDictionary values;
    for (const Item &item : readItems())
        if (item.viewKey == viewKey) values.insert(valuesOf(item));
    return categoryOf(viewKey, values);
}

// Nothing when the printer falls silent, does not finish, or leaves out a part of the list.
std::optional<QList<SSIDEntry>> DWTDataManager::NDM_DataToSSIDArray(const Progress &progress) {
    NDM_IntegerToData(0x3120, 1);  // starts the search; whether it says so does not matter
    for (int poll = 0; poll < scanPolls && !isWaitCancelled(); ++poll) {
        if (progress) progress(poll, scanPolls);
        const QByteArray reply = NDM_SendCommandSettingRequest(0x3120);
        if (reply.isEmpty()) return {};
        const auto status = ItemCodec::scanStatus(reply);
        if (status && status->state == scanFinished) return networksOf(status->count);
        waitFor(m_scanInterval);
    }
    return {};
}

std::optional<QList<SSIDEntry>> DWTDataManager::networksOf(int count) {
    QList<SSIDEntry> networks;
    for (const auto &[first, code] : scanBlocks) {
        if (count < first) break;
        const auto block = NDM_SSIDInfo(code);
        if (!block) return {};
        networks += *block;
    }
    return networks;
}
