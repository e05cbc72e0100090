#pragma once

#include <QComboBox>
#include <QWheelEvent>

// A combo box that leaves the wheel to what it scrolls with: turning the wheel over it must not
// change a choice that the user did not look at. With the focus it takes the wheel.
class PopUpButton : public QComboBox {
    Q_OBJECT
  public:
    explicit PopUpButton(QWidget *parent = nullptr) : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void wheelEvent(QWheelEvent *event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};
