// Sending: single items, and the whole record on a thread of its own.

#include "platform/core/MainThread.h"
#include "platform/core/NotificationCenter.h"
#include "settings/DWTDataManager.h"

namespace {

// Takes what the printer accepted from the change into the copy of the saved category.
void take(CategoryDictionary &copy, const CategoryDictionary &change, const QStringList &keys) {
    for (const QString &key : keys)
        if (change.contains(key)) copy.insert(key, change.value(key));
}

}  // namespace

void DWTDataManager::sendDataToPrinter() {
    MainThread::startBackgroundWork(
        [self = shared_from_this()] { self->NDM_SendDataToPrinterThread(); });
}

int DWTDataManager::NDM_ResultDataToInteger(const std::optional<QByteArray> &reply, ItemCode code) {
    if (!reply || reply->isEmpty()) return SettingResult::NoReply;
    return ItemCodec::result(*reply, code);
}

int DWTDataManager::NDM_StringToData(ItemCode code, const QString &text) {
    return sendFrame(code, ItemCodec::textFrame(code, text));
}

int DWTDataManager::NDM_IntegerToData(ItemCode code, int value) {
    return sendFrame(code, ItemCodec::integerFrame(code, value));
}

int DWTDataManager::NDM_StringAndLengthToData(ItemCode code, const QString &text) {
    return sendFrame(code, ItemCodec::textWithLengthFrame(code, text));
}

int DWTDataManager::NDM_IntegerAndStringAndLengthToData(ItemCode code, int value,
                                                        const QString &text) {
    return sendFrame(code, ItemCodec::integerAndTextFrame(code, value, text));
}

int DWTDataManager::NDM_DataToData(ItemCode code, const QByteArray &bytes) {
    return sendFrame(code, ItemCodec::bytesFrame(code, bytes));
}

int DWTDataManager::NDM_IntegerAndArrayToData(ItemCode code, int value, const QStringList &first,
                                              const QStringList &second, const QStringList &third) {
    return sendFrame(code, ItemCodec::integerAndAddressesFrame(code, value, first, second, third));
}

int DWTDataManager::sendFrame(ItemCode code, const std::optional<QByteArray> &frame) {
    if (!ncc_Object || !frame) return SettingResult::RefusedUnsent;
    return NDM_ResultDataToInteger(ncc_Object->sendSetting(*frame), code);
}

void DWTDataManager::NDM_SendDataToPrinterThread() {
    NDM_ProgressSetting(DWT_DataSend_Start_Message, 0);
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) {
        NDM_ProgressSetting(DWT_DataSend_Stop_Message, 1);
        return;
    }
    if (sendLogin() == SettingResult::Accepted) sendCategories();
    ncc_Object->disconnectPrinter(0);
    NDM_ProgressSetting(DWT_DataSend_Stop_Message, 0);
}

void DWTDataManager::NDM_ProgressSetting(const QString &notification, double step) {
    const QVariantMap information{{MSW_Searching_Value_Minimum, 0.0},
                                  {MSW_Searching_Value_Maximum, 100.0},
                                  {MSW_Searching_Value_Current, step}};
    NotificationCenter::shared().postOnMainThreadAndWait(notification, this, information);
}

// Without a password the login counts as passed. The password is used once.
int DWTDataManager::sendLogin() {
    const QString password = std::exchange(loginPassword_String, QString());
    return password.isEmpty() ? SettingResult::Accepted : NDM_StringToData(0x1001, password);
}

void DWTDataManager::sendCategories() {
    const auto progress = [this](double step) {
        NDM_ProgressSetting(DWT_DataSend_Progress_Message, step);
    };
    SettingRecord record;
    record.insert(DWT_View_Key_Password, savedOf(DWT_View_Key_Password));
    sendPassword();
    progress(16);
    record.insert(DWT_View_Key_Network, sendNetwork());
    progress(33);
    record.insert(DWT_View_Key_Ethernet, sendEthernet());
    progress(50);
    record.insert(DWT_View_Key_Wireless, sendWireless());
    progress(66);
    const CategoryDictionary simpleAP = savedOf(DWT_View_Key_SimpleAP);
    record.insert(DWT_View_Key_Infrastructure, sendInfrastructure());
    progress(85);
    record.insert(DWT_View_Key_SimpleAP, sendSimpleAP(simpleAP));
    progress(100);
    record.insert(DWT_View_Key_Firmware, sendFirmware());
    dictionary_SaveData = record;
}

// The saved category never shows a password, so nothing is taken over.
void DWTDataManager::sendPassword() {
    const CategoryDictionary change = changeOf(DWT_View_Key_Password);
    if (integerValue(change, DWT_SaveData_Password_Change) != 0)
        NDM_StringToData(0x1003, textValue(change, DWT_SaveData_Password_Password));
}

CategoryDictionary DWTDataManager::sendNetwork() {
    const CategoryDictionary change = changeOf(DWT_View_Key_Network);
    CategoryDictionary copy = savedOf(DWT_View_Key_Network);
    const std::pair<ItemCode, QString> items[] = {{0x1004, DWT_SaveData_Network_Bonjour},
                                                  {0x1005, DWT_SaveData_Network_BonjourService},
                                                  {0x1006, DWT_SaveData_Network_Printer}};
    for (const auto &[code, key] : items)
        if (NDM_StringToData(code, textValue(change, key)) == SettingResult::Accepted)
            take(copy, change, {key});
    return copy;
}

CategoryDictionary DWTDataManager::sendEthernet() {
    CategoryDictionary copy = savedOf(DWT_View_Key_Ethernet);
    sendInterface(0x2001, changeOf(DWT_View_Key_Ethernet), copy,
                  {DWT_SaveData_Ethernet_IPAddressSetting, DWT_SaveData_Ethernet_IPAddress,
                   DWT_SaveData_Ethernet_Subnetmask, DWT_SaveData_Ethernet_Gateway});
    return copy;
}

// The address setup of an interface; `keys` are those of its setting, address, mask and gateway.
void DWTDataManager::sendInterface(ItemCode code, const CategoryDictionary &change,
                                   CategoryDictionary &copy, const QStringList &keys) {
    const int result = NDM_IntegerAndArrayToData(
        code, integerValue(change, keys[0]), addressValue(change, keys[1]),
        addressValue(change, keys[2]), addressValue(change, keys[3]));
    if (result == SettingResult::Accepted) take(copy, change, keys);
}

CategoryDictionary DWTDataManager::sendWireless() {
    const CategoryDictionary change = changeOf(DWT_View_Key_Wireless);
    CategoryDictionary copy = savedOf(DWT_View_Key_Wireless);
    const int mode = integerValue(change, DWT_SaveData_Wireless_CommunicateMode);
    if (NDM_IntegerToData(0x3000, mode) == SettingResult::Accepted)
        take(copy, change, {DWT_SaveData_Wireless_CommunicateMode});
    return copy;
}

CategoryDictionary DWTDataManager::sendInfrastructure() {
    const CategoryDictionary change = changeOf(DWT_View_Key_Infrastructure);
    CategoryDictionary copy = savedOf(DWT_View_Key_Infrastructure);
    const std::pair<ItemCode, QString> integers[] = {
        {0x3102, DWT_SaveData_Infrastructure_Authentic},
        {0x3103, DWT_SaveData_Infrastructure_Encryption}};
    for (const auto &[code, key] : integers)
        if (NDM_IntegerToData(code, integerValue(change, key)) == SettingResult::Accepted)
            take(copy, change, {key});

    const QByteArray chosen = bytesValue(change, DWT_SaveData_Infrastructure_SSIDList_SSID);
    const bool fromList = !chosen.isEmpty();
    const QString typed = textValue(change, DWT_SaveData_Infrastructure_SSID);
    const int named =
        fromList ? NDM_DataToData(0x3104, chosen) : NDM_StringAndLengthToData(0x3104, typed);
    if (named == SettingResult::Accepted)
        take(copy, change,
             {fromList ? DWT_SaveData_Infrastructure_SSIDList_SSID
                       : DWT_SaveData_Infrastructure_SSID});

    sendInfrastructureKey(change);

    sendInterface(
        0x3108, change, copy,
        {DWT_SaveData_Infrastructure_IPAddressSetting, DWT_SaveData_Infrastructure_IPAddress,
         DWT_SaveData_Infrastructure_Subnetmask, DWT_SaveData_Infrastructure_Gateway});
    return copy;
}

// The key that the encryption uses. The saved category never shows it, so nothing is taken over.
void DWTDataManager::sendInfrastructureKey(const CategoryDictionary &change) {
    switch (integerValue(change, DWT_SaveData_Infrastructure_Encryption)) {
        case Encryption::WEP:
            NDM_IntegerAndStringAndLengthToData(
                0x3106, integerValue(change, DWT_SaveData_Infrastructure_WEPKeyIndex),
                textValue(change, DWT_SaveData_Infrastructure_WEPKey));
            break;
        case Encryption::TKIP:
        case Encryption::AES:
            NDM_StringAndLengthToData(0x3105, textValue(change, DWT_SaveData_Infrastructure_PSK));
            break;
        default:
            break;
    }
}

// `copy` is the saved category as it was before the infrastructure was sent. The key is sent, but
// not taken over.
CategoryDictionary DWTDataManager::sendSimpleAP(CategoryDictionary copy) {
    const CategoryDictionary change = changeOf(DWT_View_Key_SimpleAP);
    const QString ssid = textValue(change, DWT_SaveData_SimpleAP_SSID);
    if (NDM_StringAndLengthToData(0x3201, ssid) == SettingResult::Accepted)
        take(copy, change, {DWT_SaveData_SimpleAP_SSID});
    NDM_StringAndLengthToData(0x3202, textValue(change, DWT_SaveData_SimpleAP_PSK));
    return copy;
}

CategoryDictionary DWTDataManager::sendFirmware() {
    const CategoryDictionary change = changeOf(DWT_View_Key_Firmware);
    CategoryDictionary copy = savedOf(DWT_View_Key_Firmware);
    const int timeout = integerValue(change, DWT_SaveData_Firmware_Timeout);
    if (NDM_IntegerToData(0x1007, timeout) == SettingResult::Accepted)
        take(copy, change, {DWT_SaveData_Firmware_Timeout});
    return copy;
}

CategoryDictionary DWTDataManager::changeOf(const QString &viewKey) const {
    return setupDataFromChangeData(viewKey).value_or(CategoryDictionary());
}

CategoryDictionary DWTDataManager::savedOf(const QString &viewKey) const {
    return setupDataToMainView(viewKey).value_or(CategoryDictionary());
}
