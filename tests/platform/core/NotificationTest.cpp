#include <gtest/gtest.h>

#include "platform/core/NotificationCenter.h"

namespace {

using namespace Qt::StringLiterals;

TEST(NotificationCenter, ReachesItsObserversInOrderEvenIfTheyEndAndBeginWhileTheyAreCalled) {
    QObject sender, stranger;
    QString calls;
    const auto observe = [&](QChar letter, const QString &name, const QObject *from) {
        return NotificationCenter::shared().observe(
            name, [&calls, letter](const Notification &) { calls += letter; }, from);
    };
    NotificationCenter::Observer ended, late;
    const auto first = observe(u'1', u"Changed"_s, nullptr);
    const auto foreign = observe(u'f', u"Changed"_s, &stranger);
    const auto other = observe(u'o', u"Other"_s, nullptr);
    NotificationCenter::Observer ending =
        NotificationCenter::shared().observe(u"Changed"_s, [&](const Notification &n) {
            calls += n.userInfo[u"n"_s].toString();
            ended = ending = {};
            late = observe(u'4', u"Changed"_s, nullptr);
        });
    ended = observe(u'e', u"Changed"_s, &sender);
    const auto third = observe(u'3', u"Changed"_s, &sender);
    NotificationCenter::shared().post(u"Changed"_s, &sender, {{u"n"_s, 2}});
    EXPECT_EQ(calls, u"123"_s);
    NotificationCenter::shared().post(u"Changed"_s, &sender);
    EXPECT_EQ(calls, u"123134"_s);
}

}  // namespace
