#pragma once

#include <QString>

class QWidget;

// Modal messages with one button, which Return and Escape press.
namespace Alert {

enum class Style { Warning, Critical };

// Shows a message, and what it means, over `parent` (or the active window) until the user dismisses
// it.
void runModal(Style style, const QString &message, const QString &information,
              QWidget *parent = nullptr);

}  // namespace Alert
