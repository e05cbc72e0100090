#include "virtualprinter/DelayedActions.h"

#include <QTimer>

void DelayedActions::after(int delay, const std::function<void()> &action) {
    const QDeadlineTimer due(delay);
    if (m_last < due) m_last = due;
    const qint64 left = m_last.remainingTime();
    if (left == 0 && m_waiting.empty()) return action();
    m_waiting.push_back(action);
    // Timers of the same time may end in any order; whichever ends acts for the first.
    QTimer::singleShot(static_cast<int>(left), Qt::PreciseTimer, this, [this] {
        const auto first = m_waiting.front();
        m_waiting.pop_front();
        first();
    });
}
