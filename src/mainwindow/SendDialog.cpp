#include "mainwindow/SendDialog.h"

#include <QScreen>
#include <algorithm>
#include <chrono>

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"
#include "settings/Rules.h"
#include "settings/SettingKeys.h"

using namespace Qt::StringLiterals;

namespace {

// After so long an answer counts as late, and the dialog says for how long it is missing.
constexpr std::chrono::seconds lateAnswer{2};

QList<ChangeTable::Row> rowsOf(const QList<Plan::Change> &changes) {
    QList<ChangeTable::Row> rows;
    for (const Plan::Change &change : changes)
        rows << ChangeTable::Row{titleOfPage(change.setting->viewKey),
                                 {change.setting->label(), change.oldText, change.newText}};
    return rows;
}

QStringList linesOf(const QList<SendWarning> &warnings) {
    QStringList lines;
    for (const SendWarning &warning : warnings)
        lines << u"%1: %2"_s.arg(titleOfPage(warning.viewKey), wordsOf(warning));
    return lines;
}

QString wordsOf(const Ending::Part &part) {
    if (part.state == Ending::State::Refused)
        return part.code == 0 ? localized("DWT_Localize_Send_End_TooLong")
                              : localized("DWT_Localize_Send_End_Refused").arg(part.code);
    return localized(part.state == Ending::State::Unclear ? "DWT_Localize_Send_End_NoAnswer"
                                                          : "DWT_Localize_Send_End_Different");
}

// Whether a part that was not taken says more than the others of its item: it changed, or the
// printer holds something else, or it stands for an item of which nothing changed.
bool isNews(const Ending::Part &part, const QList<Ending::Part> &parts) {
    const bool isOther = !part.heldText.isEmpty() && part.heldText != part.sentText;
    if (part.isChanged || isOther) return true;
    const Item &item = *itemOf(part.setting->item.code);
    return part.setting->key == item.keys.first() &&
           std::none_of(parts.begin(), parts.end(), [&](const Ending::Part &other) {
               return other.setting->item.code == item.code && other.isChanged;
           });
}

// What the printer did not take; what the user did not change stands last, by itself.
QList<ChangeTable::Row> rowsOf(const Ending &ending) {
    using State = Ending::State;
    QList<ChangeTable::Row> rows, others;
    for (const Ending::Part &part : ending.parts) {
        const bool isTaken = part.state == State::Accepted || part.state == State::Verified;
        if (isTaken || !isNews(part, ending.parts)) continue;
        const QString page = titleOfPage(part.setting->viewKey);
        const QStringList values{part.sentText, part.heldText, wordsOf(part)};
        if (part.isChanged)
            rows << ChangeTable::Row{page, QStringList{part.setting->label()} + values};
        else
            others << ChangeTable::Row{
                localized("DWT_Localize_Send_End_Untouched"),
                QStringList{u"%1: %2"_s.arg(page, part.setting->label())} + values};
    }
    return rows + others;
}

}  // namespace

SendDialog::SendDialog(QWidget *parent) : ModalWindow(parent) {
    setupUi(this);
    nameByLabels(this);
    dictionary_SendViewManagement =
        std::make_unique<ViewStack>(view_SendData, ViewStack::Room::OfShown);
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
    connect(&m_showingItem, &QTimer::timeout, this, &SendDialog::showItem);
    connectButtons();
    const auto observe = [this](const QString &name,
                                void (SendDialog::*operation)(const Notification &)) {
        m_observers.push_back(NotificationCenter::shared().observe(
            name, [this, operation](const Notification &n) { (this->*operation)(n); }));
    };
    observe(DWT_DataSend_Start_Message, &SendDialog::MSW_DataSendStart);
    observe(DWT_DataSend_Progress_Message, &SendDialog::MSW_DataSendProgress);
    observe(DWT_DataSend_Item_Message, &SendDialog::followItem);
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
    pushes(button_SendLoginErrorCancel, &Self::push_SendLoginErrorCancel);
    pushes(button_SendLoginErrorOK, &Self::push_SendLoginErrorOK);
    pushes(button_SendEndOK, &Self::endPushed);
    pushes(button_SendConnectErrorOK, &Self::push_SendConnectErrorOK);
}

int SendDialog::runOn(const QString &viewKey, const QString &printer) {
    m_printer = printer;
    const bool isSend =
        viewKey != DWT_View_Key_Send_ChangeCheck && viewKey != DWT_View_Key_Send_UpdateCheck;
    setWindowTitle(
        localized("DWT_Localize_App_Title")
            .arg(localized(isSend ? "DWT_Localize_Title_Send" : "DWT_Localize_Title_Unsent")
                     .arg(printer)));
    for (QLabel *label : std::as_const(m_saying)) label->setText(m_usualTexts.value(label));
    m_headings = {
        {DWT_View_Key_Send_ChangeCheck, {"DWT_Localize_Send_ChangeCheck_Heading", Sign::Question}},
        {DWT_View_Key_Send_UpdateCheck, {"DWT_Localize_Send_UpdateCheck_Heading", Sign::Warning}},
        {DWT_View_Key_Send_Confirm, {"DWT_Localize_Send_Confirm_Heading", Sign::Question}},
        {DWT_View_Key_Send_Progress, {"DWT_Localize_Send_Progress_Heading", Sign::Information}},
        {DWT_View_Key_Send_Login, {"DWT_Localize_Send_Login_Heading", Sign::Question}},
        {DWT_View_Key_Send_LoginError, {"DWT_Localize_Send_LoginErr_Heading", Sign::Warning}},
        {DWT_View_Key_Send_ConnectError, {"DWT_Localize_Send_ConnectErr_Heading", Sign::Error}},
    };
    MSW_SendUISelector(viewKey);
    return Modal::run(this);
}

void SendDialog::setPlan(const Plan &plan) {
    table_SendConfirm->setRows(
        {localized("DWT_Localize_Table_Setting"), localized("DWT_Localize_Table_Now"),
         localized("DWT_Localize_Table_New")},
        rowsOf(plan.changes));
    textField_SendWarnings->setText(linesOf(plan.warnings).join(u'\n'));
    view_SendWarnings->setVisible(!plan.warnings.isEmpty());
}

void SendDialog::MSW_SendUISelector(const QString &viewKey) {
    dictionary_SendViewManagement->select(viewKey);
    showHeading(viewKey);
    dictionary_SendViewManagement->focusFirstControl();
    makeRoom();
}

void SendDialog::showHeading(const QString &viewKey) {
    const auto heading = m_headings.constFind(viewKey);
    if (heading == m_headings.constEnd()) return;
    heading_Send->setText(localized(heading->key).replace(u"%1"_s, m_printer));
    sign_Send->setKind(heading->sign);
}

// The layouts of a window that is not shown yet are not active, and have the sizes of before.
void SendDialog::showEvent(QShowEvent *event) {
    ModalWindow::showEvent(event);
    makeRoom();
}

void SendDialog::makeRoom() {
    if (!isVisible()) return;
    // From the inside out, so that each layout knows what the ones in it need by now.
    const QList<QWidget *> parts = findChildren<QWidget *>();
    for (auto part = parts.rbegin(); part != parts.rend(); ++part)
        if (QLayout *const inside = (*part)->layout()) inside->activate();
    layout()->activate();
    const int wish = std::max(layout()->sizeHint().width(), fontMetrics().averageCharWidth() * 60);
    const int wide = std::min(wish, screen()->availableSize().width());
    resize(wide, layout()->totalHeightForWidth(wide));
}

void SendDialog::showProgress() {
    progress_SendProgress->reset();
    textField_SendItem->clear();
    MSW_SendUISelector(DWT_View_Key_Send_Progress);
}

void SendDialog::sayInstead(const QString &viewKey, const QString &text, const char *headingKey) {
    m_saying.value(viewKey)->setText(text);
    if (headingKey) m_headings[viewKey].key = headingKey;
    makeRoom();
}

SendDialog::Heading SendDialog::headingOf(const Ending &ending, bool comparing) {
    if (ending.course == Ending::Course::Lost)
        return {"DWT_Localize_Send_Lost_Heading", Sign::Error};
    if (!ending.isSent()) return {"DWT_Localize_Send_NotSent_Heading", Sign::Error};
    if (!ending.isComplete()) return {"DWT_Localize_Send_NotTaken_Heading", Sign::Warning};
    if (comparing) return {"DWT_Localize_Send_Sent_Heading", Sign::Information};
    if (ending.comparison == Ending::Comparison::Done)
        return {"DWT_Localize_Send_Verified_Heading", Sign::Done};
    return {"DWT_Localize_Send_Unverified_Heading", Sign::Warning};
}

void SendDialog::showEnding(const Ending &ending, const QStringList &paragraphs, bool comparing) {
    const QString viewKey = ending.course == Ending::Course::Lost ? DWT_View_Key_Send_ConnectError
                                                                  : DWT_View_Key_Send_End;
    m_headings.insert(viewKey, headingOf(ending, comparing));
    table_SendEnd->setRows(
        {localized("DWT_Localize_Table_Setting"), localized("DWT_Localize_Table_Sent"),
         localized("DWT_Localize_Table_Held"), localized("DWT_Localize_Table_Result")},
        rowsOf(ending));
    if (dictionary_SendViewManagement->selectedKey() == viewKey) showHeading(viewKey);
    sayInstead(viewKey, paragraphs.join(u"\n\n"_s));
}

// What is typed next replaces the wrong password.
void SendDialog::push_SendLoginErrorOK() {
    sayInstead(DWT_View_Key_Send_Login, m_usualTexts.value(textField_SendLogin),
               "DWT_Localize_Send_Login_Heading");
    MSW_SendUISelector(DWT_View_Key_Send_Login);
    textField_Password->selectAll();
}

void SendDialog::MSW_DataSendStop(const Notification &notification) {
    m_showingItem.stop();
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

void SendDialog::followItem(const Notification &posted) {
    MSW_SetProgressInfo(posted.userInfo);
    m_item = posted.userInfo.value(DWT_DataSend_Setting).toString();
    m_waited.start();
    m_showingItem.start(std::chrono::seconds(1));
    showItem();
}

void SendDialog::showItem() {
    const auto waited = std::chrono::milliseconds(m_waited.elapsed());
    textField_SendItem->setText(
        waited < lateAnswer
            ? m_item
            : localized("DWT_Localize_Send_Progress_Late")
                  .arg(m_item)
                  .arg(std::chrono::duration_cast<std::chrono::seconds>(waited).count()));
    makeRoom();
}
