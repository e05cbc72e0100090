#include "platform/ui/FieldRow.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>

#include "platform/ui/TextField.h"

namespace {

// The layout that holds the widget itself: `layout`, or one inside it.
QLayout *holderOf(const QWidget *widget, QLayout *layout) {
    if (layout->indexOf(widget) >= 0) return layout;
    for (int i = 0; i < layout->count(); ++i) {
        QLayout *const inside = layout->itemAt(i)->layout();
        if (QLayout *const holder = inside ? holderOf(widget, inside) : nullptr) return holder;
    }
    return nullptr;
}

}  // namespace

FieldRow::FieldRow(QWidget *control)
    : QWidget(control->parentWidget()),
      m_control(control),
      m_line(new QHBoxLayout),
      m_note(new FieldNote(this)) {
    QLayout *const holder = holderOf(control, parentWidget()->layout());
    if (auto *const beside = qobject_cast<QHBoxLayout *>(holder)) {
        while (QLayoutItem *const item = beside->takeAt(0)) m_line->addItem(item);
        beside->addWidget(this);
    } else {
        delete holder->replaceWidget(control, this);
        m_line->addWidget(control, 1);
        m_line->addStretch();
    }
    m_line->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    auto *const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(1);
    rows->addLayout(m_line);
    rows->addWidget(m_note);
    control->installEventFilter(this);
}

void FieldRow::setRule(const QString &rule) {
    m_rule = rule;
    m_note->keepRoomFor(rule);
    follow();
}

void FieldRow::setNotice(const QString &notice) {
    m_notice = notice;
    follow();
}

void FieldRow::setFault(const QString &fault) {
    m_fault = fault;
    if (auto *const field = qobject_cast<TextField *>(m_control)) field->setFault(fault);
    follow();
}

bool FieldRow::eventFilter(QObject *, QEvent *event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) follow();
    return false;
}

void FieldRow::follow() {
    if (!m_fault.isEmpty())
        m_note->say(m_fault, FieldNote::Kind::Fault);
    else if (!m_notice.isEmpty())
        m_note->say(m_notice, FieldNote::Kind::Notice);
    else
        m_note->say(m_control->hasFocus() ? m_rule : QString(), FieldNote::Kind::Rule);
    QStringList description{m_fault};
    if (m_fault.isEmpty()) description = {m_notice, m_control->toolTip(), m_rule};
    description.removeAll(QString());
    const QString described = description.join(u' ');
    if (described != m_control->accessibleDescription())
        m_control->setAccessibleDescription(described);
}
