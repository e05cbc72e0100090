#pragma once

#include <QWidget>

#include "platform/ui/FieldNote.h"

class QHBoxLayout;

// A control with what stands beside it, and below it a note: the rule of the control while it has
// the focus, a notice about its value, or why its value cannot be used.
class FieldRow : public QWidget {
    Q_OBJECT
  public:
    // Takes the place of `control` in the layout of its parent: of the control alone or, in a
    // horizontal layout, of everything there.
    explicit FieldRow(QWidget *control);

    // The rule, said while the control has the focus; there is always room for it.
    void setRule(const QString &rule);
    // A notice about the value; an empty one takes it away.
    void setNotice(const QString &notice);
    bool hasNotice() const { return !m_notice.isEmpty(); }
    // Why the value cannot be used; marks a TextField. An empty text takes the mark away.
    void setFault(const QString &fault);

    // Leaves the note out while the value can only be read, or brings it back.
    void showForReading(bool reading) { m_note->setHidden(reading); }

  protected:
    bool eventFilter(QObject *control, QEvent *event) override;

  private:
    // Says what holds now, in the note and in the control's accessible description.
    void follow();

    QWidget *const m_control;
    QHBoxLayout *const m_line;
    FieldNote *const m_note;
    QString m_rule, m_notice, m_fault;
};
