#pragma once

#include <QMap>
#include <QString>

class QWidget;

// Views stacked in one container, of which at most one is visible. The container is as large as
// its largest view, so that a window does not change its size when views are switched.
class ViewStack {
  public:
    // The container must not have a layout; it owns the views from add() on, and outlives the use
    // of the stack.
    explicit ViewStack(QWidget *container);

    // Adds a view under `key`, hidden.
    void add(const QString &key, QWidget *view);

    // Shows the view of `key` and hides every other; an unknown key hides all. In a dialog the
    // button of the view whose property "defaultButton" is true becomes the default one, and what
    // the view says is announced to screen readers.
    void select(const QString &key);

    // Gives the focus to the first control of the shown view that takes it, push buttons aside; in
    // a view of push buttons alone, to the default one.
    void focusFirstControl() const;

    // The key of the shown view; a null text when all are hidden.
    QString selectedKey() const { return m_views.key(shown()); }

  private:
    // The view that is not hidden; null when all are.
    QWidget *shown() const;

    QWidget *const m_container;
    QMap<QString, QWidget *> m_views;
};
