#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "zmlib/ServiceTable.h"

// The printers that announce themselves on the network with DNS-SD (RFC 6763) as
// "_pdl-datastream._tcp": the conversation with the system's own service (avahi), which keeps the
// table of them current on a thread of its own. Callable from several threads; only settle()
// and resolve() wait.
class ServiceBrowser {
  public:
    // The browser starts at once.
    explicit ServiceBrowser(const BrowsingLimits &limits = {});
    ~ServiceBrowser();
    ServiceBrowser(const ServiceBrowser &) = delete;
    ServiceBrowser &operator=(const ServiceBrowser &) = delete;

    // Waits until what is announced for now is known, or that the system has no such service.
    void settle(const QDeadlineTimer &deadline) const;
    // Whether the system's service is known not to run.
    bool isMissing() const;

    // The printers that are announced and located now, by name, each once.
    QList<AnnouncedPrinter> printers() const;
    bool isAnnounced(const QString &uri) const;

    // Resolves printers whose address is unknown or stale, in the background. Call it now and then.
    void refresh();

    // Asks for the addresses of a printer now: IPv4, global IPv6, link-local IPv6. Empty when it
    // does not answer before the deadline.
    QList<Endpoint> resolve(const QString &uri, const QDeadlineTimer &deadline);

  private:
    class Worker;
    // Waits until `isDone` says so, which is called under m_mutex.
    void waitFor(const std::function<bool()> &isDone, const QDeadlineTimer &deadline) const;

    const BrowsingLimits m_limits;
    mutable std::mutex m_mutex;  // guards what follows; never held while avahi is called
    mutable std::condition_variable m_news;
    bool m_isMissing = false;
    bool m_isAllForNow = false;
    ServiceTable m_table;
    const std::unique_ptr<Worker> m_worker;  // uses all of the above
};
