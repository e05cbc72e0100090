#include "zmlib/ServiceBrowser.h"

#include <optional>

#include "platform/core/Waiting.h"
#include "zmlib/ServiceWorker.h"

namespace {

// How long the end of a browser waits for that of its thread.
constexpr std::chrono::milliseconds endWait{200};

}  // namespace

ServiceBrowser::ServiceBrowser(const BrowsingLimits &limits)
    : m_state(std::make_shared<BrowsingState>(limits)), m_firstLook(limits.firstLook) {
    startServiceWorker(m_state);
}

ServiceBrowser::~ServiceBrowser() {
    std::unique_lock lock(m_state->mutex);
    m_state->isToEnd = true;
    m_state->wake();
    m_state->news.wait_for(lock, endWait, [this] { return m_state->hasEnded; });
}

ServiceBrowser::Known ServiceBrowser::known() const {
    const std::lock_guard lock(m_state->mutex);
    return {m_state->isMissing, m_state->isSilent(), m_state->table.printers(),
            m_state->table.notLocated()};
}

bool ServiceBrowser::isAnnounced(const QString &uri) const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->table.contains(uri);
}

bool ServiceBrowser::isSettled() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->isMissing || m_state->isSilent() ||
           ((m_state->isAllForNow || m_firstLook.hasExpired()) && m_state->table.isSettled());
}

void ServiceBrowser::refresh() {
    const std::lock_guard lock(m_state->mutex);
    m_state->table.askWhatIsUnsure();
    m_state->wake();
}

QList<Endpoint> ServiceBrowser::resolve(const QString &uri, const QDeadlineTimer &deadline) {
    const auto asked = ServiceTable::Clock::now();
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->table.askFirst(uri);
        m_state->wake();
    }
    QList<Endpoint> found;
    std::optional<QDeadlineTimer> more;
    const auto isEnough = [&] {
        const std::lock_guard lock(m_state->mutex);
        bool areAll = false;
        found = m_state->table.answersSince(uri, asked, areAll);
        if (!found.isEmpty() && !more) more.emplace(m_state->limits.moreAnswers);
        return areAll || (more && more->hasExpired());
    };
    waitUntil(isEnough, deadline, [this](std::chrono::milliseconds slice) {
        std::unique_lock lock(m_state->mutex);
        m_state->news.wait_for(lock, slice);
    });
    return found;
}
