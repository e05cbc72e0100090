#include "platform/core/NotificationCenter.h"

#include <mutex>
#include <vector>

#include "platform/core/MainThread.h"

struct NotificationCenter::Observer::Entry {
    QString name;
    const QObject *sender;
    Handler handler;
};

struct NotificationCenter::Private {
    // Weak: an entry belongs to its token, and ends with it.
    using Entries = std::vector<std::weak_ptr<Observer::Entry>>;

    std::mutex mutex;
    Entries entries;

    Entries snapshot() {
        const std::lock_guard lock(mutex);
        std::erase_if(entries, [](const auto &entry) { return entry.expired(); });
        return entries;
    }
};

NotificationCenter::NotificationCenter() : d(std::make_unique<Private>()) {}
NotificationCenter::~NotificationCenter() = default;

NotificationCenter &NotificationCenter::shared() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observer NotificationCenter::observe(const QString &name, Handler handler,
                                                         const QObject *sender) {
    auto entry =
        std::make_shared<Observer::Entry>(Observer::Entry{name, sender, std::move(handler)});
    const std::lock_guard lock(d->mutex);
    d->entries.push_back(entry);
    return Observer(std::move(entry));
}

void NotificationCenter::post(const QString &name, const QObject *sender,
                              const QVariantMap &userInfo) {
    const Notification notification{name, sender, userInfo};
    for (const auto &weak : d->snapshot()) {
        // The lock keeps the handler whole while it runs, even when it ends its own observation.
        const auto entry = weak.lock();
        if (!entry || entry->name != name) continue;
        if (entry->sender && entry->sender != sender) continue;
        entry->handler(notification);
    }
}

bool NotificationCenter::postOnMainThreadAndWait(const QString &name, const QObject *sender,
                                                 const QVariantMap &userInfo) {
    return MainThread::callAndWait([&] { post(name, sender, userInfo); });
}
