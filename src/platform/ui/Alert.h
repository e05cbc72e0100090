#pragma once

#include <QString>

class QWidget;

// Modal messages. Return presses OK; Escape presses Cancel or, without one, OK.
namespace Alert {

enum class Style { Warning, Critical };
enum class Answers { Ok, OkOrCancel };

// Shows a message, and what it means, over `parent` (or the active window) until the user answers
// it. False when the answer is Cancel.
bool runModal(Style style, const QString &message, const QString &information,
              QWidget *parent = nullptr, Answers answers = Answers::Ok);

}  // namespace Alert
