#pragma once

#include <QLineEdit>
#include <QSet>

class TextField;

// Name of the notification that a text field posts for every change the user makes, with the field
// as sender.
inline QString controlTextDidChangeNotification() {
    return QStringLiteral("NSControlTextDidChangeNotification");
}

// Told about the editing of text fields. Every call may disable or hide the field, move the focus,
// run a modal window or delete the field.
class TextFieldDelegate {
  public:
    TextFieldDelegate(const TextFieldDelegate &) = delete;
    TextFieldDelegate &operator=(const TextFieldDelegate &) = delete;
    // The fields it was set to have no delegate afterwards.
    virtual ~TextFieldDelegate();

    // The user is about to make the first change since `field` got the focus; its text is still the
    // old one. False drops the change.
    virtual bool textShouldBeginEditing(TextField *field);
    // `field` has lost the focus or Return was pressed in it, whether or not anything was typed.
    // False gives the focus back to the field, and Return does nothing else.
    virtual bool textShouldEndEditing(TextField *field);
    // The user has changed the text of `field`.
    virtual void controlTextDidChange(TextField *field);

  protected:
    TextFieldDelegate() = default;

  private:
    friend class TextField;
    QSet<TextField *> m_fields;
};

// A line edit that reports editing by the user. Text set from code raises none of the calls.
//
// Editing begins with the first change, however it is made (key, paste, drop, input method, context
// menu, undo), and ends when the focus goes elsewhere or Return is pressed. A popup menu and
// another window becoming active do not end it; the field being hidden with its window does,
// without a call.
//
// Texts are QLineEdit's: UTF-16 units, cut off at maxLength() (32767 unless set), line breaks and
// other control characters kept when pasted. The first change of an editing session drops the undo
// steps of earlier sessions; undoing all that follow gives back the text from before it.
class TextField : public QLineEdit {
    Q_OBJECT
  public:
    explicit TextField(QWidget *parent = nullptr);
    ~TextField() override;

    // Not owned; null takes it away.
    void setDelegate(TextFieldDelegate *delegate);

    // Sets the text and puts the caret at `caret` (0 to the length of the text) with an empty
    // selection, as one more step of the undo history. For filters; raises none of the calls.
    void replaceText(const QString &text, int caret);

  protected:
    // Editing begins; the text is still the old one. Does nothing here.
    virtual void textDidBeginEditing();
    // The user has changed the text. Here: tells the delegate and posts the notification.
    virtual void textDidChange();

    bool event(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

  private:
    // The field before a change by the user.
    struct Snapshot {
        QString text;
        int caret = 0;
        int selectionStart = -1;  // -1: nothing selected
        int selectionLength = 0;
    };

    Snapshot snapshot() const;
    bool prepareFor(QEvent *event);
    void finishEvent(const QEvent *event);
    void userChangedText();
    bool beginWithOldText();
    bool askToBegin();
    bool askToEnd();
    void loseFocus();

    TextFieldDelegate *m_delegate = nullptr;
    Snapshot m_before;
    int m_eventDepth = 0;        // events being handled, nested when one runs an event loop
    bool m_hasFocus = false;     // also while its window is inactive or a popup menu is up
    bool m_isEditing = false;    // editing has begun and not ended
    bool m_isPending = false;    // the user's change waits to be reported
    bool m_isReplacing = false;  // a change of our own
    bool m_isEnding = false;     // the delegate is being asked
};
