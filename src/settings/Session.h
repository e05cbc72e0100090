#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "settings/DWTDataManager.h"
#include "settings/Ending.h"
#include "settings/Plan.h"

// One printer, from its reading to a verified change. Operations wait for the printer, on one
// thread; on another than the main one, the main thread runs an event loop meanwhile.
class Session {
  public:
    explicit Session(PrinterEntry entry);

    const PrinterEntry &entry() const { return m_entry; }
    // The records that pages show and change; null when the link could not be made.
    const std::shared_ptr<DWTDataManager> &manager() const { return m_manager; }
    // What the printer is called: its own name as last read, or as it was listed.
    QString name() const;

    // --- Reading ---

    enum class Reading {
        Complete,
        StoppedAnswering,  // what came before is there
        NotReached
    };
    Reading read(const DWTDataManager::Progress &progress = {});
    // The same for a printer that was plugged in or changed just now: again and again, readPause
    // apart, for readyWithin or until the wait is cancelled.
    static constexpr std::chrono::milliseconds readPause{500};
    static constexpr std::chrono::milliseconds readyWithin{2000};
    Reading readWhenReady();
    // What the printer reported, and what the list knows of it (without a category).
    const SettingRecord &record() const { return m_record; }

    // --- A change, step by step ---

    // Makes what a plan changes the change data of the data manager.
    void enter(const Plan &plan);
    // Tries a password, which is kept for the next send.
    Ending::Login logIn(const QString &password);
    // Reads the printer again after a send and compares: a new password by a login with it, a
    // removed one by asking for it. Different values become saved data. Result: the ending, with
    // what was seen.
    Ending verify();

    // --- A change as a whole ---

    // Asked for the password of a protected printer; nothing when there is none to be had.
    using AskPassword = std::function<std::optional<QString>()>;
    // Logs in where needed, sends a plan for what was read, and verifies it. `mayBegin` can stop it
    // right before the send.
    Ending change(const Plan &plan, const AskPassword &password,
                  const std::function<bool()> &mayBegin);

    // --- Words ---

    // What happened, in sentences; empty for a complete reading.
    QStringList wordsOf(Reading reading) const;
    QStringList wordsOf(const Ending &ending, Naming naming) const;

  private:
    void forgetUnreported(bool complete);
    Ending::Login logInIfNeeded(const AskPassword &password);
    // What the system says of the printer's device.
    QStringList problems() const;
    void compare(Ending::Part &part, Session &again) const;

    PrinterEntry m_entry;
    std::shared_ptr<DWTDataManager> m_manager;
    SettingRecord m_record;
};

// The category of what the list knows of a printer; its name is what the list calls it.
CategoryDictionary listedCategory(const PrinterEntry &entry);
