#pragma once

#include <QMap>
#include <QString>

class QWidget;

// Views in one container, of which at most one is visible.
class ViewStack {
  public:
    enum class Room { OfLargest, OfShown };

    // The container has no layout, owns the views, and outlives the stack. It takes the room of the
    // largest view, or of the shown one.
    explicit ViewStack(QWidget *container, Room room = Room::OfLargest);

    // Adds a view under `key`, hidden.
    void add(const QString &key, QWidget *view);
    bool contains(const QString &key) const { return m_views.contains(key); }

    // Shows the view of `key` alone; none for an unknown key. In a dialog its button with the
    // property "defaultButton" becomes the default one, and its text is announced.
    void select(const QString &key);

    // Gives the focus to the first control of the shown view, push buttons last.
    void focusFirstControl() const;

    // The key of the shown view; a null text when all are hidden.
    QString selectedKey() const { return m_views.key(shown()); }

  private:
    // The view that is not hidden; null when all are.
    QWidget *shown() const;

    QWidget *const m_container;
    const Room m_room;
    QMap<QString, QWidget *> m_views;
};
