#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <atomic>

#include "platform/core/MainThread.h"
#include "platform/core/NotificationCenter.h"

namespace {

using namespace Qt::StringLiterals;

NotificationCenter &center() {
    return NotificationCenter::shared();
}

TEST(NotificationCenter, ReachesTheRightObserversInOrderOfRegistration) {
    QObject sender, stranger;
    QStringList calls;
    const auto note = [&](const QString &who) {
        return
            [&calls, who](const Notification &n) { calls << who + n.userInfo[u"n"_s].toString(); };
    };
    const auto any = center().observe(u"Changed"_s, note(u"any"_s));
    const auto mine = center().observe(u"Changed"_s, note(u"mine"_s), &sender);
    const auto foreign = center().observe(u"Changed"_s, note(u"foreign"_s), &stranger);
    const auto other = center().observe(u"Other"_s, note(u"other"_s));
    center().post(u"Changed"_s, &sender, {{u"n"_s, 7}});
    EXPECT_EQ(calls.join(u' '), u"any7 mine7"_s);
}

TEST(NotificationCenter, AnObserverMayEndItselfOthersAndStartNewOnesWhileItIsCalled) {
    QString calls;
    NotificationCenter::Observer a, b, c;
    a = center().observe(u"Changed"_s, [&](const Notification &) {
        calls += u'a';
        a = {};
        b = {};
        c = center().observe(u"Changed"_s, [&](const Notification &) { calls += u'c'; });
    });
    b = center().observe(u"Changed"_s, [&](const Notification &) { calls += u'b'; });
    center().post(u"Changed"_s, nullptr);
    EXPECT_EQ(calls, u"a"_s) << "an ended observation was called, or one made during the post";
    center().post(u"Changed"_s, nullptr);
    EXPECT_EQ(calls, u"ac"_s);
}

TEST(MainThread, WorkersPostOnTheMainThreadInOrderAndWaitForTheObservers) {
    QStringList seen;
    std::atomic<int> handled = 0;
    std::atomic<bool> overtaken = false, ended = false;
    const auto observer = center().observe(u"Changed"_s, [&](const Notification &n) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        seen << n.userInfo[u"step"_s].toString();
        ++handled;
    });
    MainThread::startBackgroundWork([&] {
        for (int step = 0; step < 3; ++step) {
            center().postOnMainThreadAndWait(u"Changed"_s, nullptr, {{u"step"_s, step}});
            if (handled != step + 1) overtaken = true;
        }
        ended = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended.load(); }));
    EXPECT_FALSE(overtaken) << "the worker went on before the observers had run";
    EXPECT_EQ(seen.join(u' '), u"0 1 2"_s);
}

}  // namespace
