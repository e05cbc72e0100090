#include "virtualprinter/FrameParser.h"

#include <QByteArrayView>
#include <algorithm>

#include "virtualprinter/Bytes.h"

namespace {

constexpr char escape = '\x1B';

// How far a frame at the begin of the buffer is.
enum class Progress { Incomplete, Wrong, Complete };

// ESC "{" N command parameters... checksum "}", N counting the bytes after it.
Progress parseEscape(QByteArrayView buffer, FrameParser::Frame &frame) {
    if (buffer.size() < 2) return Progress::Incomplete;
    if (buffer[1] != '{') return Progress::Wrong;
    if (buffer.size() < 3) return Progress::Incomplete;
    const int rest = static_cast<quint8>(buffer[2]);
    if (rest < 3) return Progress::Wrong;
    if (buffer.size() < 3 + rest) return Progress::Incomplete;
    const QByteArrayView summed = buffer.sliced(3, rest - 2);
    if (buffer[2 + rest] != '}' || buffer[1 + rest] != checksum(summed)) return Progress::Wrong;
    frame.bytes = buffer.first(3 + rest).toByteArray();
    frame.command = summed[0];
    frame.payload = summed.sliced(1).toByteArray();
    if (frame.command == 'f') {
        if (frame.payload.size() != 2) return Progress::Wrong;
        frame.code = littleEndianAt(frame.payload, 0);
    }
    const bool startOrEnd = frame.payload.size() == 1 && static_cast<quint8>(frame.payload[0]) <= 1;
    if (frame.command == 'U' && !startOrEnd) return Progress::Wrong;
    return Progress::Complete;
}

// "CF;" length ";" code ";" payload ";" checksum, the length counting from offset 5 on.
Progress parseSetting(QByteArrayView buffer, FrameParser::Frame &frame) {
    const QByteArrayView begin("CF;");
    const qsizetype known = std::min(buffer.size(), begin.size());
    if (buffer.first(known) != begin.first(known)) return Progress::Wrong;
    if (buffer.size() < 5) return Progress::Incomplete;
    const int length = littleEndianAt(buffer, 3);
    if (length < 6 || 5 + length > FrameParser::longestFrame) return Progress::Wrong;
    if (buffer.size() < 5 + length) return Progress::Incomplete;
    const qsizetype last = 4 + length;
    if (buffer[5] != ';' || buffer[8] != ';' || buffer[last - 1] != ';') return Progress::Wrong;
    if (buffer[last] != checksum(buffer.sliced(5, length - 1))) return Progress::Wrong;
    frame.bytes = buffer.first(last + 1).toByteArray();
    frame.code = littleEndianAt(buffer, 6);
    frame.payload = buffer.sliced(9, length - 6).toByteArray();
    return Progress::Complete;
}

}  // namespace

QList<FrameParser::Frame> FrameParser::take(const QByteArray &bytes) {
    QList<Frame> frames;
    m_pending += bytes;
    qsizetype begin = 0;
    while (begin < m_pending.size()) {
        const QByteArrayView rest = QByteArrayView(m_pending).sliced(begin);
        Frame frame;
        Progress progress = Progress::Wrong;
        if (rest[0] == escape) progress = parseEscape(rest, frame);
        if (rest[0] == 'C') progress = parseSetting(rest, frame);
        if (progress == Progress::Incomplete) break;
        begin += progress == Progress::Complete ? frame.bytes.size() : 1;
        if (progress == Progress::Complete) frames << frame;
    }
    m_pending.remove(0, begin);
    return frames;
}
