#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QTimer>
#include <memory>
#include <vector>

#include "platform/core/Key.h"
#include "platform/core/NotificationCenter.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/ViewStack.h"
#include "settings/Ending.h"
#include "settings/Plan.h"
#include "ui_SendDialog.h"

// Views of the send dialog.
DWT_KEY(DWT_View_Key_Send_ChangeCheck);
DWT_KEY(DWT_View_Key_Send_UpdateCheck);
DWT_KEY(DWT_View_Key_Send_Confirm);
DWT_KEY(DWT_View_Key_Send_Progress);
DWT_KEY(DWT_View_Key_Send_End);
DWT_KEY(DWT_View_Key_Send_Login);
DWT_KEY(DWT_View_Key_Send_LoginError);
DWT_KEY(DWT_View_Key_Send_ConnectError);

// The dialog of a send, and of the questions about unsent changes. It follows the running send by
// itself; its signals say the rest. Main thread only.
class SendDialog : public ModalWindow, private Ui::SendDialog {
    Q_OBJECT
  public:
    // Outcome of a run in which the user chose to stay.
    static constexpr int stay = 0;

    // Hidden; belongs to `parent`.
    explicit SendDialog(QWidget *parent);

    // Shows the dialog on the view of the key, for the printer that is called `printer`, and runs
    // until it is closed. Result: the outcome.
    int runOn(const QString &viewKey, const QString &printer);
    // Ends the run with the outcome and hides the dialog.
    void closeDialog(int outcome = Modal::stoppedOutcome) { Modal::stop(this, outcome); }
    // What the confirmation lists and warns of, until another plan is given.
    void setPlan(const Plan &plan);
    // Shows the view of the key and hides the others.
    void MSW_SendUISelector(const QString &viewKey);
    // Shows the progress of a send that is about to start.
    void showProgress();

    // The password as it is typed in the login view.
    QString password() const { return textField_Password->text(); }
    void clearPassword() { textField_Password->forget(); }

    // Another text, and heading, for the login, login-error, end or connection-error view, until
    // the next run.
    void sayInstead(const QString &viewKey, const QString &text, const char *headingKey = nullptr);
    // Says in the End view, or in that of a lost connection, how a send ended; `comparing`: the
    // printer is still to be read again.
    void showEnding(const Ending &ending, const QStringList &paragraphs, bool comparing);

  Q_SIGNALS:
    // The unsent changes are to be sent, or dropped, before the window is left.
    void reflectPushed();
    void noReflectPushed();
    // The printer is to be read again although changes are unsent.
    void updatePushed();
    // The typed password is to be tried; the dialog waits on the login view.
    void loginPushed();
    // The send is confirmed.
    void transmissionPushed();
    // The send has stopped; its last view is not yet shown.
    void stopped();
    // The end of a send was read.
    void endPushed();

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    // What stands above the views, beside the sign; `%1` is the printer.
    struct Heading {
        const char *key = nullptr;
        Sign::Kind sign = Sign::Question;
    };
    static Heading headingOf(const Ending &ending, bool comparing);
    void showHeading(const QString &viewKey);
    // Takes the size that the shown view needs.
    void makeRoom();
    void connectButtons();
    void push_SendChangeCheckCancel() { closeDialog(stay); }
    void push_UpdateChangeCheckCancel() { closeDialog(); }
    void push_SendConfirmCancel() { closeDialog(); }
    void push_SendLoginCancel() { closeDialog(); }
    void push_SendLoginErrorCancel() { closeDialog(); }
    void push_SendLoginErrorOK();
    void push_SendConnectErrorOK() { closeDialog(); }
    void MSW_DataSendStart(const Notification &posted) { MSW_SetProgressInfo(posted.userInfo); }
    void MSW_DataSendProgress(const Notification &posted) { MSW_SetProgressInfo(posted.userInfo); }
    void MSW_DataSendStop(const Notification &notification);
    void followItem(const Notification &posted);
    // Names the item that is waited for and, after a while, for how long.
    void showItem();
    void MSW_SetProgressInfo(const QVariantMap &progress);

    std::unique_ptr<ViewStack> dictionary_SendViewManagement;
    QString m_printer;
    QMap<QString, Heading> m_headings;  // by view key
    QString m_item;                     // that is waited for
    QElapsedTimer m_waited;             // for it
    QTimer m_showingItem;
    QMap<QString, QLabel *> m_saying;      // by view key
    QMap<QLabel *, QString> m_usualTexts;  // of the labels above
    std::vector<NotificationCenter::Observer> m_observers;
};
