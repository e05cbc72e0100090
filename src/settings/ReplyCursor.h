#pragma once

#include <QByteArray>
#include <algorithm>

#include "zmlib/ZMLib.h"

// Reads a reply inside its reply area; bytes beyond the reply are 0, a value ends with the area.
class ReplyCursor {
  public:
    // Size of the area in which a reply is examined, in bytes.
    static constexpr qsizetype areaSize = ZMLib::replyArea;

    explicit ReplyCursor(QByteArray reply);

    // Moves to an offset of the reply; beyond the area means its end.
    void seek(qsizetype offset) { m_position = std::clamp<qsizetype>(offset, 0, areaSize); }
    // Bytes between the cursor and the end of the area.
    qsizetype left() const { return areaSize - m_position; }

    // Each moves the cursor behind what it read. At the end numbers are 0 and bytes are missing.
    quint8 byte();
    quint16 word();  // two bytes, low byte first
    QByteArray bytes(qsizetype count);

  private:
    QByteArray m_reply;
    qsizetype m_position = 0;
};
