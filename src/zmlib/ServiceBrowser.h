#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QString>
#include <chrono>
#include <memory>
#include <optional>

#include "zmlib/Transport.h"

// A printer that announces itself.
struct AnnouncedPrinter {
    QString uri;                // "dnssd:///NAME?type=_pdl-datastream._tcp&domain=DOMAIN"
    QString name;               // of the service, any text of at most 63 bytes of UTF-8
    QString productName;        // empty when it does not say
    QList<Endpoint> endpoints;  // where it was last found; the best first
};

// The printers that announce themselves on the network with DNS-SD (RFC 6763) as
// "_pdl-datastream._tcp", told by the system's own service (avahi) and kept current on a thread of
// its own. Callable from several threads; nothing but resolve() waits.
class ServiceBrowser {
  public:
    // The browser starts at once.
    ServiceBrowser();
    ~ServiceBrowser();
    ServiceBrowser(const ServiceBrowser &) = delete;
    ServiceBrowser &operator=(const ServiceBrowser &) = delete;

    // Whether what is announced for now is known, or that the system has no such service.
    bool isSettled() const;
    // Whether the system's service is known not to run.
    bool isMissing() const;
    // Waits for at most `slice` until one of the answers may have changed.
    void wait(std::chrono::milliseconds slice) const;

    // The printers of this moment that have told where they are, by name. One that is announced
    // several times, on further interfaces or with another version of IP, is one printer.
    QList<AnnouncedPrinter> printers() const;
    bool isAnnounced(const QString &uri) const;

    // Asks in the background where those printers are of which that is not known, or not for sure
    // any more. To be called now and then.
    void refresh();

    // Asks where a printer is at this moment, which may have changed since it was announced: IPv4
    // addresses first, then global, then link-local IPv6 ones. Empty when it does not tell before
    // the deadline or is not announced.
    QList<Endpoint> resolve(const QString &uri, const QDeadlineTimer &deadline);

  private:
    class Worker;
    const std::unique_ptr<Worker> m_worker;
};
