#pragma once

#include <QPointer>
#include <optional>

#include "platform/core/Waiting.h"
#include "platform/ui/InertWindow.h"

class QAbstractButton;
class QProgressBar;

// Whether an object is a window, a control in it, or what the window system shows of it.
bool isPartOf(const QObject *object, const QWidget *window);

// Shows a wait window while it lives. Both windows have been painted when the constructor returns;
// the indicator moves whenever the work calls idle(), and what the user does meanwhile is dropped:
// the parent is inert. Only the sheet itself works; its button cancels the work's waits.
class WaitSheet {
  public:
    // `sheet` is shown window-modally, centred on `parent`; `indicator` is a bar inside it, busy at
    // first, and `cancel` a button. The widgets stay the caller's.
    WaitSheet(QWidget *sheet, QWidget *parent, QProgressBar *indicator, QAbstractButton *cancel);
    // Ends it, unless it has ended.
    ~WaitSheet();
    WaitSheet(const WaitSheet &) = delete;
    WaitSheet &operator=(const WaitSheet &) = delete;

    // Ends the sheet that is shown, if there is one, so that something can be said instead of it.
    // Result: the window that it was shown on; otherwise null.
    static QWidget *endCurrent();

  private:
    // Hides the sheet and gives the focus back to the control that had it.
    void end();

    const QPointer<QWidget> m_sheet;
    const QPointer<QProgressBar> m_indicator;
    std::optional<CancellableWait> m_wait;  // until the sheet has ended
    QMetaObject::Connection m_cancelling;
    std::optional<InertWindow> m_inert;
    WaitSheet *const m_outer;
};
