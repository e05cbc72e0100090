#pragma once

#include <QMap>
#include <QStackedLayout>
#include <QString>
#include <QWidget>

// The views of a wizard or dialog, stacked in one container and switched by key. The container is
// as large as the largest view, so that switching never resizes the window.
class ViewStack {
  public:
    // `container` has no layout yet; it gets one, becomes the parent of the views and outlives this
    // object or is not used through it again.
    explicit ViewStack(QWidget *container);

    // Puts `view` into the container, hidden. `key` is not in use yet.
    void add(const QString &key, QWidget *view);

    // Shows the view of `key` and hides every other one; with an unknown key hides all. The focus
    // goes to the first control of a view that was not shown before, and the view's default button
    // becomes the window's.
    void select(const QString &key);

    // Key of the shown view; null when none is shown.
    QString selectedKey() const { return m_selectedKey; }

  private:
    QStackedLayout *m_layout;  // owned by the container
    QMap<QString, QWidget *> m_views;
    QString m_selectedKey;
};
