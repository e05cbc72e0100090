#include "platform/core/NotificationCenter.h"

#include "platform/core/MainThread.h"

NotificationCenter &NotificationCenter::shared() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observer NotificationCenter::observe(const QString &name, Handler handler,
                                                         const QObject *sender) {
    auto observer = std::make_shared<QObject>();
    const auto handle = [name, sender, handler = std::move(handler)](const Notification &posted) {
        if (posted.name == name && (!sender || posted.sender == sender)) handler(posted);
    };
    connect(this, &NotificationCenter::posted, observer.get(), handle, Qt::DirectConnection);
    return observer;
}

void NotificationCenter::post(const QString &name, const QObject *sender,
                              const QVariantMap &userInfo) {
    Q_EMIT posted({name, sender, userInfo});
}

bool NotificationCenter::postOnMainThreadAndWait(const QString &name, const QObject *sender,
                                                 const QVariantMap &userInfo) {
    return MainThread::callAndWait([&] { post(name, sender, userInfo); });
}
