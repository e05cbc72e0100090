#pragma once

#include <QLineEdit>

class TextField;

// Asked and told about the editing of text fields. None of its calls may delete the field.
class TextFieldDelegate {
  public:
    virtual ~TextFieldDelegate() = default;
    // Before the first change after the focus; the field has the old text. False undoes the change.
    virtual bool textShouldBeginEditing(TextField *) { return true; }
    // At the loss of focus or Return, typed or not. False gives the focus back.
    virtual bool textShouldEndEditing(TextField *) { return true; }
    // The user has changed the text.
    virtual void controlTextDidChange(TextField *) {}
};

// A line edit that reports the user's editing as begin, change and end; text set by code reports
// nothing. A focus that goes to a menu or another window ends nothing. Read-only, it reports
// nothing.
class TextField : public QLineEdit {
    Q_OBJECT
  public:
    explicit TextField(QWidget *parent = nullptr);

    // `delegate` is not owned; it must outlive the field or be taken away with a null pointer.
    void setDelegate(TextFieldDelegate *delegate) { m_delegate = delegate; }

    // For filters: sets the text as one undo step, with the caret at `caret`. Reports nothing.
    void replaceText(const QString &text, int caret);

    // Undoes the last step that the user made; for filters. Reports nothing.
    void takeBack();
    // Empties the field and its undo history, as for a used secret. Reports nothing.
    virtual void forget();

    // Marks the text as one that cannot be used, for the reason `why`: by a sign inside the field
    // and a red outline. An empty reason takes the mark away.
    void setFault(const QString &why);
    // Why the text cannot be used; empty while the field is not marked.
    QString fault() const { return m_fault; }

  protected:
    // Editing begins; text() is the old text. Does nothing by itself.
    virtual void textDidBeginEditing() {}
    // The user has changed the text: calls the delegate, then posts
    // "NSControlTextDidChangeNotification" as sender.
    virtual void textDidChange();

    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void userChangedText();
    void textIsNew();
    bool beginEditing();
    bool endEditing();

    TextFieldDelegate *m_delegate = nullptr;
    QAction *m_mark = nullptr;  // the sign of a fault; made for the first one
    QString m_fault;
    QString m_previous;  // the text before the change that is being made
    bool m_editing = false;
    bool m_forgotten = false;   // emptied while it had the focus, and not changed since
    bool m_userChange = false;  // between the two signals of a change that the user made
};
