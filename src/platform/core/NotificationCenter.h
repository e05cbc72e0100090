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

// Named messages between objects that do not know each other. Observers are called on the posting
// thread. Any thread, and an observer being called, may change the list of observers.
class NotificationCenter : public QObject {
    Q_OBJECT
  public:
    using Handler = std::function<void(const Notification &)>;

    // Keeps one observation alive. Destroy it on the thread that posts: a post on another thread
    // may be inside the handler.
    using Observer = std::shared_ptr<QObject>;

    // The centre of the process.
    static NotificationCenter &shared();

    // Calls `handler` for every later notification of `name`, with `sender` only for those it
    // posts.
    [[nodiscard]] Observer observe(const QString &name, Handler handler,
                                   const QObject *sender = nullptr);

    // Calls every observer of `name` at once, on this thread, in order of registration.
    void post(const QString &name, const QObject *sender, const QVariantMap &userInfo = {});

    // Posts on the main thread and returns when every observer has run; from every thread. False,
    // without posting, once the application has ended.
    bool postOnMainThreadAndWait(const QString &name, const QObject *sender,
                                 const QVariantMap &userInfo = {});

  Q_SIGNALS:
    // Of whatever name.
    void posted(const Notification &notification);

  private:
    NotificationCenter() = default;
};
