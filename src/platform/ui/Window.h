#pragma once

#include <QCloseEvent>
#include <QScrollArea>
#include <QWidget>
#include <functional>

// A window that asks before the user closes it. Hiding it from code asks nobody. Return presses the
// push button that has the focus; otherwise the visible one whose property "defaultButton" is true.
class Window : public QWidget {
    Q_OBJECT
  public:
    explicit Window(QWidget *parent = nullptr) : QWidget(parent, Qt::Window) {}

    // Asked when the user closes the window; true lets it close. Without one it closes.
    void setShouldClose(std::function<bool()> shouldClose) {
        m_shouldClose = std::move(shouldClose);
    }

    // Makes the window as large as its contents wish, where the screen has the room, and centres
    // it there.
    void fitToScreen();

    // Makes the window larger where its contents need it and the screen has room; never smaller.
    void growToContents();
    // Shows the window in front of all others, with the keyboard.
    void bringToFront();

  protected:
    void closeEvent(QCloseEvent *event) override;
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
