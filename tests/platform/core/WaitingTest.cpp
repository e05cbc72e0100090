#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <thread>

#include "platform/core/Waiting.h"

namespace {

struct Receiver : QObject {
    QList<QEvent::Type> seen;
    bool event(QEvent *event) override {
        seen << event->type();
        return true;
    }
    void post(QEvent::Type type) { QCoreApplication::postEvent(this, new QEvent(type)); }
};

TEST(Waiting, IdleDropsInputDeliversEverythingElseAndTouchesNothingOnAnotherThread) {
    Receiver receiver;
    for (const auto type :
         {QEvent::KeyPress, QEvent::MouseButtonPress, QEvent::Close, QEvent::UpdateRequest})
        receiver.post(type);
    std::thread(idle).join();
    EXPECT_TRUE(receiver.seen.isEmpty());
    idle();
    QCoreApplication::processEvents();
    EXPECT_EQ(receiver.seen, QList<QEvent::Type>{QEvent::UpdateRequest})
        << "input was delivered, or kept for later";
    receiver.post(QEvent::MouseButtonPress);
    QCoreApplication::processEvents();
    EXPECT_EQ(receiver.seen.last(), QEvent::MouseButtonPress) << "input stayed blocked afterwards";
}

TEST(Waiting, IdlesInEverySliceAndEndsAtTheDeadlineOrWhenTheConditionHolds) {
    int ticks = 0, asked = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(5);
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(waitUntil([] { return false; }, QDeadlineTimer(150)));
    EXPECT_GE(clock.elapsed(), 149);
    EXPECT_GE(ticks, 5) << "timers stood still during the wait";
    EXPECT_TRUE(waitUntil([&] { return ++asked == 3; }, QDeadlineTimer(60000)));
    EXPECT_LT(clock.elapsed(), 10000);
}

}  // namespace
