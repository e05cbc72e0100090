#include "platform/ui/ViewStack.h"

#include <QAccessible>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <utility>

ViewStack::ViewStack(QWidget *container, Room room) : m_container(container), m_room(room) {
    auto *layout = new QGridLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
}

void ViewStack::add(const QString &key, QWidget *view) {
    QSizePolicy policy = view->sizePolicy();
    policy.setRetainSizeWhenHidden(m_room == Room::OfLargest);
    view->setSizePolicy(policy);
    view->setParent(m_container);
    static_cast<QGridLayout *>(m_container->layout())->addWidget(view, 0, 0);
    view->hide();
    m_views.insert(key, view);
}

void ViewStack::select(const QString &key) {
    QWidget *const selected = m_views.value(key);
    for (QWidget *view : std::as_const(m_views))
        if (view != selected) view->hide();
    if (!selected) return;
    for (QPushButton *button : selected->findChildren<QPushButton *>())
        if (button->property("defaultButton").toBool()) button->setDefault(true);
    selected->show();
    const auto *said = selected->findChild<QLabel *>();
    if (!said || !qobject_cast<QDialog *>(m_container->window())) return;
    selected->setAccessibleName(said->text());
    QAccessibleEvent announced(selected, QAccessible::Alert);
    QAccessible::updateAccessibility(&announced);
}

void ViewStack::focusFirstControl() const {
    const QWidget *const view = shown();
    if (!view) return;
    QWidget *first = nullptr;
    for (QWidget *next = view->nextInFocusChain(); next != view; next = next->nextInFocusChain()) {
        const bool takesFocus =
            next->isEnabledTo(view) && !next->isHidden() && (next->focusPolicy() & Qt::TabFocus);
        if (!view->isAncestorOf(next) || !takesFocus) continue;
        if (next->property("defaultButton").toBool()) first = next;
        if (qobject_cast<QPushButton *>(next)) continue;
        first = next;
        break;
    }
    if (first) first->setFocus(Qt::OtherFocusReason);
}

QWidget *ViewStack::shown() const {
    const auto found = std::find_if(m_views.begin(), m_views.end(),
                                    [](const QWidget *view) { return !view->isHidden(); });
    return found == m_views.end() ? nullptr : *found;
}
