#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "cli/ExitCode.h"
#include "cli/Plan.h"
#include "settings/DWTDataManager.h"

// How something ended: a code, and a sentence or several about it.
struct Ending {
    ExitCode code = Done;
    QString text;
};

// One printer, from its reading to a change that was verified. Every operation waits for the
// printer; all are called on one thread. On another than the main one, the main thread runs an
// event loop meanwhile.
class PrinterSession {
  public:
    explicit PrinterSession(PrinterEntry entry);

    const PrinterEntry &entry() const { return m_entry; }
    // What the printer is called: its own name as last read, or as it was listed.
    QString name() const;

    // Reads every setting. Anything but Done says why not all could be read; what could is there.
    Ending read(const DWTDataManager::Progress &progress = {});
    // The same for a printer that may not be ready yet, since it was plugged in or changed just
    // now: again and again, readPause apart, for readyWithin or until `goOn` says no.
    static constexpr std::chrono::milliseconds readPause{500};
    static constexpr std::chrono::milliseconds readyWithin{2000};
    Ending readWhenReady(const std::function<bool()> &goOn = [] { return true; });
    // What the printer told, and what the list knows of it (without a category).
    const SettingRecord &record() const { return m_record; }
    // The labels of what it was asked for and did not tell.
    QStringList notTold() const;

    // The networks that the printer finds; nothing when it cannot be reached.
    std::optional<QList<SSIDEntry>> networks(const DWTDataManager::Progress &progress);

    // Asked for the printer's password when it has one; nothing: there is none to be had.
    using AskPassword = std::function<std::optional<QString>()>;
    // Writes a plan for what was read: logs in where the printer has a password, sends, reads again
    // and compares. Right before the send, `mayBegin` can still stop it.
    Ending change(const Plan &plan, const AskPassword &password,
                  const std::function<bool()> &mayBegin);

  private:
    void forgetUntold(bool complete);
    Ending notReached() const;
    Ending logIn(const AskPassword &password);
    Ending endingOfSend() const;
    Ending verify(const Plan &plan);

    const PrinterEntry m_entry;
    const std::shared_ptr<DWTDataManager> m_manager;
    SettingRecord m_record;
};

// The category of what the list knows of a printer; its name is what the list calls it.
CategoryDictionary listedCategory(const PrinterEntry &entry);
