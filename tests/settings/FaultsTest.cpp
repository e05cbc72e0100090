#include "ItemRows.h"

// Everything that can go wrong with one reply, in every step of a reading and of a send.

namespace {

using Login = Ending::Login;
using State = Ending::State;
using namespace Qt::StringLiterals;

enum class Effect { None, Silent, Foreign, Closed, ClosedAfter, Refused };
struct Fault {
    QByteArray description;
    Effect effect;
};
const Fault faults[] = {
    {R"("noReply": true)", Effect::Silent}, {R"("garbage": true)", Effect::Silent},
    {R"("truncate": 7)", Effect::Silent},   {R"("length": 65535)", Effect::Silent},
    {R"("length": 0)", Effect::Foreign},    {R"("code": "0x7777")", Effect::Foreign},
    {R"("doubled": true)", Effect::None},   {R"("closed": true)", Effect::Closed},
    {R"("reset": true)", Effect::Closed},   {R"("closeAfterReply": true)", Effect::ClosedAfter},
    {R"("result": 5)", Effect::Refused}};

// A manager on a printer whose values can all be sent, and whose name and settings can be compared
// with what another manager reads from the same printer.
class Faults : public testing::Test, protected ServedManager {
  protected:
    Faults()
        : ServedManager(R"({"password": "abcd1234", "scanPolls": 0, "networks": [{"ssid": "N"}],
                            "items": {"0x3103": 3, "0x3104": "Net"}})") {}

    // A fault in the reply to an item ("0x1004").
    void setFault(const QByteArray &item, const Fault &fault) {
        setFaults(R"({"items": {")" + item + R"(": {)" + fault.description + "}}}");
    }
    // Logs in and sends, with a fault in the send.
    void sendWith(const QByteArray &item = "0x1004", const Fault &fault = {}) {
        ASSERT_EQ(manager->connectPrinter(), 0);
        ASSERT_EQ(manager->checkLoginPassword(u"abcd1234"_s).kind, WriteResult::Accepted);
        manager->disconnectPrinter();
        setFault(item, fault);
        sendAndWait();
        setFaults("{}");
    }
    // The items in which the saved data differs from what the printer holds.
    QList<ItemCode> lies() {
        const auto other = DWTDataManager::dataManager(served.entry());
        EXPECT_EQ(other->setupDataFromPrinter(0), 0);
        QList<ItemCode> codes;
        for (const Item &item : sentItems()) {
            if (item.readTurn == 0 || item.code == 0x3202) continue;
            const CategoryDictionary saved = manager->savedData()[item.viewKey],
                                     held = other->savedData()[item.viewKey];
            const auto lies = [&](const QString &key) { return saved[key] != held[key]; };
            if (std::any_of(item.keys.begin(), item.keys.end(), lies)) codes << item.code;
        }
        return codes;
    }

    int round = 0;
};

TEST_F(Faults, OfOneReplyInASendNeverMakeTheSavedDataLie) {
    ASSERT_EQ(manager->setupDataFromPrinter(0), 0);
    QList<ItemCode> steps{0x1001};
    for (const Item &item : sentItems()) steps << item.code;
    for (const ItemCode code : steps) {
        const QByteArray step = "0x" + QByteArray::number(code, 16);
        for (const Fault &fault : faults) {
            SCOPED_TRACE((step + ' ' + fault.description).constData());
            changeAll(*this, ++round, code == 0x3106 ? 1 : 3);
            sendWith(step, fault);
            const Ending ending = manager->ending();
            const Effect effect = fault.effect;
            const bool lost = effect == Effect::Closed || effect == Effect::ClosedAfter;
            const bool login = code == 0x1001;
            const bool unclear = effect == Effect::Silent || effect == Effect::Foreign;
            EXPECT_EQ(ending.course == Ending::Course::Lost, lost);
            EXPECT_EQ(ending.isComplete(), effect == Effect::None);
            const bool noReply = login && (unclear || effect == Effect::Closed);
            EXPECT_EQ(ending.login == Login::NoReply, noReply);
            EXPECT_EQ(ending.login == Login::Refused, login && effect == Effect::Refused);
            const QList<ItemCode> unclearItems = itemsOf(ending.in(State::Unclear));
            EXPECT_EQ(unclearItems, unclear && !login ? QList{code} : QList<ItemCode>());
            EXPECT_EQ(itemsOf(ending.in(State::Refused)).size(),
                      effect == Effect::Refused && !login);
            for (const ItemCode lie : lies()) EXPECT_TRUE(unclearItems.contains(lie)) << lie;
            // The next try works, and says so.
            sendWith();
            EXPECT_TRUE(manager->ending().isComplete());
            EXPECT_EQ(lies(), QList<ItemCode>());
        }
    }
}

TEST_F(Faults, OfOneReplyInAReadingWriteNothingThatWasNotTold) {
    ASSERT_EQ(manager->setupDataFromPrinter(0), 0);
    for (const ItemRow &row : itemRows()) {
        if (row.reply.isNull()) continue;
        const ItemCode code = row.code;
        const QByteArray step = "0x" + QByteArray::number(code, 16);
        for (const Fault &fault : faults) {
            SCOPED_TRACE((step + ' ' + fault.description).constData());
            QMap<ItemCode, QByteArray> held;
            for (const Item &item : sentItems()) held.insert(item.code, printer().item(item.code));
            setFault(step, fault);
            const int result = manager->setupDataFromPrinter(0);
            setFaults("{}");
            const Effect effect = fault.effect;
            const bool told = effect == Effect::None || effect == Effect::Refused ||
                              effect == Effect::ClosedAfter;
            const bool answered =
                effect == Effect::ClosedAfter ? code == 0x1007 : told || effect == Effect::Foreign;
            EXPECT_EQ(result, answered ? 0 : 6);
            const bool isMissed = !told && itemOf(code)->sendTurn > 0;
            EXPECT_EQ(itemsOf(manager->notReported()).contains(code), isMissed);
            enter(++round % 2 == 0 ? "wireless.mode=1" : "wireless.mode=2");
            sendWith();
            EXPECT_TRUE(manager->ending().isComplete());
            served.receivedUntilEnd();
            held.insert(0x3000, QByteArray(1, char(round % 2 + 1)) + '\0');
            for (auto i = held.begin(); i != held.end(); ++i)
                EXPECT_EQ(printer().item(i.key()), *i) << std::hex << i.key();
            EXPECT_EQ(manager->setupDataFromPrinter(0), 0) << "the next reading";
            EXPECT_EQ(lies(), QList<ItemCode>());
        }
    }
}

TEST_F(Faults, OfTheConnectionInASearchEndItAtOnce) {
    manager->setScanInterval(std::chrono::seconds(5));
    for (const char *frames : {"1", "2", "3"}) {
        SCOPED_TRACE(frames);
        setFaults(QByteArray("{\"closeAfterFrames\": ") + frames + "}");
        const QDeadlineTimer interval(5000);
        EXPECT_EQ(manager->SSIDList(), std::nullopt);
        EXPECT_FALSE(interval.hasExpired()) << "polled a closed connection";
        setFaults("{}");
        EXPECT_TRUE(manager->SSIDList()) << "the next search";
    }
}

}  // namespace
