#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include "zmlib/ZMLib.h"

// Reads a reply inside its reply area: bytes beyond the reply's end read as 0, and a value that
// would extend past the area is cut at the area's end.
class ReplyCursor {
  public:
    // Size of the area in which a reply is examined, in bytes.
    static constexpr qsizetype areaSize = ZMLib::replyArea;

    explicit ReplyCursor(QByteArray reply);

    // Moves to an offset of the reply; beyond the area means its end.
    void seek(qsizetype offset);
    // Bytes between the cursor and the end of the area.
    qsizetype left() const;

    // Each reads at the cursor and moves it behind what was read. At the end of the area numbers
    // are 0 and bytes are missing.
    quint8 byte();
    quint16 word();  // two bytes, low byte first
    QByteArray bytes(qsizetype count);

  private:
    QByteArray m_reply;
    qsizetype m_position = 0;
};
