#pragma once

#include <QComboBox>
#include <QStylePainter>
#include <QWheelEvent>

// A combo box that takes the wheel only with the focus, so that scrolling changes no choice.
class PopUpButton : public QComboBox {
    Q_OBJECT
  public:
    explicit PopUpButton(QWidget *parent = nullptr) : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
    }

    // Lets a disabled pop-up look like the value that it shows, without frame and arrow.
    void showAsValue(bool on) {
        m_isValue = on;
        update();
    }

  protected:
    void paintEvent(QPaintEvent *event) override {
        if (!m_isValue || isEnabled()) return QComboBox::paintEvent(event);
        QStylePainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(textMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         currentText());
    }
    void wheelEvent(QWheelEvent *event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }

  private:
    static constexpr int textMargin = 2;  // as in a field

    bool m_isValue = false;
};
