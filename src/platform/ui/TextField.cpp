#include "platform/ui/TextField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QWidgetAction>
#include <utility>

#include "platform/core/NotificationCenter.h"
#include "platform/ui/Colours.h"
#include "platform/ui/FieldLooks.h"
#include "platform/ui/WarningSign.h"

using namespace Qt::StringLiterals;

TextField::TextField(QWidget *parent) : QLineEdit(parent) {
    keepSelectionInMenus(this);
    // textEdited comes first, so that m_previous is still the old text when it is handled.
    connect(this, &QLineEdit::textEdited, this, [this] { userChangedText(); });
    connect(this, &QLineEdit::textChanged, this, [this] { textIsNew(); });
}

void TextField::replaceText(const QString &newText, int caret) {
    const QSignalBlocker blocker(this);
    if (newText != text()) {
        selectAll();
        insert(newText);
    }
    setCursorPosition(caret);
    m_previous = text();
}

void TextField::takeBack() {
    const QSignalBlocker blocker(this);
    undo();
}

void TextField::forget() {
    m_forgotten = hasFocus();
    setText(QString());
}

void TextField::setFault(const QString &why) {
    if (why == fault()) return;
    m_fault = why;
    if (!m_mark) {
        auto *const inside = new QWidgetAction(this);
        inside->setDefaultWidget(new WarningSign);
        addAction(inside, TrailingPosition);
        m_mark = inside;
    }
    m_mark->setVisible(!why.isEmpty());
    update();
}

void TextField::textDidChange() {
    const QPointer<TextField> alive(this);
    if (m_delegate) m_delegate->controlTextDidChange(this);
    if (alive) NotificationCenter::shared().post(u"NSControlTextDidChangeNotification"_s, this);
}

void TextField::focusInEvent(QFocusEvent *event) {
    QLineEdit::focusInEvent(event);
    m_previous = text();
}

void TextField::focusOutEvent(QFocusEvent *event) {
    const QPointer<TextField> alive(this);
    QLineEdit::focusOutEvent(event);
    const bool stays = event->reason() == Qt::PopupFocusReason ||
                       event->reason() == Qt::ActiveWindowFocusReason || !window()->isEnabled();
    if (alive && !stays && !std::exchange(m_forgotten, false)) endEditing();
}

void TextField::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !endEditing()) return;
    QLineEdit::keyPressEvent(event);  // leaves Return to the default button
}

// A window that is hidden keeps its focus; the next showing begins anew all the same.
void TextField::hideEvent(QHideEvent *event) {
    QLineEdit::hideEvent(event);
    if (!event->spontaneous()) m_editing = false;
}

void TextField::paintEvent(QPaintEvent *event) {
    QLineEdit::paintEvent(event);
    if (m_fault.isEmpty()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(faultColour(palette().color(QPalette::Window)), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void TextField::userChangedText() {
    const QPointer<TextField> alive(this);
    m_userChange = true;
    m_forgotten = false;
    if (!m_editing && !beginEditing()) return;
    if (alive) textDidChange();
}

// After a change of the user's, or of the program's: what the user types then begins anew.
void TextField::textIsNew() {
    m_previous = text();
    if (!m_userChange) m_editing = false;
    m_userChange = false;
}

// Shows the old text while the begin is reported; false when the change is refused.
bool TextField::beginEditing() {
    const QPointer<TextField> alive(this);
    const QString typed = text();
    const int caret = cursorPosition();
    {
        const QSignalBlocker blocker(this);
        setText(m_previous);
    }
    if (m_delegate && !m_delegate->textShouldBeginEditing(this)) return false;
    if (!alive) return false;
    m_editing = true;
    textDidBeginEditing();
    if (!alive) return false;
    replaceText(typed, caret);
    return true;
}

// False when the end is refused, or the field went away.
bool TextField::endEditing() {
    if (isReadOnly()) return true;
    const QPointer<TextField> alive(this);
    m_editing = false;
    const bool ends = !m_delegate || m_delegate->textShouldEndEditing(this);
    if (alive && !ends) setFocus(Qt::OtherFocusReason);
    return alive && ends;
}
