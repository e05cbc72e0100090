#include "settings/ReplyCursor.h"

ReplyCursor::ReplyCursor(QByteArray reply) : m_reply(std::move(reply)) {
    m_reply.truncate(areaSize);
}

quint8 ReplyCursor::byte() {
    if (left() == 0) return 0;
    const qsizetype at = m_position++;
    return at < m_reply.size() ? static_cast<quint8>(m_reply[at]) : quint8{0};
}

quint16 ReplyCursor::word() {
    const quint8 low = byte();
    const quint8 high = byte();
    return static_cast<quint16>(low | high << 8);
}

QByteArray ReplyCursor::bytes(qsizetype count) {
    const qsizetype taken = std::clamp<qsizetype>(count, 0, left());
    QByteArray result = m_reply.mid(std::min(m_position, m_reply.size()), taken);
    result.append(taken - result.size(), '\0');
    m_position += taken;
    return result;
}
