#pragma once

#include <QByteArray>
#include <QList>

// Finds frames in any pieces of bytes; wrong ones and other bytes are skipped.
class FrameParser {
  public:
    struct Frame {
        QByteArray bytes;    // whole
        char command = 0;    // letter of an ESC frame; 0 for a setting frame
        int code = 0;        // item code of a setting frame or of the request "f"
        QByteArray payload;  // parameters of an ESC frame; value of a setting frame
    };

    // Longest accepted setting frame, in bytes; it bounds what the parser keeps.
    static constexpr qsizetype longestFrame = 1024;

    // Takes the next bytes and gives the frames that they complete, in order.
    QList<Frame> take(const QByteArray &bytes);

  private:
    QByteArray m_pending;
};
