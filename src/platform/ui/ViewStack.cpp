#include "platform/ui/ViewStack.h"

#include <QAccessible>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

ViewStack::ViewStack(QWidget *container) : m_container(container) {
    auto *layout = new QGridLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
}

void ViewStack::add(const QString &key, QWidget *view) {
    QSizePolicy policy = view->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    view->setSizePolicy(policy);
    view->setParent(m_container);
    static_cast<QGridLayout *>(m_container->layout())->addWidget(view, 0, 0);
    view->hide();
    m_views.push_back({key, view});
}

void ViewStack::select(const QString &key) {
    QWidget *shown = nullptr;
    for (const View &view : m_views) {
        if (view.key == key) shown = view.widget;
        if (view.key != key && view.widget) view.widget->hide();
    }
    if (!shown) return;
    for (QPushButton *button : shown->findChildren<QPushButton *>())
        if (button->property("defaultButton").toBool()) button->setDefault(true);
    shown->show();
    const auto *said = shown->findChild<QLabel *>();
    if (!said || !qobject_cast<QDialog *>(m_container->window())) return;
    shown->setAccessibleName(said->text());
    QAccessibleEvent announced(shown, QAccessible::Alert);
    QAccessible::updateAccessibility(&announced);
}

void ViewStack::focusFirstControl() const {
    for (const View &view : m_views) {
        if (!view.widget || view.widget->isHidden()) continue;
        QWidget *first = nullptr;
        for (QWidget *next = view.widget->nextInFocusChain(); next != view.widget;
             next = next->nextInFocusChain()) {
            const bool takesFocus = next->isEnabledTo(view.widget) && !next->isHidden() &&
                                    (next->focusPolicy() & Qt::TabFocus);
            if (!view.widget->isAncestorOf(next) || !takesFocus) continue;
            if (next->property("defaultButton").toBool()) first = next;
            if (qobject_cast<QPushButton *>(next)) continue;
            first = next;
            break;
        }
        if (first) first->setFocus(Qt::OtherFocusReason);
    }
}

QString ViewStack::selectedKey() const {
    for (const View &view : m_views)
        if (view.widget && !view.widget->isHidden()) return view.key;
    return {};
}
