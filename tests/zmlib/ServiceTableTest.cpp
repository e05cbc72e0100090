#include "zmlib/ServiceTable.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

constexpr int ipv4 = 0, ipv6 = 1;

ServiceTable::Places seen(int interface, int protocol) {
    return {{{interface, protocol, ipv4}, {interface, protocol, ipv6}}};
}

// Runs a script against a table: "A14" sees A on interface 1 over IPv4, "!A" is an opening, "?"
// takes a question, "=" and "-" end the oldest with and without an answer, "x" gives up, "s" looks
// whether all is settled. What was taken and seen.
QString taken(const QString &script, const BrowsingLimits &limits) {
    ServiceTable table(limits);
    QList<ServiceTable::Question> asked;
    QStringList all;
    for (const QString &step : script.split(u' ')) {
        if (step == "?"_L1) {
            const auto question = table.takeQuestion();
            if (question) asked.append(*question);
            all += question ? u"%1%2%3%4"_s.arg(QLatin1String(question->name))
                                  .arg(question->place.interface)
                                  .arg(question->place.protocol == ipv4 ? 4 : 6)
                                  .arg(question->place.isLikely() ? u""_s : u"*"_s)
                            : u"."_s;
        } else if (step == "="_L1) {
            table.answer(asked.takeFirst(), {{{QHostAddress(u"10.0.0.1"_s), 9100}, "host", {}}});
        } else if (step == "-"_L1) {
            table.answer(asked.takeFirst(), {});
        } else if (step == "s"_L1) {
            all += table.isSettled() ? u"settled"_s : u"open"_s;
        } else if (step == "x"_L1) {
            const auto gone = table.giveUp();
            asked.removeIf([&](const auto &one) { return std::ranges::count(gone, one.number); });
        } else if (step[0] == u'!') {
            table.askFirst(u"dnssd:///%1?type=_pdl-datastream._tcp&domain=local"_s.arg(step[1]));
        } else {
            table.add(step.left(1).toLatin1(), "local",
                      seen(step[1].digitValue(), step[2] == u'4' ? ipv4 : ipv6));
        }
    }
    return all.join(u' ');
}

TEST(ServiceTable, AsksInTheOrderInWhichAListGrowsFastest) {
    const struct {
        const char *script, *taken;
    } cases[] = {
        {"A16 B16 A14 ? ? ?", "A14 A16 B16"},
        {"A14 A24 B16 ? = ? ?", "A14 B16 A24"},
        {"A14 A16 ? = ? A16 ?", "A14 . ."},  // IPv6 is needless beside IPv4
        {"A16 ? A14 = ?", "A16 A14"},        // but not the other way
        {"A14 A16 B14 ? = !A ? ? ? ? ? - - ?", "A14 A14 A14* A16* A16 . B14"},
        {"A14 B14 C14 D14 ? ? ? ? x ? ?", "A14 B14 C14 . D14 ."},
        {"A14 B14 C14 D14 ? ? ? x ? - - ? x ?", "A14 B14 C14 D14 A14 ."},
        {"A14 B14 C14 D14 ? ? ? x ? - ? E14 x ? = ?", "A14 B14 C14 D14 A14 E14 C14"},
        {"A14 B14 C14 D14 ? ? ? !A x ? - ? ?", "A14 B14 C14 A14* D14 B14"},
        {"s A14 B14 ? ? s = s - s", "settled A14 B14 open open settled"},
        {"A14 B14 C14 D14 ? ? ? x ? = = = s", "A14 B14 C14 D14 open"},  // given up is not ended
    };
    for (const auto &c : cases)
        EXPECT_EQ(taken(QLatin1String(c.script), {.questionsAtOnce = 3, .giveUpAfter = {}}),
                  QLatin1String(c.taken))
            << c.script;
    EXPECT_EQ(taken(u"A14 ? s"_s, {.firstLook = {}}), "A14 settled"_L1) << "asked for too long";
    EXPECT_EQ(taken(u"A14 B14 ? ? x ?"_s, {.questionsAtOnce = 1}), "A14 . ."_L1) << "too early";
}

TEST(ServiceTable, PrintersOfOneNameAreARowForEachHost) {
    const QString uri = u"dnssd:///N?type=_pdl-datastream._tcp&domain=local"_s;
    ServiceTable table({});
    const auto isRow = [&](const QString &row) {
        QStringList rows;
        for (const AnnouncedPrinter &printer : table.printers()) {
            rows += printer.uri.mid(uri.size());
            for (const Endpoint &one : printer.endpoints) rows += one.address.toString();
        }
        return rows.join(u' ') == row;
    };
    const auto resolved = [&](const QString &suffix) {
        bool areAll = false;
        QStringList found;
        for (const Endpoint &one : table.answersSince(uri + suffix, {}, areAll))
            found += one.address.toString();
        return found.join(u' ');
    };
    const auto answer = [&](int interface, const char *host, const char *address) {
        const QHostAddress at{QLatin1String(address)};
        const auto places =
            seen(interface, at.protocol() == QAbstractSocket::IPv4Protocol ? ipv4 : ipv6);
        table.add("N", "local", places);
        const auto question = table.takeQuestion();
        ASSERT_TRUE(question);
        table.answer(*question, {{{at, 9100}, host, {}}});
    };
    answer(1, "b", "fe80::1");
    answer(1, "b &.local", "10.0.0.2");
    EXPECT_TRUE(isRow(u" 10.0.0.2"_s)) << "the host of an interface was renamed";
    answer(2, "b &.local", "10.0.0.3");
    EXPECT_TRUE(isRow(u" 10.0.0.2 10.0.0.3"_s)) << "one host on two interfaces";
    answer(3, "a", "10.0.0.1");
    EXPECT_TRUE(isRow(u"&host=a 10.0.0.1 &host=b%20%26.local 10.0.0.2 10.0.0.3"_s));
    EXPECT_EQ(resolved({}), "10.0.0.1"_L1) << "of one host only";
    EXPECT_EQ(resolved(u"&host=b%20%26.local"_s), "10.0.0.2 10.0.0.3"_L1);
    table.remove("N", "local", seen(3, ipv4));
    EXPECT_TRUE(isRow(u" 10.0.0.2 10.0.0.3"_s));
    EXPECT_EQ(resolved({}), "10.0.0.2 10.0.0.3"_L1);
    EXPECT_EQ(resolved(u"&host=a"_s), QString());
    EXPECT_TRUE(table.contains(uri) && table.contains(uri + u"&host=b%20%26.local"_s));
    EXPECT_FALSE(table.contains(uri + u"&host=a"_s));
}

}  // namespace
