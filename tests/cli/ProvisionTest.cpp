// Tables of printers: the real program on many processes of virtual-printer, and printers that are
// plugged in while it waits.

#include <sys/resource.h>

#include <QTest>
#include <csignal>

#include "cli/ExitCode.h"
#include "cli/Programs.h"
#include "cli/Provision.h"
#include "support/OnePrinterLibrary.h"

using namespace Qt::StringLiterals;
using enum ExitCode;

namespace {

constexpr int forty = 40;
constexpr int vanishing = 4;  // when it is sent a key

// Printers with MAC addresses and names of their own, each slow by `delay` ms.
QByteArray profileOf(int number, const QByteArray &more, int delay = 2) {
    return R"({"items": {"0x1006": "Old-%1", "0x2000": "02000000%2"}, "faults": {"delay": %3%4)"_ba
        .replace("%1", QByteArray::number(number))
        .replace("%2", QByteArray::number(0x1000 + number, 16))
        .replace("%3", QByteArray::number(delay))
        .replace("%4", more);
}

QList<QByteArray> profiles(int count, const QMap<int, QByteArray> &others = {}, int delay = 2) {
    QList<QByteArray> list;
    for (int i = 1; i <= count; ++i)
        list << profileOf(i, others.value(i, "}"_ba), delay) + (others.contains(i) ? "" : "}");
    return list;
}

// A table that gives every printer an address, and most a name; it finds them in three ways.
QByteArray tableOf(int count) {
    QByteArray table = "mac,serial,name,names.printer,wired.address.ip,wireless.key\r\n";
    for (int i = 1; i <= count; ++i) {
        const QByteArray n = QByteArray::number(i);
        const QByteArray known[] = {
            "02-00-00-00-" + QByteArray::number(0x1000 + i, 16).insert(2, '-') + ",wrong,,New-" + n,
            ",S" + n + ",wrong,New-" + n, ",,Old-" + n + ','};
        table += known[i % 3] + ",10.0.0." + n + (i == vanishing ? ",provision-key" : ",") + "\r\n";
    }
    return table;
}

const QByteArray common = R"({"device": {"timeout": 90}})";

std::string oldState(int number) {
    return "Old-" + std::to_string(number) + " 192.168.1.50 60";
}
std::string newState(int number) {
    const std::string n = std::to_string(number);
    return (number % 3 == 2 ? "Old-" : "New-") + n + " 10.0.0." + n + " 90";
}

QStringList provision(const Printers &printers, int count) {
    return {u"provision"_s,  printers.write(u"table.csv"_s, tableOf(count)),
            u"--template"_s, printers.write(u"common.json"_s, common),
            u"--result"_s,   printers.path(u"out.csv"_s)};
}

// The outcomes of a file of results, by serial number.
QMap<QByteArray, QByteArray> outcomesOf(const Printers &printers) {
    QMap<QByteArray, QByteArray> outcomes;
    for (const QByteArray &line : printers.read(u"out.csv"_s).trimmed().split('\n').mid(1))
        outcomes.insert(line.split(',')[2], line.split(',')[5]);
    return outcomes;
}

}  // namespace

TEST(Provision, FortyPrintersOfWhichSomeFail) {
    const Printers printers(
        profiles(forty + 1, {{3, R"(, "items": {"0x2001": {"result": 9}}}})"},
                             {vanishing, R"(, "items": {"0x3105": {"closed": true}}}})"},
                             {5, R"(}, "password": "another"})"},
                             {6, R"(}, "password": "open123"})"},
                             {7, R"(, "refuseConnection": true}})"}}));
    const Ended first = run(printers, provision(printers, forty), "open123");
    EXPECT_EQ(first.code, NotAccepted) << first.err.constData();
    const auto outcomes = outcomesOf(printers);
    EXPECT_EQ(outcomes.size(), forty + 1);
    EXPECT_EQ(first.out.count('\n'), forty + 1);
    EXPECT_EQ(first.out.count("new settings"), forty - 4);
    for (int i = 1; i <= forty; ++i) {
        const QByteArray outcome = outcomes["S" + QByteArray::number(i)];
        if (i == 3) {
            EXPECT_EQ(outcome, "not-accepted");
            EXPECT_EQ(printers.stateOf(i), "New-3 192.168.1.50 90");
        } else if (i == vanishing) {
            EXPECT_EQ(outcome, "not-reached");
            EXPECT_EQ(printers.stateOf(i), oldState(i));
        } else if (i == 5) {
            EXPECT_EQ(outcome, "login-refused");
            EXPECT_EQ(printers.stateOf(i), oldState(i));
        } else if (i == 7) {
            EXPECT_EQ(outcome, "not-reached");
        } else {
            EXPECT_EQ(outcome, "done") << i << first.out.constData();
            EXPECT_EQ(printers.stateOf(i), newState(i));
        }
    }
    EXPECT_EQ(outcomes["S41"], "no-row");
    EXPECT_EQ(printers.stateOf(forty + 1), oldState(forty + 1));
    EXPECT_FALSE((first.out + first.err + printers.read(u"out.csv"_s)).contains("open123"));
    // Once more, nothing is left to do where it was done; rows are added.
    const Ended again = run(printers, provision(printers, forty), "open123");
    EXPECT_EQ(again.out.count("already"), forty - 4) << again.out.constData();
    EXPECT_EQ(printers.read(u"out.csv"_s).count('\n'), 1 + 2 * (forty + 1));
}

TEST(Provision, ARunThatIsStoppedLeavesEveryPrinterOldOrNew) {
    constexpr int count = 16;
    const Printers printers(profiles(count, {}, 4));
    QProcess process;
    prepare(process, printers);
    process.setArguments(provision(printers, count));
    process.start();
    ASSERT_TRUE(process.waitForReadyRead());
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    const Ended ended = finish(process);
    EXPECT_EQ(ended.code, Stopped);
    EXPECT_TRUE(ended.err.contains("Stopped")) << ended.err.constData();
    int changed = 0;
    const auto outcomes = outcomesOf(printers);
    for (int i = 1; i <= count; ++i) {
        const bool done = outcomes.value("S" + QByteArray::number(i)) == "done";
        EXPECT_EQ(printers.stateOf(i), done ? newState(i) : oldState(i));
        changed += done;
    }
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, count);
}

TEST(Provision, NoPrinterIsBegunWhenTheResultsCannotBeWritten) {
    constexpr int count = 20;
    const Printers printers(profiles(count));
    QStringList arguments = provision(printers, count);
    QProcess process;
    prepare(process, printers);
    process.setArguments(arguments);
    process.setChildProcessModifier([] {
        const rlimit limit{800, 800};  // bytes of a file: room for a few rows
        ::setrlimit(RLIMIT_FSIZE, &limit);
    });
    process.start();
    const Ended ended = finish(process);
    EXPECT_EQ(ended.code, InputRefused);
    EXPECT_TRUE(ended.err.contains("out.csv")) << ended.err.constData();
    EXPECT_EQ(printers.stateOf(1), newState(1));
    EXPECT_EQ(printers.stateOf(count), oldState(count));

    arguments.last() = u"/dev/full"_s;
    EXPECT_EQ(run(printers, arguments).code, InputRefused);
    EXPECT_EQ(printers.stateOf(count), oldState(count));
}

TEST(Provision, NothingIsSentFromATableWithAFault) {
    const Printers printers({profileOf(1, "}}")});
    const QString table = printers.write(u"table.csv"_s,
                                         "serial,wired.address.ip,device.timeout\n"
                                         "S1,10.0.0.1,90\nS2,10.0.0.1,90\nS1,10.0.0.3,9\n");
    const Ended first = run(printers, {u"provision"_s, table});
    EXPECT_EQ(first.code, InputRefused);
    EXPECT_EQ(first.err.count('\n'), 3) << first.err.constData();
    EXPECT_TRUE(first.err.contains("table.csv: line 4, column \"device.timeout\": "));
    EXPECT_EQ(printers.stateOf(1), oldState(1));
    EXPECT_EQ(run(printers, {u"check"_s, table}).err, first.err);
    // An address of the template would be that of two printers.
    printers.write(u"table.csv"_s, "serial\nS1\nS2\n");
    const QString common = printers.write(
        u"common.json"_s, R"({"wired": {"address": {"mode": "fixed", "ip": "10.0.0.1"}}})");
    EXPECT_EQ(run(printers, {u"provision"_s, table, u"--template"_s, common}).code, InputRefused);
    EXPECT_EQ(run(printers, {u"check"_s, common}).code, Done);
    EXPECT_EQ(printers.stateOf(1), oldState(1));
}

TEST(Provision, LeaveAloneWhatIsNotOnePrinterOfOneRow) {
    const QByteArray twin = R"({"items": {"0x1006": "Twin", "0x2000": "0200000020%1"}})";
    const Printers printers({QByteArray(twin).replace("%1", "01"),
                             QByteArray(twin).replace("%1", "02"), profileOf(3, "}}")});
    const QString table = printers.write(u"table.csv"_s,
                                         "serial;mac;name;device.timeout\n;;Twin;90\nS3;;;91\n"
                                         ";02:00:00:00:10:03;;92\nS9;;;93\n");
    const Ended ended =
        run(printers, {u"provision"_s, table, u"--result"_s, printers.path(u"out.csv"_s)});
    EXPECT_EQ(ended.code, NotReached);
    EXPECT_EQ(outcomesOf(printers).values(), QList<QByteArray>(3, "refused"));
    EXPECT_TRUE(ended.out.contains("lines 3, 4")) << ended.out.constData();
    EXPECT_TRUE(ended.err.contains("S9")) << ended.err.constData();
    for (int i = 1; i <= 3; ++i)
        EXPECT_TRUE(QByteArray::fromStdString(printers.stateOf(i)).endsWith(" 60"));
}

namespace {

// Printers of a catalogue that come and go.
class ComingSource : public CatalogueSource {
  public:
    // A bit a printer: which are there, and which were at the last look.
    struct State {
        int there = 0, listed = 0;
    };
    ComingSource(const Catalogue &catalogue, State &state)
        : CatalogueSource(catalogue), m_state(state) {}
    Listing list() override {
        Listing listing = CatalogueSource::list();
        m_state.listed = m_state.there;
        for (int i = int(listing.entries.size()) - 1; i >= 0; --i)
            if (!(m_state.listed & 1 << i)) listing.entries.removeAt(i);
        return listing;
    }
    bool hasChanged() override { return m_state.listed != m_state.there; }

  private:
    State &m_state;
};

}  // namespace

TEST(Provision, PrintersAreDoneAsTheyArePluggedInEachOnce) {
    for (const bool again : {false, true}) {
        Catalogue catalogue;
        for (int i = 1; i <= 2; ++i) {
            const QString uri = u"virtual://%1"_s.arg(i);
            catalogue.virtualPrinters.insert(uri, printerOf(profileOf(i, "}}", 0)));
            catalogue.add({{PrinterKey::DeviceURI, uri},
                           {PrinterKey::ConnectionType, PrinterConnection::USB},
                           {PrinterKey::ProductName, u"Larkfield L200"_s},
                           {PrinterKey::SerialNumber, u"S%1"_s.arg(i)}});
        }
        ComingSource::State state;
        std::vector<std::unique_ptr<PrinterSource>> sources;
        sources.push_back(std::make_unique<ComingSource>(catalogue, state));
        installLibrary(std::make_shared<PrinterLibrary>(std::move(sources)));

        const Printers folder({});
        // The first comes, goes, comes again; then the second comes.
        bool gone = false;
        QTimer timer;
        timer.callOnTimeout([&] {
            const auto rows = folder.read(u"out.csv"_s).count('\n') - 1;
            if (rows == 1 && !gone) state.there = 0;
            gone |= rows == 1 && state.listed == 0;
            if (rows == 0 || gone) state.there = rows < 2 ? 1 : 3;
        });
        timer.start(20);
        const Table table = tableFromCsv("serial,device.timeout\nS1,90\nS2,91\n", {});
        Terminal terminal(false);
        Passwords passwords;
        Provision provision(terminal, passwords, table.rows, again);
        EXPECT_EQ(provision.run(folder.path(u"out.csv"_s)), Done);
        QList<QByteArray> outcomes;
        for (const QByteArray &line : folder.read(u"out.csv"_s).trimmed().split('\n').mid(1))
            outcomes << line.split(',')[2] + ' ' + line.split(',')[5];
        EXPECT_EQ(outcomes, (QList<QByteArray>{"S1 done", again ? "S1 unchanged" : "S1 done-before",
                                               "S2 done"}));
        installLibrary(nullptr);
    }
}

TEST(Provision, SeveralPrintersOverUsbAtATime) {
    const UsbBed bed;
    if (!UsbBed::isThere()) GTEST_SKIP();
    constexpr int count = 5;
    std::vector<std::shared_ptr<VirtualPrinter>> printers;
    std::vector<std::unique_ptr<UsbEmulator>> usb;
    QByteArray csv = "serial,device.timeout\n";
    for (int i = 1; i <= count; ++i) {
        const QByteArray n = QByteArray::number(i);
        printers.push_back(printerOf(profileOf(i, "}}")));
        UsbEmulator::Description description;
        description.port = "1-" + n;
        description.address = i;
        description.serial = "S" + n;
        usb.push_back(std::make_unique<UsbEmulator>(bed, printers.back(), description));
        usb.back()->plug();
        csv += "S" + n + ",9" + n + '\n';
    }
    installLibrary(libraryOf<UsbSource>(5000));
    Terminal terminal(false);
    Passwords passwords;
    EXPECT_EQ(Provision(terminal, passwords, tableFromCsv(csv, {}).rows, false).run({}), Done);
    for (int i = 1; i <= count; ++i) EXPECT_EQ(printers[size_t(i) - 1]->item(0x1007)[0], 90 + i);
    installLibrary(nullptr);
}
