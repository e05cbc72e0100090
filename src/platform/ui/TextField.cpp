#include "platform/ui/TextField.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "platform/core/NotificationCenter.h"

namespace {

// The field keeps its place while its window is inactive or a menu is up.
bool isPassing(const QEvent *event) {
    const auto reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

bool isReturn(const QEvent *event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// True when `event` changes the text itself, not only what is being composed. A composition
// replaces the selection as soon as it starts.
bool commitsText(const QLineEdit *field, const QEvent *event) {
    if (event->type() != QEvent::InputMethod || field->isReadOnly()) return false;
    const auto *input = static_cast<const QInputMethodEvent *>(event);
    return !input->commitString().isEmpty() || input->replacementLength() > 0 ||
           (field->hasSelectedText() && !input->preeditString().isEmpty());
}

}  // namespace

TextFieldDelegate::~TextFieldDelegate() {
    const auto fields = m_fields;
    for (TextField *field : fields) field->setDelegate(nullptr);
}

bool TextFieldDelegate::textShouldBeginEditing(TextField *) {
    return true;
}

bool TextFieldDelegate::textShouldEndEditing(TextField *) {
    return true;
}

void TextFieldDelegate::controlTextDidChange(TextField *) {}

TextField::TextField(QWidget *parent) : QLineEdit(parent) {
    // Qt emits textEdited before textChanged, so m_before is the text before the user's change.
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (m_isReplacing) return;
        m_isPending = true;
        // While Qt handles an event the report waits until it is done with the field, which the
        // calls may change or delete.
        if (m_eventDepth == 0) userChangedText();
    });
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_isPending) m_before = snapshot();
    });
}

TextField::~TextField() {
    setDelegate(nullptr);
}

void TextField::setDelegate(TextFieldDelegate *delegate) {
    if (m_delegate) m_delegate->m_fields.remove(this);
    m_delegate = delegate;
    if (m_delegate) m_delegate->m_fields.insert(this);
}

void TextField::replaceText(const QString &text, int caret) {
    const QScopedValueRollback<bool> replacing(m_isReplacing, true);
    selectAll();
    insert(text);
    setCursorPosition(caret);
}

void TextField::textDidBeginEditing() {}

void TextField::textDidChange() {
    const QPointer<TextField> self(this);
    if (m_delegate) m_delegate->controlTextDidChange(this);
    if (self) NotificationCenter::shared().post(controlTextDidChangeNotification(), this);
}

TextField::Snapshot TextField::snapshot() const {
    return {text(), cursorPosition(), selectionStart(), selectionLength()};
}

bool TextField::event(QEvent *event) {
    const QPointer<TextField> self(this);
    if (!prepareFor(event)) {
        event->accept();
        return true;
    }
    if (m_eventDepth++ == 0 && !m_isPending) m_before = snapshot();
    const bool handled = QLineEdit::event(event);
    if (!self) return true;
    --m_eventDepth;
    finishEvent(event);
    return handled;
}

// What must be asked before Qt handles `event`. False: Qt must not handle it (or the field is
// gone).
bool TextField::prepareFor(QEvent *event) {
    const QPointer<TextField> self(this);
    if (isReturn(event)) return askToEnd() && self;
    if (event->type() == QEvent::Drop && !hasFocus()) setFocus(Qt::MouseFocusReason);
    // Putting the old text back afterwards would break off the composition.
    if (m_isEditing || !commitsText(this, event)) return true;
    const bool begins = askToBegin();
    if (!begins && self) QGuiApplication::inputMethod()->reset();
    return begins && self;
}

// What follows once Qt has handled `event`. The field may be gone afterwards.
void TextField::finishEvent(const QEvent *event) {
    const QPointer<TextField> self(this);
    if (m_eventDepth == 0 && m_isPending) userChangedText();
    if (!self) return;
    switch (event->type()) {
        case QEvent::FocusIn:
            if (!isPassing(event)) m_isEditing = false;
            m_hasFocus = true;
            break;
        case QEvent::FocusOut:
            if (m_hasFocus && !isPassing(event)) loseFocus();
            break;
        case QEvent::Hide:
            // With its window; a field that is hidden alone has the focus until Qt moves it on.
            if (!event->spontaneous() && !hasFocus()) m_hasFocus = m_isEditing = false;
            break;
        default:
            break;
    }
}

void TextField::contextMenuEvent(QContextMenuEvent *event) {
    // Run here, not only popped up, so that its actions take place inside this event (see above).
    const QPointer<QMenu> menu = createStandardContextMenu();
    if (menu) menu->exec(event->globalPos());
    delete menu;
}

void TextField::userChangedText() {
    const QPointer<TextField> self(this);
    const bool goesOn = m_isEditing || beginWithOldText();
    if (!self) return;
    m_isPending = false;
    if (goesOn) textDidChange();
}

// Asks with the text from before the change and then makes the change again. False when it was
// refused or the field is gone.
bool TextField::beginWithOldText() {
    const QPointer<TextField> self(this);
    const Snapshot before = m_before;
    const Snapshot after = snapshot();
    {
        const QSignalBlocker quiet(this);
        setText(before.text);
    }
    const bool begins = askToBegin();
    if (!self) return false;
    if (begins) {
        const QSignalBlocker quiet(this);
        replaceText(after.text, after.caret);
        return true;
    }
    setCursorPosition(before.caret);
    if (before.selectionStart >= 0) setSelection(before.selectionStart, before.selectionLength);
    Q_EMIT textChanged(text());  // its observers have seen the change that was dropped
    return false;
}

bool TextField::askToBegin() {
    const QPointer<TextField> self(this);
    if (m_delegate && !m_delegate->textShouldBeginEditing(this)) return false;
    if (!self) return false;
    m_isEditing = true;
    textDidBeginEditing();
    return self;
}

bool TextField::askToEnd() {
    if (m_isEnding) return true;
    const QPointer<TextField> self(this);
    m_isEnding = true;
    const bool ends = !m_delegate || m_delegate->textShouldEndEditing(this);
    if (!self) return ends;
    m_isEnding = false;
    if (ends) m_isEditing = false;
    return ends;
}

void TextField::loseFocus() {
    const QPointer<TextField> self(this);
    m_hasFocus = false;
    if (askToEnd() || !self || !isVisible() || !isEnabled()) return;
    const bool wasEditing = m_isEditing;
    setFocus(Qt::OtherFocusReason);
    if (self) m_isEditing = wasEditing;
}
