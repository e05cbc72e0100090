#include "platform/ui/ViewStack.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include "platform/ui/DialogButtons.h"

namespace {

// The first control of `view` in tab order; of a radio group the cell that is selected.
QWidget *firstControl(QWidget *view) {
    for (QWidget *w = view->nextInFocusChain(); w != view; w = w->nextInFocusChain()) {
        if (!view->isAncestorOf(w) || !w->isEnabled() || !w->isVisibleTo(view)) continue;
        if ((w->focusPolicy() & Qt::TabFocus) == 0 || w->focusProxy()) continue;
        const auto *button = qobject_cast<QAbstractButton *>(w);
        if (button && button->group() && button->group()->checkedButton())
            return button->group()->checkedButton();
        return w;
    }
    return nullptr;
}

}  // namespace

ViewStack::ViewStack(QWidget *container) : m_layout(new QStackedLayout(container)) {}

void ViewStack::add(const QString &key, QWidget *view) {
    Q_ASSERT(!m_views.contains(key));
    m_views.insert(key, view);
    m_layout->addWidget(view);
    view->hide();
}

void ViewStack::select(const QString &key) {
    QWidget *shown = m_views.value(key);
    const bool wasShown = shown && shown->isVisible();
    m_selectedKey = shown ? key : QString();
    if (shown) m_layout->setCurrentWidget(shown);
    for (QWidget *view : std::as_const(m_views)) view->setVisible(view == shown);

    QWidget *container = m_layout->parentWidget();
    if (shown && !wasShown) {
        if (QWidget *control = firstControl(shown))
            control->setFocus(Qt::OtherFocusReason);
        else if (QWidget *focused = container->window()->focusWidget())
            focused->clearFocus();
    }
    DialogButtons::showDefaultButton(container->window());
}
