#pragma once

#include <QCloseEvent>
#include <QScrollArea>
#include <QWidget>
#include <functional>

// A window that asks before the user closes it. Return presses the focused push button, else the
// one with the property "defaultButton".
class Window : public QWidget {
    Q_OBJECT
  public:
    explicit Window(QWidget *parent = nullptr) : QWidget(parent, Qt::Window) {}

    // Asked when the user closes the window; true lets it close. Without one it closes.
    void setShouldClose(std::function<bool()> shouldClose) {
        m_shouldClose = std::move(shouldClose);
    }

    // Makes the window as large as its contents wish, within the screen, and centres it.
    void fitToScreen();

    // Makes the window larger where its contents need it, up to two thirds of the screen; never
    // smaller.
    void growToContents();
    // Shows the window in front of all others, with the keyboard.
    void bringToFront();

  protected:
    void closeEvent(QCloseEvent *event) override {
        event->setAccepted(!m_shouldClose || m_shouldClose());
    }
    void keyPressEvent(QKeyEvent *event) override;

  private:
    std::function<bool()> m_shouldClose;
};

// Shows a panel that may be larger than the room it gets; wishes for the panel's size.
class PanelScroller : public QScrollArea {
    Q_OBJECT
  public:
    explicit PanelScroller(QWidget *panel);
    QSize sizeHint() const override;
};
