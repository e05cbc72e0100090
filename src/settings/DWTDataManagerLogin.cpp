// Connecting, the password state and the login.

#include "settings/DWTDataManager.h"
#include "settings/Wipe.h"

int DWTDataManager::isPassword() {
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) return PasswordState::NoAnswer;
    const auto state = ItemCodec::integer(NDM_SendCommandSettingRequest(0x1000), 0x1000);
    ncc_Object->disconnectPrinter(0);
    if (state == 0) return PasswordState::NotSet;
    return state == 1 ? PasswordState::Set : PasswordState::NoAnswer;
}

WriteResult DWTDataManager::checkLoginPassword(const QString &password) {
    const WriteResult result = NDM_StringToData(0x1001, password);
    if (result.kind == WriteResult::Accepted) {
        wipe(loginPassword_String);
        loginPassword_String = ownCopy(password);
    }
    return result;
}
