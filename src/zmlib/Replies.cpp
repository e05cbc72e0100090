#include "zmlib/Replies.h"

#include "zmlib/ZMLib.h"

namespace {

constexpr qsizetype headerSize = 5;

// Reads until `frame` begins with "C" and holds the whole header.
int readHeader(Transport &transport, QByteArray &frame, const QDeadlineTimer &deadline) {
    qsizetype skipped = 0;
    while (frame.size() < headerSize) {
        const auto completion = transport.read(frame, headerSize - frame.size(), deadline);
        if (completion != Transport::Completion::Done) return resultOf(completion);
        const qsizetype begin = frame.indexOf('C');
        const qsizetype useless = begin < 0 ? frame.size() : begin;
        skipped += useless;
        if (skipped > skippedBytes) return ZMLib::NotAReply;
        frame.remove(0, useless);
    }
    return frame[1] == 'F' || frame[1] == 'R' ? ZMLib::Success : ZMLib::NotAReply;
}

}  // namespace

int resultOf(Transport::Completion completion) {
    if (completion == Transport::Completion::Done) return ZMLib::Success;
    return completion == Transport::Completion::TimedOut ? ZMLib::TimedOut : ZMLib::Closed;
}

int readReply(Transport &transport, QByteArray &reply, const QDeadlineTimer &deadline) {
    if (const int result = readHeader(transport, reply, deadline); result != ZMLib::Success)
        return result;
    const auto low = static_cast<quint8>(reply[3]);
    const auto high = static_cast<quint8>(reply[4]);
    const qsizetype size = headerSize + (low | high << 8);
    while (reply.size() < size) {
        const auto completion = transport.read(reply, size - reply.size(), deadline);
        if (completion != Transport::Completion::Done) return resultOf(completion);
    }
    return ZMLib::Success;
}
