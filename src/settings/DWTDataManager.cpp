// The record, and the making of a data manager.

#include "settings/DWTDataManager.h"

#include <algorithm>

#include "settings/Frames.h"
#include "settings/Wipe.h"

namespace {

std::optional<CategoryDictionary> categoryIn(const std::optional<SettingRecord> &record,
                                             const QString &viewKey) {
    if (!record || !record->contains(viewKey)) return {};
    return record->value(viewKey);
}

}  // namespace

std::shared_ptr<DWTDataManager> DWTDataManager::dataManager(const PrinterEntry &entry) {
    auto manager = make<DWTDataManager>();
    return manager && manager->NDM_InitMember(entry) ? manager : nullptr;
}

std::optional<CategoryDictionary> DWTDataManager::setupDataToMainView(
    const QString &viewKey) const {
    return categoryIn(dictionary_SaveData, viewKey);
}

std::optional<CategoryDictionary> DWTDataManager::setupDataFromChangeData(
    const QString &viewKey) const {
    return categoryIn(mutableDictionary_ChangeData, viewKey);
}

int DWTDataManager::setupDataFromMainView(const CategoryDictionary &category,
                                          const QString &viewKey) {
    if (mutableDictionary_ChangeData) mutableDictionary_ChangeData->insert(viewKey, category);
    return 0;
}

bool DWTDataManager::isEqualToSaveData() const {
    return std::all_of(settingPages().begin(), settingPages().end(), [&](const SettingPage &page) {
        const auto saved = setupDataToMainView(page.viewKey);
        return saved && saved == setupDataFromChangeData(page.viewKey);
    });
}

void DWTDataManager::adopt(const Item &item, const DWTDataManager &other) {
    if (!dictionary_SaveData) return;
    const CategoryDictionary read = other.savedData().value(item.viewKey);
    for (const QString &key : item.keys)
        (*dictionary_SaveData)[item.viewKey].insert(key, read.value(key));
    m_reported.insert(item.code, other.m_reported.value(item.code));
}

// Every field has its first value already.
bool DWTDataManager::NDM_Init() {
    return true;
}

void DWTDataManager::NDM_Dealloc() {
    wipe(loginPassword_String);
    nsObjectRelease(ncc_Object);
}

bool DWTDataManager::NDM_InitMember(const PrinterEntry &entry) {
    ncc_Object = DWTCommunicationControl::communicationControl(entry);
    if (!ncc_Object) return false;
    installCommands(*ncc_Object);
    return true;
}

bool DWTDataManager::NDM_SetCommandSettingStart(DWTCommunicationControl &link) {
    return link.setStartSetting(Frames::startFrame());
}

bool DWTDataManager::NDM_SetCommandSettingEnd(DWTCommunicationControl &link) {
    return link.setEndSetting(Frames::endFrame());
}

bool DWTDataManager::NDM_SetCommandSettingUpDate(DWTCommunicationControl &link) {
    return link.setUpdateSetting(Frames::updateFrame());
}

bool DWTDataManager::installCommands(DWTCommunicationControl &link) {
    if (NDM_SetCommandSettingStart(link)) return false;
    if (NDM_SetCommandSettingEnd(link)) return false;
    if (NDM_SetCommandSettingUpDate(link)) return false;
    link.setCommandSettingToArray();
    return true;
}
