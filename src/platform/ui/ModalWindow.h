#pragma once

#include <QDialog>

class QAbstractButton;

// A window for Modal. Escape, the close box and close keys press the visible, enabled button with
// the property "cancelButton"; without one there is no close box. Return presses the default
// button.
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
