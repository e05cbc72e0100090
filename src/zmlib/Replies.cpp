#include "zmlib/Replies.h"

#include "zmlib/ZMLib.h"

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

}  // namespace

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

int readReply(Transport &transport, QByteArray &reply, const QDeadlineTimer &deadline) {
    if (const int result = readHeader(transport, reply, deadline); result != ZMLib::Success)
        return result;
    const auto low = static_cast<quint8>(reply[3]);
    const auto high = static_cast<quint8>(reply[4]);
    const qsizetype size = headerSize + (low | high << 8);
    while (reply.size() < size) {
        const auto outcome = transport.read(reply, size - reply.size(), deadline);
        if (outcome != Transport::Outcome::Done) return resultOf(outcome);
    }
    return ZMLib::Success;
}
