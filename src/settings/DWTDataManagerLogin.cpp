// Connecting, the password state and the login.

#include "settings/DWTDataManager.h"

namespace {

// Answers about the administrator password.
enum PasswordState { NoAnswer = 1, PasswordSet = 2, NoPassword = 3 };
constexpr int loginAccepted = 4;
constexpr int noLink = 1;

}  // namespace

int DWTDataManager::isPassword() {
    if (!ncc_Object || ncc_Object->connectPrinter(0) != 0) return NoAnswer;
    const int state = NDM_DataToInteger(0x1000);
    ncc_Object->disconnectPrinter(0);
    switch (state) {
        case 0:
            return NoPassword;
        case 1:
            return PasswordSet;
        default:
            return NoAnswer;
    }
}

int DWTDataManager::checkLoginPassword(const QString &password) {
    if (!ncc_Object) return 0;
    const int result = NDM_StringToData(0x1001, password);
    if (result != 0) return result;
    loginPassword_String = password;
    return loginAccepted;
}

int DWTDataManager::connectPrinter() {
    return ncc_Object ? ncc_Object->connectPrinter(0) : noLink;
}

void DWTDataManager::disconnectPrinter() {
    if (ncc_Object) ncc_Object->disconnectPrinter(0);
}

void DWTDataManager::qkStatusLength(int length) {
    if (ncc_Object) ncc_Object->qkStatusLength(length);
}
