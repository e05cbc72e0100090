#include "cli/Change.h"

#include <algorithm>

#include "cli/Faults.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

void forgetSecrets(QList<WantedValue> &values) {
    for (WantedValue &value : values)
        if (auto *const text = std::get_if<QString>(&value.value);
            text && value.setting->isSecret())
            wipe(*text);
}

Change::Change(Session &session, const QList<WantedValue> &wanted, Keys keys) : m_session(session) {
    plan(wanted, keys);
}

Change::~Change() {
    wipe(m_password);
}

void Change::plan(QList<WantedValue> wanted, Keys keys) {
    const auto password = std::find_if(wanted.begin(), wanted.end(), [](const WantedValue &value) {
        return value.setting->viewKey == DWT_View_Key_Password;
    });
    if (password != wanted.end() && password->brokenRule.isEmpty()) {
        const QString &text = std::get<QString>(password->value);
        if (hasPassword(text)) {
            m_password = ownCopy(text);
            wanted.erase(password);
        }
    }
    const SettingRecord &before = m_session.record();
    const Plan plan = planOf(before, wanted, keys);
    if (!plan.faults.isEmpty()) {
        m_planned = outcomeOf(plan.faults);
    } else if (plan.changes.isEmpty()) {
        m_planned = outcomeOf(ExitCode::Done,
                              {localized("DWT_Localize_Cli_NothingToDo").arg(m_session.name())});
        m_planned.word = u"unchanged"_s;
    } else {
        m_planned = outcomeOf(ExitCode::WouldChange,
                              {localized("DWT_Localize_Cli_WouldChange").arg(m_session.name())});
    }
    m_planned.plan = plan;
    for (const SendWarning &warning : plan.warnings) m_planned.warnings << warningOf(warning);
    for (const WantedValue &value : std::as_const(wanted))
        if (!value.secretFile.isEmpty())
            m_planned.secretFiles.insert(value.setting->name, value.secretFile);
    m_planned.before = before;
    m_planned.notReported = m_session.manager()->notReported();
}

// An empty password is none.
bool Change::hasPassword(const QString &password) {
    const int state = m_session.manager()->isPassword();
    if (password.isEmpty()) return state == PasswordState::NotSet;
    return state == PasswordState::Set && m_session.logIn(password) == Ending::Login::Passed;
}

Outcome Change::make(const Session::AskPassword &password, const std::function<bool()> &mayBegin) {
    const auto known = [&] {
        return m_password.isEmpty() ? password() : std::optional(ownCopy(m_password));
    };
    Outcome outcome = m_planned;
    outcome.ending = m_session.change(m_planned.plan, known, mayBegin);
    outcome.code = codeOf(*outcome.ending);
    outcome.word = wordOf(outcome.code);
    const bool isOnlyUnclear = outcome.ending->in(Ending::State::Refused).isEmpty() &&
                               outcome.ending->in(Ending::State::Differs).isEmpty();
    if (outcome.code == ExitCode::NotAccepted && isOnlyUnclear) outcome.word = u"unclear"_s;
    outcome.sentences = m_session.wordsOf(*outcome.ending, Naming::Stable);
    return outcome;
}
