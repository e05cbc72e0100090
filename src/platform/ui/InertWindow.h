#pragma once

#include <QPointer>

class QWidget;

// Makes a window inert while it lives: its content is disabled, for a person's clicks and keys and
// for assistive technologies alike. Afterwards each control is enabled as it says itself, and the
// focus, with the caret and the selection of a field, is where it was; no editing ends thereby.
// Windows that belong to the inert one are not affected.
class InertWindow {
  public:
    explicit InertWindow(QWidget *window);
    ~InertWindow();
    InertWindow(const InertWindow &) = delete;
    InertWindow &operator=(const InertWindow &) = delete;

  private:
    const QPointer<QWidget> m_window;
    const bool m_wasEnabled;
    const QPointer<QWidget> m_focus;
    int m_caret = 0;
    int m_selected = 0;  // characters, negative when the caret stands before them
};
