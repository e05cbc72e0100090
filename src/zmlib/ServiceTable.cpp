#include "zmlib/ServiceTable.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString hostKey = u"&host="_s;

QString encoded(const QByteArray &text) {
    return QString::fromLatin1(text.toPercentEncoding());
}

QString uriOf(const QByteArray &name, const QByteArray &domain) {
    return u"dnssd:///%1?type=%2&domain=%3"_s.arg(encoded(name), QLatin1String(announcedType),
                                                  encoded(domain));
}

// The URI of a service and the host in the URI of a printer; "&" is encoded in all other places.
std::pair<QString, std::optional<QByteArray>> serviceAndHostOf(const QString &uri) {
    const qsizetype end = uri.indexOf(hostKey);
    if (end < 0) return {uri, {}};
    return {uri.left(end),
            QByteArray::fromPercentEncoding(uri.mid(end + hostKey.size()).toLatin1())};
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
        if (place.isLikely() && !isNeedless(service, place)) queue(uri, service, place, true);
    }
}

void ServiceTable::remove(const QByteArray &name, const QByteArray &domain, const Places &places) {
    const auto found = m_services.find(uriOf(name, domain));
    if (found == m_services.end()) return;
    auto &sightings = found->second.sightings;
    for (const Place &place : places)
        if (const auto gone = sightings.find(place); gone != sightings.end()) {
            unqueue(gone->second);
            sightings.erase(gone);
        }
    if (sightings.empty()) m_services.erase(found);
}

void ServiceTable::clear() {
    m_services.clear();
    m_queue.clear();
    m_underWay.clear();
}

QList<AnnouncedPrinter> ServiceTable::printers() const {
    QList<AnnouncedPrinter> printers;
    for (const auto &[uri, service] : m_services) {
        std::map<QByteArray, AnnouncedPrinter> ofHosts;
        for (const auto &[place, sighting] : service.sightings) {
            if (!sighting.answer) continue;
            AnnouncedPrinter &printer = ofHosts[sighting.answer->host];
            addOnce(sighting.answer->endpoint, printer.endpoints);
            if (printer.productName.isEmpty()) printer.productName = sighting.answer->productName;
        }
        for (auto &[host, printer] : ofHosts) {
            printer.uri = ofHosts.size() > 1 ? uri + hostKey + encoded(host) : uri;
            printer.name = QString::fromUtf8(service.name);
            printers.append(printer);
        }
    }
    std::stable_sort(printers.begin(), printers.end(), [](const auto &one, const auto &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return printers;
}

qsizetype ServiceTable::notLocated() const {
    return std::count_if(m_services.begin(), m_services.end(),
                         [](const auto &entry) { return !isLocated(entry.second); });
}

bool ServiceTable::contains(const QString &uri) const {
    const auto serviceAndHost = serviceAndHostOf(uri);
    const auto found = m_services.find(serviceAndHost.first);
    const auto &host = serviceAndHost.second;
    if (found == m_services.end() || !host) return found != m_services.end();
    const auto isThere = [&](const auto &entry) {
        return entry.second.answer && entry.second.answer->host == *host;
    };
    const auto &sightings = found->second.sightings;
    return std::any_of(sightings.begin(), sightings.end(), isThere);
}

bool ServiceTable::isSettled() const {
    const Clock::time_point longAgo = Clock::now() - m_limits.firstLook;
    const auto isAnswered = [&](const auto &entry) {
        const Sighting &sighting = entry.second;
        return sighting.answer || sighting.asked != Clock::time_point() ||
               (sighting.underWay && m_underWay.at(*sighting.underWay).since < longAgo);
    };
    return std::all_of(m_services.begin(), m_services.end(), [&](const auto &entry) {
        const auto &sightings = entry.second.sightings;
        return std::any_of(sightings.begin(), sightings.end(), isAnswered);
    });
}

void ServiceTable::askWhatIsUnsure() {
    const Clock::time_point now = Clock::now();
    for (auto &[uri, service] : m_services)
        for (const auto &[place, sighting] : service.sightings)
            if (place.isLikely() &&
                now - sighting.asked >
                    (sighting.answer ? m_limits.sureFor : m_limits.askAgainAfter) &&
                !isNeedless(service, place))
                queue(uri, service, place, true);
}

void ServiceTable::askFirst(const QString &uri) {
    const auto found = m_services.find(serviceAndHostOf(uri).first);
    if (found == m_services.end()) return;
    for (const auto &[place, sighting] : found->second.sightings)
        queue(found->first, found->second, place, false);
}

QList<Endpoint> ServiceTable::answersSince(const QString &uri, Clock::time_point then,
                                           bool &areAll) const {
    areAll = true;
    auto [name, host] = serviceAndHostOf(uri);
    const auto found = m_services.find(name);
    if (found == m_services.end()) return {};
    const auto &sightings = found->second.sightings;
    if (!host)
        for (const auto &[place, sighting] : sightings)
            if (sighting.answer && (!host || sighting.answer->host < *host))
                host = sighting.answer->host;
    QList<Endpoint> endpoints;
    for (const auto &[place, sighting] : sightings) {
        if (sighting.turn || sighting.underWay)
            areAll = false;
        else if (sighting.answer && sighting.answer->host == host && sighting.asked >= then)
            addOnce(sighting.answer->endpoint, endpoints);
    }
    return endpoints;
}

std::optional<ServiceTable::Question> ServiceTable::takeQuestion() {
    if (m_queue.empty()) return {};
    const auto first = m_queue.begin();
    const bool canWait = first->first.canWait;
    if (canWait && m_underWay.size() >= m_limits.questionsAtOnce) return {};
    Question question = first->second;
    Sighting &sighting = m_services.at(question.uri).sightings.at(question.place);
    unqueue(sighting);
    sighting.underWay = question.number;
    m_underWay[question.number] = {question.uri, question.place, canWait, Clock::now()};
    return question;
}

void ServiceTable::answer(const Question &question, std::optional<Answer> answer) {
    Sighting *const answered = end(question.number, question.uri, question.place);
    if (!answered) return;
    answered->asked = Clock::now();
    answered->wasInVain = !answer;
    answered->answer = std::move(answer);
    if (!answered->answer) return;
    Service &service = m_services.at(question.uri);
    for (auto &[place, other] : service.sightings) {
        // On one interface a name belongs to one host: what another one answered there is over.
        if (place.interface == question.place.interface && other.answer &&
            other.answer->host != answered->answer->host)
            other.answer.reset();
        if (!other.turn || !other.turn->canWait) continue;
        unqueue(other);
        if (!isNeedless(service, place)) queue(question.uri, service, place, true);
    }
}

std::vector<quint64> ServiceTable::giveUp() {
    std::vector<quint64> givenUp;
    if (!isOneWaiting()) return givenUp;
    const Clock::time_point longAgo = Clock::now() - m_limits.giveUpAfter;
    auto waiting = m_queue.begin();
    auto next = m_underWay.begin();
    while (next != m_underWay.end() && next->second.since <= longAgo && waiting != m_queue.end() &&
           !waiting->first.wasInVain) {
        const auto [number, underWay] = *next++;
        if (!underWay.canWait) continue;
        givenUp.push_back(number);
        ++waiting;
        Sighting *const sighting = end(number, underWay.uri, underWay.place);
        if (!sighting) continue;
        sighting->wasInVain = true;
        Service &service = m_services.at(underWay.uri);
        if (!isNeedless(service, underWay.place))
            queue(underWay.uri, service, underWay.place, true);
    }
    return givenUp;
}

std::optional<std::chrono::milliseconds> ServiceTable::giveUpIn() const {
    if (!isOneWaiting()) return {};
    const auto canWait = [](const auto &entry) { return entry.second.canWait; };
    const auto oldest = std::find_if(m_underWay.begin(), m_underWay.end(), canWait);
    if (oldest == m_underWay.end()) return {};
    const auto left = oldest->second.since + m_limits.giveUpAfter - Clock::now();
    return std::max(std::chrono::ceil<std::chrono::milliseconds>(left),
                    std::chrono::milliseconds(0));
}

bool ServiceTable::isLocated(const Service &service) {
    return std::any_of(service.sightings.begin(), service.sightings.end(),
                       [](const auto &entry) { return entry.second.answer.has_value(); });
}

bool ServiceTable::isNeedless(const Service &service, const Place &place) const {
    const Clock::time_point then = Clock::now() - m_limits.sureFor;
    return std::any_of(service.sightings.begin(), service.sightings.end(), [&](const auto &entry) {
        const auto &[other, sighting] = entry;
        return other.interface == place.interface && other.wanted <= place.wanted &&
               sighting.answer && sighting.asked >= then;
    });
}

void ServiceTable::queue(const QString &uri, Service &service, const Place &place, bool canWait) {
    Sighting &sighting = service.sightings.at(place);
    if (sighting.underWay) {
        if (!canWait) m_underWay.at(*sighting.underWay).canWait = false;
        return;
    }
    if (sighting.turn && canWait) return;
    unqueue(sighting);
    sighting.turn = {canWait, sighting.wasInVain, isLocated(service), place.protocol,
                     ++m_lastNumber};
    m_queue[*sighting.turn] = {m_lastNumber, uri, service.name, service.domain, place};
}

void ServiceTable::unqueue(Sighting &sighting) {
    if (sighting.turn) m_queue.erase(*sighting.turn);
    sighting.turn.reset();
}

ServiceTable::Sighting *ServiceTable::end(quint64 number, const QString &uri, const Place &place) {
    if (m_underWay.erase(number) == 0) return nullptr;
    const auto service = m_services.find(uri);
    if (service == m_services.end()) return nullptr;
    const auto sighting = service->second.sightings.find(place);
    // The service may have gone since, and come again.
    if (sighting == service->second.sightings.end() || sighting->second.underWay != number)
        return nullptr;
    sighting->second.underWay.reset();
    return &sighting->second;
}

bool ServiceTable::isOneWaiting() const {
    return m_underWay.size() >= m_limits.questionsAtOnce && !m_queue.empty() &&
           !m_queue.begin()->first.wasInVain;
}
