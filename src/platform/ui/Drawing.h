#pragma once

#include <QLabel>

// Shows an SVG drawing in the colours of the palette: black stands for lines, white for surfaces,
// blue for what is pointed out. Its accessible name says what is to be seen.
class Drawing : public QLabel {
    Q_OBJECT
    // The name of the file among the resources' pictures, without its suffix.
    Q_PROPERTY(QString picture READ picture WRITE setPicture)
  public:
    explicit Drawing(QWidget *parent = nullptr);

    QString picture() const { return m_picture; }
    // To be set before the drawing is shown. One that is not there shows nothing.
    void setPicture(const QString &picture) { m_picture = picture; }

    // The drawing's own size, also before it is drawn.
    QSize sizeHint() const override { return drawingSize; }
    QSize minimumSizeHint() const override { return drawingSize; }

  protected:
    // Draws when it is first shown, and anew when the colours or the screen change.
    bool event(QEvent *event) override;

  private:
    void draw();

    static constexpr QSize drawingSize{320, 104};  // in the file, of every drawing
    QString m_picture;
};
