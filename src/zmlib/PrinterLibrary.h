#pragma once

#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>
#include <vector>

#include "zmlib/AddressProbe.h"
#include "zmlib/Channel.h"
#include "zmlib/PrinterSource.h"
#include "zmlib/ZMLib.h"

class EndingChannels;

// The library that ships. Any thread may call it; a channel serves one call at a time.
class PrinterLibrary : public ZMLib {
  public:
    // Longest time in which a printer may report its addresses, so that others have theirs.
    static constexpr std::chrono::milliseconds addressWait{2000};
    // How long a channel that the engage status opened waits for the engage that uses it.
    static constexpr std::chrono::milliseconds engageWait{2000};

    // For tests: `longestWait` (ms) caps every time-out; `ports` are asked for an answer.
    explicit PrinterLibrary(std::vector<std::unique_ptr<PrinterSource>> sources,
                            int longestWait = std::numeric_limits<int>::max(),
                            ProbePorts ports = {});
    // Gives up the transactions that are open.
    ~PrinterLibrary() override;

    std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() override;
    int ZMGetEngageStatusSub(const QString &uri, int timeout) override;
    int ZMStartCommand(const QString &uri, const QList<QByteArray> &commands, int statusLength,
                       int timeout) override;
    int ZMEngageConnectAndStartCommand(const QString &uri, const QList<QByteArray> &commands,
                                       int statusLength, int timeout) override;
    int ZMEndCommandAndEngageDisConnect(const QString &uri, const QList<QByteArray> &commands,
                                        int statusLength, int timeout) override;
    int ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                         QByteArray &reply, const QList<QByteArray> &commands,
                         int timeout) override;
    int ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                          QByteArray &reply, const QList<QByteArray> &commands,
                          int timeout) override;
    int ZMIOOpenForUDP(const QString &target, const QString &address, int statusLength,
                       int timeout) override;
    QList<PrinterProblem> problems() override;
    bool hasListChanged() override;
    bool isListComplete() override;
    QString addressOf(const QString &uri) override;

  private:
    struct OpenChannel {
        Channel channel;
        bool busy = false;
    };
    // A channel that was opened and not yet engaged.
    struct Waiting {
        Channel channel;
        QDeadlineTimer until;
    };
    using Exchange = std::function<int(Channel &, const QDeadlineTimer &)>;

    QDeadlineTimer deadlineFor(int timeout) const;
    bool isListed(const QString &uri) const;
    bool isOpen(const QString &uri);
    // The channel, or a negative Result. Waits for the end of an earlier channel.
    std::variant<Channel, int> open(const QString &uri, const QDeadlineTimer &deadline);
    void noteOpened(const QString &uri, const Opened &opened);
    void letWait(const QString &uri, Channel channel);
    std::optional<Channel> takeWaiting(const QString &uri);
    void closeExpired();
    // Takes an open channel that no call uses out of the table.
    std::optional<Channel> takeOpen(const QString &uri);
    // Destroys a channel, never under the lock; one that ends slowly in the background, while the
    // main thread waits in slices for it until `deadline`.
    void end(const QString &uri, Channel channel, const QDeadlineTimer &deadline);
    int useChannel(const QString &uri, int timeout, const Exchange &exchange);
    bool answersAt(const QString &uri, const QString &address, const QDeadlineTimer &deadline);

    const std::vector<std::unique_ptr<PrinterSource>> m_sources;
    const int m_longestWait;
    const ProbePorts m_ports;
    // Of this library's channels that end; the background may outlive the library.
    const std::shared_ptr<EndingChannels> m_ending;
    std::mutex m_mutex;  // guards what follows; never held while a call waits
    Listing m_listing;   // the last one
    std::map<QString, PrinterProblem> m_refused;  // printers that could not be opened since
    std::map<QString, QString> m_addresses;       // where printers were opened last, by URI
    std::map<QString, OpenChannel> m_channels;
    std::map<QString, Waiting> m_waiting;
    QTimer m_closing;  // of channels that waited too long; runs on the thread of the library
};
