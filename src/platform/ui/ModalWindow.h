#pragma once

#include <QDialog>

class QAbstractButton;

// A window that Modal runs. It never closes by itself: Escape, the close box and the window
// system's close keys press the visible, enabled button whose property "cancelButton" is true; a
// view without one does not react to them and has no close box. Return presses the visible view's
// default button.
class ModalWindow : public QDialog {
    Q_OBJECT
  public:
    using QDialog::QDialog;

    void reject() override;

  protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

  private:
    // The shown view's button; null when it has none.
    QAbstractButton *cancelButton() const;
    void updateCloseBox();
};
