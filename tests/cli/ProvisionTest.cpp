// Tables of printers: inside this process, the real program where a signal or a limit ends it, and
// printers that are plugged in while it waits.

#include "cli/Provision.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTest>

#include <csignal>

#include "cli/Programs.h"
#include "support/OnePrinterLibrary.h"

using namespace Qt::StringLiterals;
using enum ExitCode;

namespace {

// Printers with MAC addresses and names of their own.
QByteArray profileOf(int number, const QByteArray &more = {}) {
    return R"({"items": {"0x1006": "Old-%1", "0x2000": "02000000%2"}%3})"_ba
        .replace("%1", QByteArray::number(number))
        .replace("%2", QByteArray::number(0x1000 + number, 16))
        .replace("%3", more.isEmpty() ? "" : ", " + more);
}

std::string oldState(int number) {
    return "Old-" + std::to_string(number) + " 192.168.1.50 60";
}

// The outcomes of a file of results, by serial number.
QMap<QByteArray, QByteArray> outcomesOf(const Printers &printers) {
    QMap<QByteArray, QByteArray> outcomes;
    for (const QByteArray &line : printers.read(u"out.csv"_s).trimmed().split('\n').mid(1))
        outcomes.insert(line.split(',').value(2), line.split(',').value(5));  // the last may be cut
    return outcomes;
}

}  // namespace

TEST(Provision, EveryPrinterHasItsOwnOutcome) {
    const struct {
        const char *more;  // of its description
        const char *rows, *outcome;
        const char *state;  // then; nothing: as before
        const char *name = nullptr;
    } cases[] = {
        {"", "02-00-00-00-10-01,wrong,,New-1,10.0.0.1,", "done", "New-1 10.0.0.1 90"},
        {"", ",S2,wrong,New-2,10.0.0.2,", "done", "New-2 10.0.0.2 90"},
        {"", ",,Old-3,,10.0.0.3,", "done", "Old-3 10.0.0.3 90"},
        {R"("faults": {"items": {"0x2001": {"result": 9}}})", ",S4,,New-4,10.0.0.4,",
         "not-accepted", "New-4 192.168.1.50 90"},
        {R"("faults": {"items": {"0x3105": {"closed": true}}})",
         ",S5,,New-5,10.0.0.5,provision-key", "not-reached", nullptr},
        {R"("password": "another")", ",S6,,New-6,10.0.0.6,", "login-refused", nullptr},
        {R"("password": "open123")", ",S7,,New-7,10.0.0.7,", "done", "New-7 10.0.0.7 90"},
        {R"("faults": {"refuseConnection": true})", ",S8,,New-8,10.0.0.8,", "not-reached", nullptr},
        {"", ",S9,,,10.0.0.9,\r\n02:00:00:00:10:09,,,,10.0.0.19,", "refused", nullptr},
        {"", ",,Twin,,10.0.0.10,", "refused", nullptr, "Twin"},
        {"", "", "refused", nullptr, "Twin"},
        {"", "", "no-row", nullptr}};
    QList<QByteArray> profiles;
    QByteArray table = "mac,serial,name,names.printer,wired.address.ip,wireless.key\r\n";
    for (const auto &c : cases) {
        const int number = int(profiles.size()) + 1;
        profiles << profileOf(number, c.more);
        if (c.name) profiles.last().replace("Old-" + QByteArray::number(number), c.name);
        if (*c.rows) table += c.rows + "\r\n"_ba;
    }
    table += ",S99,,,,\r\n";
    const Printers printers(profiles);
    const QStringList provision{
        u"provision"_s,  printers.write(u"table.csv"_s, table),
        u"--template"_s, printers.write(u"common.json"_s, R"({"device": {"timeout": 90}})"),
        u"--result"_s,   printers.path(u"out.csv"_s),
        u"--keys"_s,     u"always"_s};
    std::vector<std::string> before;
    for (int i = 1; i <= profiles.size(); ++i) before.push_back(printers.stateOf(i));
    const Ended first = run(printers, provision, "open123");
    EXPECT_EQ(first.code, NotAccepted) << first.err.constData();
    EXPECT_EQ(first.out.count('\n'), profiles.size()) << first.out.constData();
    EXPECT_TRUE(first.out.contains("lines 10, 11")) << first.out.constData();
    EXPECT_EQ(first.err, "These printers of the table were not there: S99\n");
    const QByteArray results = printers.read(u"out.csv"_s);
    EXPECT_FALSE((first.out + first.err + results).contains("open123"));
    const auto outcomes = outcomesOf(printers);
    for (int i = 1; i <= profiles.size(); ++i) {
        EXPECT_EQ(outcomes["S" + QByteArray::number(i)], cases[i - 1].outcome) << i;
        const char *const state = cases[i - 1].state;
        EXPECT_EQ(printers.stateOf(i), state ? state : before[size_t(i) - 1]);
    }
    // Once more, nothing is left to do where it was done; rows are added.
    printers[8].setFaults({});
    const Ended again = run(printers, provision, "open123");
    EXPECT_EQ(again.out.count("already"), 4) << again.out.constData();
    const QByteArray all = printers.read(u"out.csv"_s);
    EXPECT_EQ(all.count('\n') - all.count(",begun,"), 1 + 2 * profiles.size());
    EXPECT_EQ(printers.stateOf(8), "New-8 10.0.0.8 90");
}

namespace {

// The real program on a table of printers, of numbers that no other test has. It ends before all
// are done.
class ProvisionProcess : public testing::Test {
  protected:
    static constexpr int base = 100;

    void begin(const QByteArrayList &faults) {
        QList<QByteArray> profiles;
        QByteArray table = "serial,names.printer,wired.address.ip,device.timeout\n";
        for (int i = 1; i <= faults.size(); ++i) {
            const QByteArray n = QByteArray::number(i);
            profiles << profileOf(base + i, "\"faults\": {" + faults[i - 1] + '}');
            table += "S" + n + ",New-" + n + ",10.0.0." + n + ",90\n";
        }
        printers = std::make_unique<Printers>(profiles);
        process.setStandardInputFile(QProcess::nullDevice());
        start(process, *printers, QStringLiteral(NST_PROGRAM),
              {u"provision"_s, printers->write(u"table.csv"_s, table), u"--result"_s,
               printers->path(u"out.csv"_s)});
    }
    // Expects that every printer is old or new, and that it is new where the results say so.
    void expectOldOrNew(int count) {
        const auto outcomes = outcomesOf(*printers);
        for (int i = 1; i <= count; ++i) {
            const std::string n = std::to_string(i), state = printers->stateOf(i),
                              done = "New-" + n + " 10.0.0." + n + " 90";
            EXPECT_TRUE(state == done || state == oldState(base + i)) << state;
            if (outcomes.value("S" + QByteArray::number(i)) == "done") {
                EXPECT_EQ(state, done);
            }
        }
        EXPECT_EQ(printers->stateOf(count), oldState(base + count)) << "begun after the end";
        EXPECT_TRUE(outcomes.values().contains("done"));
    }

    std::unique_ptr<Printers> printers;
    QProcess process;
};

}  // namespace

TEST_F(ProvisionProcess, StoppedByASignalBeginsNoPrinterAnyMore) {
    // The last answer before the send of the others never comes, so that they are all under way.
    const QByteArray silent = R"("items": {"0x1007": {"noReply": true}})";
    begin({"", silent, silent});
    ASSERT_TRUE(process.waitForReadyRead());
    const QDeadlineTimer answer(DWTCommunicationControl::callTimeout);
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    const Ended ended = finish(process);
    EXPECT_FALSE(answer.hasExpired()) << "waited for it";
    EXPECT_EQ(ended.code, Stopped);
    EXPECT_TRUE(ended.err.contains("Stopped")) << ended.err.constData();
    expectOldOrNew(3);
}

TEST_F(ProvisionProcess, ASignalEndsItWhileItsInputDoesNotCome) {
    const Folder folder;
    const QString pipe = folder.path(u"table.csv"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    process.start(QStringLiteral(NST_PROGRAM), {u"provision"_s, pipe});
    int writer = -1;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK);
        return writer >= 0;
    }));
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    EXPECT_TRUE(process.waitForFinished());
    ::close(writer);
}

TEST_F(ProvisionProcess, BeginsNoPrinterWhenTheResultsCannotBeWritten) {
    process.setChildProcessModifier([] {
        const rlimit limit{1000, 1000};  // bytes of a file: room for a few rows
        ::setrlimit(RLIMIT_FSIZE, &limit);
    });
    constexpr int count = 2 * Provision::printersAtATime;
    begin(QByteArrayList(count, ""));
    const Ended ended = finish(process);
    EXPECT_EQ(ended.code, InputRefused);
    EXPECT_TRUE(ended.err.contains("out.csv")) << ended.err.constData();
    expectOldOrNew(count);
}

TEST(Provision, NothingIsSentFromATableWithAFaultOrWithoutAFileForTheResults) {
    const Printers printers({profileOf(1)});
    const QString table = printers.write(u"table.csv"_s,
                                         "serial,wired.address.ip,device.timeout\n"
                                         "S1,10.0.0.1,90\nS2,10.0.0.1,90\nS1,10.0.0.3,9\n");
    const Ended first = run(printers, {u"provision"_s, table});
    EXPECT_EQ(first.code, InputRefused);
    EXPECT_EQ(first.err.count('\n'), 3) << first.err.constData();
    EXPECT_TRUE(first.err.contains("table.csv: line 4, column \"device.timeout\": "));
    EXPECT_EQ(run(printers, {u"check"_s, table}).err, first.err);
    printers.write(u"many.csv"_s, "serial,device.timeout\n" + QByteArray(",9\n").repeated(150));
    EXPECT_EQ(run(printers, "check many.csv").err.count('\n'), Terminal::mostFaults + 1);
    // An address of the template would be that of two printers.
    printers.write(u"table.csv"_s, "serial\nS1\nS2\n");
    const QString common = printers.write(
        u"common.json"_s, R"({"wired": {"address": {"mode": "fixed", "ip": "10.0.0.1"}}})");
    EXPECT_EQ(run(printers, {u"provision"_s, table, u"--template"_s, common}).code, InputRefused);
    const Ended valid = run(printers, {u"check"_s, common, u"--json"_s});
    EXPECT_EQ(valid.code, Done);
    EXPECT_TRUE(valid.out.contains(R"("outcome":"valid")")) << valid.out.constData();
    printers.write(u"table.csv"_s, "serial,device.timeout\nS1,90\n");
    EXPECT_EQ(run(printers, {u"provision"_s, table, u"--result"_s, u"/dev/full"_s}).code,
              InputRefused);
    EXPECT_EQ(printers.stateOf(1), oldState(1));
}

TEST(Provision, ADryRunSendsNothingAndARerunFindsNothingToDo) {
    const Printers printers({profileOf(1, R"("password": "open123")"), profileOf(2)});
    printers.write(u"t.csv"_s,
                   "serial,device.timeout,password.administrator,login.password,#remark\n"
                   "S1,90,new-1,open123,first\nS2,60,,,\nS3,60,,,\n");
    const Ended dry = run(printers, "provision t.csv --dry-run --exit-code --json");
    EXPECT_EQ(dry.code, NotReached);
    EXPECT_EQ(dry.out.count('\n'), 3) << dry.out.constData();
    for (const char *part :
         {R"("line":2,)", R"("outcome":"would-change")", R"("unchanged")",
          R"("outcome":"not-there")", R"("name":"password.administrator","new":true)"})
        EXPECT_TRUE(dry.out.contains(part)) << part << dry.out.constData();
    EXPECT_EQ(printers.stateOf(1), oldState(1));
    for (const char *outcome : {"done", "unchanged"}) {
        EXPECT_EQ(run(printers, "provision t.csv --result out.csv").code, NotReached);
        EXPECT_EQ(outcomesOf(printers)["S1"], outcome);
    }
    // What a killed run leaves, and only before the one send.
    EXPECT_EQ(printers.read(u"out.csv"_s).count(",begun,\n"), 1);
    EXPECT_EQ(printers[1].password(), QByteArray("new-1"));
}

TEST(Provision, ResultsAreAddedOnlyToAFileOfResults) {
    const QByteArray header = "time,printer,serial,uri,line,outcome,detail\n",
                     torn = header + "2026,De";
    const QByteArray table = "serial,device.timeout\nS1,90\n";
    const struct {
        const char *file;
        QByteArray holds;
        ExitCode code;
        const char *begin;     // of what it holds then
        bool isTaken = false;  // by another run
    } rows[] = {{"t.csv", table, InputRefused, "serial"},
                {"out.csv", "#!/bin/sh\n", InputRefused, "#!/bin/sh\n"},
                {"out.csv", torn, Done, "2026,De\n"},
                {"out.csv", "", Done, "time,"},
                {"out.csv", header, InputRefused, "time,", true}};
    for (const auto &row : rows) {
        const Printers printers({profileOf(1).replace("Old-1", "=1+1")});
        printers.write(QLatin1String(row.file), row.holds);
        printers.write(u"t.csv"_s, table);
        const int other =
            ::open(QFile::encodeName(printers.path(u"out.csv"_s)).constData(), O_RDWR);
        if (row.isTaken) {
            EXPECT_EQ(::flock(other, LOCK_EX), 0);
        }
        const Ended ended =
            run(printers, "provision t.csv --result "_ba.append(row.file).constData());
        ::close(other);
        EXPECT_EQ(ended.code, row.code) << ended.err.constData();
        const QByteArray held = printers.read(QLatin1String(row.file));
        EXPECT_TRUE(held.contains(row.begin)) << held.constData();
        EXPECT_EQ(held.contains(",'=1+1,S1,"), row.code == Done);
        EXPECT_EQ(printers.stateOf(1) == "=1+1 192.168.1.50 90", row.code == Done);
    }
}

namespace {

// The first printers of a catalogue: those that are plugged in.
class ComingSource : public CatalogueSource {
  public:
    struct State {
        qsizetype there = 0, listed = 0;  // how many, now and at the last look
        int plugs = 0, seen = 0;          // how often the first was plugged in, likewise
    };
    ComingSource(const Catalogue &catalogue, State &state)
        : CatalogueSource(catalogue), m_state(state) {}
    Listing list() override {
        Listing listing = CatalogueSource::list();
        m_state.listed = m_state.there;
        m_state.seen = m_state.plugs;
        listing.entries.resize(m_state.listed);
        if (m_state.listed > 0)
            listing.entries[0][PrinterKey::Plug] = QString::number(m_state.seen);
        return listing;
    }
    bool hasChanged() override {
        return m_state.listed != m_state.there || m_state.seen != m_state.plugs;
    }

  private:
    State &m_state;
};

}  // namespace

TEST(Provision, PrintersAreDoneAsTheyArePluggedInEachOnce) {
    for (const bool again : {false, true}) {
        const Printers printers({profileOf(1), profileOf(2)});
        ComingSource::State state;
        std::vector<std::unique_ptr<PrinterSource>> sources;
        sources.push_back(std::make_unique<ComingSource>(printers.catalogue, state));
        installLibrary(std::make_shared<PrinterLibrary>(std::move(sources)));

        // The first comes, and is plugged in again between two looks; then the second comes.
        QTimer timer;
        timer.callOnTimeout([&] {
            const QByteArray results = printers.read(u"out.csv"_s);
            const auto rows = results.count('\n') - results.count("begun") - 1;
            state.plugs = std::min(int(rows), 1);
            state.there = rows < 2 ? 1 : 2;
        });
        timer.start(20);
        const Table table = tableFromCsv("serial,device.timeout\nS1,90\nS2,91\n", {});
        Terminal terminal(false);
        Passwords passwords;
        Provision provision(
            terminal, passwords,
            {.rows = table.rows, .again = again, .resultFile = printers.path(u"out.csv"_s)}, false);
        EXPECT_EQ(provision.run(), Done);
        QList<QByteArray> outcomes;
        for (const QByteArray &line : printers.read(u"out.csv"_s).trimmed().split('\n').mid(1))
            if (!line.contains("begun")) outcomes << line.split(',')[2] + ' ' + line.split(',')[5];
        EXPECT_EQ(outcomes, (QList<QByteArray>{"S1 done", again ? "S1 unchanged" : "S1 done-before",
                                               "S2 done"}));
        installLibrary(nullptr);
    }
}

TEST(Provision, WaitsForPrintersNoLongerThanItIsTold) {
    const QList<TableRow> rows = tableFromCsv("serial,device.timeout\nS1,90\n", {}).rows;
    for (const bool once : {true, false}) {
        const Printers printers({profileOf(1)});
        ComingSource::State state;  // none is there
        std::vector<std::unique_ptr<PrinterSource>> sources;
        sources.push_back(std::make_unique<ComingSource>(printers.catalogue, state));
        installLibrary(std::make_shared<PrinterLibrary>(std::move(sources)));
        Terminal terminal(false);
        Passwords passwords;
        ProvisionOrder order{.rows = rows, .once = once};
        if (!once) order.deadline = QDeadlineTimer(1);
        EXPECT_EQ(Provision(terminal, passwords, order, false).run(), NotReached);
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
        printers.push_back(printerOf(profileOf(i)));
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
    Provision provision(terminal, passwords, {.rows = tableFromCsv(csv, {}).rows}, false);
    EXPECT_EQ(provision.run(), Done);
    for (int i = 1; i <= count; ++i) EXPECT_EQ(printers[size_t(i) - 1]->item(0x1007)[0], 90 + i);
    installLibrary(nullptr);
}
