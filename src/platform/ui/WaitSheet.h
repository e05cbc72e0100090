#pragma once

#include <QPointer>
#include <optional>

#include "platform/core/Waiting.h"
#include "platform/ui/InertWindow.h"

class QAbstractButton;
class QProgressBar;

// Whether an object is a window, a control in it, or what the window system shows of it.
bool isPartOf(const QObject *object, const QWidget *window);

// Shows a wait window while it lives, painted when the constructor returns. The parent is inert;
// the indicator moves with idle(), and the sheet's button cancels the waits.
class WaitSheet {
  public:
    // `sheet` is shown window-modally on `parent`, with `indicator` busy at first. Not owned.
    WaitSheet(QWidget *sheet, QWidget *parent, QProgressBar *indicator, QAbstractButton *cancel);
    // Ends it, unless it has ended.
    ~WaitSheet();
    Q_DISABLE_COPY_MOVE(WaitSheet)

    // Ends the shown sheet, if any. Result: the window that it was shown on, or null.
    static QWidget *endCurrent();

  private:
    // Hides the sheet and gives the focus back to the control that had it.
    void end();

    const QPointer<QWidget> m_sheet;
    const QPointer<QProgressBar> m_indicator;
    bool m_isCancelled = false;
    std::optional<CancellableWait> m_wait;  // until the sheet has ended
    QMetaObject::Connection m_cancelling;
    std::optional<InertWindow> m_inert;
    WaitSheet *const m_outer;
};
