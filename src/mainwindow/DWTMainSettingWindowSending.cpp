// Sending: from the Send button through login and confirmation to the end.

#include <QTimer>
#include <algorithm>

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/SendDialog.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

void DWTMainSettingWindow::push_MainSend() {
    if (!checkAndStorePages()) return;
    if (warnOfChangedConnection()) askToSend(shownPlan());
}

void DWTMainSettingWindow::askToSend(const Plan &plan) {
    window_SendData->setPlan(plan);
    if (const auto view = sendViewAskingPassword())
        window_SendData->runOn(*view, m_session->name());
}

// Asks every page, so that each shows what is wrong on it. False when something is.
bool DWTMainSettingWindow::checkAndStorePages() {
    bool passed = true;
    for (const auto &page : dictionary_ViewManagement) passed &= page->itemInputCheck();
    if (!passed) {
        goToFirstFault();
        return false;
    }
    for (const auto &page : dictionary_ViewManagement) page->itemSetToDataManager();
    return true;
}

void DWTMainSettingWindow::goToFirstFault() {
    followEdits();
    for (const QVariantMap &item : std::as_const(m_pageItems)) {
        const auto page = dictionary_ViewManagement.value(viewKeyOf(item));
        if (!page || !page->hasFault()) continue;
        outlineView_Main->pickItem(item);
        return page->focusFirstFault();
    }
}

// False when the user stays away from the send.
bool DWTMainSettingWindow::warnOfChangedConnection() {
    const auto isReachedAlike = [](const std::shared_ptr<DWTBaseView> &page) {
        return page->itemConnectChangeCheck();
    };
    return std::all_of(dictionary_ViewManagement.cbegin(), dictionary_ViewManagement.cend(),
                       isReachedAlike) ||
           showStandardAlert(
               "DWT_Localize_Alert_MessageText_Dowline", "DWT_Localize_Alert_MessageText_Warning",
               "DWT_Localize_Alert_InfoText_ChangeSetting_Warning", Alert::Answers::OkOrCancel);
}

// The view with which the dialog opens; nothing when the wait was cancelled.
std::optional<QString> DWTMainSettingWindow::sendViewAskingPassword() {
    const WaitSheet waiting = window_Wait->over(window_Main);
    const int password = dataManager_Object->isPassword();
    if (isWaitCancelled()) return {};
    password_ViewObject->showPasswordState(password);
    if (password == PasswordState::NotSet) return DWT_View_Key_Send_Confirm;
    if (password != PasswordState::Set) return DWT_View_Key_Send_ConnectError;
    window_SendData->clearPassword();
    return DWT_View_Key_Send_Login;
}

void DWTMainSettingWindow::push_SendLoginOK() {
    const auto sayUnreachable = [this](const QString &viewKey) {
        window_SendData->sayInstead(viewKey, localized("DWT_Localize_Send_ConnectErr_TextField"),
                                    "DWT_Localize_Send_ConnectErr_Heading");
    };
    const auto answer = [&] {
        const WaitSheet waiting = window_Wait->over(window_SendData);
        const Ending::Login login = m_session->logIn(window_SendData->password());
        if (isWaitCancelled()) return DWT_View_Key_Send_Login;
        if (login == Ending::Login::NotReached) {
            sayUnreachable(DWT_View_Key_Send_Login);
            return DWT_View_Key_Send_Login;
        }
        if (login == Ending::Login::NoReply) sayUnreachable(DWT_View_Key_Send_LoginError);
        if (login != Ending::Login::Passed) return DWT_View_Key_Send_LoginError;
        window_SendData->clearPassword();
        return DWT_View_Key_Send_Confirm;
    };
    window_SendData->MSW_SendUISelector(answer());
}

void DWTMainSettingWindow::push_SendConfirmTransmission() {
    m_inert.emplace(window_Main);
    window_SendData->showProgress();
    dataManager_Object->sendDataToPrinter();
}

void DWTMainSettingWindow::sendHasStopped() {
    m_inert.reset();
    m_endIsRead = false;
    m_ending = dataManager_Object->ending();
    showEnding(m_ending.isSent());
    // The worker waits until the stop was handled.
    if (m_ending.isSent()) QTimer::singleShot(0, this, &DWTMainSettingWindow::compareWithPrinter);
}

void DWTMainSettingWindow::showEnding(bool comparing) {
    if (m_ending.course == Ending::Course::NotReached) return;  // the view says it
    QStringList paragraphs = m_session->wordsOf(m_ending, Naming::Labels);
    const bool isVerified = m_ending.comparison == Ending::Comparison::Done;
    if (m_ending.isComplete() && !isVerified)
        paragraphs.prepend(localized("DWT_Localize_Send_End_TextField"));
    if (!m_ending.isComplete() && !m_sendsFile) paragraphs << localized("DWT_Localize_Send_Kept");
    if (comparing) paragraphs << localized("DWT_Localize_Send_End_Comparing");
    window_SendData->showEnding(m_ending, paragraphs, comparing);
}

void DWTMainSettingWindow::compareWithPrinter() {
    if (m_endIsRead) return;
    const CancellableWait wait(
        [this] { return m_endIsRead; },
        [this](const QObject *object) { return isPartOf(object, window_SendData); });
    m_comparing = true;
    m_ending = m_session->verify();
    m_comparing = false;
    showEnding(false);
    if (m_endIsRead) push_SendEndOK();
}

// Values that the printer did not take stay as they were entered, keys and passwords, too.
void DWTMainSettingWindow::push_SendEndOK() {
    m_endIsRead = true;
    if (m_comparing) return;
    window_SendData->closeDialog();
    if (m_ending.isClean(DWT_SaveData_Infrastructure_PSK) &&
        m_ending.isClean(DWT_SaveData_Infrastructure_WEPKey))
        infrastructure_ViewObject->clearEncryptionKey(bool_usbPrinter);
    if (m_ending.isClean(DWT_SaveData_Password_Password)) {
        const CategoryDictionary sent = password_ViewObject->shownCategory();
        const bool isEmpty = textValue(sent, DWT_SaveData_Password_Password).isEmpty();
        if (integerValue(sent, DWT_SaveData_Password_Change) != 0)
            password_ViewObject->showPasswordState(isEmpty ? PasswordState::NotSet
                                                           : PasswordState::Set);
        password_ViewObject->clearPassword(bool_usbPrinter);
        password_ViewObject->passwordChangeSetting(false);
    }
    for (const auto &page : dictionary_ViewManagement) {
        page->coverSecrets();
        page->followSavedData();
    }
    showOwnName();
    if (m_ending.isComplete())
        MSW_SendButtonDisable();
    else
        MSW_SendButtonEnable();
    followEdits();
}

void DWTMainSettingWindow::MSW_SendButtonEnable() {
    button_MainSend->setEnabled(true);
    infrastructure_ViewObject->settingConnectButtonEnable(false);
    ethernet_ViewObject->settingConnectButtonEnable(false);
}

void DWTMainSettingWindow::MSW_SendButtonDisable() {
    button_MainSend->setEnabled(false);
    infrastructure_ViewObject->settingConnectButtonEnable(true);
    ethernet_ViewObject->settingConnectButtonEnable(true);
}

void DWTMainSettingWindow::MSW_ClearTextField() {
    infrastructure_ViewObject->clearEncryptionKey(bool_usbPrinter);
    password_ViewObject->clearPassword(bool_usbPrinter);
}
