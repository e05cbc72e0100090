#include "zmlib/CatalogueLibrary.h"

#include <QStringList>
#include <algorithm>

#include "zmlib/Replies.h"

namespace {

// Positions in a command list.
constexpr qsizetype startFrame = 0;
constexpr qsizetype updateFrame = 1;
constexpr qsizetype endFrame = 2;

int sendFrame(Transport &transport, const QList<QByteArray> &commands, qsizetype index,
              const QDeadlineTimer &deadline) {
    return resultOf(transport.write(commands.value(index), deadline));
}

}  // namespace

CatalogueLibrary::CatalogueLibrary(Catalogue catalogue, int longestWait)
    : m_catalogue(std::move(catalogue)), m_longestWait(longestWait) {}

std::optional<QList<PrinterEntry>> CatalogueLibrary::ZMCreatePrinterURI() {
    return m_catalogue.entries;
}

int CatalogueLibrary::ZMGetEngageStatusSub(const QString &uri, int timeout) {
    if (isOpen(uri)) return 0;
    return openTransport(uri, deadlineFor(timeout)) ? 1 : UnknownPrinter;
}

int CatalogueLibrary::ZMStartCommand(const QString &uri, const QList<QByteArray> &commands, int,
                                     int timeout) {
    return useChannel(uri, timeout, [&](Transport &transport, const QDeadlineTimer &deadline) {
        return sendFrame(transport, commands, startFrame, deadline);
    });
}

int CatalogueLibrary::ZMEngageConnectAndStartCommand(const QString &uri,
                                                     const QList<QByteArray> &commands,
                                                     int statusLength, int timeout) {
    const QDeadlineTimer deadline = deadlineFor(timeout);
    if (isOpen(uri)) return NotOpen;
    auto transport = openTransport(uri, deadline);
    if (!transport) return UnknownPrinter;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_channels.try_emplace(uri, Channel{std::move(transport)}).second) return NotOpen;
    }
    const int left = static_cast<int>(std::min<qint64>(deadline.remainingTime(), timeout));
    return ZMStartCommand(uri, commands, statusLength, left);
}

int CatalogueLibrary::ZMEndCommandAndEngageDisConnect(const QString &uri,
                                                      const QList<QByteArray> &commands, int,
                                                      int timeout) {
    const auto end = [&](Transport &transport, const QDeadlineTimer &deadline) {
        const int result = sendFrame(transport, commands, updateFrame, deadline);
        return result == Success ? sendFrame(transport, commands, endFrame, deadline) : result;
    };
    const int result = useChannel(uri, timeout, end);
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_channels.find(uri); found != m_channels.end() && !found->second.busy)
        m_channels.erase(found);
    return result;
}

int CatalogueLibrary::ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                                       QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Transport &transport, const QDeadlineTimer &deadline) {
        return requestReply(transport, request, replySize, reply, deadline);
    });
}

int CatalogueLibrary::ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                                        QByteArray &reply, const QList<QByteArray> &, int timeout) {
    return useChannel(uri, timeout, [&](Transport &transport, const QDeadlineTimer &deadline) {
        return requestReply(transport, frame.left(frameSize), replyArea, reply, deadline);
    });
}

int CatalogueLibrary::ZMIOOpenForUDP(const QString &target, const QString &address, int,
                                     int timeout) {
    if (target != anyPrinter && !isListed(target)) return UnknownPrinter;
    const QDeadlineTimer deadline = deadlineFor(timeout);
    for (const PrinterEntry &entry : m_catalogue.entries)
        if (answersAt(entry[PrinterKey::DeviceURI], address, deadline)) return Success;
    return UnknownPrinter;
}

QDeadlineTimer CatalogueLibrary::deadlineFor(int timeout) const {
    return QDeadlineTimer(std::min(timeout, m_longestWait));
}

bool CatalogueLibrary::isListed(const QString &uri) const {
    return std::any_of(
        m_catalogue.entries.begin(), m_catalogue.entries.end(),
        [&](const PrinterEntry &entry) { return entry[PrinterKey::DeviceURI] == uri; });
}

bool CatalogueLibrary::isOpen(const QString &uri) {
    const std::lock_guard lock(m_mutex);
    return m_channels.contains(uri);
}

std::unique_ptr<Transport> CatalogueLibrary::openTransport(const QString &uri,
                                                           const QDeadlineTimer &deadline) {
    if (!isListed(uri)) return nullptr;
    if (const auto printer = m_catalogue.virtualPrinters.value(uri))
        return openVirtualTransport(printer);
    const QUrl url(uri);
    return openTcpTransport(url.host(), static_cast<quint16>(url.port()), deadline);
}

// Claims the channel for one exchange. A channel whose exchange failed is closed: its stream may
// be out of step with the calls.
int CatalogueLibrary::useChannel(const QString &uri, int timeout, const Exchange &exchange) {
    Channel *channel = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_channels.find(uri);
        if (found == m_channels.end() || found->second.busy) return NotOpen;
        channel = &found->second;
        channel->busy = true;
    }
    const int result = exchange(*channel->transport, deadlineFor(timeout));
    const std::lock_guard lock(m_mutex);
    channel->busy = false;
    if (result != Success) m_channels.erase(uri);
    return result;
}

// Asks one printer which addresses it uses, on its open channel or on one of this call's own.
bool CatalogueLibrary::answersAt(const QString &uri, const QString &address,
                                 const QDeadlineTimer &deadline) {
    const auto wait = std::min(std::chrono::milliseconds(deadline.remainingTime()), addressWait);
    bool found = false;
    const auto ask = [&](Transport &transport, const QDeadlineTimer &limit) {
        const auto addresses = addressesInUse(transport, limit);
        found = addresses && addresses->contains(address);
        return addresses ? Success : NotAReply;
    };
    if (isOpen(uri)) {
        useChannel(uri, static_cast<int>(wait.count()), ask);
        return found;
    }
    const QDeadlineTimer limit(wait);
    const auto transport = openTransport(uri, limit);
    if (!transport) return false;
    if (resultOf(transport->write(queryStart, limit)) != ZMLib::Success) return false;
    ask(*transport, limit);
    transport->write(queryEnd, limit);
    return found;
}
