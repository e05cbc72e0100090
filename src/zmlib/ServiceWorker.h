#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

#include "zmlib/ServiceTable.h"

// What a browser and its thread share. The thread may outlive the browser.
struct BrowsingState {
    using Clock = ServiceTable::Clock;

    explicit BrowsingState(const BrowsingLimits &givenLimits);
    ~BrowsingState();
    BrowsingState(const BrowsingState &) = delete;
    BrowsingState &operator=(const BrowsingState &) = delete;

    // Lets the thread ask what the table has to ask, or whether the system's service still answers,
    // and end when it is to. Call it under the mutex.
    void wake();
    // Whether the system's service has left something unanswered for long. Call it under the mutex.
    bool isSilent() const;

    const BrowsingLimits limits;
    const int wakeUp;  // an eventfd, readable once woken; negative when the system gives none
    std::mutex mutex;  // guards what follows; never held while avahi is called
    std::condition_variable news;
    ServiceTable table;
    std::optional<Clock::time_point> wokenAt;  // while the thread is not done with it
    Clock::time_point answeredAt = {};         // when the system's service answered last
    bool isMissing = false;
    bool isAllForNow = false;
    bool isToEnd = false;
    bool hasEnded = false;
};

// Starts the thread that talks with the system's DNS-SD service (avahi) and keeps the table. It
// ends after `isToEnd` is set, but a call that the service leaves unanswered holds it for up to 25
// s. Where it cannot run, the service counts as missing.
void startServiceWorker(const std::shared_ptr<BrowsingState> &state);
