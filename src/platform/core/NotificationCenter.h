#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>
#include <functional>
#include <memory>

// One posted notification, as an observer receives it.
struct Notification {
    QString name;
    // Identity of the poster; may be null. Never dereferenced by the centre.
    const QObject *sender = nullptr;
    // Payload; empty when the notification carries none.
    QVariantMap userInfo;
};

// Named messages between objects that do not know each other.
//
// Observers are called on the thread that posts. The list of observers may be changed from any
// thread, also by an observer while it is being called.
class NotificationCenter : public QObject {
    Q_OBJECT
  public:
    using Handler = std::function<void(const Notification &)>;

    // Keeps one observation alive; destroying it (or assigning over it) ends the observation, after
    // which the handler is not called again. Destroy it on the thread that posts: a post running on
    // another thread may be inside the handler at that moment.
    using Observer = std::shared_ptr<QObject>;

    // The centre of the process.
    static NotificationCenter &shared();

    // Calls `handler` for every notification of `name` from now on; with `sender` only for those
    // that it posts. A notification that is being posted at this moment is not seen.
    [[nodiscard]] Observer observe(const QString &name, Handler handler,
                                   const QObject *sender = nullptr);

    // Calls every observer of `name` at once, on this thread, in order of registration.
    void post(const QString &name, const QObject *sender, const QVariantMap &userInfo = {});

    // Posts on the main thread and returns when every observer has run. Callable from every thread.
    // Returns false, without having posted, once the application has ended.
    bool postOnMainThreadAndWait(const QString &name, const QObject *sender,
                                 const QVariantMap &userInfo = {});

  Q_SIGNALS:
    // Of whatever name.
    void posted(const Notification &notification);

  private:
    NotificationCenter() = default;
};
