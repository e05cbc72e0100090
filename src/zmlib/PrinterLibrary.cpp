#include "zmlib/PrinterLibrary.h"

#include <QHostAddress>
#include <QSet>
#include <QStringList>
#include <QThread>
#include <algorithm>
#include <condition_variable>
#include <set>

#include "platform/core/MainThread.h"
#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

namespace {

// Positions in a command list.
constexpr qsizetype startFrame = 0;
constexpr qsizetype updateFrame = 1;
constexpr qsizetype endFrame = 2;

}  // namespace

// The URIs of the channels that are being destroyed, which takes a while. Any thread.
class EndingChannels {
  public:
    void add(const QString &uri) {
        const std::lock_guard lock(m_mutex);
        m_uris.insert(uri);
    }
    void remove(const QString &uri) {
        const std::lock_guard lock(m_mutex);
        m_uris.erase(m_uris.find(uri));
        m_changed.notify_all();
    }
    // Waits until no channel of the URI is left.
    void wait(const QString &uri, const QDeadlineTimer &deadline) {
        const auto isOver = [&] {
            const std::lock_guard lock(m_mutex);
            return !m_uris.contains(uri);
        };
        waitUntil(isOver, deadline, [&](std::chrono::milliseconds slice) {
            std::unique_lock lock(m_mutex);
            m_changed.wait_for(lock, slice, [&] { return !m_uris.contains(uri); });
        });
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::multiset<QString> m_uris;
};

PrinterLibrary::PrinterLibrary(std::vector<std::unique_ptr<PrinterSource>> sources, int longestWait,
                               ProbePorts ports)
    : m_sources(std::move(sources)),
      m_longestWait(longestWait),
      m_ports(ports),
      m_ending(std::make_shared<EndingChannels>()) {
    m_closing.setSingleShot(true);
    m_closing.setTimerType(Qt::PreciseTimer);  // not before what it closes has expired
    m_closing.callOnTimeout([this] { closeExpired(); });
}

PrinterLibrary::~PrinterLibrary() {
    for (auto &[uri, open] : m_channels) open.channel.abandon();
}

std::optional<QList<PrinterEntry>> PrinterLibrary::ZMCreatePrinterURI() {
    Listing listing;
    for (const auto &source : m_sources) {
        const Listing found = source->list();
        listing.entries += found.entries;
        listing.problems += found.problems;
    }
    QSet<QString> listed;
    for (const PrinterEntry &entry : std::as_const(listing.entries))
        listed << entry[PrinterKey::DeviceURI];
    const std::lock_guard lock(m_mutex);
    m_listing = listing;
    std::erase_if(m_refused, [&](const auto &one) { return !listed.contains(one.first); });
    return listing.entries;
}

int PrinterLibrary::ZMGetEngageStatusSub(const QString &uri, int timeout) {
    if (isOpen(uri)) return 0;
    auto opened = open(uri, deadlineFor(timeout));
    if (const int *result = std::get_if<int>(&opened)) return *result;
    letWait(uri, std::get<Channel>(std::move(opened)));
    return 1;
}

int PrinterLibrary::ZMStartCommand(const QString &uri, const QList<QByteArray> &commands, int,
                                   int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.send(commands.value(startFrame), deadline);
    });
}

int PrinterLibrary::ZMEngageConnectAndStartCommand(const QString &uri,
                                                   const QList<QByteArray> &commands,
                                                   int statusLength, int timeout) {
    const QDeadlineTimer deadline = deadlineFor(timeout);
    if (isOpen(uri)) return NotOpen;
    auto channel = takeWaiting(uri);
    if (!channel) {
        auto opened = open(uri, deadline);
        if (const int *result = std::get_if<int>(&opened)) return *result;
        channel = std::get<Channel>(std::move(opened));
    }
    {
        const std::lock_guard lock(m_mutex);
        if (!m_channels.try_emplace(uri, OpenChannel{std::move(*channel)}).second) return NotOpen;
    }
    const int left = static_cast<int>(std::min<qint64>(deadline.remainingTime(), timeout));
    return ZMStartCommand(uri, commands, statusLength, left);
}

int PrinterLibrary::ZMEndCommandAndEngageDisConnect(const QString &uri,
                                                    const QList<QByteArray> &commands, int,
                                                    int timeout) {
    const auto finish = [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.finish(commands.value(updateFrame), commands.value(endFrame), deadline);
    };
    const QDeadlineTimer deadline = deadlineFor(timeout);
    const int result = useChannel(uri, timeout, finish);
    if (auto channel = takeOpen(uri)) {
        channel->abandon();
        end(uri, std::move(*channel), deadline);
    }
    return result;
}

int PrinterLibrary::ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                                     QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.exchange(request, replySize, reply, deadline);
    });
}

int PrinterLibrary::ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                                      QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.exchange(frame.left(frameSize), replyArea, reply, deadline);
    });
}

int PrinterLibrary::ZMIOOpenForUDP(const QString &target, const QString &address, int,
                                   int timeout) {
    if (target != anyPrinter && !isListed(target)) return UnknownPrinter;
    const QDeadlineTimer deadline = deadlineFor(timeout);
    const QHostAddress host(address);
    for (const auto &source : m_sources)
        if (const auto own = source->addressesOf(target, deadline))
            return own->contains(host) && answersAtAddress(host, deadline, m_ports)
                       ? Success
                       : UnknownPrinter;
    QStringList printers;
    for (const auto &source : m_sources) printers += source->mayHave(address);
    const auto isOnThisNetwork = [](const auto &source) { return source->isOnThisNetwork(); };
    const auto answers = [&](const QString &uri) {
        return !isWaitCancelled() && answersAt(uri, address, deadline);
    };
    return std::any_of(printers.begin(), printers.end(), answers) ||
                   (std::any_of(m_sources.begin(), m_sources.end(), isOnThisNetwork) &&
                    answersAtAddress(host, deadline, m_ports))
               ? Success
               : UnknownPrinter;
}

QList<PrinterProblem> PrinterLibrary::problems() {
    const std::lock_guard lock(m_mutex);
    QList<PrinterProblem> problems = m_listing.problems;
    for (const auto &[uri, problem] : m_refused) problems.append(problem);
    return problems;
}

bool PrinterLibrary::hasListChanged() {
    return std::any_of(m_sources.begin(), m_sources.end(),
                       [](const auto &source) { return source->hasChanged(); });
}

bool PrinterLibrary::isListComplete() {
    return std::all_of(m_sources.begin(), m_sources.end(),
                       [](const auto &source) { return source->isSettled(); });
}

QString PrinterLibrary::addressOf(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_addresses.find(uri);
    return found == m_addresses.end() ? QString() : found->second;
}

QDeadlineTimer PrinterLibrary::deadlineFor(int timeout) const {
    return QDeadlineTimer(std::min(timeout, m_longestWait));
}

bool PrinterLibrary::isListed(const QString &uri) const {
    return std::any_of(m_sources.begin(), m_sources.end(),
                       [&](const auto &source) { return source->lists(uri); });
}

bool PrinterLibrary::isOpen(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    return m_channels.contains(uri);
}

std::variant<Channel, int> PrinterLibrary::open(const QString &uri,
                                                const QDeadlineTimer &deadline) {
    m_ending->wait(uri, deadline);
    Opened opened;
    for (const auto &source : m_sources) {
        opened = source->open(uri, deadline);
        if (opened.transport || opened.result != UnknownPrinter) break;
    }
    noteOpened(uri, opened);
    if (!opened.transport) return opened.result;
    return Channel(std::move(opened.transport));
}

// What keeps a listed printer from being opened is a problem, unless it is merely gone.
void PrinterLibrary::noteOpened(const QString &uri, const Opened &opened) {
    const std::lock_guard lock(m_mutex);
    m_refused.erase(uri);
    if (!opened.address.isEmpty()) m_addresses.insert_or_assign(uri, opened.address);
    if (opened.transport || (opened.result != NoPermission && opened.result != InUse)) return;
    QString name = uri;
    for (const PrinterEntry &entry : std::as_const(m_listing.entries))
        if (entry[PrinterKey::DeviceURI] == uri)
            name = u"%1 (%2)"_s.arg(
                entry[PrinterKey::ProductName],
                entry.value(PrinterKey::SerialNumber, entry.value(PrinterKey::Port)));
    const auto kind = opened.result == InUse ? PrinterProblem::InUse : PrinterProblem::NoPermission;
    m_refused.insert_or_assign(uri, PrinterProblem{kind, name});
}

// A timer closes what nobody takes; on another thread than the library's the next status does.
void PrinterLibrary::letWait(const QString &uri, Channel channel) {
    const auto wait = std::min(engageWait, std::chrono::milliseconds(m_longestWait));
    closeExpired();
    auto earlier = takeWaiting(uri);
    if (earlier) end(uri, std::move(*earlier), {});
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.insert_or_assign(uri, Waiting{std::move(channel), {wait, Qt::PreciseTimer}});
    }
    if (QThread::currentThread() == m_closing.thread()) m_closing.start(wait);
}

std::optional<Channel> PrinterLibrary::takeWaiting(const QString &uri) {
    closeExpired();
    const std::lock_guard lock(m_mutex);
    auto taken = m_waiting.extract(uri);
    return taken ? std::optional(std::move(taken.mapped().channel)) : std::nullopt;
}

void PrinterLibrary::closeExpired() {
    std::map<QString, Waiting> expired;
    {
        const std::lock_guard lock(m_mutex);
        for (auto i = m_waiting.begin(); i != m_waiting.end();) {
            const auto next = std::next(i);
            if (i->second.until.hasExpired()) expired.insert(m_waiting.extract(i));
            i = next;
        }
    }
    for (auto &[uri, waiting] : expired) end(uri, std::move(waiting.channel), {});
}

std::optional<Channel> PrinterLibrary::takeOpen(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_channels.find(uri);
    if (found == m_channels.end() || found->second.busy) return {};
    return std::move(m_channels.extract(found).mapped().channel);
}

void PrinterLibrary::end(const QString &uri, Channel channel, const QDeadlineTimer &deadline) {
    if (!channel.endsSlowly()) return;
    m_ending->add(uri);
    std::shared_ptr<Channel> ending(new Channel(std::move(channel)),
                                    [all = m_ending, uri](const Channel *ended) {
                                        delete ended;
                                        all->remove(uri);
                                    });
    if (!MainThread::isCurrent()) return;
    if (MainThread::startBackgroundWork([ending = std::move(ending)] {}))
        m_ending->wait(uri, deadline);
}

// Claims the channel for one exchange. It stays open until its printer has closed it.
int PrinterLibrary::useChannel(const QString &uri, int timeout, const Exchange &exchange) {
    OpenChannel *open = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_channels.find(uri);
        if (found == m_channels.end() || found->second.busy) return NotOpen;
        open = &found->second;
        open->busy = true;
    }
    const QDeadlineTimer deadline = deadlineFor(timeout);
    const int result = exchange(open->channel, deadline);
    {
        const std::lock_guard lock(m_mutex);
        open->busy = false;
    }
    if (result != Closed) return result;
    if (auto channel = takeOpen(uri)) {
        channel->abandon();
        end(uri, std::move(*channel), deadline);
    }
    return result;
}

// Asks one printer which addresses it uses, on its open channel or on one of this call's own.
bool PrinterLibrary::answersAt(const QString &uri, const QString &address,
                               const QDeadlineTimer &deadline) {
    const auto wait = std::min(std::chrono::milliseconds(deadline.remainingTime()), addressWait);
    bool found = false;
    const auto ask = [&](Channel &channel, const QDeadlineTimer &limit) {
        found = channel.addressesInUse(limit).value_or(QStringList()).contains(address);
        return Success;
    };
    if (isOpen(uri)) {
        useChannel(uri, static_cast<int>(wait.count()), ask);
        return found;
    }
    const QDeadlineTimer limit(wait);
    auto opened = open(uri, limit);
    auto *const channel = std::get_if<Channel>(&opened);
    if (!channel || channel->send(queryStart, limit) != Success) return false;
    ask(*channel, limit);
    channel->send(queryEnd, limit);
    return found;
}
