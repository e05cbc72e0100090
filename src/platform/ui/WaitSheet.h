#pragma once

#include <QObject>
#include <QPointer>
#include <QProgressBar>
#include <QWidget>

// A wait window on another window, up as long as this object lives. The slow work calls idle()
// (platform/core/Waiting.h) every now and then, which keeps the indicator moving.
class WaitSheet : public QObject {
    Q_OBJECT
  public:
    // Shows `sheetWindow` window-modally, centred on the window of `parent`, with `indicator`
    // busy, and paints both windows. `sheetWindow` is not hidden by Escape or the close box
    // meanwhile; it becomes a child of that window. The indicator lies in the sheet. None of them
    // is owned; each may be destroyed while the sheet is up.
    WaitSheet(QWidget *sheetWindow, QWidget *parent, QProgressBar *indicator);

    // Drops what the user did meanwhile, stops the indicator, hides the sheet and gives the focus
    // back to the control that had it.
    ~WaitSheet() override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    const QPointer<QWidget> m_sheet;
    const QPointer<QWidget> m_parent;
    const QPointer<QProgressBar> m_indicator;
    const QPointer<QWidget> m_focused;
};
