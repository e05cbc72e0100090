#include "virtualprinter/VirtualPrinter.h"

#include "virtualprinter/Bytes.h"
#include "virtualprinter/Items.h"

namespace {

// Items with a meaning of their own.
constexpr quint16 passwordSet = 0x1000;
constexpr quint16 login = 0x1001;
constexpr quint16 newPassword = 0x1003;
constexpr quint16 wired = 0x2001;
constexpr quint16 wiredInUse = 0x2002;
constexpr quint16 wireless = 0x3108;
constexpr quint16 wirelessInUse = 0x3119;
constexpr quint16 scan = 0x3120;
constexpr quint16 firstBlock = 0x3121;
constexpr quint16 lastBlock = 0x3124;

constexpr qsizetype networksPerBlock = 5;
// States of the search for networks.
constexpr int none = 0;
constexpr int searching = 1;
constexpr int finished = 2;

// Address, mask and gateway that an interface gets when it takes them automatically.
const QByteArray wiredAutomatic = QByteArray::fromHex("c0a80164ffffff00c0a80101");
const QByteArray wirelessAutomatic = QByteArray::fromHex("c0a80165ffffff00c0a80101");

// "C" kind ";" length ";" code ";" payload ";" checksum, as a setting frame is built.
QByteArray replyFrame(char kind, quint16 code, const QByteArray &payload) {
    const QByteArray summed = ';' + littleEndian(code) + ';' + payload + ';';
    return QByteArray("C") + kind + ';' + littleEndian(static_cast<int>(summed.size()) + 1) +
           summed + checksum(summed);
}

// The bytes of a fault's reply.
QByteArray spoil(QByteArray bytes, const ItemFault &fault) {
    if (fault.garbage) return QByteArray::fromHex("00ff43437b1b7d3b0aff");
    if (fault.length) bytes.replace(3, 2, littleEndian(*fault.length));
    if (fault.truncate) bytes.truncate(*fault.truncate);
    return bytes;
}

}  // namespace

QList<VirtualPrinter::Reply> VirtualPrinter::Channel::receive(const QByteArray &bytes) {
    QList<Reply> replies;
    const std::lock_guard lock(m_printer.m_mutex);
    for (const FrameParser::Frame &frame : m_parser.take(bytes))
        if (m_open) m_printer.handle(*this, frame, replies);
    return replies;
}

VirtualPrinter::VirtualPrinter(Profile profile) : m_profile(std::move(profile)) {
    followAddress(wired, wiredInUse, wiredAutomatic);
    followAddress(wireless, wirelessInUse, wirelessAutomatic);
}

std::unique_ptr<VirtualPrinter::Channel> VirtualPrinter::openChannel() {
    const std::lock_guard lock(m_mutex);
    if (m_profile.faults.refuseConnection) return nullptr;
    return std::unique_ptr<Channel>(new Channel(*this));
}

QByteArray VirtualPrinter::item(quint16 code) const {
    const std::lock_guard lock(m_mutex);
    return m_profile.items.value(code);
}

QByteArray VirtualPrinter::password() const {
    const std::lock_guard lock(m_mutex);
    return m_profile.password;
}

QList<VirtualPrinter::LoggedFrame> VirtualPrinter::log() const {
    const std::lock_guard lock(m_mutex);
    QList<LoggedFrame> own = m_log;
    own.detach();  // under the lock: frames are appended in place as soon as nobody shares them
    return own;
}

void VirtualPrinter::clearLog() {
    const std::lock_guard lock(m_mutex);
    m_log.clear();
}

void VirtualPrinter::setFaults(const SimulatedFaults &faults) {
    const std::lock_guard lock(m_mutex);
    m_profile.faults = faults;
}

SimulatedFaults VirtualPrinter::faults() const {
    const std::lock_guard lock(m_mutex);
    return m_profile.faults;
}

void VirtualPrinter::handle(Channel &channel, const FrameParser::Frame &frame,
                            QList<Reply> &replies) {
    note(LoggedFrame::Received, frame.bytes);
    ++channel.m_frames;
    if (frame.command != 0) {
        handleCommand(channel, frame, replies);
    } else if (channel.m_started) {
        const auto code = static_cast<quint16>(frame.code);
        const auto refused = m_profile.faults.items.value(code).resultCode;
        const int result = refused ? *refused : write(channel, code, frame.payload);
        reply(channel, 'R', code, littleEndian(result), replies);
    }
    const int last = m_profile.faults.closeAfterFrames;
    if (last > 0 && channel.m_frames >= last) channel.m_open = false;
}

void VirtualPrinter::handleCommand(Channel &channel, const FrameParser::Frame &frame,
                                   QList<Reply> &replies) {
    if (frame.command == 'U') {
        channel.m_started = frame.payload[0] == 1;
        channel.m_loggedIn = false;
        channel.m_staged.clear();
        channel.m_stagedPassword.reset();
    } else if (frame.command == 'w' && channel.m_started) {
        apply(channel);
    } else if (frame.command == 'f' && channel.m_started) {
        const auto code = static_cast<quint16>(frame.code);
        if (const auto value = valueForRequest(code)) reply(channel, 'F', code, *value, replies);
    }
}

// The data of the reply to a request; nothing for an item that cannot be read.
std::optional<QByteArray> VirtualPrinter::valueForRequest(quint16 code) {
    if (code == passwordSet) return littleEndian(m_profile.password.isEmpty() ? 0 : 1);
    if (code == wiredInUse || code == wirelessInUse) return m_profile.items.value(code);
    if (code == scan) {
        if (!m_pollsLeft) return littleEndian(none) + littleEndian(0);
        const bool done = *m_pollsLeft == 0;
        if (!done) --*m_pollsLeft;
        const auto count = static_cast<int>(m_profile.networks.size());
        return littleEndian(done ? finished : searching) + littleEndian(done ? count : 0);
    }
    if (code >= firstBlock && code <= lastBlock) return networkBlock(code - firstBlock);
    const Items::Item *item = Items::find(code);
    return item && item->readable ? std::optional(m_profile.items.value(code)) : std::nullopt;
}

// Count, and entries of 44 bytes: length, SSID, mode, authentication, encryption, signal, 0.
QByteArray VirtualPrinter::networkBlock(int block) const {
    const auto networks = m_profile.networks.mid(block * networksPerBlock, networksPerBlock);
    QByteArray data = littleEndian(static_cast<int>(networks.size()));
    for (const Network &network : networks) {
        data += littleEndian(static_cast<int>(network.ssid.size()));
        data += network.ssid + QByteArray(longestSsid - network.ssid.size(), '\0');
        data += littleEndian(network.mode) + littleEndian(network.authentic);
        data += littleEndian(network.encryption) + littleEndian(network.signal) + littleEndian(0);
    }
    return data;
}

// Stages a setting; gives its result code.
int VirtualPrinter::write(Channel &channel, quint16 code, const QByteArray &payload) {
    if (code == scan) {
        if (payload != littleEndian(1)) return BadValue;
        m_pollsLeft = m_profile.scanPolls;
        return Accepted;
    }
    const bool open = m_profile.password.isEmpty() || channel.m_loggedIn || code == login;
    if (!open) return LoginNeeded;
    if (code == login || code == newPassword) return writePassword(channel, code, payload);
    const Items::Item *item = Items::find(code);
    if (!item || !item->writable) return NotWritable;
    const auto value = Items::fromPayload(*item, payload);
    if (!value) return BadValue;
    channel.m_staged.insert(code, *value);
    return Accepted;
}

int VirtualPrinter::writePassword(Channel &channel, quint16 code, const QByteArray &payload) {
    const qsizetype length = payload.size() - 1;  // one 0x00 ends the text
    if (length < 0 || length > longestPassword || payload.indexOf('\0') != length) return BadValue;
    const QByteArray text = payload.left(length);
    if (code == newPassword) {
        channel.m_stagedPassword = text;
        return Accepted;
    }
    channel.m_loggedIn = text == m_profile.password;
    return channel.m_loggedIn ? Accepted : WrongPassword;
}

void VirtualPrinter::apply(Channel &channel) {
    m_profile.items.insert(channel.m_staged);
    if (channel.m_stagedPassword) m_profile.password = *channel.m_stagedPassword;
    if (channel.m_staged.contains(wired)) followAddress(wired, wiredInUse, wiredAutomatic);
    if (channel.m_staged.contains(wireless))
        followAddress(wireless, wirelessInUse, wirelessAutomatic);
    channel.m_staged.clear();
    channel.m_stagedPassword.reset();
}

void VirtualPrinter::reply(Channel &channel, char kind, quint16 code, const QByteArray &payload,
                           QList<Reply> &replies) {
    const ItemFault fault = m_profile.faults.items.value(code);
    channel.m_reset = fault.reset;
    if (fault.closed || fault.closeAfterReply || fault.reset) channel.m_open = false;
    if (fault.noReply || fault.closed || fault.reset) return;
    const auto toldCode = static_cast<quint16>(fault.code.value_or(code));
    const QByteArray bytes = spoil(replyFrame(kind, toldCode, payload), fault);
    const int delay = m_profile.faults.delay + fault.delay;
    for (int i = 0; i < (fault.doubled ? 2 : 1); ++i) {
        note(LoggedFrame::Sent, bytes);
        const qsizetype piece = m_profile.faults.piecewise ? 1 : bytes.size();
        for (qsizetype at = 0; at < bytes.size(); at += piece)
            replies.append({bytes.mid(at, piece), delay});
    }
}

void VirtualPrinter::note(LoggedFrame::Direction direction, const QByteArray &bytes) {
    if (m_log.size() == longestLog) m_log.removeFirst();
    m_log.append({direction, bytes});
}

// The addresses in use of an interface: the configured ones, or those it gets by itself.
void VirtualPrinter::followAddress(quint16 configured, quint16 inUse, const QByteArray &automatic) {
    const QByteArray setting = m_profile.items.value(configured);
    const bool fixed = littleEndianAt(setting, 0) != 0;
    m_profile.items.insert(inUse, fixed ? setting.mid(2) : automatic);
}
