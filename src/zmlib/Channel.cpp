#include "zmlib/Channel.h"

#include <algorithm>
#include <array>

#include "zmlib/Replies.h"

namespace {

// The requests for the addresses in use: items 0x2002 (wired) and 0x3119 (wireless).
const std::array addressRequests{QByteArray::fromHex("1b7b05660220887d"),
                                 QByteArray::fromHex("1b7b05661931b07d")};
// Where the four octets of the address stand in the answer.
constexpr qsizetype addressOffset = 9;

// Where item codes stand in setting frames and in replies, and in request frames.
constexpr qsizetype itemOffset = 6;
constexpr qsizetype requestItemOffset = 4;

bool isSetting(const QByteArray &frame) {
    return frame.startsWith('C');
}

// What the answer to a frame is, and what a reply is: kind and item code.
QByteArray answerTo(const QByteArray &frame) {
    return isSetting(frame) ? 'R' + frame.mid(itemOffset, 2)
                            : 'F' + frame.mid(requestItemOffset, 2);
}
QByteArray answerIn(const QByteArray &reply) {
    return reply.mid(1, 1) + reply.mid(itemOffset, 2);
}

}  // namespace

const QByteArray queryStart = QByteArray::fromHex("1b7b045501567d");
const QByteArray queryEnd = QByteArray::fromHex("1b7b045500557d");

Channel::Channel(std::unique_ptr<Transport> transport) : m_transport(std::move(transport)) {}

int Channel::send(const QByteArray &frame, const QDeadlineTimer &deadline) {
    m_isBegun = true;
    return resultOf(m_transport->write(frame, deadline));
}

int Channel::exchange(const QByteArray &frame, int replySize, QByteArray &reply,
                      const QDeadlineTimer &deadline) {
    int result = ZMLib::Closed;
    if (m_transport->drain({}, deadline) != Transport::Completion::Closed)
        result = send(frame, deadline);
    const QByteArray expected = answerTo(frame);
    m_wroteSettings |= isSetting(frame);
    QByteArray answer;
    bool foreign = true;
    while (result == ZMLib::Success && foreign) {
        answer.clear();
        result = readReply(*m_transport, answer, deadline);
        const QByteArray answered = answerIn(answer);
        foreign = answered != expected && m_asked.contains(answered);
    }
    m_asked.insert(expected);
    if (result == ZMLib::Success)
        reply.append(answer.constData(), std::min<qsizetype>(answer.size(), replySize));
    return result;
}

int Channel::finish(const QByteArray &update, const QByteArray &end,
                    const QDeadlineTimer &deadline) {
    const auto notice = m_wroteSettings ? m_transport->noticeOfEnd() : std::chrono::milliseconds(0);
    const auto drained =
        m_transport->drain(notice, std::min(deadline, QDeadlineTimer(drainWithin)));
    if (drained == Transport::Completion::Closed) return ZMLib::Closed;
    const int result = send(update, deadline);
    if (result == ZMLib::Success) m_isBegun = send(end, deadline) != ZMLib::Success;
    return result;
}

void Channel::abandon() {
    if (m_isBegun) send(queryEnd, QDeadlineTimer(abandonWithin));
    m_isBegun = false;
}

std::optional<QStringList> Channel::addressesInUse(const QDeadlineTimer &deadline) {
    QStringList addresses;
    for (const QByteArray &request : addressRequests) {
        QByteArray reply;
        if (exchange(request, ZMLib::replyArea, reply, deadline) != ZMLib::Success) return {};
        if (reply.size() < addressOffset + 4) continue;
        QStringList octets;
        for (qsizetype i = 0; i < 4; ++i)
            octets << QString::number(static_cast<quint8>(reply[addressOffset + i]));
        addresses << octets.join(u'.');
    }
    return addresses;
}
