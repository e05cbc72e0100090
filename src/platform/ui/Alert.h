#pragma once

#include <QString>
#include <QWidget>

// A modal message with one button, which Return and Escape press too. All texts are shown as they
// stand, never as markup. An alert can be run more than once, with its texts replaced in between.
class Alert {
  public:
    enum class Style { Warning, Critical };

    explicit Alert(Style style) : m_style(style) {}

    void setMessageText(const QString &text) { m_messageText = text; }
    // Shown below the message text, wrapped.
    void setInformativeText(const QString &text) { m_informativeText = text; }
    void setButtonTitle(const QString &title) { m_buttonTitle = title; }

    // Shows the alert, over `parent` when there is one, and returns when it was dismissed.
    void runModal(QWidget *parent = nullptr) const;

  private:
    Style m_style;
    QString m_messageText;
    QString m_informativeText;
    QString m_buttonTitle;
};
