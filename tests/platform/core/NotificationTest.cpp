#include <gtest/gtest.h>

#include "platform/core/NotificationCenter.h"

namespace {

using namespace Qt::StringLiterals;

NotificationCenter &center() {
    return NotificationCenter::shared();
}

TEST(NotificationCenter, ReachesTheRightObserversInOrderOfRegistration) {
    QObject sender, stranger;
    QStringList calls;
    const auto observe = [&](const char *who, const QString &name, const QObject *from) {
        return center().observe(
            name,
            [&calls, who](const Notification &n) {
                calls << QLatin1String(who) + n.userInfo[u"n"_s].toString();
            },
            from);
    };
    const auto any = observe("any", u"Changed"_s, nullptr);
    const auto mine = observe("mine", u"Changed"_s, &sender);
    const auto foreign = observe("foreign", u"Changed"_s, &stranger);
    const auto other = observe("other", u"Other"_s, nullptr);
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

}  // namespace
