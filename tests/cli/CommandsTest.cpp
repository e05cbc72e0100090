// The program's commands: inside this process and, at a terminal, the real program.

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cli/Programs.h"
#include "platform/core/NotificationCenter.h"
#include "support/Endings.h"

using namespace Qt::StringLiterals;
using enum ExitCode;

namespace {

QJsonObject jsonOf(const QByteArray &bytes) {
    return QJsonDocument::fromJson(bytes).object();
}

}  // namespace

TEST(Commands, ListsWhatTheWindowLists) {
    Printers printers(
        {R"({"items": {"0x1006": "Desk"}})", R"({"faults": {"refuseConnection": true}})"});
    printers.add(u"tcp://127.0.0.1:1"_s);
    printers.catalogue.problems << u"printers[3]: not an object"_s;
    const Ended people = run(printers, {u"list"_s});
    EXPECT_EQ(people.code, Done);
    const QList<QByteArray> lines = people.out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2) << people.out.constData();
    EXPECT_TRUE(lines[0].startsWith("Desk") && lines[0].contains("serial number S1"));
    EXPECT_EQ(lines[0].indexOf("Larkfield"), lines[1].indexOf("Larkfield"));
    EXPECT_TRUE(people.err.contains("printers[3]")) << people.err.constData();

    const Ended programs = run(printers, {u"list"_s, u"--json"_s});
    const QJsonArray array = QJsonDocument::fromJson(programs.out).array();
    ASSERT_EQ(array.size(), 2);
    EXPECT_EQ(array[0][u"name"], u"Desk"_s);
    EXPECT_EQ(array[0][u"connection"], u"usb"_s);
    EXPECT_EQ(array[0][u"serial"], u"S1"_s);
    EXPECT_TRUE(array[1][u"serial"].isNull());
    EXPECT_TRUE(jsonOf(programs.err).contains(u"note")) << programs.err.constData();
}

TEST(Commands, ShowEverythingButSecrets) {
    const Printers printers({R"({"items": {
        "0x1006": "Desk", "0x1005": "Caf\u00e9", "0x2000": "02004C0A1B01", "0x3000": 7,
        "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"},
        "0x3105": "secret-psk", "0x3202": "secret-ap"},
        "faults": {"items": {"0x1007": {"code": "0x7777"}}}})"});
    for (const QString &name : {u"Desk"_s, u"S1"_s}) {
        const Ended shown = run(printers, {u"show"_s, name});
        EXPECT_EQ(shown.code, Done);
        EXPECT_TRUE(shown.out.startsWith("Desk, Larkfield L200, serial number S1\n"));
        EXPECT_TRUE(shown.out.contains("  MAC address ")) << shown.out.constData();
        EXPECT_TRUE(shown.out.contains(" 02:00:4C:0A:1B:01\n")) << shown.out.constData();
        EXPECT_TRUE(shown.out.contains("Fixed address")) << shown.out.constData();
        EXPECT_FALSE(shown.out.contains("secret"));
        EXPECT_TRUE(shown.err.contains("device.timeout")) << shown.err.constData();
    }
    const Ended json = run(printers, {u"show"_s, u"S1"_s, u"--json"_s});
    EXPECT_FALSE(json.out.contains("secret"));
    const QJsonObject record = jsonOf(json.out);
    EXPECT_EQ(record[u"names"][u"service"], u"Café"_s);
    EXPECT_EQ(record[u"wired"][u"mac"], u"02:00:4C:0A:1B:01"_s);
    EXPECT_EQ(record[u"wired"][u"address"], (QJsonObject{{u"mode"_s, u"fixed"_s},
                                                         {u"ip"_s, u"10.0.0.5"_s},
                                                         {u"mask"_s, u"255.0.0.0"_s},
                                                         {u"gateway"_s, u"10.0.0.1"_s}}));
    EXPECT_EQ(record[u"wireless"][u"mode"], 7);
    EXPECT_TRUE(record[u"device"][u"timeout"].isNull());
    // What is shown can be applied, and changes nothing.
    const QString file = printers.write(u"all.json"_s, json.out);
    const Ended applied = run(printers, {u"apply"_s, u"S1"_s, file, u"--yes"_s});
    EXPECT_EQ(applied.code, Done) << applied.err.constData();
    EXPECT_TRUE(applied.out.contains("Nothing was sent"));
    EXPECT_TRUE(applied.err.contains("Left out")) << applied.err.constData();
}

TEST(Commands, ApplyOneFileAndVerifyIt) {
    const Printers printers({R"({"password": "open123"})"});
    const QString file = printers.write(u"office.json"_s, R"({
        "names": {"printer": "Desk-1"}, "device": {"timeout": 90},
        "wired": {"address": {"ip": "10.0.0.5", "mask": "255.255.255.0", "gateway": "10.0.1.1"}},
        "wireless": {"ssid": "Office", "authentication": "wpa2", "encryption": "aes",
                     "key": {"file": "key.txt"}},
        "password": {"administrator": "next-1"}})");
    printers.write(u"key.txt"_s, "office-key-1\r\nsecond line\n");
    const QStringList apply{u"apply"_s, u"S1"_s, file};
    const std::string before = printers.stateOf(1);

    const Ended dry = run(printers, apply + QStringList{u"--dry-run"_s});
    EXPECT_EQ(dry.code, Done);
    EXPECT_TRUE(dry.out.contains("device.timeout: 60 → 90")) << dry.out.constData();
    EXPECT_TRUE(dry.err.contains("10.0.1.1"));  // a gateway outside the subnet
    EXPECT_EQ(run(printers, apply).code, UsedWrongly);
    EXPECT_EQ(run(printers, apply + QStringList{u"--yes"_s}).code, LoginRefused);
    EXPECT_EQ(printers.stateOf(1), before);

    const QString password = printers.write(u"password"_s, "open123\n");
    const Ended applied =
        run(printers, apply + QStringList{u"--yes"_s, u"--password-file"_s, password});
    EXPECT_EQ(applied.code, Done) << applied.err.constData();
    EXPECT_EQ(printers.stateOf(1), "Desk-1 10.0.0.5 90");
    for (const QByteArray &secret : {QByteArray("office-key"), QByteArray("next-1")})
        EXPECT_FALSE((dry.out + applied.out + applied.err).contains(secret));
    EXPECT_EQ(printers[1].password(), QByteArray("next-1"));
    EXPECT_EQ(run(printers, apply + QStringList{u"--yes"_s}, "next-1").code, Done);
}

TEST(Commands, EndWithTheCodeOfWhatHappened) {
    const QStringList yes{u"--yes"_s};
    const struct {
        const char *profile;
        const char *file;  // nothing: no command "apply"
        QStringList arguments;
        ExitCode code;
        const char *said;
    } rows[] = {
        {"{}", nullptr, {}, UsedWrongly, "command"},
        {"{}", nullptr, {u"paint"_s}, UsedWrongly, "paint"},
        {"{}", nullptr, {u"show"_s}, UsedWrongly, "1 arguments"},
        {"{}", nullptr, {u"list"_s, u"--yes"_s}, UsedWrongly, "yes"},
        {"{}", nullptr, {u"list"_s, u"--json"_s, u"S1"_s}, UsedWrongly, "\"code\":1"},
        {"{}", nullptr, {u"check"_s, u"/nowhere/x.json"_s}, InputRefused, "/nowhere/x.json"},
        {"{}", nullptr, {u"show"_s, u"Nobody"_s, u"--json"_s}, NotReached, "\"code\":3"},
        {"{}", R"({"names": {"printer": "a b"}, "device": {"timeout": 5}})", yes, InputRefused,
         "\"device.timeout\""},
        {R"({"items": {"0x3102": 0, "0x3103": 0}})", R"({"wireless": {"key": "long enough"}})", yes,
         InputRefused, "wireless.key"},
        {"{}", R"({"wired": {"address": {"mode": "automatic", "ip": "10.9.9.9"}}})", yes,
         InputRefused, "wired.address.ip"},
        {R"({"items": {"0x2001": {"setting": 0, "address": "0.0.0.0", "mask": "0.0.0.0",
            "gateway": "0.0.0.0"}}})",
         R"({"wired": {"address": {"mode": "fixed"}}})", yes, InputRefused, "wired.address.ip"},
        {R"({"faults": {"closeAfterFrames": 9}})", R"({"names": {"printer": "Desk-1"}})", yes,
         NotReached, "answering"},
        {"{}", R"({"names": {"printer": "Desk-1"}})", {}, UsedWrongly, "--yes"}};
    for (const auto &row : rows) {
        const Printers printers({row.profile});
        QStringList arguments = row.arguments;
        if (row.file)
            arguments =
                QStringList{u"apply"_s, u"S1"_s, printers.write(u"f.json"_s, row.file)} + arguments;
        const Ended ended = run(printers, arguments);
        EXPECT_EQ(ended.code, row.code) << row.said << ended.err.constData();
        EXPECT_TRUE(ended.err.contains(row.said)) << row.said << ended.err.constData();
    }
}

TEST(Commands, EndAChangeAsThePrinterWasSeenToHaveIt) {
    for (const EndingCase &c : endingCases()) {
        const Printers printers({R"({"password": "open123"})"});
        const auto faults = faultsOfSend(printers[1], c);
        const QByteArray json = "{\"" + QByteArray(c.wanted).replace("=", "\": \"") + "\"}";
        const QString file = printers.write(u"f.json"_s, json);
        const Ended ended = run(printers, {u"apply"_s, u"S1"_s, file, u"--yes"_s}, c.password);
        EXPECT_EQ(ended.code, c.code) << c.ending << ended.err.constData();
        EXPECT_TRUE((ended.out + ended.err).contains(c.said)) << c.ending << ended.err.constData();
    }
}

TEST(Commands, TellFaultsWithTheirPlacesInJson) {
    const Printers printers({});
    const QString file = printers.write(
        u"f.json"_s, "{\"device\": {\"timeout\": 5},\n \"names\": {\"printer\": \"a b\"}}");
    const Ended ended = run(printers, {u"check"_s, file, u"--json"_s});
    EXPECT_EQ(ended.code, InputRefused);
    const QList<QByteArray> lines = ended.err.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2) << ended.err.constData();
    const std::pair<int, QString> faults[] = {{1, u"device.timeout"_s}, {2, u"names.printer"_s}};
    for (int i = 0; i < 2; ++i) {
        QJsonObject fault = jsonOf(lines[i]);
        EXPECT_FALSE(fault.take(u"message"_s).toString().isEmpty());
        EXPECT_EQ(fault, (QJsonObject{{u"code"_s, 2},
                                      {u"file"_s, file},
                                      {u"line"_s, faults[i].first},
                                      {u"name"_s, faults[i].second}}))
            << lines[i].constData();
    }
}

TEST(Commands, NameEveryPrinterThatIsMeant) {
    const Printers printers(
        {R"({"items": {"0x1006": "Desk"}})", R"({"items": {"0x1006": "Desk"}})"});
    const Ended ambiguous = run(printers, {u"show"_s, u"Desk"_s, u"--json"_s});
    EXPECT_EQ(ambiguous.code, NotReached);
    EXPECT_EQ(jsonOf(ambiguous.err)[u"candidates"].toArray().size(), 2);
    EXPECT_EQ(run(printers, {u"show"_s, u"S2"_s}).code, Done);
}

TEST(Commands, ChangeNothingOverTheNetwork) {
    Printers printers({});
    const QString uri = u"virtual://network"_s;
    printers.add(uri);
    printers.catalogue.virtualPrinters.insert(uri, printerOf("{}"));
    const QString file = printers.write(u"f.json"_s, R"({"names": {"printer": "Desk-1"}})");
    EXPECT_EQ(run(printers, {u"show"_s, u"Label-Printer"_s}).code, NotReached);
    EXPECT_EQ(run(printers, {u"show"_s, uri}).code, Done);
    EXPECT_EQ(run(printers, {u"apply"_s, uri, file, u"--yes"_s}).code, UsedWrongly);
    EXPECT_EQ(run(printers, {u"networks"_s, uri}).code, UsedWrongly);
}

TEST(Commands, ListTheNetworksThatThePrinterFinds) {
    const Printers printers({R"({"networks": [
        {"ssid": "Office", "mode": 2, "authentic": 3, "encryption": 4, "signal": -61},
        {"ssidHex": "436166c3a9", "mode": 2, "authentic": 0, "encryption": 9, "signal": -70}],
        "scanPolls": 0})"});
    const Ended people = run(printers, {u"networks"_s, u"S1"_s});
    EXPECT_EQ(people.code, Done) << people.err.constData();
    EXPECT_TRUE(people.out.contains("Office  wpa/wpa2  tkip/aes  -61 dBm"))
        << people.out.constData();
    const auto array =
        QJsonDocument::fromJson(run(printers, {u"networks"_s, u"S1"_s, u"--json"_s}).out).array();
    ASSERT_EQ(array.size(), 2);
    EXPECT_EQ(array[1].toObject(), (QJsonObject{{u"ssid"_s, u"Café"_s},
                                                {u"ssidHex"_s, u"436166c3a9"_s},
                                                {u"authentication"_s, u"open"_s},
                                                {u"encryption"_s, 9},
                                                {u"signal"_s, -70}}));
}

namespace {

// A conversation with the real program on a terminal: for each text that it prints, what is typed.
struct Conversation {
    using Turn = std::pair<QByteArray, QByteArray>;
    Conversation(const QString &catalogue, const QStringList &arguments, const QList<Turn> &turns) {
        qputenv("ZMLIB_PRINTERS", catalogue.toUtf8());
        QList<QByteArray> words{NST_PROGRAM};
        for (const QString &argument : arguments) words << argument.toUtf8();
        std::vector<char *> argv;
        for (QByteArray &word : words) argv.push_back(word.data());
        argv.push_back(nullptr);
        int terminal = -1;
        const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
        if (child == 0) {
            ::execv(NST_PROGRAM, argv.data());
            ::_exit(99);
        }
        for (const auto &[printed, typed] : turns) {
            while (!said.mid(m_heard).contains(printed) && hear(terminal)) {
            }
            m_heard = said.size();
            EXPECT_EQ(::write(terminal, typed.constData(), size_t(typed.size())), typed.size());
        }
        while (hear(terminal)) {
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ::close(terminal);
        qunsetenv("ZMLIB_PRINTERS");
        code = WIFEXITED(status) ? ExitCode(WEXITSTATUS(status)) : ExitCode(-1);
    }

    ExitCode code;
    QByteArray said;

  private:
    bool hear(int terminal) {
        char buffer[1000];
        const ssize_t n = ::read(terminal, buffer, sizeof buffer);
        if (n > 0) said.append(buffer, n);
        return n > 0;
    }
    qsizetype m_heard = 0;
};

}  // namespace

TEST(Commands, AskAtTheTerminal) {
    Printers printers({});
    QProcess printer;
    printer.start(QStringLiteral(NST_VIRTUAL_PRINTER),
                  {u"--listen"_s, u"127.0.0.1:0"_s, u"--profile"_s,
                   printers.write(u"printer.json"_s, R"({"password": "open123"})")});
    ASSERT_TRUE(printer.waitForReadyRead());
    const QByteArray port = printer.readLine().trimmed().split(':').last();
    printers.add(u"tcp://127.0.0.1:"_s + QString::fromLatin1(port), u"S1"_s);
    const QString catalogue = printers.serve();
    const QStringList apply{u"apply"_s, u"S1"_s,
                            printers.write(u"f.json"_s, R"({"names": {"printer": "Desk-1"}})")};
    EXPECT_EQ(Conversation(catalogue, apply, {{"[y/N]", "\n"}}).code, Stopped);
    EXPECT_EQ(Conversation(catalogue, apply, {{"[y/N]", "\x03"}}).code, Stopped);
    EXPECT_EQ(Conversation(catalogue, apply, {{"[y/N]", "y\n"}, {"password", "\x03\n"}}).code,
              Stopped);
    const Conversation changed(catalogue, apply, {{"[y/N]", "y\n"}, {"password", "open123\n"}});
    EXPECT_EQ(changed.code, Done) << changed.said.constData();
    EXPECT_TRUE(changed.said.contains("Label-Printer")) << "it was changed before";
    EXPECT_FALSE(changed.said.contains("open123")) << changed.said.constData();
    EXPECT_TRUE(changed.said.contains("Reading")) << changed.said.constData();
    EXPECT_TRUE(Conversation(catalogue, apply, {}).said.contains("Nothing was sent"));
    printer.kill();
    EXPECT_TRUE(printer.waitForFinished());
}
