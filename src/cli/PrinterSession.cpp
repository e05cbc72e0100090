#include "cli/PrinterSession.h"

#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

namespace {

QString text(const char *key) {
    return localized(QLatin1String(key));
}

QString namesOf(const QList<ItemCode> &codes) {
    QStringList names;
    for (const ItemCode code : codes) {
        if (const Item *const item = itemOf(code))
            for (const QString &key : item->keys) names << settingOf(item->viewKey, key)->name;
    }
    return names.join(u", "_s);
}

}  // namespace

CategoryDictionary listedCategory(const PrinterEntry &entry) {
    CategoryDictionary category;
    for (auto i = entry.begin(); i != entry.end(); ++i) category.insert(i.key(), i.value());
    category.insert(PrinterKey::ConnectionType,
                    isUSB(entry) ? QStringLiteral("usb") : QStringLiteral("network"));
    return category;
}

PrinterSession::PrinterSession(PrinterEntry entry)
    : m_entry(std::move(entry)), m_manager(DWTDataManager::dataManager(m_entry)) {}

QString PrinterSession::name() const {
    const QString own =
        readableText(textValue(m_record.value(DWT_View_Key_Network), DWT_SaveData_Network_Printer));
    return own.isEmpty() ? listedName(m_entry) : own;
}

Ending PrinterSession::read(const DWTDataManager::Progress &progress) {
    const int result = m_manager->setupDataFromPrinter(0, progress);
    m_record = {{QString(), listedCategory(m_entry)}};
    for (const SettingPage &page : settingPages())
        m_record.insert(
            page.viewKey,
            m_manager->setupDataToMainView(page.viewKey).value_or(CategoryDictionary()));
    forgetUntold(result == ReadResult::Complete);
    m_record[QString()].insert(PrinterKey::MachineName, name());
    if (result == ReadResult::Complete) return {};
    if (result != ReadResult::MissingReply) return notReached();
    return {NotReached, text("DWT_Localize_Cli_StoppedAnswering").arg(name())};
}

Ending PrinterSession::readWhenReady(const std::function<bool()> &goOn) {
    const QDeadlineTimer deadline(readyWithin);
    Ending ending = read();
    while (ending.code != Done && !deadline.hasExpired() && goOn()) {
        waitFor(readPause);
        ending = read();
    }
    return ending;
}

// What stands in the place of a value that was not told is none.
void PrinterSession::forgetUntold(bool complete) {
    for (const Item &item : sentItems())
        for (const QString &key : item.keys)
            if (item.readTurn > 0 && !m_manager->isTold(key)) m_record[item.viewKey].remove(key);
    if (complete) return;
    // Of the codes that are only shown, 0 may also stand for one that was not asked for any more.
    for (const Setting &setting : settings()) {
        CategoryDictionary &category = m_record[setting.viewKey];
        if (setting.kind == Setting::Kind::Choice && setting.access == Setting::Access::Read &&
            integerValue(category, setting.key) == 0)
            category.remove(setting.key);
    }
}

QStringList PrinterSession::notTold() const {
    QStringList names;
    for (const ItemCode code : m_manager->notTold()) names << namesOf({code});
    return names;
}

std::optional<QList<SSIDEntry>> PrinterSession::networks(const DWTDataManager::Progress &progress) {
    return m_manager->SSIDList(progress);
}

Ending PrinterSession::change(const Plan &plan, const AskPassword &password,
                              const std::function<bool()> &mayBegin) {
    for (const Plan::Change &change : plan.changes) {
        const QString &viewKey = change.setting->viewKey;
        auto category = m_manager->setupDataFromChangeData(viewKey).value_or(CategoryDictionary());
        const CategoryDictionary planned = plan.record.value(viewKey);
        category.insert(change.setting->key, planned.value(change.setting->key));
        if (viewKey == DWT_View_Key_Password)
            category.insert(DWT_SaveData_Password_Change,
                            planned.value(DWT_SaveData_Password_Change));
        m_manager->setupDataFromMainView(category, viewKey);
    }
    Ending login = logIn(password);
    if (!mayBegin()) return {Stopped, text("DWT_Localize_Cli_StoppedBefore").arg(name())};
    if (login.code != Done) return login;
    m_manager->sendDataToPrinterAndWait();
    const Ending sent = endingOfSend();
    return sent.code == Done ? verify(plan) : sent;
}

// With what the system says of the printer's device.
Ending PrinterSession::notReached() const {
    QStringList sentences{text("DWT_Localize_Cli_NotReached").arg(name())};
    for (const PrinterProblem &problem : m_manager->printerProblems())
        if (problem.kind == PrinterProblem::NoPermission || problem.kind == PrinterProblem::InUse)
            sentences << wordsOf(problem);
    return {NotReached, sentences.join(u' ')};
}

Ending PrinterSession::logIn(const AskPassword &password) {
    const int state = m_manager->isPassword();
    if (state == PasswordState::NotSet) return {};
    if (state != PasswordState::Set) return notReached();
    auto given = password();
    if (!given) return {LoginRefused, text("DWT_Localize_Cli_NoPassword").arg(name())};
    if (m_manager->connectPrinter() != 0) return notReached();
    const WriteResult login = m_manager->checkLoginPassword(*given);
    m_manager->disconnectPrinter();
    wipe(*given);
    if (login.kind == WriteResult::Accepted) return {};
    if (login.kind == WriteResult::NoReply) return notReached();
    return {LoginRefused, text("DWT_Localize_Cli_LoginRefused").arg(name())};
}

Ending PrinterSession::endingOfSend() const {
    const SendReport &report = m_manager->sendReport();
    if (report.isComplete()) return {};
    if (report.unreached) return notReached();
    if (report.lost) return {NotReached, text("DWT_Localize_Cli_Lost").arg(name())};
    if (report.login == SendReport::Login::Refused)
        return {LoginRefused, text("DWT_Localize_Cli_LoginRefused").arg(name())};
    if (report.login == SendReport::Login::NoReply) return notReached();
    QStringList sentences;
    if (!report.refused.isEmpty())
        sentences << text("DWT_Localize_Cli_Refused").arg(name(), namesOf(report.refused));
    if (!report.unclear.isEmpty())
        sentences << text("DWT_Localize_Cli_Unclear").arg(name(), namesOf(report.unclear));
    return {NotAccepted, sentences.join(u' ')};
}

// Everything that a send writes and the printer tells must be as it was sent.
Ending PrinterSession::verify(const Plan &plan) {
    const QString called = name();
    if (const Ending again = readWhenReady(); again.code != Done)
        return {NotReached, text("DWT_Localize_Cli_NotVerified").arg(called)};
    QStringList differences;
    for (const Item &item : sentItems()) {
        for (const QString &key : item.keys) {
            const Setting &setting = *settingOf(item.viewKey, key);
            const CategoryDictionary sent = plan.record.value(item.viewKey),
                                     held = m_record.value(item.viewKey);
            if (item.readTurn == 0 || !sent.contains(key) ||
                isSame(sent.value(key), held.value(key)))
                continue;
            const QString words = setting.isSecret()
                                      ? text("DWT_Localize_Cli_SecretDiffers").arg(setting.name)
                                      : text("DWT_Localize_Cli_Differs")
                                            .arg(setting.name, valueOrEmpty(setting, sent),
                                                 valueOrEmpty(setting, held));
            differences << words;
        }
    }
    const CategoryDictionary password = plan.record.value(DWT_View_Key_Password);
    if (integerValue(password, DWT_SaveData_Password_Change) != 0 &&
        m_manager->isPassword() != (textValue(password, DWT_SaveData_Password_Password).isEmpty()
                                        ? PasswordState::NotSet
                                        : PasswordState::Set))
        differences << text("DWT_Localize_Cli_SecretDiffers").arg(u"password.administrator"_s);
    if (differences.isEmpty()) return {};
    return {NotAccepted, differences.join(u' ')};
}
