// Sending: from the Send button through login and confirmation to the end.

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/SendDialog.h"
#include "mainwindow/WaitWindow.h"
#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

void DWTMainSettingWindow::push_MainSend() {
    if (!checkAndStorePages()) return;
    warnOfChangedConnection();
    askToSend();
}

void DWTMainSettingWindow::askToSend() {
    window_SendData->setChanges(linesOfChanges(), linesOfWarnings());
    if (const auto view = sendViewAskingPassword()) window_SendData->runOn(*view);
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

// The name of each page that changes, and below it a line for each of its changes.
QStringList DWTMainSettingWindow::linesOfChanges() const {
    QStringList lines;
    for (const QVariantMap &item : m_pageItems) {
        const auto page = dictionary_ViewManagement.value(viewKeyOf(item));
        const auto changes = page ? page->changes() : QList<DWTBaseView::Change>();
        if (!changes.isEmpty()) lines << page->pageName();
        for (const DWTBaseView::Change &change : changes)
            lines << u"    %1: %2"_s.arg(
                change.label, change.isSecret ? change.newText
                                              : u"%1 → %2"_s.arg(orEmpty(change.oldText),
                                                                 orEmpty(change.newText)));
    }
    return lines;
}

QStringList DWTMainSettingWindow::linesOfWarnings() const {
    QStringList lines;
    for (const SendWarning &warning : dataManager_Object->warnings())
        lines << u"%1: %2"_s.arg(dictionary_ViewManagement.value(warning.viewKey)->pageName(),
                                 wordsOf(warning));
    return lines;
}

void DWTMainSettingWindow::warnOfChangedConnection() {
    for (const auto &page : dictionary_ViewManagement) {
        if (page->itemConnectChangeCheck()) continue;
        showStandardAlert("DWT_Localize_Alert_MessageText_Dowline",
                          "DWT_Localize_Alert_MessageText_Warning",
                          "DWT_Localize_Alert_InfoText_ChangeSetting_Warning");
        return;
    }
}

// The view with which the dialog opens, by whether the printer has a password; nothing when the
// wait for its answer was cancelled.
std::optional<QString> DWTMainSettingWindow::sendViewAskingPassword() {
    const WaitSheet waiting = window_Wait->over(window_Main);
    const int password = dataManager_Object->isPassword();
    if (isWaitCancelled()) return {};
    switch (password) {
        case PasswordState::Set:
            window_SendData->clearPassword();
            return DWT_View_Key_Send_Login;
        case PasswordState::NotSet:
            return DWT_View_Key_Send_Confirm;
        default:
            return DWT_View_Key_Send_ConnectError;
    }
}

void DWTMainSettingWindow::push_SendLoginOK() {
    const QString unreachable = localized(QStringLiteral("DWT_Localize_Send_ConnectErr_TextField"));
    const auto answer = [&] {
        const WaitSheet waiting = window_Wait->over(window_SendData);
        const bool connected = dataManager_Object->connectPrinter() == 0;
        if (!connected && isWaitCancelled()) return DWT_View_Key_Send_Login;
        if (!connected) {
            window_SendData->sayInstead(DWT_View_Key_Send_Login, unreachable);
            return DWT_View_Key_Send_Login;
        }
        const auto login = dataManager_Object->checkLoginPassword(window_SendData->password());
        dataManager_Object->disconnectPrinter();
        if (isWaitCancelled()) return DWT_View_Key_Send_Login;
        if (login.kind == WriteResult::NoReply)
            window_SendData->sayInstead(DWT_View_Key_Send_LoginError, unreachable);
        if (login.kind != WriteResult::Accepted) return DWT_View_Key_Send_LoginError;
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

void DWTMainSettingWindow::sayWhatWasSent() {
    m_inert.reset();
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    const SendReport &report = dataManager_Object->sendReport();
    if (report.lost)
        window_SendData->sayInstead(DWT_View_Key_Send_ConnectError,
                                    text("DWT_Localize_Send_ConnectErr_Lost"));
    QStringList paragraphs;
    if (report.login == SendReport::Login::Refused)
        paragraphs << text("DWT_Localize_Send_End_LoginRefused");
    if (report.login == SendReport::Login::NoReply)
        paragraphs << text("DWT_Localize_Send_End_LoginNoReply");
    if (!report.refused.isEmpty())
        paragraphs << text("DWT_Localize_Send_End_Refused").arg(namesOf(report.refused, u"\n"_s));
    if (!report.unclear.isEmpty())
        paragraphs << text("DWT_Localize_Send_End_Unclear").arg(namesOf(report.unclear, u"\n"_s));
    if (!paragraphs.isEmpty())
        window_SendData->sayInstead(DWT_View_Key_Send_End, paragraphs.join(u"\n\n"_s));
}

// What the printer did not take stays as it was entered, keys and passwords, too.
void DWTMainSettingWindow::push_SendEndOK() {
    const SendReport &report = dataManager_Object->sendReport();
    window_SendData->closeDialog();
    if (report.isClean(0x3105) && report.isClean(0x3106))
        infrastructure_ViewObject->clearEncryptionKey(bool_usbPrinter);
    if (report.isClean(0x1003)) {
        password_ViewObject->clearPassword(bool_usbPrinter);
        password_ViewObject->passwordChangeSetting(false);
    }
    showOwnName();
    if (report.isComplete())
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
