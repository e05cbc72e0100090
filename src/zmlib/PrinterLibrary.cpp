#include "zmlib/PrinterLibrary.h"

#include <QHostAddress>
#include <QStringList>
#include <QThread>
#include <algorithm>

#include "platform/core/Waiting.h"

using namespace Qt::StringLiterals;

namespace {

// Positions in a command list.
constexpr qsizetype startFrame = 0;
constexpr qsizetype updateFrame = 1;
constexpr qsizetype endFrame = 2;

}  // namespace

PrinterLibrary::PrinterLibrary(std::vector<std::unique_ptr<PrinterSource>> sources, int longestWait,
                               ProbePorts ports)
    : m_sources(std::move(sources)), m_longestWait(longestWait), m_ports(ports) {
    m_closing.setSingleShot(true);
    m_closing.setTimerType(Qt::PreciseTimer);  // not before what it closes has expired
    m_closing.callOnTimeout([this] { closeExpired(); });
}

std::optional<QList<PrinterEntry>> PrinterLibrary::ZMCreatePrinterURI() {
    Listing listing;
    for (const auto &source : m_sources) {
        const Listing found = source->list();
        listing.entries += found.entries;
        listing.problems += found.problems;
    }
    const std::lock_guard lock(m_mutex);
    m_listing = listing;
    m_refused.clear();
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
    const auto end = [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.finish(commands.value(updateFrame), commands.value(endFrame), deadline);
    };
    const int result = useChannel(uri, timeout, end);
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_channels.find(uri); found != m_channels.end() && !found->second.busy)
        m_channels.erase(found);
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
    Opened opened;
    for (const auto &source : m_sources) {
        opened = source->open(uri, deadline);
        if (opened.transport || opened.result != UnknownPrinter) break;
    }
    noteOpened(uri, opened.transport ? static_cast<int>(Success) : opened.result);
    if (!opened.transport) return opened.result;
    return Channel(std::move(opened.transport));
}

// What keeps a listed printer from being opened, unless it is merely gone, is a problem to be told.
void PrinterLibrary::noteOpened(const QString &uri, int result) {
    const std::lock_guard lock(m_mutex);
    m_refused.erase(uri);
    if (result != NoPermission && result != InUse) return;
    QString name = uri;
    for (const PrinterEntry &entry : std::as_const(m_listing.entries))
        if (entry[PrinterKey::DeviceURI] == uri)
            name = u"%1 (%2)"_s.arg(
                entry[PrinterKey::ProductName],
                entry.value(PrinterKey::SerialNumber, entry.value(PrinterKey::Port)));
    const auto kind = result == InUse ? PrinterProblem::InUse : PrinterProblem::NoPermission;
    m_refused.insert_or_assign(uri, PrinterProblem{kind, name});
}

// A timer closes what nobody takes; on another thread than the library's the next status does.
void PrinterLibrary::letWait(const QString &uri, Channel channel) {
    const auto wait = std::min(engageWait, std::chrono::milliseconds(m_longestWait));
    closeExpired();
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
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_waiting, [](const auto &entry) { return entry.second.until.hasExpired(); });
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
    const int result = exchange(open->channel, deadlineFor(timeout));
    const std::lock_guard lock(m_mutex);
    open->busy = false;
    if (result == Closed) m_channels.erase(uri);
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
