#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <optional>

// One printer as the library lists it, under the keys below.
using PrinterEntry = QMap<QString, QString>;

// The keys of a printer entry.
namespace PrinterKey {
inline const QString DeviceURI = QStringLiteral("DeviceURI");
// PrinterConnection::USB or PrinterConnection::Network.
inline const QString ConnectionType = QStringLiteral("ConnectionType");
inline const QString ProductName = QStringLiteral("ProductName");
// Of a printer found on the network.
inline const QString BonjourServiceName = QStringLiteral("BonjourServiceName");
// Of a network printer its address; of a USB printer its serial number or port. May be missing.
inline const QString Address = QStringLiteral("Address");
inline const QString SerialNumber = QStringLiteral("SerialNumber");
inline const QString Port = QStringLiteral("Port");
// Of a USB printer: changes whenever it is plugged in.
inline const QString Plug = QStringLiteral("Plug");
// The printer's own name; not from the library, added by who asked the printer for it.
inline const QString MachineName = QStringLiteral("MachineName");
}  // namespace PrinterKey

// The values of PrinterKey::ConnectionType.
namespace PrinterConnection {
inline const QString USB = QStringLiteral("USB");
inline const QString Network = QStringLiteral("Network");
}  // namespace PrinterConnection

// Whether a listed printer is connected over USB.
inline bool isUSB(const PrinterEntry &entry) {
    return entry.value(PrinterKey::ConnectionType) == PrinterConnection::USB;
}

// Why a printer is not listed or cannot be used, for who looks for it.
struct PrinterProblem {
    enum Kind {
        NoPermission,          // the user may not open the printer's device
        InUse,                 // another program has it
        BadFile,               // a file with printers or models cannot be used, or not all of it
        NoNetworkService,      // the system's service that finds network printers does not run
        EmptyCatalogue,        // printers are listed from a catalogue, and it has none
        SilentNetworkService,  // that service runs, but does not answer
        NotLocated,            // printers are announced whose address is not known yet
        ManyAnnounced,         // so many that the service may not know all of them
        UnknownModel           // a USB printer is none of the supported models
    };
    Kind kind;
    // The printer as a user knows it, the file and what is wrong with it, or how many printers.
    QString subject;
    bool operator==(const PrinterProblem &) const = default;
};

// The printer-communication library: it finds printers, opens and closes a printer's command
// channel and carries byte frames to and from it. It never looks into a setting.
//
// Common to all functions: `uri` is the "DeviceURI" of a listed printer; `timeout` is in
// milliseconds, greater than 0, and bounds the whole call; `commands` is the command list of a
// transaction (start, update, end frame, in this order); `statusLength` is the length in bytes of
// the model's status reply, handed through to transports that ask for the status. Every wait is a
// sliced one (platform/core/Waiting.h). A call whose channel another call is using fails.
class ZMLib {
  public:
    // Results shared by the functions that return an integer; the library's own are all negative.
    enum Result : int {
        Success = 0,
        UnknownPrinter = -1,  // no printer of that URI, or it cannot be reached
        NotOpen = -2,         // the printer's channel is not open, or in use by another call
        TimedOut = -3,
        Closed = -4,        // the printer closed the channel, which is then closed here, too
        NotAReply = -5,     // what came back is no reply frame
        NoPermission = -6,  // the user may not open the printer's device
        InUse = -7          // another program has the printer
    };

    // Size of the area in which a reply is examined, in bytes.
    static constexpr int replyArea = 512;
    // Status length of models that are not known, in bytes.
    static constexpr int defaultStatusLength = 20;
    // The target of ZMIOOpenForUDP() that stands for any printer.
    static inline const QString anyPrinter = QStringLiteral("ZMtcpip://");

    virtual ~ZMLib() = default;

    // The printers that can be listed at this moment; nothing when there is no list at all.
    virtual std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() = 0;

    // What was wrong with the last list, and the printers that could not be opened since.
    virtual QList<PrinterProblem> problems() { return {}; }

    // Whether the list or its problems changed since the last one. Opens no printer; quick.
    virtual bool hasListChanged() { return false; }

    // Whether the last list had everything that is there; false while a search goes on.
    virtual bool isListComplete() { return true; }

    // The address at which a network printer was opened last; empty for any other.
    virtual QString addressOf(const QString & /*uri*/) { return {}; }

    // 1: closed, and the printer can be reached; 0: held open by this process; or a negative
    // Result. The connection that showed it is kept a short while for the engage.
    virtual int ZMGetEngageStatusSub(const QString &uri, int timeout) = 0;

    // Sends the start frame, which is not answered. Result: 0, or a negative Result.
    virtual int ZMStartCommand(const QString &uri, const QList<QByteArray> &commands,
                               int statusLength, int timeout) = 0;

    // Opens the channel and sends the start frame. Result: 0, or a negative Result.
    virtual int ZMEngageConnectAndStartCommand(const QString &uri,
                                               const QList<QByteArray> &commands, int statusLength,
                                               int timeout) = 0;

    // Sends the update and end frames, unless the printer has closed the channel (Closed), and
    // closes it in any case. Result: 0 when the update frame is out, or a negative Result.
    virtual int ZMEndCommandAndEngageDisConnect(const QString &uri,
                                                const QList<QByteArray> &commands, int statusLength,
                                                int timeout) = 0;

    // Sends `request` and appends at most `replySize` bytes of the reply to `reply`; earlier bytes
    // are skipped. Result: 0, or a negative Result; only Closed closes the channel.
    virtual int ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                                 QByteArray &reply, const QList<QByteArray> &commands,
                                 int timeout) = 0;

    // The same for the setting frame `frame` of `frameSize` bytes, with replyArea.
    virtual int ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                                  QByteArray &reply, const QList<QByteArray> &commands,
                                  int timeout) = 0;

    // Whether a printer, `target` or anyPrinter, answers at `address` (dotted IPv4): 0, or
    // negative.
    virtual int ZMIOOpenForUDP(const QString &target, const QString &address, int statusLength,
                               int timeout) = 0;
};
