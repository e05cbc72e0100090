#include "zmlib/ServiceBrowser.h"

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/malloc.h>
#include <avahi-common/thread-watch.h>
#include <avahi-common/timeval.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QtEndian>
#include <algorithm>
#include <array>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <tuple>

#include "platform/core/Waiting.h"
#include "zmlib/DeviceId.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char *serviceType = "_pdl-datastream._tcp";

// How long after a failure the system's service is looked for again.
constexpr unsigned reconnectAfter = 500;  // ms

// So many questions are under way at once: the service allows one program 1024 objects.
constexpr std::size_t questionsAtOnce = 500;

// The records of an address live for 120 s; half of that is taken as sure.
constexpr std::chrono::seconds sureFor{60};

// How long after a question without an answer it is asked again.
constexpr std::chrono::seconds askAgainAfter{10};

// How long after the first answer the others are waited for.
constexpr std::chrono::milliseconds moreAnswers{100};

template <auto release>
struct Release {
    template <class T>
    void operator()(T *held) const {
        release(held);
    }
};
using Poll = std::unique_ptr<AvahiThreadedPoll, Release<avahi_threaded_poll_free>>;
using Client = std::unique_ptr<AvahiClient, Release<avahi_client_free>>;
using Browser = std::unique_ptr<AvahiServiceBrowser, Release<avahi_service_browser_free>>;

// Where a service was seen, and which kind of address is asked for there.
struct Place {
    AvahiIfIndex interface;
    AvahiProtocol protocol;
    AvahiProtocol wanted;
    // Whoever is seen with a version of IP has an address of it; of the other it may have none.
    bool isSure() const { return wanted == protocol; }
    bool operator==(const Place &) const = default;
    bool operator<(const Place &other) const {
        return std::tie(interface, protocol, wanted) <
               std::tie(other.interface, other.protocol, other.wanted);
    }
};

// Those of one sight.
using Places = std::array<Place, 2>;

struct Answer {
    Endpoint endpoint;
    QString productName;
};

struct Sighting {
    bool isAsked = false;               // a question is queued or under way
    Clock::time_point asked = {};       // when the last question ended
    std::optional<Answer> answer = {};  // to it
};

struct Service {
    QByteArray name;
    QByteArray domain;
    std::map<Place, Sighting> sightings;
};

struct Question {
    QString uri;
    Place place;
    bool isUrgent;
};

QString uriOf(const QByteArray &name, const QByteArray &domain) {
    const auto encoded = [](const QByteArray &text) {
        return QString::fromLatin1(text.toPercentEncoding());
    };
    return QStringLiteral("dnssd:///%1?type=%2&domain=%3")
        .arg(encoded(name), QLatin1String(serviceType), encoded(domain));
}

QHostAddress addressOf(const AvahiAddress &from, AvahiIfIndex interface) {
    if (from.proto == AVAHI_PROTO_INET) return QHostAddress(qFromBigEndian(from.data.ipv4.address));
    QHostAddress address(from.data.ipv6.address);
    if (address.isLinkLocal()) address.setScopeId(QString::number(interface));
    return address;
}

// Adds an endpoint once, behind those that are as good or better.
void add(const Endpoint &endpoint, QList<Endpoint> &endpoints) {
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

// The texts of an announcement, as far as they have a key and a value; the first of a key counts,
// which may be written in any case.
AnnouncedTexts textsOf(AvahiStringList *list) {
    AnnouncedTexts texts;
    for (const AvahiStringList *one = list; one;
         one = avahi_string_list_get_next(const_cast<AvahiStringList *>(one))) {
        const QByteArray text(reinterpret_cast<const char *>(one->text),
                              static_cast<qsizetype>(one->size));
        const qsizetype equals = text.indexOf('=');
        const QByteArray key = text.left(equals).toLower();
        if (equals > 0 && !texts.contains(key)) texts.insert(key, text.mid(equals + 1));
    }
    return texts;
}

}  // namespace

// Everything that avahi is told, and tells, happens on its thread; the others only read what is
// known and queue questions.
class ServiceBrowser::Worker {
  public:
    Worker();
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    bool isSettled() const;
    bool isMissing() const;
    void wait(std::chrono::milliseconds slice) const;
    QList<AnnouncedPrinter> printers() const;
    bool isAnnounced(const QString &uri) const;
    void askWhatIsUnsure();
    void askFirst(const QString &uri);
    // The answers of a printer since then, the best first; `areAll` tells whether others may
    // follow.
    QList<Endpoint> answersSince(const QString &uri, Clock::time_point then, bool &areAll) const;

  private:
    // On the thread of avahi.
    void connectLater();
    void connect();
    void disconnect();
    void tell(AvahiClient *client, AvahiClientState state);
    void browse(const Places &places, AvahiBrowserEvent event, const char *name,
                const char *domain);
    void askNext();
    AvahiServiceResolver *ask(const Service &service, const Place &place);
    void end(AvahiServiceResolver *resolver, std::optional<Answer> answer);

    // Under m_mutex.
    void queue(const QString &uri, const Place &place, Sighting &sighting, bool isUrgent);
    Sighting *find(const Question &question);

    const Poll m_poll{avahi_threaded_poll_new()};
    const AvahiPoll *const m_api = avahi_threaded_poll_get(m_poll.get());
    const int m_wake = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);  // readable: there are questions
    AvahiWatch *m_waking = nullptr;
    AvahiTimeout *m_connecting = nullptr;
    Client m_client;
    Browser m_browser;

    mutable std::mutex m_mutex;  // guards what follows; never held while avahi is called
    mutable std::condition_variable m_news;
    bool m_isMissing = false;
    bool m_isAllForNow = false;
    std::map<QString, Service> m_services;  // by URI
    std::deque<Question> m_queue;
    std::map<AvahiServiceResolver *, Question> m_asked;
};

ServiceBrowser::Worker::Worker() {
    const auto readable = [](AvahiWatch *, int wake, AvahiWatchEvent, void *self) {
        eventfd_t count = 0;
        ::eventfd_read(wake, &count);
        static_cast<Worker *>(self)->askNext();
    };
    const auto due = [](AvahiTimeout *, void *self) { static_cast<Worker *>(self)->connect(); };
    const timeval now{};
    m_waking = m_api->watch_new(m_api, m_wake, AVAHI_WATCH_IN, readable, this);
    m_connecting = m_api->timeout_new(m_api, &now, due, this);
    avahi_threaded_poll_start(m_poll.get());
}

ServiceBrowser::Worker::~Worker() {
    avahi_threaded_poll_stop(m_poll.get());
    disconnect();
    m_api->timeout_free(m_connecting);
    m_api->watch_free(m_waking);
    ::close(m_wake);
}

bool ServiceBrowser::Worker::isSettled() const {
    const std::lock_guard lock(m_mutex);
    return m_isMissing || (m_isAllForNow && m_queue.empty() && m_asked.empty());
}

bool ServiceBrowser::Worker::isMissing() const {
    const std::lock_guard lock(m_mutex);
    return m_isMissing;
}

void ServiceBrowser::Worker::wait(std::chrono::milliseconds slice) const {
    std::unique_lock lock(m_mutex);
    m_news.wait_for(lock, slice);
}

QList<AnnouncedPrinter> ServiceBrowser::Worker::printers() const {
    QList<AnnouncedPrinter> printers;
    const std::lock_guard lock(m_mutex);
    for (const auto &[uri, service] : m_services) {
        AnnouncedPrinter printer{uri, QString::fromUtf8(service.name), {}, {}};
        for (const auto &[place, sighting] : service.sightings) {
            if (!sighting.answer) continue;
            add(sighting.answer->endpoint, printer.endpoints);
            if (printer.productName.isEmpty()) printer.productName = sighting.answer->productName;
        }
        if (printer.endpoints.isEmpty()) continue;
        printers.append(printer);
    }
    std::stable_sort(printers.begin(), printers.end(), [](const auto &one, const auto &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return printers;
}

bool ServiceBrowser::Worker::isAnnounced(const QString &uri) const {
    const std::lock_guard lock(m_mutex);
    return m_services.contains(uri);
}

void ServiceBrowser::Worker::askWhatIsUnsure() {
    const Clock::time_point now = Clock::now();
    const std::lock_guard lock(m_mutex);
    for (auto &[uri, service] : m_services)
        for (auto &[place, sighting] : service.sightings)
            if (place.isSure() && !sighting.isAsked &&
                now - sighting.asked > (sighting.answer ? sureFor : askAgainAfter))
                queue(uri, place, sighting, false);
}

void ServiceBrowser::Worker::askFirst(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_services.find(uri); found != m_services.end())
        for (auto &[place, sighting] : found->second.sightings) queue(uri, place, sighting, true);
}

QList<Endpoint> ServiceBrowser::Worker::answersSince(const QString &uri, Clock::time_point then,
                                                     bool &areAll) const {
    QList<Endpoint> endpoints;
    areAll = true;
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_services.find(uri); found != m_services.end())
        for (const auto &[place, sighting] : found->second.sightings) {
            if (sighting.isAsked)
                areAll = false;
            else if (sighting.answer && sighting.asked >= then)
                add(sighting.answer->endpoint, endpoints);
        }
    return endpoints;
}

void ServiceBrowser::Worker::connectLater() {
    timeval when{};
    avahi_elapse_time(&when, reconnectAfter, 0);
    m_api->timeout_update(m_connecting, &when);
}

// A client that has lost the service is of no use any more. One that has not found it yet waits for
// it by itself, as long as there is a bus.
void ServiceBrowser::Worker::connect() {
    m_api->timeout_update(m_connecting, nullptr);
    disconnect();
    const auto told = [](AvahiClient *client, AvahiClientState state, void *self) {
        static_cast<Worker *>(self)->tell(client, state);
    };
    m_client.reset(avahi_client_new(m_api, AVAHI_CLIENT_NO_FAIL, told, this, nullptr));
    if (m_client) return;
    connectLater();
    const std::lock_guard lock(m_mutex);
    m_isMissing = true;
    m_news.notify_all();
}

void ServiceBrowser::Worker::disconnect() {
    std::map<AvahiServiceResolver *, Question> asked;
    {
        const std::lock_guard lock(m_mutex);
        asked.swap(m_asked);
        m_queue.clear();
        m_services.clear();
        m_isAllForNow = false;
    }
    for (const auto &[resolver, question] : asked) avahi_service_resolver_free(resolver);
    m_browser.reset();
    m_client.reset();
}

// May run before avahi_client_new() has returned.
void ServiceBrowser::Worker::tell(AvahiClient *client, AvahiClientState state) {
    if (state == AVAHI_CLIENT_FAILURE) {
        connectLater();
    } else if (state != AVAHI_CLIENT_CONNECTING && !m_browser) {
        const auto seen = [](AvahiServiceBrowser *, AvahiIfIndex interface, AvahiProtocol protocol,
                             AvahiBrowserEvent event, const char *name, const char *,
                             const char *domain, AvahiLookupResultFlags, void *self) {
            static_cast<Worker *>(self)->browse({{{interface, protocol, AVAHI_PROTO_INET},
                                                  {interface, protocol, AVAHI_PROTO_INET6}}},
                                                event, name, domain);
        };
        m_browser.reset(avahi_service_browser_new(client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC,
                                                  serviceType, nullptr, AvahiLookupFlags{}, seen,
                                                  this));
        if (!m_browser) connectLater();
    }
    const std::lock_guard lock(m_mutex);
    m_isMissing = state == AVAHI_CLIENT_FAILURE || state == AVAHI_CLIENT_CONNECTING;
    m_news.notify_all();
}

void ServiceBrowser::Worker::browse(const Places &places, AvahiBrowserEvent event, const char *name,
                                    const char *domain) {
    if (event == AVAHI_BROWSER_FAILURE) connectLater();
    const std::lock_guard lock(m_mutex);
    if (event == AVAHI_BROWSER_ALL_FOR_NOW) m_isAllForNow = true;
    if (event == AVAHI_BROWSER_NEW) {
        const QString uri = uriOf(name, domain);
        Service &service = m_services[uri];
        service.name = name;
        service.domain = domain;
        for (const Place &place : places) {
            Sighting &sighting = service.sightings[place];
            if (place.isSure()) queue(uri, place, sighting, false);
        }
    }
    if (event == AVAHI_BROWSER_REMOVE)
        if (const auto found = m_services.find(uriOf(name, domain)); found != m_services.end()) {
            for (const Place &place : places) found->second.sightings.erase(place);
            if (found->second.sightings.empty()) m_services.erase(found);
        }
    m_news.notify_all();
}

void ServiceBrowser::Worker::askNext() {
    std::unique_lock lock(m_mutex);
    while (!m_queue.empty() && (m_queue.front().isUrgent || m_asked.size() < questionsAtOnce)) {
        const Question question = m_queue.front();
        m_queue.pop_front();
        if (Sighting *const sighting = find(question); !sighting || !sighting->isAsked) continue;
        const Service service = m_services[question.uri];
        lock.unlock();
        AvahiServiceResolver *const resolver = ask(service, question.place);
        lock.lock();
        if (resolver)
            m_asked.emplace(resolver, question);
        else if (Sighting *const sighting = find(question))
            *sighting = {false, Clock::now(), {}};
    }
    m_news.notify_all();
}

AvahiServiceResolver *ServiceBrowser::Worker::ask(const Service &service, const Place &place) {
    const auto told = [](AvahiServiceResolver *resolver, AvahiIfIndex interface, AvahiProtocol,
                         AvahiResolverEvent event, const char *, const char *, const char *,
                         const char *, const AvahiAddress *address, uint16_t port,
                         AvahiStringList *txt, AvahiLookupResultFlags, void *self) {
        std::optional<Answer> answer;
        if (event == AVAHI_RESOLVER_FOUND)
            answer = Answer{{addressOf(*address, interface), port}, ::productName(textsOf(txt))};
        static_cast<Worker *>(self)->end(resolver, std::move(answer));
    };
    return avahi_service_resolver_new(
        m_client.get(), place.interface, place.protocol, service.name.constData(), serviceType,
        service.domain.constData(), place.wanted, AvahiLookupFlags{}, told, this);
}

void ServiceBrowser::Worker::end(AvahiServiceResolver *resolver, std::optional<Answer> answer) {
    {
        const std::lock_guard lock(m_mutex);
        const auto asked = m_asked.extract(resolver);
        if (Sighting *const sighting = find(asked.mapped()))
            *sighting = {false, Clock::now(), std::move(answer)};
    }
    avahi_service_resolver_free(resolver);
    askNext();
}

void ServiceBrowser::Worker::queue(const QString &uri, const Place &place, Sighting &sighting,
                                   bool isUrgent) {
    const auto isSame = [&](const Question &one) { return one.uri == uri && one.place == place; };
    const bool isUnderWay = sighting.isAsked && std::erase_if(m_queue, isSame) == 0;
    if (isUnderWay) return;
    sighting.isAsked = true;
    if (isUrgent)
        m_queue.push_front({uri, place, true});
    else
        m_queue.push_back({uri, place, false});
    ::eventfd_write(m_wake, 1);
}

Sighting *ServiceBrowser::Worker::find(const Question &question) {
    const auto service = m_services.find(question.uri);
    if (service == m_services.end()) return nullptr;
    const auto sighting = service->second.sightings.find(question.place);
    return sighting == service->second.sightings.end() ? nullptr : &sighting->second;
}

ServiceBrowser::ServiceBrowser() : m_worker(std::make_unique<Worker>()) {}

ServiceBrowser::~ServiceBrowser() = default;

bool ServiceBrowser::isSettled() const {
    return m_worker->isSettled();
}

bool ServiceBrowser::isMissing() const {
    return m_worker->isMissing();
}

void ServiceBrowser::wait(std::chrono::milliseconds slice) const {
    m_worker->wait(slice);
}

QList<AnnouncedPrinter> ServiceBrowser::printers() const {
    return m_worker->printers();
}

bool ServiceBrowser::isAnnounced(const QString &uri) const {
    return m_worker->isAnnounced(uri);
}

void ServiceBrowser::refresh() {
    m_worker->askWhatIsUnsure();
}

QList<Endpoint> ServiceBrowser::resolve(const QString &uri, const QDeadlineTimer &deadline) {
    const Clock::time_point asked = Clock::now();
    m_worker->askFirst(uri);
    QList<Endpoint> found;
    std::optional<QDeadlineTimer> more;
    const auto isEnough = [&] {
        bool areAll = false;
        found = m_worker->answersSince(uri, asked, areAll);
        if (!found.isEmpty() && !more) more.emplace(moreAnswers);
        return areAll || (more && more->hasExpired());
    };
    waitUntil(isEnough, deadline, [this](std::chrono::milliseconds slice) { wait(slice); });
    return found;
}
