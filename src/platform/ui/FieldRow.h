#pragma once

#include <QWidget>

#include "platform/ui/FieldNote.h"

class QHBoxLayout;
class QToolButton;

// A control with what stands beside it, a button that puts a changed value back (as Escape in the
// control does), and below them a note: the rule of the control while it has the focus, a notice
// about its value, or why its value cannot be used.
class FieldRow : public QWidget {
    Q_OBJECT
  public:
    // Takes the place of `control` in the layout of its parent: of the control alone or, in a
    // horizontal layout, of everything there.
    explicit FieldRow(QWidget *control);

    // The rule, said while the control has the focus; a line of it always has room.
    void setRule(const QString &rule);
    // A notice about the value; an empty one takes it away.
    void setNotice(const QString &notice);
    bool hasNotice() const { return !m_notice.isEmpty(); }
    // Why the value cannot be used; marks a TextField. An empty text takes the mark away.
    void setFault(const QString &fault);

    // Marks the value as changed: `change` says from what, as the control's tool tip, and `undo`
    // what the button does that then appears. An empty change takes the mark away.
    void setChange(const QString &change, const QString &undo);

    // Leaves the note out while the value can only be read, or brings it back.
    void showForReading(bool reading) { m_note->setHidden(reading); }

  Q_SIGNALS:
    // The user wants the value back that the mark names.
    void resetRequested();

  protected:
    bool eventFilter(QObject *control, QEvent *event) override;

  private:
    void addReset();
    // Says what holds now, in the note and in the control's accessible description.
    void follow();

    QWidget *const m_control;
    const QString m_purpose;  // the control's own tool tip
    QHBoxLayout *const m_line;
    QToolButton *const m_reset;
    FieldNote *const m_note;
    QString m_rule, m_notice, m_fault, m_change;
};
