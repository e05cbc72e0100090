#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <thread>

#include "platform/core/Waiting.h"

namespace {

// Counts what reaches it.
class Receiver : public QObject {
  public:
    QList<QEvent::Type> seen;
    bool event(QEvent *event) override {
        seen << event->type();
        return true;
    }
};

TEST(Waiting, IdleDropsInputAndDeliversEverythingElse) {
    Receiver receiver;
    const auto post = [&](QEvent *event) { QCoreApplication::postEvent(&receiver, event); };
    post(new QEvent(QEvent::KeyPress));
    post(new QEvent(QEvent::MouseButtonPress));
    post(new QEvent(QEvent::Close));
    post(new QEvent(QEvent::UpdateRequest));
    idle();
    QCoreApplication::processEvents();
    EXPECT_EQ(receiver.seen, QList<QEvent::Type>{QEvent::UpdateRequest})
        << "input was delivered, or kept for later";
    post(new QEvent(QEvent::MouseButtonPress));
    QCoreApplication::processEvents();
    EXPECT_EQ(receiver.seen.last(), QEvent::MouseButtonPress) << "input stayed blocked afterwards";
}

TEST(Waiting, OnAnotherThreadIdleTouchesNothing) {
    Receiver receiver;
    QCoreApplication::postEvent(&receiver, new QEvent(QEvent::UpdateRequest));
    std::thread(idle).join();
    EXPECT_TRUE(receiver.seen.isEmpty());
}

TEST(Waiting, EndsAtTheDeadlineAndIdlesAtLeastEverySlice) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(5);
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(waitUntil([] { return false; }, QDeadlineTimer(150)));
    EXPECT_GE(clock.elapsed(), 149);
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_GE(ticks, 5) << "timers stood still during the wait";
}

TEST(Waiting, EndsAsSoonAsTheConditionHolds) {
    QElapsedTimer clock;
    clock.start();
    int asked = 0;
    EXPECT_TRUE(waitUntil([&] { return ++asked == 3; }, QDeadlineTimer(60000)));
    EXPECT_LT(clock.elapsed(), 10000);
}

}  // namespace
