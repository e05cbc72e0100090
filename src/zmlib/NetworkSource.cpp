#include "zmlib/NetworkSource.h"

Listing NetworkSource::list() {
    m_browser.refresh();
    Listing listing = announced();
    const std::lock_guard lock(m_mutex);
    m_listed = listing;
    return listing;
}

bool NetworkSource::hasChanged() {
    m_browser.refresh();
    const Listing listing = announced();
    const std::lock_guard lock(m_mutex);
    return listing != m_listed;
}

Opened NetworkSource::open(const QString &uri, const QDeadlineTimer &deadline) {
    const QDeadlineTimer asking(deadline.remainingTimeAsDuration() / resolvingShare);
    Opened opened;
    QHostAddress reached;
    opened.transport = openTcpTransport(m_browser.resolve(uri, asking), deadline, &reached);
    opened.address = reached.toString();
    return opened;
}

std::optional<QList<QHostAddress>> NetworkSource::addressesOf(const QString &uri,
                                                              const QDeadlineTimer &deadline) {
    if (!lists(uri)) return {};
    QList<QHostAddress> addresses;
    for (const Endpoint &endpoint : m_browser.resolve(uri, deadline))
        addresses.append(endpoint.address);
    return addresses;
}

Listing NetworkSource::announced() const {
    const ServiceBrowser::Known known = m_browser.known();
    if (known.isMissing && !known.isSilent) return {{}, {{PrinterProblem::NoNetworkService, {}}}};
    Listing listing;
    if (known.isSilent) listing.problems = {{PrinterProblem::SilentNetworkService, {}}};
    if (known.notLocated > 0)
        listing.problems.append(
            PrinterProblem{PrinterProblem::NotLocated, QString::number(known.notLocated)});
    if (known.printers.size() + known.notLocated > m_surelyKept)
        listing.problems.append(
            PrinterProblem{PrinterProblem::ManyAnnounced, QString::number(m_surelyKept)});
    for (const AnnouncedPrinter &printer : known.printers)
        listing.entries.append(
            {{PrinterKey::DeviceURI, printer.uri},
             {PrinterKey::ConnectionType, PrinterConnection::Network},
             {PrinterKey::ProductName, printer.productName},
             {PrinterKey::BonjourServiceName, printer.name},
             {PrinterKey::Address, printer.endpoints.first().address.toString()}});
    return listing;
}
