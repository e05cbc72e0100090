#pragma once

#include "platform/ui/TextField.h"

class QToolButton;

// A text field that masks its text until its button is pressed, and again once hidden.
class MaskedField : public TextField {
    Q_OBJECT
    // What the button does, as its tool tip and accessible name.
    Q_PROPERTY(QString revealTitle READ revealTitle WRITE setRevealTitle)
  public:
    explicit MaskedField(QWidget *parent = nullptr);

    QString revealTitle() const;
    void setRevealTitle(const QString &title);

    // Masks the text again.
    void cover();
    // Masks it as well.
    void forget() override;

  protected:
    void hideEvent(QHideEvent *event) override;

  private:
    QToolButton *const m_reveal;
};
