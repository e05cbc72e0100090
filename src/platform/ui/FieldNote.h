#pragma once

#include <QLabel>

// Small wrapped text below a field, in room that is kept free for it.
class FieldNote : public QLabel {
    Q_OBJECT
  public:
    enum class Kind { Rule, Notice, Fault };

    explicit FieldNote(QWidget *parent = nullptr);

    // Keeps the room that `text` needs, so that nothing moves when it is said.
    void keepRoomFor(const QString &text);

    // Says a text; an empty one says nothing. Notices and faults are announced to assistive
    // technologies.
    void say(const QString &text, Kind kind);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The height of the text, or of the one that has room here, whichever is larger; in pixels.
    int heightForWidth(int width) const override;

  private:
    int heightOf(const QString &text, int width) const;
    QColor colourOf(Kind kind) const;

    QString m_room;
};
