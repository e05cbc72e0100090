#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <atomic>
#include <thread>

#include "platform/core/MainThread.h"
#include "platform/core/NotificationCenter.h"

namespace {

const QString name = QStringLiteral("Changed");
const QString other = QStringLiteral("Other");

NotificationCenter &center() {
    return NotificationCenter::shared();
}

TEST(NotificationCenter, ReachesTheRightObserversInOrderOfRegistration) {
    QObject sender, stranger;
    QStringList calls;
    const auto note = [&](const QString &who) {
        return [&calls, who](const Notification &n) {
            calls << who + QString::number(n.userInfo.value(QStringLiteral("n")).toInt());
        };
    };
    const auto any = center().observe(name, note(QStringLiteral("any")));
    const auto mine = center().observe(name, note(QStringLiteral("mine")), &sender);
    const auto foreign = center().observe(name, note(QStringLiteral("foreign")), &stranger);
    const auto otherName = center().observe(other, note(QStringLiteral("other")));
    center().post(name, &sender, {{QStringLiteral("n"), 7}});
    EXPECT_EQ(calls, (QStringList{QStringLiteral("any7"), QStringLiteral("mine7")}));
}

TEST(NotificationCenter, AnObserverMayEndItselfOthersAndStartNewOnesWhileItIsCalled) {
    int first = 0, second = 0, late = 0;
    NotificationCenter::Observer a, b, c;
    a = center().observe(name, [&](const Notification &) {
        ++first;
        a = {};
        b = {};
        c = center().observe(name, [&](const Notification &) { ++late; });
    });
    b = center().observe(name, [&](const Notification &) { ++second; });
    center().post(name, nullptr);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0) << "an ended observation was still called";
    EXPECT_EQ(late, 0) << "a new observer saw the post during which it was made";
    center().post(name, nullptr);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(late, 1);
}

TEST(MainThread, WorkersPostOnTheMainThreadInOrderAndWaitForTheObservers) {
    QStringList seen;
    std::atomic<int> handled = 0;
    std::atomic<bool> overtaken = false, ended = false;
    const auto observer = center().observe(name, [&](const Notification &n) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        seen << n.userInfo.value(QStringLiteral("step")).toString();
        ++handled;
    });
    MainThread::startBackgroundWork([&] {
        for (int step = 0; step < 3; ++step) {
            center().postOnMainThreadAndWait(name, nullptr, {{QStringLiteral("step"), step}});
            if (handled != step + 1) overtaken = true;
        }
        ended = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended.load(); }));
    EXPECT_FALSE(overtaken) << "the worker went on before the observers had run";
    EXPECT_EQ(seen, (QStringList{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")}));
}

TEST(MainThread, UnfinishedWorkIsFinishedWithoutAnEventLoop) {
    int calls = 0;
    auto held = std::make_shared<int>(1);
    MainThread::startBackgroundWork([&calls, held] {
        for (int i = 0; i < 5; ++i) MainThread::callAndWait([&] { ++calls; });
    });
    MainThread::finishBackgroundWork();
    EXPECT_EQ(calls, 5);
    EXPECT_EQ(held.use_count(), 1) << "what the work held outlived it";
}

}  // namespace
