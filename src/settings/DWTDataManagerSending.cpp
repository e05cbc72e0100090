// Sending: single items, and the whole record on a thread of its own.

#include <algorithm>

#include "platform/core/MainThread.h"
#include "platform/core/NotificationCenter.h"
#include "settings/DWTDataManager.h"
#include "settings/Values.h"
#include "settings/Wipe.h"

namespace {

using Layout = Item::Layout;

constexpr ItemCode ssidItem = 0x3104;
constexpr ItemCode passwordItem = 0x1003;

// How far a send is, in percent, whenever a category was written.
constexpr int progressSteps[] = {16, 33, 50, 66, 85, 100};

// How far a send is, in percent, before an item is written: between the steps of its category and,
// before the last one, not at the end.
double progressBefore(const Item &item) {
    const auto &items = sentItems();
    const auto isOfCategory = [&](const Item &other) { return other.viewKey == item.viewKey; };
    const auto first = std::find_if(items.begin(), items.end(), isOfCategory);
    const auto count = std::count_if(items.begin(), items.end(), isOfCategory);
    const auto before = std::find_if(first, items.end(),
                                     [&](const Item &other) { return other.code == item.code; }) -
                        first;
    QStringList categories;
    for (auto i = items.begin(); i != first; ++i)
        if (!categories.contains(i->viewKey)) categories << i->viewKey;
    const auto steps = std::size(progressSteps);
    const auto index = size_t(categories.size());
    if (index == steps) return progressSteps[steps - 1] - 1.0;
    const double from = index > 0 ? progressSteps[index - 1] : 0;
    return from + (progressSteps[index] - from) * double(before) / double(count);
}

// Whether two categories differ in what an item carries.
bool differ(const Item &item, const CategoryDictionary &a, const CategoryDictionary &b) {
    return std::any_of(item.keys.begin(), item.keys.end(), [&](const QString &key) {
        return a.contains(key) != b.contains(key) || !isSame(a.value(key), b.value(key));
    });
}

// The name of a network of the list, where one is to be sent.
QByteArray networkOfList(const Item &item, const CategoryDictionary &change) {
    return item.code == ssidItem ? bytesValue(change, DWT_SaveData_Infrastructure_SSIDList_SSID)
                                 : QByteArray();
}

}  // namespace

void DWTDataManager::sendDataToPrinter() {
    const auto work = [self = shared_from_this()] { self->NDM_SendDataToPrinterThread(); };
    if (MainThread::startBackgroundWork(work)) return;
    m_ending = {};
    wipe(loginPassword_String);
    NDM_ProgressSetting(DWT_DataSend_Stop_Message, 1);
}

WriteResult DWTDataManager::NDM_ResultDataToInteger(const std::optional<QByteArray> &reply,
                                                    ItemCode code) {
    const auto result = ItemCodec::result(reply.value_or(QByteArray()), code);
    if (!result) return {WriteResult::NoReply};
    return {*result == 0 ? WriteResult::Accepted : WriteResult::Refused, *result};
}

WriteResult DWTDataManager::sendFrame(ItemCode code, std::optional<QByteArray> frame) {
    if (!ncc_Object || !frame) return {WriteResult::Unsent};
    const auto reply = ncc_Object->sendSetting(*frame);
    wipe(*frame);
    return NDM_ResultDataToInteger(reply, code);
}

void DWTDataManager::NDM_SendDataToPrinterThread() {
    m_ending = {};
    NDM_ProgressSetting(DWT_DataSend_Start_Message, 0);
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) {
        m_ending.course = Ending::Course::NotReached;
        wipe(loginPassword_String);
        NDM_ProgressSetting(DWT_DataSend_Stop_Message, 1);
        return;
    }
    const bool loggedIn = sendLogin();
    std::optional<Accepted> accepted;
    if (loggedIn) accepted = sendCategories();
    // What was accepted is applied with the end of the connection only.
    if (ncc_Object->disconnectPrinter(0) != 0 && loggedIn) m_ending.course = Ending::Course::Lost;
    if (accepted && !isLost()) {
        dictionary_SaveData = accepted->record;
        m_reported = accepted->reported;
    }
    NDM_ProgressSetting(DWT_DataSend_Stop_Message, isLost() ? 1 : 0);
}

void DWTDataManager::NDM_ProgressSetting(const QString &notification, double step,
                                         const QString &setting) {
    QVariantMap information{{MSW_Searching_Value_Minimum, 0.0},
                            {MSW_Searching_Value_Maximum, 100.0},
                            {MSW_Searching_Value_Current, step}};
    if (!setting.isEmpty()) information.insert(DWT_DataSend_Setting, setting);
    NotificationCenter::shared().postOnMainThreadAndWait(notification, this, information);
}

// Without a password the login counts as passed. The password is used once.
bool DWTDataManager::sendLogin() {
    QString password = std::exchange(loginPassword_String, QString());
    if (password.isEmpty()) return true;
    const WriteResult result = NDM_StringToData(0x1001, password);
    wipe(password);
    if (result.kind == WriteResult::Accepted) return true;
    if (ncc_Object->isClosedByPrinter()) m_ending.course = Ending::Course::Lost;
    m_ending.login =
        result.kind == WriteResult::NoReply ? Ending::Login::NoReply : Ending::Login::Refused;
    return false;
}

DWTDataManager::Accepted DWTDataManager::sendCategories() {
    Accepted accepted{savedData(), m_reported};
    const int *step = progressSteps;
    QString viewKey = sentItems().first().viewKey;
    for (const Item &item : sentItems()) {
        if (item.viewKey != viewKey && !isLost())
            NDM_ProgressSetting(DWT_DataSend_Progress_Message, *step++);
        viewKey = item.viewKey;
        if (isUsed(item)) send(item, accepted);
    }
    return accepted;
}

// Whether the change data uses an item: the key of the encryption, and an entered password.
bool DWTDataManager::isUsed(const Item &item) const {
    const CategoryDictionary change = changeData().value(item.viewKey);
    if (item.code == passwordItem) return integerValue(change, DWT_SaveData_Password_Change) != 0;
    const bool isNetworkKey = item.isSecret && item.viewKey == DWT_View_Key_Infrastructure;
    return !isNetworkKey || item.keys.contains(networkKeyOf(
                                integerValue(change, DWT_SaveData_Infrastructure_Encryption)));
}

void DWTDataManager::send(const Item &item, Accepted &accepted) {
    const CategoryDictionary change = changeData().value(item.viewKey);
    const QByteArray chosen = networkOfList(item, change);
    const bool changed = !chosen.isEmpty() || differ(item, change, savedData().value(item.viewKey));
    if (isLost() || (!changed && !isWorthSending(item))) return;
    const QStringList names = namesOf({settingOf(item.viewKey, item.keys.first())}, Naming::Labels);
    NDM_ProgressSetting(DWT_DataSend_Item_Message, progressBefore(item), names.first());
    const WriteResult result = write(item, change, changed);
    note(item, change, result);
    // Keys and passwords never become saved values.
    if (result.kind != WriteResult::Accepted || item.isSecret) return;
    CategoryDictionary &saved = accepted.record[item.viewKey];
    for (const QString &key : item.keys) saved.insert(key, change.value(key));
    if (!changed) return;
    accepted.reported.insert(item.code, textValue(change, item.keys.first()).toUtf8());
    if (item.code != ssidItem) return;
    saved.insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                 change.value(DWT_SaveData_Infrastructure_SSIDList_SSID));
    if (chosen.isEmpty()) return;
    saved.insert(DWT_SaveData_Infrastructure_SSID, ItemCodec::textOf(chosen));
    accepted.reported.insert(item.code, chosen);
}

// An unchanged value is worth it when it was reported and is no empty text, which no frame carries.
bool DWTDataManager::isWorthSending(const Item &item) const {
    if (item.code == passwordItem) return true;
    const bool isText = item.layout == Layout::Text || item.layout == Layout::CountedText;
    return m_reported.contains(item.code) && !(isText && m_reported.value(item.code).isEmpty());
}

// What was not changed goes back as the very bytes that were reported.
WriteResult DWTDataManager::write(const Item &item, const CategoryDictionary &change,
                                  bool changed) {
    const QStringList &keys = item.keys;
    const QByteArray reported = m_reported.value(item.code), chosen = networkOfList(item, change);
    switch (item.layout) {
        case Layout::Text:
            if (changed || item.readTurn == 0)
                return NDM_StringToData(item.code, textValue(change, keys[0]));
            return sendFrame(item.code, ItemCodec::textBytesFrame(item.code, reported));
        case Layout::CountedText:
            if (!chosen.isEmpty()) return NDM_DataToData(item.code, chosen);
            if (!changed) return NDM_DataToData(item.code, reported);
            return NDM_StringAndLengthToData(item.code, textValue(change, keys[0]));
        case Layout::IntegerAndText:
            return NDM_IntegerAndStringAndLengthToData(item.code, integerValue(change, keys[0]),
                                                       textValue(change, keys[1]));
        case Layout::IntegerAndAddresses:
            return NDM_IntegerAndArrayToData(
                item.code, integerValue(change, keys[0]), addressValue(change, keys[1]),
                addressValue(change, keys[2]), addressValue(change, keys[3]));
        default:
            return NDM_IntegerToData(item.code, integerValue(change, keys[0]));
    }
}

void DWTDataManager::note(const Item &item, const CategoryDictionary &change,
                          const WriteResult &result) {
    if (result.kind == WriteResult::NoReply && ncc_Object->isClosedByPrinter()) {
        m_ending.course = Ending::Course::Lost;
        return;
    }
    const auto state = result.kind == WriteResult::Accepted  ? Ending::State::Accepted
                       : result.kind == WriteResult::NoReply ? Ending::State::Unclear
                                                             : Ending::State::Refused;
    const CategoryDictionary saved = savedData().value(item.viewKey);
    for (const QString &key : item.keys) {
        Ending::Part part{settingOf(item.viewKey, key), state, result.code};
        part.isChanged = item.isSecret || !isSame(change.value(key), saved.value(key));
        if (!item.isSecret) part.sentText = textOrEmpty(*part.setting, change);
        m_ending.parts << part;
    }
}
