#include "settings/PrinterNames.h"

#include <atomic>
#include <thread>
#include <utility>

#include "platform/core/MainThread.h"
#include "platform/core/Waiting.h"
#include "settings/DWTDataManager.h"
#include "settings/Printers.h"

struct PrinterNames::Question {
    explicit Question(PrinterEntry asked) : entry(std::move(asked)) {}

    const PrinterEntry entry;
    std::atomic<bool> isLeft = false;  // nobody waits for the answer any more
    std::atomic<bool> hasEnded = false;
};

PrinterNames::PrinterNames(std::function<void()> changed) : m_changed(std::move(changed)) {}

PrinterNames::~PrinterNames() {
    *m_isAlive = false;
    for (const Answer &answer : std::as_const(m_answers))
        if (answer.question) answer.question->isLeft = true;
}

void PrinterNames::ask(const QList<PrinterEntry> &listed) {
    auto before = std::exchange(m_answers, {});
    m_queue.clear();
    for (const PrinterEntry &entry : listed) {
        if (!isUSB(entry)) continue;
        const QString identity = Printers::identityOf(entry);
        const Answer answer = m_answers.insert(identity, before.take(identity)).value();
        if (answer.isDue && !answer.question) m_queue << entry;
    }
    for (const Answer &gone : std::as_const(before))
        if (gone.question) gone.question->isLeft = true;
    askNext();
}

void PrinterNames::askAgain() {
    for (Answer &answer : m_answers) {
        answer.isDue = true;
        if (answer.state == State::Silent) answer.state = State::Asked;
    }
}

void PrinterNames::leave(const PrinterEntry &entry) {
    const QString identity = Printers::identityOf(entry);
    m_queue.removeIf(
        [&](const PrinterEntry &one) { return Printers::identityOf(one) == identity; });
    const auto answer = m_answers.find(identity);
    if (answer == m_answers.end()) return;
    answer->isDue = true;
    const auto question = answer->question;
    if (!question) return;
    question->isLeft = true;
    waitUntil([&] { return question->hasEnded.load(); }, QDeadlineTimer(answerWithin),
              [](std::chrono::milliseconds) {
                  std::this_thread::sleep_for(std::chrono::milliseconds(1));
              });
}

PrinterNames::State PrinterNames::stateOf(const PrinterEntry &entry) const {
    return m_answers.value(Printers::identityOf(entry)).state;
}

PrinterEntry PrinterNames::named(PrinterEntry entry) const {
    const QString name = m_answers.value(Printers::identityOf(entry)).name;
    if (!name.isNull()) entry.insert(PrinterKey::MachineName, name);
    return entry;
}

void PrinterNames::askNext() {
    while (m_running < askedAtATime && !m_queue.isEmpty()) {
        const auto question = std::make_shared<Question>(m_queue.first());
        const auto work = [this, question, isAlive = m_isAlive] {
            QString name = unreadable;
            {
                const QDeadlineTimer deadline(answerWithin);
                const CancellableWait wait(
                    [&] { return question->isLeft || deadline.hasExpired(); });
                if (!question->isLeft)
                    name = DWTDataManager::printerName(make<DWTCommunicationControl>(),
                                                       question->entry);
            }
            question->hasEnded = true;
            MainThread::callAndWait([&] {
                if (*isAlive) end(question, name);
            });
        };
        if (!MainThread::startBackgroundWork(work)) return;  // no thread at the moment
        m_queue.removeFirst();
        ++m_running;
        Answer &answer = m_answers[Printers::identityOf(question->entry)];
        answer.question = question;
        answer.isDue = false;
    }
}

void PrinterNames::end(const std::shared_ptr<Question> &question, const QString &name) {
    --m_running;
    const auto answer = m_answers.find(Printers::identityOf(question->entry));
    if (answer != m_answers.end() && answer->question == question) {
        answer->question.reset();
        if (!question->isLeft) {
            answer->state = name == unreadable ? State::Silent : State::Known;
            answer->name = name == unreadable ? QString() : name;
        }
    }
    askNext();
    m_changed();
}
