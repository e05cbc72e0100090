#include "platform/ui/WaitSheet.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include "platform/core/Waiting.h"

namespace {

// Longest wait for the windowing system to bring the sheet up; it is not waited for for ever since
// a window on a minimised parent never appears.
constexpr std::chrono::milliseconds appearTimeout{500};

void centreOn(QWidget *window, const QWidget *parent) {
    window->adjustSize();
    QRect frame = window->geometry();
    frame.moveCenter(parent->geometry().center());
    window->move(frame.topLeft());
}

}  // namespace

WaitSheet::WaitSheet(QWidget *sheetWindow, QWidget *parent, QProgressBar *indicator)
    : m_sheet(sheetWindow),
      m_parent(parent->window()),
      m_indicator(indicator),
      m_focused(m_parent->focusWidget()) {
    sheetWindow->hide();
    sheetWindow->setParent(m_parent,
                           (sheetWindow->windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    sheetWindow->setWindowModality(Qt::WindowModal);
    sheetWindow->installEventFilter(this);
    indicator->setRange(0, 0);
    centreOn(sheetWindow, m_parent);
    sheetWindow->show();

    idle();
    waitUntil([this] { return !m_sheet || m_sheet->windowHandle()->isExposed(); },
              QDeadlineTimer(appearTimeout));
    if (m_sheet) m_sheet->repaint();
    if (m_parent) m_parent->repaint();
}

WaitSheet::~WaitSheet() {
    idle();
    if (m_indicator) {
        m_indicator->setRange(0, 1);
        m_indicator->reset();
    }
    if (m_sheet) {
        m_sheet->removeEventFilter(this);
        m_sheet->hide();
    }
    if (!m_parent || !m_parent->isVisible()) return;
    if (!QApplication::activeWindow()) m_parent->activateWindow();
    if (m_focused && m_focused->isEnabled() && m_focused->isVisible() &&
        m_focused->window() == m_parent)
        m_focused->setFocus(Qt::OtherFocusReason);
}

bool WaitSheet::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
        case QEvent::Close:
            event->ignore();
            return true;
        case QEvent::KeyPress:
            return true;
        default:
            return false;
    }
}
