#include "zmlib/ServiceWorker.h"

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-client/publish.h>
#include <avahi-common/error.h>
#include <avahi-common/simple-watch.h>
#include <avahi-common/timeval.h>
#include <net/if.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QNetworkInterface>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <map>
#include <system_error>
#include <thread>

#include "zmlib/AddressProbe.h"
#include "zmlib/DeviceId.h"

namespace {

template <auto release>
struct Release {
    template <class T>
    void operator()(T *held) const {
        release(held);
    }
};
using Poll = std::unique_ptr<AvahiSimplePoll, Release<avahi_simple_poll_free>>;
using Client = std::unique_ptr<AvahiClient, Release<avahi_client_free>>;

QHostAddress addressOf(const AvahiAddress &from, AvahiIfIndex interface) {
    if (from.proto == AVAHI_PROTO_INET) return QHostAddress(qFromBigEndian(from.data.ipv4.address));
    QHostAddress address(from.data.ipv6.address);
    std::array<char, IF_NAMESIZE> name{};
    if (address.isLinkLocal())
        address.setScopeId(::if_indextoname(static_cast<unsigned>(interface), name.data())
                               ? QString::fromLocal8Bit(name.data())
                               : QString::number(interface));
    return address;
}

// Whether a printer that is announced on an interface can have an address.
bool canBePrinters(const QHostAddress &address, AvahiIfIndex interface) {
    return isOfOneMachine(address) &&
           (!address.isLoopback() ||
            QNetworkInterface::interfaceFromIndex(interface).flags().testFlag(
                QNetworkInterface::IsLoopBack));
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

// All of it runs on one thread, which avahi may hold for long.
class ServiceWorker {
  public:
    // `poll` outlives the worker.
    ServiceWorker(BrowsingState &state, AvahiSimplePoll *poll);
    ~ServiceWorker();
    ServiceWorker(const ServiceWorker &) = delete;
    ServiceWorker &operator=(const ServiceWorker &) = delete;

  private:
    static void setTimeout(const AvahiPoll *api, AvahiTimeout *timeout,
                           std::optional<std::chrono::milliseconds> in);
    void connectLater() { setTimeout(m_api, m_connecting, m_state.limits.reconnectAfter); }
    void connect();
    void disconnect();
    void follow(AvahiClient *client, AvahiClientState state);
    void browse(const ServiceTable::Places &places, AvahiBrowserEvent event, const char *name,
                const char *domain);
    void serve();
    bool askNext();
    void giveUp();
    bool ping();
    AvahiServiceResolver *ask(const ServiceTable::Question &question);
    void end(AvahiServiceResolver *resolver, std::optional<ServiceTable::Answer> answer);

    BrowsingState &m_state;
    AvahiSimplePoll *const m_poll;
    const AvahiPoll *const m_api = avahi_simple_poll_get(m_poll);
    AvahiWatch *m_waking = nullptr;
    AvahiTimeout *m_connecting = nullptr;
    AvahiTimeout *m_givingUp = nullptr;
    Client m_client;  // owns what follows
    AvahiServiceBrowser *m_announcements = nullptr;
    std::map<AvahiServiceResolver *, ServiceTable::Question> m_asked;
};

ServiceWorker::ServiceWorker(BrowsingState &state, AvahiSimplePoll *poll)
    : m_state(state), m_poll(poll) {
    const auto readable = [](AvahiWatch *, int wakeUp, AvahiWatchEvent, void *self) {
        eventfd_t count = 0;
        ::eventfd_read(wakeUp, &count);
        static_cast<ServiceWorker *>(self)->serve();
    };
    const auto connect = [](AvahiTimeout *, void *self) {
        static_cast<ServiceWorker *>(self)->connect();
    };
    const auto giveUp = [](AvahiTimeout *, void *self) {
        static_cast<ServiceWorker *>(self)->giveUp();
    };
    const timeval now{};
    m_waking = m_api->watch_new(m_api, state.wakeUp, AVAHI_WATCH_IN, readable, this);
    m_connecting = m_api->timeout_new(m_api, &now, connect, this);
    m_givingUp = m_api->timeout_new(m_api, nullptr, giveUp, this);
}

ServiceWorker::~ServiceWorker() {
    disconnect();
    m_api->timeout_free(m_givingUp);
    m_api->timeout_free(m_connecting);
    m_api->watch_free(m_waking);
}

void ServiceWorker::setTimeout(const AvahiPoll *api, AvahiTimeout *timeout,
                               std::optional<std::chrono::milliseconds> in) {
    timeval when{};
    if (in) avahi_elapse_time(&when, static_cast<unsigned>(in->count()), 0);
    api->timeout_update(timeout, in ? &when : nullptr);
}

// A client that has lost the service is replaced; one that never had it waits by itself.
void ServiceWorker::connect() {
    setTimeout(m_api, m_connecting, {});
    disconnect();
    const auto told = [](AvahiClient *client, AvahiClientState state, void *self) {
        static_cast<ServiceWorker *>(self)->follow(client, state);
    };
    m_client.reset(avahi_client_new(m_api, AVAHI_CLIENT_NO_FAIL, told, this, nullptr));
    if (!m_client) {
        connectLater();
        const std::lock_guard lock(m_state.mutex);
        m_state.isMissing = !m_state.isSilent();
        m_state.news.notify_all();
    }
    serve();
}

// The client frees all that it owns, without a call of the service.
void ServiceWorker::disconnect() {
    {
        const std::lock_guard lock(m_state.mutex);
        m_state.table.clear();
        m_state.isAllForNow = false;
    }
    m_asked.clear();
    m_announcements = nullptr;
    m_client.reset();
}

// May run before avahi_client_new() has returned.
void ServiceWorker::follow(AvahiClient *client, AvahiClientState state) {
    if (state == AVAHI_CLIENT_FAILURE) {
        connectLater();
    } else if (state != AVAHI_CLIENT_CONNECTING && !m_announcements) {
        const auto seen = [](AvahiServiceBrowser *, AvahiIfIndex interface, AvahiProtocol protocol,
                             AvahiBrowserEvent event, const char *name, const char *,
                             const char *domain, AvahiLookupResultFlags, void *self) {
            static_cast<ServiceWorker *>(self)->browse({{{interface, protocol, AVAHI_PROTO_INET},
                                                         {interface, protocol, AVAHI_PROTO_INET6}}},
                                                       event, name, domain);
        };
        m_announcements =
            avahi_service_browser_new(client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, announcedType,
                                      nullptr, AvahiLookupFlags{}, seen, this);
        if (!m_announcements) connectLater();
    }
    const std::lock_guard lock(m_state.mutex);
    m_state.isMissing = state == AVAHI_CLIENT_FAILURE || state == AVAHI_CLIENT_CONNECTING;
    m_state.news.notify_all();
}

void ServiceWorker::browse(const ServiceTable::Places &places, AvahiBrowserEvent event,
                           const char *name, const char *domain) {
    if (event == AVAHI_BROWSER_FAILURE) connectLater();
    const std::lock_guard lock(m_state.mutex);
    m_state.answeredAt = BrowsingState::Clock::now();
    if (event == AVAHI_BROWSER_ALL_FOR_NOW) m_state.isAllForNow = true;
    if (event == AVAHI_BROWSER_NEW) m_state.table.add(name, domain, places);
    if (event == AVAHI_BROWSER_REMOVE) m_state.table.remove(name, domain, places);
    m_state.wake();
}

// Does what the thread was woken for. A call that failed after a silence is no answer.
void ServiceWorker::serve() {
    const bool isAnswered = askNext() && ping();
    const std::lock_guard lock(m_state.mutex);
    if (m_state.isToEnd) avahi_simple_poll_quit(m_poll);
    if (isAnswered || !m_state.isSilent()) m_state.wokenAt.reset();
    m_state.news.notify_all();
}

// Asks as much as may be asked at once; whether the service took all of it.
bool ServiceWorker::askNext() {
    bool areTaken = true;
    std::unique_lock lock(m_state.mutex);
    while (!m_state.isToEnd) {
        const auto question = m_state.table.takeQuestion();
        if (!question) break;
        lock.unlock();
        AvahiServiceResolver *const resolver = ask(*question);
        lock.lock();
        if (resolver) {
            m_asked.emplace(resolver, *question);
            m_state.answeredAt = BrowsingState::Clock::now();
        } else {
            m_state.table.answer(*question, {});
            areTaken = false;
        }
    }
    setTimeout(m_api, m_givingUp, m_state.table.giveUpIn());
    return areTaken;
}

void ServiceWorker::giveUp() {
    std::vector<quint64> givenUp;
    {
        const std::lock_guard lock(m_state.mutex);
        givenUp = m_state.table.giveUp();
    }
    std::erase_if(m_asked, [&](const auto &asked) {
        const auto &[resolver, question] = asked;
        if (!std::binary_search(givenUp.begin(), givenUp.end(), question.number)) return false;
        avahi_service_resolver_free(resolver);
        return true;
    });
    askNext();
}

// Whether the service answers, as far as there is one: it is asked when it has not answered lately,
// for a group of announcements, of which the network gets to know nothing.
bool ServiceWorker::ping() {
    {
        const std::lock_guard lock(m_state.mutex);
        const auto since = BrowsingState::Clock::now() - m_state.answeredAt;
        if (m_state.isToEnd || m_state.isMissing || !m_client || since < m_state.limits.pingAfter)
            return true;
    }
    const auto nothing = [](AvahiEntryGroup *, AvahiEntryGroupState, void *) {};
    AvahiEntryGroup *const group = avahi_entry_group_new(m_client.get(), nothing, nullptr);
    if (group) avahi_entry_group_free(group);
    // A refusal is an answer as well.
    if (!group && avahi_client_errno(m_client.get()) != AVAHI_ERR_TOO_MANY_OBJECTS) return false;
    const std::lock_guard lock(m_state.mutex);
    m_state.answeredAt = BrowsingState::Clock::now();
    return true;
}

AvahiServiceResolver *ServiceWorker::ask(const ServiceTable::Question &question) {
    const auto told = [](AvahiServiceResolver *resolver, AvahiIfIndex interface, AvahiProtocol,
                         AvahiResolverEvent event, const char *, const char *, const char *,
                         const char *host, const AvahiAddress *from, uint16_t port,
                         AvahiStringList *txt, AvahiLookupResultFlags, void *self) {
        std::optional<ServiceTable::Answer> answer;
        if (event == AVAHI_RESOLVER_FOUND)
            if (const auto address = addressOf(*from, interface); canBePrinters(address, interface))
                answer = {{address, port}, QByteArray(host).toLower(), productName(textsOf(txt))};
        static_cast<ServiceWorker *>(self)->end(resolver, std::move(answer));
    };
    const auto &[interface, protocol, wanted] = question.place;
    return avahi_service_resolver_new(
        m_client.get(), interface, protocol, question.name.constData(), announcedType,
        question.domain.constData(), wanted, AvahiLookupFlags{}, told, this);
}

void ServiceWorker::end(AvahiServiceResolver *resolver,
                        std::optional<ServiceTable::Answer> answer) {
    const auto asked = m_asked.extract(resolver);
    if (asked.empty()) return;
    {
        const std::lock_guard lock(m_state.mutex);
        m_state.table.answer(asked.mapped(), std::move(answer));
        m_state.answeredAt = BrowsingState::Clock::now();
        m_state.news.notify_all();
    }
    avahi_service_resolver_free(resolver);
    askNext();
}

// The life of the thread. Signals are for the other threads.
void work(BrowsingState &state) {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
    const Poll poll(avahi_simple_poll_new());
    if (!poll || state.wakeUp < 0) return;
    const ServiceWorker worker(state, poll.get());
    avahi_simple_poll_loop(poll.get());
}

void noteEnd(BrowsingState &state) {
    const std::lock_guard lock(state.mutex);
    state.isMissing = true;
    state.wokenAt.reset();
    state.hasEnded = true;
    state.news.notify_all();
}

}  // namespace

BrowsingState::BrowsingState(const BrowsingLimits &givenLimits)
    : limits(givenLimits), wakeUp(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)), table(givenLimits) {}

BrowsingState::~BrowsingState() {
    if (wakeUp >= 0) ::close(wakeUp);
}

void BrowsingState::wake() {
    if (hasEnded) return;
    if (!wokenAt) wokenAt = Clock::now();
    ::eventfd_write(wakeUp, 1);
}

bool BrowsingState::isSilent() const {
    return wokenAt && Clock::now() - std::max(*wokenAt, answeredAt) > limits.silentAfter;
}

void startServiceWorker(const std::shared_ptr<BrowsingState> &state) {
    state->wokenAt = BrowsingState::Clock::now();
    try {
        std::thread([state] {
            work(*state);
            noteEnd(*state);
        }).detach();
    } catch (const std::system_error &) {
        noteEnd(*state);
    }
}
