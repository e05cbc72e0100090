#include "settings/Frames.h"

#include <numeric>

namespace {

char checksum(QByteArrayView bytes) {
    const auto add = [](unsigned sum, char byte) { return sum + static_cast<quint8>(byte); };
    return static_cast<char>(std::accumulate(bytes.begin(), bytes.end(), 0U, add) & 0xFF);
}

}  // namespace

QByteArray Frames::word(qsizetype value) {
    const char bytes[] = {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
    return QByteArray(bytes, 2);
}

QByteArray Frames::escFrame(char command, const QByteArray &parameters) {
    const QByteArray summed = command + parameters;
    QByteArray frame("\x1B{");
    frame.append(static_cast<char>(summed.size() + 2));
    frame.append(summed).append(checksum(summed)).append('}');
    return frame;
}

QByteArray Frames::startFrame() {
    return escFrame('U', QByteArray(1, '\x01'));
}

QByteArray Frames::endFrame() {
    return escFrame('U', QByteArray(1, '\x00'));
}

QByteArray Frames::updateFrame() {
    return escFrame('w', {});
}

QByteArray Frames::requestFrame(ItemCode code) {
    return escFrame('f', word(code));
}

QByteArray Frames::settingFrame(ItemCode code, const QByteArray &payload) {
    if (payload.size() > maximumPayload) return {};
    const QByteArray summed = ';' + word(code) + ';' + payload + ';';
    return "CF;" + word(summed.size() + 1) + summed + checksum(summed);
}
