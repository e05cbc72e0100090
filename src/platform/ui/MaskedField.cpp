#include "platform/ui/MaskedField.h"

#include <QStyle>
#include <QToolButton>
#include <QWidgetAction>

MaskedField::MaskedField(QWidget *parent) : TextField(parent), m_reveal(new QToolButton) {
    m_reveal->setIcon(QIcon(QStringLiteral(":/controls/reveal.svg")));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize) - 2;  // to fit into a field
    m_reveal->setIconSize({size, size});
    m_reveal->setAutoRaise(true);
    m_reveal->setCheckable(true);
    m_reveal->setCursor(Qt::ArrowCursor);
    m_reveal->setFocusPolicy(Qt::TabFocus);
    connect(m_reveal, &QToolButton::toggled, this,
            [this](bool shown) { setEchoMode(shown ? Normal : Password); });
    auto *const inside = new QWidgetAction(this);
    inside->setDefaultWidget(m_reveal);
    addAction(inside, TrailingPosition);
    setEchoMode(Password);
}

QString MaskedField::revealTitle() const {
    return m_reveal->toolTip();
}

void MaskedField::setRevealTitle(const QString &title) {
    m_reveal->setToolTip(title);
    m_reveal->setAccessibleName(title);
}

void MaskedField::cover() {
    m_reveal->setChecked(false);
}

void MaskedField::forget() {
    cover();
    TextField::forget();
}

void MaskedField::hideEvent(QHideEvent *event) {
    cover();
    TextField::hideEvent(event);
}
