#pragma once

#include <QString>

class QWidget;

// A modal message with one button, which Return and Escape press. May be shown several times.
class Alert {
  public:
    enum class Style { Warning, Critical };

    explicit Alert(Style style) : m_style(style) {}

    void setMessageText(const QString &text) { m_messageText = text; }
    void setInformativeText(const QString &text) { m_informativeText = text; }
    void setButtonTitle(const QString &title) { m_buttonTitle = title; }

    // Shows the message over `parent` (or the active window) until the user dismisses it.
    void runModal(QWidget *parent = nullptr) const;

  private:
    const Style m_style;
    QString m_messageText;
    QString m_informativeText;
    QString m_buttonTitle;
};
