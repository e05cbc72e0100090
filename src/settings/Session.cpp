#include "settings/Session.h"

#include "platform/core/Texts.h"
#include "platform/core/Waiting.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

using State = Ending::State;

CategoryDictionary listedCategory(const PrinterEntry &entry) {
    CategoryDictionary category;
    for (auto i = entry.begin(); i != entry.end(); ++i) category.insert(i.key(), i.value());
    category.insert(PrinterKey::ConnectionType, isUSB(entry) ? u"usb"_s : u"network"_s);
    return category;
}

Session::Session(PrinterEntry entry)
    : m_entry(std::move(entry)), m_manager(DWTDataManager::dataManager(m_entry)) {
    if (m_manager) m_manager->qkStatusLength(Printers::statusLengthOf(m_entry));
}

QString Session::name() const {
    const SettingRecord saved = m_manager ? m_manager->savedData() : SettingRecord();
    const QString own =
        readableText(textValue(saved.value(DWT_View_Key_Network), DWT_SaveData_Network_Printer));
    return own.isEmpty() ? listedName(m_entry) : own;
}

Session::Reading Session::read(const DWTDataManager::Progress &progress) {
    const int result =
        m_manager ? m_manager->setupDataFromPrinter(0, progress) : int{ReadResult::NoLink};
    m_record = m_manager ? m_manager->savedData() : SettingRecord();
    const QString address = m_manager ? m_manager->openedAddress() : QString();
    if (!address.isEmpty()) m_entry.insert(PrinterKey::Address, address);
    m_record.insert(QString(), listedCategory(m_entry));
    forgetUnreported(result == ReadResult::Complete);
    m_record[QString()].insert(PrinterKey::MachineName, name());
    if (result == ReadResult::Complete) return Reading::Complete;
    return result == ReadResult::MissingReply ? Reading::StoppedAnswering : Reading::NotReached;
}

Session::Reading Session::readWhenReady() {
    const QDeadlineTimer deadline(readyWithin);
    Reading reading = read();
    while (reading != Reading::Complete && !deadline.hasExpired() && !isWaitCancelled()) {
        waitFor(readPause);
        reading = read();
    }
    return reading;
}

// Removes the defaults that stand in for values that the printer did not report.
void Session::forgetUnreported(bool complete) {
    for (const Setting &setting : settings()) {
        CategoryDictionary &category = m_record[setting.viewKey];
        const bool isMissing =
            setting.isReported() && setting.isSent() && !m_manager->isReported(setting.key);
        // A code 0 that is only shown may also be one that was not asked for any more.
        const bool isDoubtful = !complete && setting.kind == Setting::Kind::Choice &&
                                !setting.isSent() && integerValue(category, setting.key) == 0;
        const bool isUnreadable = textValue(category, setting.key) == unreadable;
        if (isMissing || isDoubtful || isUnreadable) category.remove(setting.key);
    }
}

void Session::enter(const Plan &plan) {
    for (const Plan::Change &change : plan.changes) {
        const QString &viewKey = change.setting->viewKey;
        const CategoryDictionary planned = plan.record.value(viewKey);
        auto category = m_manager->setupDataFromChangeData(viewKey).value_or(CategoryDictionary());
        category.insert(change.setting->key, planned.value(change.setting->key));
        if (change.setting->key == DWT_SaveData_Infrastructure_SSID)
            category.insert(DWT_SaveData_Infrastructure_SSIDList_SSID,
                            planned.value(DWT_SaveData_Infrastructure_SSIDList_SSID));
        if (planned.contains(DWT_SaveData_Password_Change))
            category.insert(DWT_SaveData_Password_Change,
                            planned.value(DWT_SaveData_Password_Change));
        m_manager->setupDataFromMainView(category, viewKey);
    }
}

Ending::Login Session::logIn(const QString &password) {
    if (m_manager->connectPrinter() != 0) return Ending::Login::NotReached;
    const WriteResult login = m_manager->checkLoginPassword(password);
    m_manager->disconnectPrinter();
    if (login.kind == WriteResult::Accepted) return Ending::Login::Passed;
    return login.kind == WriteResult::NoReply ? Ending::Login::NoReply : Ending::Login::Refused;
}

Ending::Login Session::logInIfNeeded(const AskPassword &password) {
    const int state = m_manager->isPassword();
    if (state == PasswordState::NotSet) return Ending::Login::Passed;
    if (state != PasswordState::Set) return Ending::Login::NotReached;
    auto given = password();
    if (!given) return Ending::Login::Missing;
    const Ending::Login login = logIn(*given);
    wipe(*given);
    return login;
}

Ending Session::change(const Plan &plan, const AskPassword &password,
                       const std::function<bool()> &mayBegin) {
    enter(plan);
    const Ending::Login login = logInIfNeeded(password);
    if (!mayBegin()) return {Ending::Course::Stopped, login, {}};
    if (login != Ending::Login::Passed) return {Ending::Course::Sent, login, {}};
    m_manager->sendDataToPrinterAndWait();
    return verify();
}

Ending Session::verify() {
    Ending ending = m_manager->ending();
    if (!ending.isSent()) return ending;
    Session again(m_entry);
    ending.comparison = Ending::Comparison::Failed;
    if (again.readWhenReady() != Reading::Complete) return ending;
    ending.comparison = Ending::Comparison::Done;
    for (Ending::Part &part : ending.parts) compare(part, again);
    m_record = again.record();
    return ending;
}

void Session::compare(Ending::Part &part, Session &again) const {
    const Setting &setting = *part.setting;
    const CategoryDictionary sent = m_manager->changeData().value(setting.viewKey),
                             held = again.record().value(setting.viewKey);
    const State before = part.state;
    if (!setting.isSecret() && again.m_manager->isReported(setting.key))
        part.heldText = textOrEmpty(setting, held);
    if (before == State::Refused) return;
    if (setting.viewKey == DWT_View_Key_Password) {
        const QString password = textValue(sent, setting.key);
        if (password.isEmpty()) {
            const int state = again.m_manager->isPassword();
            if (state == PasswordState::NotSet) part.state = State::Verified;
            if (state == PasswordState::Set) part.state = State::Differs;
        } else {
            const Ending::Login login = again.logIn(password);
            if (login == Ending::Login::Passed) part.state = State::Verified;
            if (login == Ending::Login::Refused) part.state = State::Differs;
        }
        return;
    }
    if (!setting.isReported() || !again.m_manager->isReported(setting.key)) return;
    const bool isSameValue = isSame(sent.value(setting.key), held.value(setting.key));
    part.state = isSameValue ? State::Verified : State::Differs;
    if (!isSameValue || before == State::Unclear)
        m_manager->adopt(*itemOf(setting.item.code), *again.m_manager);
}

QStringList Session::problems() const {
    QStringList sentences;
    for (const PrinterProblem &problem : Printers::problems())
        if (problem.kind == PrinterProblem::NoPermission || problem.kind == PrinterProblem::InUse)
            sentences << ::wordsOf(problem);
    return sentences;
}

QStringList Session::wordsOf(Reading reading) const {
    if (reading == Reading::Complete) return {};
    const bool isReached = reading == Reading::StoppedAnswering;
    const QString key =
        isReached ? u"DWT_Localize_Cli_StoppedAnswering"_s : u"DWT_Localize_Ending_NotReached"_s;
    return QStringList{localized(key).arg(name())} + (isReached ? QStringList() : problems());
}

QStringList Session::wordsOf(const Ending &ending, Naming naming) const {
    const bool isReached = ending.course != Ending::Course::NotReached &&
                           ending.login != Ending::Login::NotReached &&
                           ending.login != Ending::Login::NoReply;
    return ::wordsOf(ending, name(), naming) + (isReached ? QStringList() : problems());
}
