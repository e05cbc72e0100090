#include "platform/ui/InertWindow.h"

#include <QLineEdit>

InertWindow::InertWindow(QWidget *window)
    : m_window(window), m_wasEnabled(window->isEnabled()), m_focus(window->focusWidget()) {
    if (const auto *field = qobject_cast<QLineEdit *>(m_focus)) {
        m_caret = field->cursorPosition();
        m_selected = field->selectionLength();
        if (m_caret > field->selectionStart()) m_selected = -m_selected;
    }
    window->setEnabled(false);
    for (auto *other : window->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        if (other->isWindow()) other->setEnabled(true);
}

InertWindow::~InertWindow() {
    if (!m_window) return;
    m_window->setEnabled(m_wasEnabled);
    if (!m_focus || m_focus->hasFocus()) return;
    m_focus->setFocus(Qt::OtherFocusReason);
    auto *const field = qobject_cast<QLineEdit *>(m_focus);
    if (!field) return;
    field->setCursorPosition(m_caret);
    if (m_selected != 0) field->setSelection(m_caret + m_selected, -m_selected);
}
