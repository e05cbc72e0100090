#include "platform/ui/WaitSheet.h"

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QProgressBar>
#include <QWindow>
#include <thread>

namespace {

// Longest wait for the window system to show a window, in milliseconds.
constexpr int longestExposure = 500;

WaitSheet *current = nullptr;

// Waits until the window system shows a window, which it does within a few milliseconds.
void waitForExposure(const QWidget *window) {
    const auto exposed = [window] {
        return window->windowHandle() && window->windowHandle()->isExposed();
    };
    const auto pause = [](std::chrono::milliseconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    waitUntil(exposed, QDeadlineTimer(longestExposure), pause);
}

}  // namespace

bool isPartOf(const QObject *object, const QWidget *window) {
    const auto *widget = qobject_cast<const QWidget *>(object);
    return widget ? widget->window() == window : object == window->windowHandle();
}

WaitSheet::WaitSheet(QWidget *sheet, QWidget *parent, QProgressBar *indicator,
                     QAbstractButton *cancel)
    : m_sheet(sheet), m_indicator(indicator), m_outer(std::exchange(current, this)) {
    // A window that was only just shown is painted first, since making another one takes time.
    waitForExposure(parent);
    parent->repaint();
    indicator->setRange(0, 0);  // busy
    sheet->hide();              // modality changes only while a window is hidden
    sheet->setParent(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    m_inert.emplace(parent);
    sheet->setEnabled(true);
    cancel->setEnabled(true);
    cancel->setFocus();
    sheet->setWindowModality(Qt::WindowModal);
    sheet->adjustSize();
    const QRect area(parent->mapToGlobal(QPoint(0, 0)), parent->size());
    sheet->move(area.center() - sheet->rect().center());
    sheet->show();
    waitForExposure(sheet);
    sheet->repaint();
    parent->repaint();
    m_wait.emplace([this] { return m_isCancelled; },
                   [this](const QObject *object) { return m_sheet && isPartOf(object, m_sheet); });
    m_cancelling = QObject::connect(cancel, &QAbstractButton::clicked, sheet, [this, cancel] {
        m_isCancelled = true;
        cancel->setEnabled(false);
    });
}

WaitSheet::~WaitSheet() {
    end();
    current = m_outer;
}

QWidget *WaitSheet::endCurrent() {
    QWidget *const parent =
        current && current->m_sheet ? current->m_sheet->parentWidget() : nullptr;
    if (current) current->end();
    return parent;
}

void WaitSheet::end() {
    if (!m_wait) return;
    QObject::disconnect(m_cancelling);
    idle();  // what the user did during the last slice is dropped, too
    if (m_indicator) {
        m_indicator->setRange(0, 1);
        m_indicator->reset();
    }
    const bool active = m_sheet && m_sheet->isActiveWindow();
    QWidget *const parent = m_sheet ? m_sheet->parentWidget() : nullptr;
    if (m_sheet) m_sheet->hide();
    if (active) parent->activateWindow();  // unless another window was opened
    m_inert.reset();
    m_wait.reset();
}
