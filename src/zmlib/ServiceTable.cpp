#include "zmlib/ServiceTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString uriOf(const QByteArray &name, const QByteArray &domain) {
    const auto encoded = [](const QByteArray &text) {
        return QString::fromLatin1(text.toPercentEncoding());
    };
    return u"dnssd:///%1?type=%2&domain=%3"_s.arg(encoded(name), QLatin1String(announcedType),
                                                  encoded(domain));
}

// Adds an endpoint once, behind those that are as good or better.
void addOnce(const Endpoint &endpoint, QList<Endpoint> &endpoints) {
    if (endpoints.contains(endpoint)) return;
    const auto rank = [](const Endpoint &one) {
        if (one.address.protocol() == QAbstractSocket::IPv4Protocol) return 0;
        return one.address.isLinkLocal() ? 2 : 1;
    };
    const auto isBetter = [&](const Endpoint &one, const Endpoint &other) {
        return rank(one) < rank(other);
    };
    endpoints.insert(std::upper_bound(endpoints.begin(), endpoints.end(), endpoint, isBetter),
                     endpoint);
}

}  // namespace

void ServiceTable::add(const QByteArray &name, const QByteArray &domain, const Places &places) {
    const QString uri = uriOf(name, domain);
    Service &service = m_services[uri];
    service.name = name;
    service.domain = domain;
    for (const Place &place : places) {
        service.sightings.try_emplace(place);
        if (place.isSure()) queue(uri, service, place, false);
    }
}

void ServiceTable::remove(const QByteArray &name, const QByteArray &domain, const Places &places) {
    const auto found = m_services.find(uriOf(name, domain));
    if (found == m_services.end()) return;
    for (const Place &place : places) found->second.sightings.erase(place);
    if (found->second.sightings.empty()) m_services.erase(found);
}

void ServiceTable::clear() {
    m_services.clear();
    m_queue.clear();
    m_underWay = 0;
}

QList<AnnouncedPrinter> ServiceTable::printers() const {
    QList<AnnouncedPrinter> printers;
    for (const auto &[uri, service] : m_services) {
        AnnouncedPrinter printer{uri, QString::fromUtf8(service.name), {}, {}};
        for (const auto &[place, sighting] : service.sightings) {
            if (!sighting.answer) continue;
            addOnce(sighting.answer->endpoint, printer.endpoints);
            if (printer.productName.isEmpty()) printer.productName = sighting.answer->productName;
        }
        if (!printer.endpoints.isEmpty()) printers.append(printer);
    }
    std::stable_sort(printers.begin(), printers.end(), [](const auto &one, const auto &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return printers;
}

void ServiceTable::askWhatIsUnsure() {
    const Clock::time_point now = Clock::now();
    for (auto &[uri, service] : m_services)
        for (const auto &[place, sighting] : service.sightings)
            if (place.isSure() && !sighting.isAsked &&
                now - sighting.asked >
                    (sighting.answer ? m_limits.sureFor : m_limits.askAgainAfter))
                queue(uri, service, place, false);
}

void ServiceTable::askFirst(const QString &uri) {
    if (const auto found = m_services.find(uri); found != m_services.end())
        for (const auto &[place, sighting] : found->second.sightings)
            queue(uri, found->second, place, true);
}

QList<Endpoint> ServiceTable::answersSince(const QString &uri, Clock::time_point then,
                                           bool &areAll) const {
    QList<Endpoint> endpoints;
    areAll = true;
    if (const auto found = m_services.find(uri); found != m_services.end())
        for (const auto &[place, sighting] : found->second.sightings) {
            if (sighting.isAsked)
                areAll = false;
            else if (sighting.answer && sighting.asked >= then)
                addOnce(sighting.answer->endpoint, endpoints);
        }
    return endpoints;
}

std::optional<ServiceTable::Question> ServiceTable::takeQuestion() {
    while (!m_queue.empty() &&
           (m_queue.front().isUrgent || m_underWay < m_limits.questionsAtOnce)) {
        const Question question = m_queue.front();
        m_queue.pop_front();
        // The service may have gone since, and come again.
        if (const Sighting *const sighting = find(question); !sighting || !sighting->isAsked)
            continue;
        ++m_underWay;
        return question;
    }
    return {};
}

void ServiceTable::answer(const Question &question, std::optional<Answer> answer) {
    --m_underWay;
    if (Sighting *const sighting = find(question))
        *sighting = {false, Clock::now(), std::move(answer)};
}

void ServiceTable::queue(const QString &uri, Service &service, const Place &place, bool isUrgent) {
    Sighting &sighting = service.sightings[place];
    const auto isSame = [&](const Question &one) { return one.uri == uri && one.place == place; };
    const bool isUnderWay = sighting.isAsked && std::erase_if(m_queue, isSame) == 0;
    if (isUnderWay) return;
    sighting.isAsked = true;
    m_queue.insert(isUrgent ? m_queue.begin() : m_queue.end(),
                   {uri, service.name, service.domain, place, isUrgent});
}

ServiceTable::Sighting *ServiceTable::find(const Question &question) {
    const auto service = m_services.find(question.uri);
    if (service == m_services.end()) return nullptr;
    const auto sighting = service->second.sightings.find(question.place);
    return sighting == service->second.sightings.end() ? nullptr : &sighting->second;
}
