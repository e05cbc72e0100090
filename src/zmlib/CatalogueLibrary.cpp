#include "zmlib/CatalogueLibrary.h"

#include <QHostAddress>
#include <QStringList>
#include <QThread>
#include <algorithm>

namespace {

// Positions in a command list.
constexpr qsizetype startFrame = 0;
constexpr qsizetype updateFrame = 1;
constexpr qsizetype endFrame = 2;

}  // namespace

CatalogueLibrary::CatalogueLibrary(Catalogue catalogue, int longestWait)
    : m_catalogue(std::move(catalogue)), m_longestWait(longestWait) {
    for (const PrinterEntry &entry : m_catalogue.entries)
        m_listed.insert(entry[PrinterKey::DeviceURI]);
    m_closing.setSingleShot(true);
    m_closing.setTimerType(Qt::PreciseTimer);  // not before what it closes has expired
    m_closing.callOnTimeout([this] { closeExpired(); });
}

std::optional<QList<PrinterEntry>> CatalogueLibrary::ZMCreatePrinterURI() {
    return m_catalogue.entries;
}

int CatalogueLibrary::ZMGetEngageStatusSub(const QString &uri, int timeout) {
    if (isOpen(uri)) return 0;
    auto channel = open(uri, deadlineFor(timeout));
    if (!channel) return UnknownPrinter;
    letWait(uri, std::move(*channel));
    return 1;
}

int CatalogueLibrary::ZMStartCommand(const QString &uri, const QList<QByteArray> &commands, int,
                                     int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.send(commands.value(startFrame), deadline);
    });
}

int CatalogueLibrary::ZMEngageConnectAndStartCommand(const QString &uri,
                                                     const QList<QByteArray> &commands,
                                                     int statusLength, int timeout) {
    const QDeadlineTimer deadline = deadlineFor(timeout);
    if (isOpen(uri)) return NotOpen;
    auto channel = takeWaiting(uri);
    if (!channel) channel = open(uri, deadline);
    if (!channel) return UnknownPrinter;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_channels.try_emplace(uri, OpenChannel{std::move(*channel)}).second) return NotOpen;
    }
    const int left = static_cast<int>(std::min<qint64>(deadline.remainingTime(), timeout));
    return ZMStartCommand(uri, commands, statusLength, left);
}

int CatalogueLibrary::ZMEndCommandAndEngageDisConnect(const QString &uri,
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

int CatalogueLibrary::ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                                       QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.exchange(request, replySize, reply, deadline);
    });
}

int CatalogueLibrary::ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                                        QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Channel &channel, const QDeadlineTimer &deadline) {
        return channel.exchange(frame.left(frameSize), replyArea, reply, deadline);
    });
}

int CatalogueLibrary::ZMIOOpenForUDP(const QString &target, const QString &address, int,
                                     int timeout) {
    if (target != anyPrinter && !isListed(target)) return UnknownPrinter;
    const QDeadlineTimer deadline = deadlineFor(timeout);
    const auto &entries = m_catalogue.entries;
    const bool answers =
        std::any_of(entries.begin(), entries.end(), [&](const PrinterEntry &entry) {
            const QString uri = entry[PrinterKey::DeviceURI];
            return mayHave(uri, address) && answersAt(uri, address, deadline);
        });
    return answers ? Success : UnknownPrinter;
}

QDeadlineTimer CatalogueLibrary::deadlineFor(int timeout) const {
    return QDeadlineTimer(std::min(timeout, m_longestWait));
}

bool CatalogueLibrary::isListed(const QString &uri) const {
    return m_listed.contains(uri);
}

bool CatalogueLibrary::isOpen(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    return m_channels.contains(uri);
}

// Another machine is asked for its own address only: the silence of each that cannot have the
// address would cost time that the others need.
bool CatalogueLibrary::mayHave(const QString &uri, const QString &address) const {
    const QHostAddress host(QUrl(uri).host());
    return host.isNull() || host.isLoopback() || host == QHostAddress(address);
}

std::optional<Channel> CatalogueLibrary::open(const QString &uri, const QDeadlineTimer &deadline) {
    if (!isListed(uri)) return {};
    const QUrl url(uri);
    const auto printer = m_catalogue.virtualPrinters.value(uri);
    auto transport = printer ? openVirtualTransport(printer)
                             : openTcpTransport(url.host(QUrl::FullyDecoded),
                                                static_cast<quint16>(url.port()), deadline);
    if (!transport) return {};
    return Channel(std::move(transport));
}

// A timer closes what nobody takes; on another thread than the library's the next status does.
void CatalogueLibrary::letWait(const QString &uri, Channel channel) {
    const auto wait = std::min(engageWait, std::chrono::milliseconds(m_longestWait));
    closeExpired();
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.insert_or_assign(uri, Waiting{std::move(channel), {wait, Qt::PreciseTimer}});
    }
    if (QThread::currentThread() == m_closing.thread()) m_closing.start(wait);
}

std::optional<Channel> CatalogueLibrary::takeWaiting(const QString &uri) {
    closeExpired();
    const std::lock_guard lock(m_mutex);
    auto taken = m_waiting.extract(uri);
    return taken ? std::optional(std::move(taken.mapped().channel)) : std::nullopt;
}

void CatalogueLibrary::closeExpired() {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_waiting, [](const auto &entry) { return entry.second.until.hasExpired(); });
}

// Claims the channel for one exchange. It stays open until its printer has closed it.
int CatalogueLibrary::useChannel(const QString &uri, int timeout, const Exchange &exchange) {
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
bool CatalogueLibrary::answersAt(const QString &uri, const QString &address,
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
    auto channel = open(uri, limit);
    if (!channel || channel->send(queryStart, limit) != Success) return false;
    ask(*channel, limit);
    channel->send(queryEnd, limit);
    return found;
}
