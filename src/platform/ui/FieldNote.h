#pragma once

#include <QLabel>

// Small wrapped text below a field, in room that is kept free for it.
class FieldNote : public QLabel {
    Q_OBJECT
  public:
    enum class Kind { Rule, Notice, Fault };

    explicit FieldNote(QWidget *parent = nullptr);

    // Keeps the room of one line, so that nothing moves when a short text is said.
    void keepLine();

    // Says a text; an empty one says nothing. Notices and faults are announced to assistive
    // technologies.
    void say(const QString &text, Kind kind);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The height of the text and, where a line has room, at least of one; in pixels.
    int heightForWidth(int width) const override;

  protected:
    // Follows the colours of the desktop.
    void changeEvent(QEvent *event) override;

  private:
    void colour();

    Kind m_kind = Kind::Rule;
    bool m_keepsLine = false;
};
