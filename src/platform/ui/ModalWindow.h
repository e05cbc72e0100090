#pragma once

#include <QDialog>

// A window for Modal::run(). It never closes by itself: Escape and the close box click its Cancel
// button and Return its default button (see DialogButtons); without such a button they do nothing.
class ModalWindow : public QDialog {
    Q_OBJECT
  public:
    using QDialog::QDialog;

    // Accepting and rejecting are left to the buttons' own actions: accept() and done() do nothing,
    // reject() clicks the Cancel button.
    void accept() override;
    void reject() override;
    void done(int result) override;

  protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
};
