#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <chrono>
#include <functional>

#include "settings/PrinterNames.h"

// A look for printers: what is known at once, and what comes while one waits, when printers on USB
// are asked for their names. Main thread.
class Look {
  public:
    // Longest time for a list that is not complete.
    static constexpr std::chrono::milliseconds longest{3000};
    // How long rows are gathered, so that printers which answer at once stand in one order.
    static constexpr std::chrono::milliseconds gathering{250};

    Look();

    // Those that are known now, with their names as far as these are known.
    QList<PrinterEntry> printers() const;
    // Whether a printer is still asked for its name, and whether it has reported none yet.
    bool isAsked(const PrinterEntry &entry) const {
        return m_names.stateOf(entry) == PrinterNames::State::Asked && isUSB(entry);
    }
    bool isNameless(const PrinterEntry &entry) const {
        return m_names.stateOf(entry) != PrinterNames::State::Known && isUSB(entry);
    }

    // Waits until all printers and names are known, or `isEnough`, or the deadline. Result: whether
    // one of the two first.
    bool wait(
        const QDeadlineTimer &deadline,
        const std::function<bool()> &isEnough = [] { return false; });

    // Asks a printer nothing more, since it is to be opened.
    void leave(const PrinterEntry &printer) { m_names.leave(printer); }

  private:
    bool isComplete();

    QEventLoop m_loop;
    PrinterNames m_names{[this] { m_loop.quit(); }};
    QList<PrinterEntry> m_printers;
};
