#include "platform/ui/WaitSheet.h"

#include <QDeadlineTimer>
#include <QProgressBar>
#include <QWindow>

#include "platform/core/Waiting.h"

namespace {

// How long the window system may take to show the sheet, in milliseconds; after that the work
// starts all the same.
constexpr int longestExposure = 500;

}  // namespace

WaitSheet::WaitSheet(QWidget *sheet, QWidget *parent, QProgressBar *indicator)
    : m_sheet(sheet), m_indicator(indicator) {
    indicator->setRange(0, 0);  // busy
    sheet->hide();              // modality changes only while a window is hidden
    sheet->setParent(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    m_inert.emplace(parent);
    sheet->setEnabled(true);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->adjustSize();
    const QRect area(parent->mapToGlobal(QPoint(0, 0)), parent->size());
    sheet->move(area.center() - sheet->rect().center());
    sheet->show();
    const auto exposed = [sheet] {
        return sheet->windowHandle() && sheet->windowHandle()->isExposed();
    };
    waitUntil(exposed, QDeadlineTimer(longestExposure));
    sheet->repaint();
    parent->repaint();
}

WaitSheet::~WaitSheet() {
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
}
