#pragma once

#include <QDeadlineTimer>
#include <QSet>
#include <QTimer>
#include <chrono>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "zmlib/Catalogue.h"
#include "zmlib/Channel.h"
#include "zmlib/ZMLib.h"

// The library that ships: the printers of a catalogue, each over the transport of its URI.
// Callable from several threads; a channel serves one call at a time.
class CatalogueLibrary : public ZMLib {
  public:
    // How long one printer may take to tell its addresses, so that a silent one does not use up the
    // time of those after it.
    static constexpr std::chrono::milliseconds addressWait{2000};
    // How long a channel that the engage status opened waits for the engage that uses it.
    static constexpr std::chrono::milliseconds engageWait{2000};

    // `longestWait` (milliseconds) caps the time-out of every call, for tests of silent printers.
    explicit CatalogueLibrary(Catalogue catalogue,
                              int longestWait = std::numeric_limits<int>::max());

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
    bool mayHave(const QString &uri, const QString &address) const;
    std::optional<Channel> open(const QString &uri, const QDeadlineTimer &deadline);
    void letWait(const QString &uri, Channel channel);
    std::optional<Channel> takeWaiting(const QString &uri);
    void closeExpired();
    int useChannel(const QString &uri, int timeout, const Exchange &exchange);
    bool answersAt(const QString &uri, const QString &address, const QDeadlineTimer &deadline);

    const Catalogue m_catalogue;
    QSet<QString> m_listed;  // the URIs of the catalogue
    const int m_longestWait;
    std::mutex m_mutex;  // guards what follows; never held while a call waits
    std::map<QString, OpenChannel> m_channels;
    std::map<QString, Waiting> m_waiting;
    QTimer m_closing;  // of channels that waited too long; runs on the thread of the library
};
