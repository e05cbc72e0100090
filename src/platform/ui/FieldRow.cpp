#include "platform/ui/FieldRow.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>
#include <QToolButton>

#include "platform/ui/TextField.h"

using namespace Qt::StringLiterals;

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
      m_purpose(control->toolTip()),
      m_line(new QHBoxLayout),
      m_reset(new QToolButton(this)),
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
    addReset();
    auto *const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(1);
    rows->addLayout(m_line);
    rows->addWidget(m_note);
    control->installEventFilter(this);
}

void FieldRow::addReset() {
    m_reset->setIcon(QIcon(u":/controls/reset.svg"_s));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize) - 2;  // as high as a field
    m_reset->setIconSize({size, size});
    m_reset->setAutoRaise(true);
    m_reset->setFocusPolicy(Qt::NoFocus);  // Tab leads to the next field
    QSizePolicy policy = m_reset->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_reset->setSizePolicy(policy);
    m_reset->hide();
    int place = m_line->indexOf(m_control) + 1;
    const auto isUnit = [this](int index) {
        const QLayoutItem *const item = m_line->itemAt(index);
        return item && qobject_cast<QLabel *>(item->widget());
    };
    while (isUnit(place)) ++place;
    m_line->insertWidget(place, m_reset);
    connect(m_reset, &QToolButton::clicked, this, &FieldRow::resetRequested);
}

void FieldRow::setChange(const QString &change, const QString &undo) {
    m_change = change;
    const QStringList tips =
        m_purpose.isEmpty() ? QStringList{change} : QStringList{m_purpose, change};
    m_control->setToolTip(change.isEmpty() ? m_purpose : tips.join(u'\n'));
    m_reset->setToolTip(change + u'\n' + undo);
    m_reset->setAccessibleName(undo);
    m_reset->setAccessibleDescription(change);
    m_reset->setHidden(change.isEmpty());
    follow();
}

void FieldRow::setRule(const QString &rule) {
    m_rule = rule;
    m_note->keepLine();
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
    const bool undoes = event->type() == QEvent::KeyPress && !m_change.isEmpty() &&
                        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (undoes) Q_EMIT resetRequested();
    return undoes;
}

void FieldRow::follow() {
    if (!m_fault.isEmpty())
        m_note->say(m_fault, FieldNote::Kind::Fault);
    else if (!m_notice.isEmpty())
        m_note->say(m_notice, FieldNote::Kind::Notice);
    else
        m_note->say(m_control->hasFocus() ? m_rule : QString(), FieldNote::Kind::Rule);
    QStringList description{m_fault};
    if (m_fault.isEmpty()) description = {m_notice, m_purpose, m_rule};
    description << m_change;
    description.removeAll(QString());
    const QString described = description.join(u' ');
    if (described != m_control->accessibleDescription())
        m_control->setAccessibleDescription(described);
}
