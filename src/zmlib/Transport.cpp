#include "zmlib/Transport.h"

#include "platform/core/Waiting.h"

Transport::Completion Transport::drain(std::chrono::milliseconds silence,
                                       const QDeadlineTimer &deadline) {
    for (qsizetype dropped = m_received.size();; dropped += m_received.size()) {
        m_received.clear();
        if (dropped > drainedBytes || isWaitCancelled()) return Completion::TimedOut;
        const bool waits = silence.count() > 0;
        const auto completion =
            receive(waits ? std::min(deadline, QDeadlineTimer(silence)) : QDeadlineTimer());
        if (completion == Completion::Closed) return completion;
        if (completion == Completion::TimedOut)
            return waits && deadline.hasExpired() ? completion : Completion::Done;
    }
}
