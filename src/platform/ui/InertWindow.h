#pragma once

#include <QPointer>

class QWidget;

// Makes a window, not those that belong to it, inert while it lives, for clicks, keys and assistive
// technologies. Enabled states, focus, caret and selection come back; no editing ends.
class InertWindow {
  public:
    explicit InertWindow(QWidget *window);
    ~InertWindow();
    Q_DISABLE_COPY_MOVE(InertWindow)

  private:
    const QPointer<QWidget> m_window;
    const bool m_wasEnabled;
    const QPointer<QWidget> m_focus;
    int m_caret = 0;
    int m_selected = 0;  // characters, negative when the caret stands before them
};
