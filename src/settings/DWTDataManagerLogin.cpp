// Connecting, the password state and the login.

#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Wipe.h"

int DWTDataManager::isPassword() {
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) return PasswordState::NoAnswer;
    const bool answered = resultSettingRequest_BOOL;
    const int state = NDM_DataToInteger(0x1000);
    if (isWaitCancelled()) resultSettingRequest_BOOL = answered;
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

WriteResult DWTDataManager::checkLoginPassword(const QString &password) {
    const WriteResult result = NDM_StringToData(0x1001, password);
    if (result.kind == WriteResult::Accepted) {
        wipe(loginPassword_String);
        loginPassword_String = ownCopy(password);
    }
    return result;
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
