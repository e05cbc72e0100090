#include "zmlib/ServiceBrowser.h"

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/malloc.h>
#include <avahi-common/thread-watch.h>
#include <avahi-common/timeval.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QtEndian>
#include <map>
#include <optional>

#include "platform/core/Waiting.h"
#include "zmlib/DeviceId.h"

namespace {

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

QHostAddress addressOf(const AvahiAddress &from, AvahiIfIndex interface) {
    if (from.proto == AVAHI_PROTO_INET) return QHostAddress(qFromBigEndian(from.data.ipv4.address));
    QHostAddress address(from.data.ipv6.address);
    if (address.isLinkLocal()) address.setScopeId(QString::number(interface));
    return address;
}

// The texts of an announcement by key, in any case; the first of a key counts.
AnnouncedTexts textsOf(AvahiStringList *list) {
    AnnouncedTexts texts;
    for (AvahiStringList *one = list; one; one = avahi_string_list_get_next(one)) {
        const QByteArray text(reinterpret_cast<const char *>(one->text),
                              static_cast<qsizetype>(one->size));
        const qsizetype equals = text.indexOf('=');
        const QByteArray key = text.left(equals).toLower();
        if (equals > 0 && !texts.contains(key)) texts.insert(key, text.mid(equals + 1));
    }
    return texts;
}

}  // namespace

// The part that talks with avahi, on avahi's thread.
class ServiceBrowser::Worker {
  public:
    explicit Worker(ServiceBrowser &browser);
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    // Lets the thread ask what the table has to ask, and say that something is new.
    void wake() { ::eventfd_write(m_wake, 1); }

  private:
    void connectLater();
    void connect();
    void disconnect();
    void follow(AvahiClient *client, AvahiClientState state);
    void browse(const ServiceTable::Places &places, AvahiBrowserEvent event, const char *name,
                const char *domain);
    void askNext();
    AvahiServiceResolver *ask(const ServiceTable::Question &question);
    void end(AvahiServiceResolver *resolver, std::optional<ServiceTable::Answer> answer);

    ServiceBrowser &m_browser;
    const Poll m_poll{avahi_threaded_poll_new()};
    const AvahiPoll *const m_api = avahi_threaded_poll_get(m_poll.get());
    const int m_wake = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);  // readable once woken
    AvahiWatch *m_waking = nullptr;
    AvahiTimeout *m_connecting = nullptr;
    Client m_client;
    Browser m_announcements;
    std::map<AvahiServiceResolver *, ServiceTable::Question> m_asked;
};

ServiceBrowser::Worker::Worker(ServiceBrowser &browser) : m_browser(browser) {
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

void ServiceBrowser::Worker::connectLater() {
    timeval when{};
    avahi_elapse_time(&when, static_cast<unsigned>(m_browser.m_limits.reconnectAfter.count()), 0);
    m_api->timeout_update(m_connecting, &when);
}

// A client that has lost the service is replaced; one that never had it waits by itself.
void ServiceBrowser::Worker::connect() {
    m_api->timeout_update(m_connecting, nullptr);
    disconnect();
    const auto told = [](AvahiClient *client, AvahiClientState state, void *self) {
        static_cast<Worker *>(self)->follow(client, state);
    };
    m_client.reset(avahi_client_new(m_api, AVAHI_CLIENT_NO_FAIL, told, this, nullptr));
    if (m_client) return;
    connectLater();
    const std::lock_guard lock(m_browser.m_mutex);
    m_browser.m_isMissing = true;
    m_browser.m_news.notify_all();
}

void ServiceBrowser::Worker::disconnect() {
    {
        const std::lock_guard lock(m_browser.m_mutex);
        m_browser.m_table.clear();
        m_browser.m_isAllForNow = false;
    }
    for (const auto &[resolver, question] : m_asked) avahi_service_resolver_free(resolver);
    m_asked.clear();
    m_announcements.reset();
    m_client.reset();
}

// May run before avahi_client_new() has returned.
void ServiceBrowser::Worker::follow(AvahiClient *client, AvahiClientState state) {
    if (state == AVAHI_CLIENT_FAILURE) {
        connectLater();
    } else if (state != AVAHI_CLIENT_CONNECTING && !m_announcements) {
        const auto seen = [](AvahiServiceBrowser *, AvahiIfIndex interface, AvahiProtocol protocol,
                             AvahiBrowserEvent event, const char *name, const char *,
                             const char *domain, AvahiLookupResultFlags, void *self) {
            static_cast<Worker *>(self)->browse({{{interface, protocol, AVAHI_PROTO_INET},
                                                  {interface, protocol, AVAHI_PROTO_INET6}}},
                                                event, name, domain);
        };
        m_announcements.reset(avahi_service_browser_new(client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC,
                                                        announcedType, nullptr, AvahiLookupFlags{},
                                                        seen, this));
        if (!m_announcements) connectLater();
    }
    const std::lock_guard lock(m_browser.m_mutex);
    m_browser.m_isMissing = state == AVAHI_CLIENT_FAILURE || state == AVAHI_CLIENT_CONNECTING;
    m_browser.m_news.notify_all();
}

void ServiceBrowser::Worker::browse(const ServiceTable::Places &places, AvahiBrowserEvent event,
                                    const char *name, const char *domain) {
    if (event == AVAHI_BROWSER_FAILURE) connectLater();
    const std::lock_guard lock(m_browser.m_mutex);
    if (event == AVAHI_BROWSER_ALL_FOR_NOW) m_browser.m_isAllForNow = true;
    if (event == AVAHI_BROWSER_NEW) m_browser.m_table.add(name, domain, places);
    if (event == AVAHI_BROWSER_REMOVE) m_browser.m_table.remove(name, domain, places);
    wake();
}

void ServiceBrowser::Worker::askNext() {
    std::unique_lock lock(m_browser.m_mutex);
    while (const auto question = m_browser.m_table.takeQuestion()) {
        lock.unlock();
        AvahiServiceResolver *const resolver = ask(*question);
        lock.lock();
        if (resolver)
            m_asked.emplace(resolver, *question);
        else
            m_browser.m_table.answer(*question, {});
    }
    m_browser.m_news.notify_all();
}

AvahiServiceResolver *ServiceBrowser::Worker::ask(const ServiceTable::Question &question) {
    const auto told = [](AvahiServiceResolver *resolver, AvahiIfIndex interface, AvahiProtocol,
                         AvahiResolverEvent event, const char *, const char *, const char *,
                         const char *, const AvahiAddress *address, uint16_t port,
                         AvahiStringList *txt, AvahiLookupResultFlags, void *self) {
        std::optional<ServiceTable::Answer> answer;
        if (event == AVAHI_RESOLVER_FOUND)
            answer = {{addressOf(*address, interface), port}, productName(textsOf(txt))};
        static_cast<Worker *>(self)->end(resolver, std::move(answer));
    };
    const auto &[interface, protocol, wanted] = question.place;
    return avahi_service_resolver_new(
        m_client.get(), interface, protocol, question.name.constData(), announcedType,
        question.domain.constData(), wanted, AvahiLookupFlags{}, told, this);
}

void ServiceBrowser::Worker::end(AvahiServiceResolver *resolver,
                                 std::optional<ServiceTable::Answer> answer) {
    const auto asked = m_asked.extract(resolver);
    if (asked.empty()) return;
    {
        const std::lock_guard lock(m_browser.m_mutex);
        m_browser.m_table.answer(asked.mapped(), std::move(answer));
    }
    avahi_service_resolver_free(resolver);
    askNext();
}

ServiceBrowser::ServiceBrowser(const BrowsingLimits &limits)
    : m_limits(limits), m_table(limits), m_worker(std::make_unique<Worker>(*this)) {}

ServiceBrowser::~ServiceBrowser() = default;

void ServiceBrowser::settle(const QDeadlineTimer &deadline) const {
    waitFor([this] { return m_isMissing || (m_isAllForNow && m_table.isSettled()); }, deadline);
}

bool ServiceBrowser::isMissing() const {
    const std::lock_guard lock(m_mutex);
    return m_isMissing;
}

QList<AnnouncedPrinter> ServiceBrowser::printers() const {
    const std::lock_guard lock(m_mutex);
    return m_table.printers();
}

bool ServiceBrowser::isAnnounced(const QString &uri) const {
    const std::lock_guard lock(m_mutex);
    return m_table.contains(uri);
}

void ServiceBrowser::refresh() {
    const std::lock_guard lock(m_mutex);
    m_table.askWhatIsUnsure();
    if (!m_table.isSettled()) m_worker->wake();
}

QList<Endpoint> ServiceBrowser::resolve(const QString &uri, const QDeadlineTimer &deadline) {
    const auto asked = ServiceTable::Clock::now();
    {
        const std::lock_guard lock(m_mutex);
        m_table.askFirst(uri);
        m_worker->wake();
    }
    QList<Endpoint> found;
    std::optional<QDeadlineTimer> more;
    const auto isEnough = [&] {
        bool areAll = false;
        found = m_table.answersSince(uri, asked, areAll);
        if (!found.isEmpty() && !more) more.emplace(m_limits.moreAnswers);
        return areAll || (more && more->hasExpired());
    };
    waitFor(isEnough, deadline);
    return found;
}

void ServiceBrowser::waitFor(const std::function<bool()> &isDone,
                             const QDeadlineTimer &deadline) const {
    const auto isDoneNow = [&] {
        const std::lock_guard lock(m_mutex);
        return isDone();
    };
    waitUntil(isDoneNow, deadline, [this](std::chrono::milliseconds slice) {
        std::unique_lock lock(m_mutex);
        m_news.wait_for(lock, slice);
    });
}
