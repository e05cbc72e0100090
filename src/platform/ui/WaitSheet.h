#pragma once

#include <QPointer>
#include <optional>

#include "platform/ui/InertWindow.h"

class QProgressBar;

// Shows a wait window while it lives. Both windows have been painted when the constructor returns;
// the indicator moves whenever the work calls idle(), and what the user does meanwhile is dropped:
// the parent is inert.
class WaitSheet {
  public:
    // `sheet` is shown window-modally, centred on `parent`; `indicator` is a bar inside it. The
    // widgets stay the caller's.
    WaitSheet(QWidget *sheet, QWidget *parent, QProgressBar *indicator);
    // Hides the sheet and gives the focus back to the control that had it.
    ~WaitSheet();
    WaitSheet(const WaitSheet &) = delete;
    WaitSheet &operator=(const WaitSheet &) = delete;

  private:
    const QPointer<QWidget> m_sheet;
    const QPointer<QProgressBar> m_indicator;
    std::optional<InertWindow> m_inert;
};
