#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

#include "zmlib/ServiceTable.h"

// The printers that announce themselves on the network with DNS-SD (RFC 6763) as
// "_pdl-datastream._tcp": the conversation with the system's own service (avahi), which keeps the
// table of them current on a thread of its own. Callable from several threads; nothing but
// resolve() waits.
class ServiceBrowser {
  public:
    // The browser starts at once.
    explicit ServiceBrowser(const BrowsingLimits &limits = {});
    ~ServiceBrowser();
    ServiceBrowser(const ServiceBrowser &) = delete;
    ServiceBrowser &operator=(const ServiceBrowser &) = delete;

    // Whether what is announced for now is known, or that the system has no such service.
    bool isSettled() const;
    // Whether the system's service is known not to run.
    bool isMissing() const;
    // Waits for at most `slice` until one of the answers may have changed.
    void wait(std::chrono::milliseconds slice) const;

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

    const BrowsingLimits m_limits;
    mutable std::mutex m_mutex;  // guards what follows; never held while avahi is called
    mutable std::condition_variable m_news;
    bool m_isMissing = false;
    bool m_isAllForNow = false;
    ServiceTable m_table;
    const std::unique_ptr<Worker> m_worker;  // uses all of the above
};
