#include "zmlib/CatalogueSource.h"

#include <QHostAddress>
#include <QUrl>

CatalogueSource::CatalogueSource(Catalogue catalogue) : m_catalogue(std::move(catalogue)) {
    for (const PrinterEntry &entry : m_catalogue.entries)
        m_listed.insert(entry[PrinterKey::DeviceURI]);
}

Listing CatalogueSource::list() {
    Listing listing{m_catalogue.entries, {}};
    for (const QString &problem : m_catalogue.problems)
        listing.problems.append({PrinterProblem::BadFile, problem});
    if (listing == Listing())
        listing.problems.append(PrinterProblem{PrinterProblem::EmptyCatalogue, {}});
    return listing;
}

Opened CatalogueSource::open(const QString &uri, const QDeadlineTimer &deadline) {
    if (!lists(uri)) return {};
    const QUrl url(uri);
    const auto printer = m_catalogue.virtualPrinters.value(uri);
    return {printer ? openVirtualTransport(printer)
                    : openTcpTransport(url.host(QUrl::FullyDecoded),
                                       static_cast<quint16>(url.port()), deadline)};
}

QStringList CatalogueSource::mayHave(const QString &address) {
    QStringList uris;
    for (const PrinterEntry &entry : m_catalogue.entries) {
        const QString uri = entry[PrinterKey::DeviceURI];
        const QHostAddress host(QUrl(uri).host());
        if (host.isNull() || host.isLoopback() || host == QHostAddress(address)) uris << uri;
    }
    return uris;
}

std::shared_ptr<PrinterLibrary> catalogueLibrary(Catalogue catalogue, int longestWait) {
    std::vector<std::unique_ptr<PrinterSource>> sources;
    sources.push_back(std::make_unique<CatalogueSource>(std::move(catalogue)));
    return std::make_shared<PrinterLibrary>(std::move(sources), longestWait);
}
