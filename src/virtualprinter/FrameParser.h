#pragma once

#include <QByteArray>
#include <QList>

// Finds the frames in what a host sends, in whatever pieces it arrives. Frames whose length,
// checksum or parameter is wrong, and bytes between frames, are skipped.
class FrameParser {
  public:
    struct Frame {
        QByteArray bytes;    // whole
        char command = 0;    // letter of an ESC frame; 0 for a setting frame
        int code = 0;        // item code of a setting frame or of the request "f"
        QByteArray payload;  // parameters of an ESC frame; value of a setting frame
    };

    // Longest setting frame that is accepted, in bytes; longer ones are skipped as garbage. It
    // bounds what the parser keeps.
    static constexpr qsizetype longestFrame = 1024;

    // Takes the next bytes and gives the frames that they complete, in order.
    QList<Frame> take(const QByteArray &bytes);

  private:
    QByteArray m_pending;
};
