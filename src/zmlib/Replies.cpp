#include "zmlib/Replies.h"

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype headerSize = 5;

// Reads until `frame` begins with "C" and holds the whole header.
int readHeader(Transport &transport, QByteArray &frame, const QDeadlineTimer &deadline) {
    qsizetype skipped = 0;
    while (frame.size() < headerSize) {
        const auto outcome = transport.read(frame, headerSize - frame.size(), deadline);
        if (outcome != Transport::Outcome::Done) return resultOf(outcome);
        const qsizetype begin = frame.indexOf('C');
        const qsizetype useless = begin < 0 ? frame.size() : begin;
        skipped += useless;
        if (skipped > skippedBytes) return ZMLib::NotAReply;
        frame.remove(0, useless);
    }
    return frame[1] == 'F' || frame[1] == 'R' ? ZMLib::Success : ZMLib::NotAReply;
}

// The requests for the addresses in use: items 0x2002 (wired) and 0x3119 (wireless).
const std::array addressRequests{QByteArray::fromHex("1b7b05660220887d"),
                                 QByteArray::fromHex("1b7b05661931b07d")};
// Where the four octets of the address stand in the answer.
constexpr qsizetype addressOffset = 9;

}  // namespace

const QByteArray queryStart = QByteArray::fromHex("1b7b045501567d");
const QByteArray queryEnd = QByteArray::fromHex("1b7b045500557d");

int resultOf(Transport::Outcome outcome) {
    switch (outcome) {
        case Transport::Outcome::Done:
            return ZMLib::Success;
        case Transport::Outcome::TimedOut:
            return ZMLib::TimedOut;
        case Transport::Outcome::Closed:
            break;
    }
    return ZMLib::Closed;
}

int readReply(Transport &transport, int replySize, QByteArray &reply,
              const QDeadlineTimer &deadline) {
    QByteArray frame;
    if (const int result = readHeader(transport, frame, deadline); result != ZMLib::Success)
        return result;
    const auto low = static_cast<quint8>(frame[3]);
    const auto high = static_cast<quint8>(frame[4]);
    const qsizetype size = headerSize + (low | high << 8);
    while (frame.size() < size) {
        const auto outcome = transport.read(frame, size - frame.size(), deadline);
        if (outcome != Transport::Outcome::Done) return resultOf(outcome);
    }
    reply.append(frame.constData(), std::min<qsizetype>(frame.size(), replySize));
    return ZMLib::Success;
}

int requestReply(Transport &transport, const QByteArray &frame, int replySize, QByteArray &reply,
                 const QDeadlineTimer &deadline) {
    const int written = resultOf(transport.write(frame, deadline));
    return written == ZMLib::Success ? readReply(transport, replySize, reply, deadline) : written;
}

std::optional<QStringList> addressesInUse(Transport &transport, const QDeadlineTimer &deadline) {
    QStringList addresses;
    for (const QByteArray &request : addressRequests) {
        QByteArray reply;
        if (requestReply(transport, request, ZMLib::replyArea, reply, deadline) != ZMLib::Success)
            return {};
        if (reply.size() < addressOffset + 4) continue;
        QStringList octets;
        for (qsizetype i = 0; i < 4; ++i)
            octets << QString::number(static_cast<quint8>(reply[addressOffset + i]));
        addresses << octets.join(u'.');
    }
    return addresses;
}
