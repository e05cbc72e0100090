#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <memory>
#include <mutex>

#include "virtualprinter/FrameParser.h"
#include "virtualprinter/Profile.h"

// A printer in software: bytes in, bytes out. Every thread may call it.
class VirtualPrinter {
  public:
    // Result codes of a refused setting frame; 0 is an accepted one.
    enum ResultCode : int {
        Accepted = 0,
        LoginNeeded = 1,    // a password is set and no login succeeded in this transaction
        WrongPassword = 2,  // the login's password is another one
        NotWritable = 3,    // the item is unknown or read-only
        BadValue = 4        // the payload does not have the layout of the item
    };

    static constexpr qsizetype longestLog = 10000;  // frames

    struct LoggedFrame {
        enum Direction { Received, Sent };
        Direction direction;
        QByteArray bytes;
    };

    struct Reply {
        QByteArray bytes;  // to be sent at once, on their own
        int delay = 0;     // ms to wait before these bytes are sent
    };

    // One connection of a host, for one thread at a time; its printer outlives it. Settings are
    // applied by the update frame, otherwise dropped.
    class Channel {
      public:
        // Takes bytes in any pieces and gives the replies to complete frames, in order. Wrong
        // frames, and those outside start and end, have none.
        QList<Reply> receive(const QByteArray &bytes);

        // False once the printer has closed the channel.
        bool isOpen() const { return m_open; }

        // Whether the printer has broken the channel off: over TCP, a reset.
        bool isReset() const { return m_reset; }

      private:
        friend class VirtualPrinter;
        explicit Channel(VirtualPrinter &printer) : m_printer(printer) {}

        VirtualPrinter &m_printer;
        FrameParser m_parser;
        bool m_open = true;
        bool m_reset = false;
        bool m_started = false;
        bool m_loggedIn = false;
        int m_frames = 0;
        QHash<quint16, QByteArray> m_staged;
        std::optional<QByteArray> m_stagedPassword;
    };

    explicit VirtualPrinter(Profile profile);

    // Opens a connection; a null pointer while the faults refuse one.
    std::unique_ptr<Channel> openChannel();

    // The applied value of an item, in the layout of Items.h; empty for an unknown one.
    QByteArray item(quint16 code) const;
    QByteArray password() const;

    // The last longestLog frames since clearLog(), in order.
    QList<LoggedFrame> log() const;
    void clearLog();

    // Replaces what goes wrong, for example when the printer is unplugged.
    void setFaults(const SimulatedFaults &faults);
    SimulatedFaults faults() const;

  private:
    // The lines below run under m_mutex.
    void handle(Channel &channel, const FrameParser::Frame &frame, QList<Reply> &replies);
    void handleCommand(Channel &channel, const FrameParser::Frame &frame, QList<Reply> &replies);
    std::optional<QByteArray> valueForRequest(quint16 code);
    QByteArray networkBlock(int block) const;
    int write(Channel &channel, quint16 code, const QByteArray &payload);
    int writePassword(Channel &channel, quint16 code, const QByteArray &payload);
    void apply(Channel &channel);
    void reply(Channel &channel, char kind, quint16 code, const QByteArray &payload,
               QList<Reply> &replies);
    void note(LoggedFrame::Direction direction, const QByteArray &bytes);
    void followAddress(quint16 configured, quint16 inUse, const QByteArray &automatic);

    mutable std::mutex m_mutex;
    Profile m_profile;
    std::optional<int> m_pollsLeft;  // until the search has finished; nothing: there was none
    QList<LoggedFrame> m_log;
};
