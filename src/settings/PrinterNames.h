#pragma once

#include <QList>
#include <QMap>
#include <chrono>
#include <functional>
#include <memory>

#include "zmlib/ZMLib.h"

// What the printers on USB are called: each is asked in the background, once after it is plugged
// in, several at a time. Main thread.
class PrinterNames {
  public:
    // Printers that are asked at a time.
    static constexpr int askedAtATime = 8;
    // Longest time for the answer of one printer.
    static constexpr std::chrono::milliseconds answerWithin{2500};

    enum class State {
        Known,
        Asked,  // and no name known before
        Silent  // the printer was asked and reported no name
    };

    // `changed` is called on the main thread when a question has ended.
    explicit PrinterNames(std::function<void()> changed);
    // Waits for nothing: questions under way end soon, without effect.
    ~PrinterNames();
    PrinterNames(const PrinterNames &) = delete;
    PrinterNames &operator=(const PrinterNames &) = delete;

    // Asks the listed printers on USB that were not asked since they were plugged in, and forgets
    // all that are not listed.
    void ask(const QList<PrinterEntry> &listed);
    // Lets the next ask() ask every printer. Known names stay until then.
    void askAgain();
    // Ends the question of a printer that is to be opened, within some slices. The next ask() asks
    // that printer again.
    void leave(const PrinterEntry &entry);

    bool isAsking() const { return m_running > 0 || !m_queue.isEmpty(); }
    State stateOf(const PrinterEntry &entry) const;
    // The entry with the printer's name, if that is known.
    PrinterEntry named(PrinterEntry entry) const;

  private:
    struct Question;
    struct Answer {
        State state = State::Asked;
        QString name = {};
        bool isDue = true;                        // to be asked
        std::shared_ptr<Question> question = {};  // while it is under way
    };

    void askNext();
    void end(const std::shared_ptr<Question> &question, const QString &name);

    const std::function<void()> m_changed;
    QMap<QString, Answer> m_answers;  // by the identity of the printer
    QList<PrinterEntry> m_queue;
    int m_running = 0;  // questions under way
    const std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
};
