#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>
#include <memory>

#include "zmlib/ServiceTable.h"

struct BrowsingState;

// The printers that announce themselves on the network with DNS-SD (RFC 6763) as
// "_pdl-datastream._tcp". A thread of its own talks with the system's own service (avahi) and keeps
// the table of them current. Callable from several threads; only resolve() waits.
class ServiceBrowser {
  public:
    // The browser starts at once.
    explicit ServiceBrowser(const BrowsingLimits &limits = {});
    // Leaves a thread that the system's service holds to the end of the process.
    ~ServiceBrowser();
    ServiceBrowser(const ServiceBrowser &) = delete;
    ServiceBrowser &operator=(const ServiceBrowser &) = delete;

    // What is known at one moment.
    struct Known {
        bool isMissing;                    // the system's service does not run
        bool isSilent;                     // it has left something unanswered for long
        QList<AnnouncedPrinter> printers;  // announced and located, by name, each once
        qsizetype notLocated;              // how many more are announced
    };
    Known known() const;
    bool isAnnounced(const QString &uri) const;
    // Whether known() has all that is announced, or as much of it as can be had.
    bool isSettled() const;

    // Resolves printers whose address is unknown or stale, and finds out whether the system's
    // service answers, in the background. Call it now and then.
    void refresh();

    // Asks for the addresses of a printer now: IPv4, global IPv6, link-local IPv6. Empty when it
    // does not answer before the deadline.
    QList<Endpoint> resolve(const QString &uri, const QDeadlineTimer &deadline);

  private:
    const std::shared_ptr<BrowsingState> m_state;  // the thread's as well
    const QDeadlineTimer m_firstLook;
};
