#include "mainwindow/SendDialog.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/ui/FieldLooks.h"
#include "settings/Rules.h"
#include "settings/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {

// So many lines of changes are shown without scrolling, unless the user makes the dialog larger.
constexpr int shownLines = 12;

}  // namespace

SendDialog::SendDialog(QWidget *parent) : ModalWindow(parent) {
    setupUi(this);
    dictionary_SendViewManagement = std::make_unique<ViewStack>(view_SendData);
    ViewStack &views = *dictionary_SendViewManagement;
    views.add(DWT_View_Key_Send_ChangeCheck, view_SendChangeCheck);
    views.add(DWT_View_Key_Send_UpdateCheck, view_UpdateChangeCheck);
    views.add(DWT_View_Key_Send_Confirm, view_SendConfirm);
    views.add(DWT_View_Key_Send_Progress, view_SendProgress);
    views.add(DWT_View_Key_Send_End, view_SendEnd);
    views.add(DWT_View_Key_Send_Login, view_SendLogin);
    views.add(DWT_View_Key_Send_LoginError, view_SendLoginError);
    views.add(DWT_View_Key_Send_ConnectError, view_SendConnectError);
    m_saying = {{DWT_View_Key_Send_Login, textField_SendLogin},
                {DWT_View_Key_Send_LoginError, textField_SendLoginError},
                {DWT_View_Key_Send_End, textField_SendEnd},
                {DWT_View_Key_Send_ConnectError, textField_SendConnectError}};
    for (QLabel *label : std::as_const(m_saying)) m_usualTexts.insert(label, label->text());
    // The longest password, and the button inside.
    fitWidth(textField_Password, QString(Rules::longestPassword + 5, u'M'));
    showChanges(false);
    connectButtons();
    const auto observe = [this](const QString &name,
                                void (SendDialog::*operation)(const Notification &)) {
        m_observers.push_back(NotificationCenter::shared().observe(
            name, [this, operation](const Notification &n) { (this->*operation)(n); }));
    };
    observe(DWT_DataSend_Start_Message, &SendDialog::MSW_DataSendStart);
    observe(DWT_DataSend_Progress_Message, &SendDialog::MSW_DataSendProgress);
    observe(DWT_DataSend_Stop_Message, &SendDialog::MSW_DataSendStop);
}

void SendDialog::connectButtons() {
    using Self = SendDialog;
    const auto pushes = [this](QAbstractButton *button, void (Self::*operation)()) {
        connect(button, &QAbstractButton::clicked, this, operation);
    };
    pushes(button_SendChangeCheckReflect, &Self::reflectPushed);
    pushes(button_SendChangeCheckNoReflect, &Self::noReflectPushed);
    pushes(button_SendChangeCheckCancel, &Self::push_SendChangeCheckCancel);
    pushes(button_UpdateChangeCheckOK, &Self::updatePushed);
    pushes(button_UpdateChangeCheckCancel, &Self::push_UpdateChangeCheckCancel);
    pushes(button_SendConfirmTransmission, &Self::transmissionPushed);
    pushes(button_SendConfirmCancel, &Self::push_SendConfirmCancel);
    pushes(button_SendLoginOK, &Self::loginPushed);
    pushes(button_SendLoginCancel, &Self::push_SendLoginCancel);
    pushes(button_SendLoginErrorOK, &Self::push_SendLoginErrorOK);
    pushes(button_SendEndOK, &Self::endPushed);
    pushes(button_SendConnectErrorOK, &Self::push_SendConnectErrorOK);
}

int SendDialog::runOn(const QString &viewKey) {
    for (QLabel *label : std::as_const(m_saying)) label->setText(m_usualTexts.value(label));
    showChanges(false);
    adjustSize();
    MSW_SendUISelector(viewKey);
    return Modal::run(this);
}

void SendDialog::setChanges(const QStringList &changes, const QStringList &warnings) {
    textView_SendConfirm->setPlainText(changes.join(u'\n'));
    const int lines = std::clamp(int(changes.size()), 3, shownLines);
    const int frame = 2 * (textView_SendConfirm->frameWidth() +
                           qRound(textView_SendConfirm->document()->documentMargin()));
    textView_SendConfirm->setMinimumHeight(
        lines * textView_SendConfirm->fontMetrics().lineSpacing() + frame);
    textField_SendWarnings->setText(warnings.join(u'\n'));
}

// Hidden, they take no room, so that the other views stay as small as they are.
void SendDialog::showChanges(bool shown) {
    textView_SendConfirm->setVisible(shown && !textView_SendConfirm->toPlainText().isEmpty());
    view_SendWarnings->setVisible(shown && !textField_SendWarnings->text().isEmpty());
}

void SendDialog::MSW_SendUISelector(const QString &viewKey) {
    showChanges(viewKey == DWT_View_Key_Send_Confirm);
    dictionary_SendViewManagement->select(viewKey);
    dictionary_SendViewManagement->focusFirstControl();
    if (isVisible()) makeRoom();
}

// The layouts of a window that is not shown yet are not active, and tell the sizes of before.
void SendDialog::showEvent(QShowEvent *event) {
    ModalWindow::showEvent(event);
    makeRoom();
}

void SendDialog::makeRoom() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > height()) resize(width(), needed);
}

void SendDialog::showProgress() {
    progress_SendProgress->reset();
    MSW_SendUISelector(DWT_View_Key_Send_Progress);
}

void SendDialog::sayInstead(const QString &viewKey, const QString &text) {
    m_saying.value(viewKey)->setText(text);
    if (isVisible()) makeRoom();
}

// What is typed next replaces the wrong password.
void SendDialog::push_SendLoginErrorOK() {
    MSW_SendUISelector(DWT_View_Key_Send_Login);
    textField_Password->selectAll();
}

void SendDialog::MSW_DataSendStop(const Notification &notification) {
    MSW_SetProgressInfo(notification.userInfo);
    Q_EMIT stopped();
    const bool ran = notification.userInfo.value(MSW_Searching_Value_Current).toDouble() == 0;
    MSW_SendUISelector(ran ? DWT_View_Key_Send_End : DWT_View_Key_Send_ConnectError);
}

void SendDialog::MSW_SetProgressInfo(const QVariantMap &progress) {
    const auto number = [&](const QString &key) { return qRound(progress.value(key).toDouble()); };
    progress_SendProgress->setRange(number(MSW_Searching_Value_Minimum),
                                    number(MSW_Searching_Value_Maximum));
    progress_SendProgress->setValue(number(MSW_Searching_Value_Current));
}
