// The program's commands: inside this process and, at a terminal, the real program.

#include <QRegularExpression>
#include <clocale>

#include "cli/Columns.h"
#include "cli/CommandTable.h"
#include "cli/Help.h"
#include "cli/Programs.h"
#include "platform/core/NotificationCenter.h"
#include "support/Endings.h"

using namespace Qt::StringLiterals;
using enum ExitCode;

namespace {

const char *const desk = R"({"items": {"0x1006": "Desk"}})";

// Without spaces, the keys in order.
QByteArray compact(const QByteArray &json) {
    return QJsonDocument::fromJson(json).toJson(QJsonDocument::Compact);
}

void expectIn(const QByteArray &text, const QByteArrayList &parts) {
    for (const QByteArray &part : parts)
        EXPECT_TRUE(text.contains(part)) << part.constData() << " is not in " << text.constData();
}

// A conversation with the real program on a terminal: for each text that it prints, what is typed.
using Turn = std::pair<QByteArray, QByteArray>;
Ended talk(Printers &printers, const char *arguments, const QList<Turn> &turns) {
    QProcess terminal;
    const QString command = QLatin1String("exec " NST_PROGRAM " ") + QLatin1String(arguments);
    start(terminal, printers, u"script"_s, {u"-qec"_s, command, u"/dev/null"_s});
    QByteArray said;
    for (const auto &[printed, typed] : turns) {
        const qsizetype heard = said.size();
        while (!said.mid(heard).contains(printed) && terminal.waitForReadyRead())
            said += terminal.readAllStandardOutput();
        terminal.write(typed);
    }
    Ended ended = finish(terminal);
    ended.out.prepend(said);
    return ended;
}

}  // namespace

TEST(Commands, ListsWhatTheWindowLists) {
    Printers printers({desk, R"({"faults": {"refuseConnection": true}})"});
    printers.add(u"tcp://127.0.0.1:1"_s);
    printers.catalogue.problems << u"printers[3]: not an object"_s;
    const Ended people = run(printers, "list");
    EXPECT_EQ(people.code, Done);
    const QList<QByteArray> lines = people.out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3) << people.out.constData();
    EXPECT_TRUE(lines[0].startsWith("Desk") && lines[0].contains("serial number S1"));
    EXPECT_TRUE(lines[1].startsWith("Does not answer") && lines[1].contains("S2"));
    EXPECT_EQ(lines[0].indexOf("Larkfield"), lines[2].indexOf("Larkfield"));
    expectIn(people.err, {"printers[3]"});

    const Ended programs = run(printers, "list --json");
    EXPECT_EQ(compact(programs.out).toStdString(),
              R"([{"address":null,"announced":null,"connection":"usb","model":"Larkfield L200",)"
              R"("name":"Desk","port":null,"serial":"S1","uri":"virtual://1"},)"
              R"({"address":null,"announced":null,"connection":"usb","model":"Larkfield L200",)"
              R"("name":null,"port":null,"serial":"S2","uri":"virtual://2"},)"
              R"({"address":null,"announced":"Goods in","connection":"network",)"
              R"("model":"Larkfield L200","name":null,"port":null,"serial":null,)"
              R"("uri":"tcp://127.0.0.1:1"}])");
    expectIn(programs.err, {"{\"note\":"});
}

TEST(Commands, KeepTheirColumnsInEveryLocale) {
    const QByteArray before = std::setlocale(LC_ALL, nullptr);
    for (const char *locale : {"C", "C.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(widthOf(u"Café 倉庫"_s), 9);
    }
    std::setlocale(LC_ALL, before.constData());
}

TEST(Commands, ShowEverythingButSecrets) {
    const Printers printers({R"({"items": {
        "0x1006": "Desk", "0x1005": "Caf\u00e9", "0x2000": "02004C0A1B01", "0x3000": 7,
        "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"},
        "0x3105": "secret-psk", "0x3202": "secret-ap"},
        "faults": {"items": {"0x1007": {"code": "0x7777"}}}})"});
    for (const char *show : {"show Desk", "show S1"}) {
        const Ended shown = run(printers, show);
        EXPECT_EQ(shown.code, Done);
        EXPECT_TRUE(shown.out.startsWith("Desk, Larkfield L200, serial number S1\n"));
        expectIn(shown.out, {"  MAC address ", " 02:00:4C:0A:1B:01\n", "Fixed address"});
        EXPECT_FALSE(shown.out.contains("secret"));
        expectIn(shown.err, {"device.timeout"});
    }
    const Ended json = run(printers, "show S1 --json");
    EXPECT_FALSE(json.out.contains("secret"));
    expectIn(compact(json.out), {R"("service":"Café")", R"("mac":"02:00:4C:0A:1B:01")",
                                 R"("mode":7)", R"("timeout":null)",
                                 R"("address":{"gateway":"10.0.0.1","ip":"10.0.0.5",)"
                                 R"("mask":"255.0.0.0","mode":"fixed"})"});
    // What is shown can be applied, and changes nothing.
    printers.write(u"all.json"_s, json.out);
    const Ended applied = run(printers, "apply S1 all.json --yes");
    EXPECT_EQ(applied.code, Done);
    expectIn(applied.out, {"Nothing was sent"});
    expectIn(applied.err, {"Left out"});
}

TEST(Commands, ApplyOneFileAndVerifyIt) {
    const Printers printers({R"({"password": "open123"})"});
    printers.write(u"office.json"_s, R"({
        "names": {"printer": "Desk-1"}, "device": {"timeout": 90},
        "wired": {"address": {"ip": "10.0.0.5", "mask": "255.255.255.0", "gateway": "10.0.1.1"}},
        "wireless": {"ssid": "Office", "authentication": "wpa2", "encryption": "aes",
                     "key": {"file": "key.txt"}},
        "password": {"administrator": "next-1"}})");
    printers.write(u"key.txt"_s, "office-key-1\r\nsecond line\n");
    const std::string before = printers.stateOf(1);
    const Ended dry = run(printers, "apply S1 office.json --dry-run");
    EXPECT_EQ(dry.code, Done);
    expectIn(dry.out, {"device.timeout: 60 → 90", "wireless.key: new"});
    expectIn(dry.err, {"10.0.1.1"});  // a gateway outside the subnet
    EXPECT_EQ(run(printers, "apply S1 office.json").code, UsedWrongly);
    EXPECT_EQ(run(printers, "apply S1 office.json --yes").code, LoginRefused);
    EXPECT_EQ(printers.stateOf(1), before);

    printers.write(u"password"_s, "open123\n");
    const Ended applied = run(printers, "apply S1 office.json --yes --password-file password");
    EXPECT_EQ(applied.code, Done) << applied.err.constData();
    EXPECT_EQ(printers.stateOf(1), "Desk-1 10.0.0.5 90");
    for (const char *secret : {"office-key", "next-1"})
        EXPECT_FALSE((dry.out + applied.out + applied.err).contains(secret));
    EXPECT_EQ(printers[1].password(), QByteArray("next-1"));
    EXPECT_EQ(run(printers, "apply S1 office.json --yes", "next-1").code, Done);
}

TEST(Commands, EndWithTheCodeOfWhatHappened) {
    const QString network = u"virtual://network"_s;
    const char *const yes = "apply S1 f.json --yes", *const name = R"({"names.printer": "Desk-1"})";
    const struct {
        const char *profile, *arguments, *file;
        ExitCode code;
        const char *said;
    } rows[] = {
        {"{}", "", "", UsedWrongly, "command"},
        {"{}", "paint", "", UsedWrongly, "paint"},
        {"{}", "show", "", UsedWrongly, "“show” needs PRINTER"},
        {"{}", "aply", "", UsedWrongly, "“apply” meant"},
        {"{}", "help shwo", "", UsedWrongly, "“show” meant"},
        {"{}", "list --jsn", "", UsedWrongly, "“--json” meant"},
        {"{}", "provision t.csv --template", "", UsedWrongly, "“--template” needs FILE"},
        {"{}", "list --json=x", "", UsedWrongly, "takes no value"},
        {"{}", "list --json S1", "", UsedWrongly, "\"code\":1"},
        {"{}", "check /nowhere/x.json", "", InputRefused, "/nowhere/x.json"},
        {"{}", "show Nobody --json", "", NotReached, "\"code\":3"},
        {"{}", yes, R"({"names.printer": "a b", "device.timeout": 5})", InputRefused,
         "\"device.timeout\""},
        {R"({"items": {"0x3102": 0, "0x3103": 0}})", yes, R"({"wireless.key": "long enough"})",
         InputRefused, "wireless.key"},
        {"{}", yes, R"({"wired.address": {"mode": "automatic", "ip": "10.9.9.9"}})", Done,
         "automatically: wired.address.ip"},
        {R"({"items": {"0x2001": {"setting": 0, "address": "0.0.0.0", "mask": "0.0.0.0",
            "gateway": "0.0.0.0"}}})",
         yes, R"({"wired.address.ip": "10.9.9.9"})", InputRefused, "wired.address.ip"},
        {"{}", "apply S1 f.json --dry-run --exit-code", name, WouldChange, ""},
        {"{}", "apply S1 f.json --yes --keys never", name, UsedWrongly, "when-changed"},
        {"{}", yes, R"({"wireless.psk": "long enough"})", InputRefused, ", wireless.key,"},
        {"{}", "set S1 device.timeout=9 names.printer=B", "", UsedWrongly, "--yes"},
        {"{}", "set S1 device.timeout=9 names.printr=B --yes", "", InputRefused, "“names.printer”"},
        {"{}", "set S1 wireless.key=office-key --yes", "", InputRefused, "NAME=@FILE"},
        {"{}", "set S1 wired.mac=x --yes", "", InputRefused, "wired.mac"},
        {"{}", "apply S1 f.json --yes --only wirless", name, UsedWrongly, "“wireless” meant"},
        {"{}", "apply S1 f.json --yes --without names", R"({"names.printer": "a b"})", Done, ""},
        {"{}", "set S1 names.printer=desk --dry-run", "", Done, "called desk already"},
        {"{}", "set S1 names.printer=B names.printer=C --yes", "", InputRefused, "names.printer"},
        {"{}", "get S1 wireless.key", "", UsedWrongly, "never shown"},
        {"{}", "diff S1 f.json --exit-code", R"({"device.timeout": 60})", Done, ""},
        {"{}", "diff S2 f.json --exit-code", name, WouldChange, ""},
        {"{}", yes, R"({"device.timout": 90})", InputRefused, "“device.timeout” meant"},
        {R"({"items": {"0x2001": {"setting": 0, "address": "0.0.0.0", "mask": "0.0.0.0",
            "gateway": "0.0.0.0"}}})",
         yes, R"({"wired.address.mode": "fixed"})", InputRefused, "wired.address.ip"},
        {"{}", "check t.csv", "", InputRefused, "“login.password” meant"},
        {"{}", "check f.json --json", "{\"device.timeout\": 5,\n \"names.printer\": \"a b\"}",
         InputRefused,
         R"({"code":2,"fault":"value","file":"f.json","line":1,"message":)"
         R"("A whole number from 30 to 300 is expected.","name":"device.timeout"})"
         "\n"
         R"({"code":2,"fault":"value","file":"f.json","line":2,"message":)"},
        {R"({"faults": {"refuseConnection": true}})", "show S1", "", NotReached, "be reached"},
        {R"({"faults": {"closeAfterFrames": 9}})", yes, name, NotReached, "answering"},
        {"{}", "apply S1 f.json", name, UsedWrongly, "--yes"},
        // More than one printer has the name: all are named.
        {"{}", "show Desk --json", "", NotReached,
         R"(serial number S2  virtual://2","Desk  Larkfield L200  USB  serial number S3  )"},
        {"{}", "show S2", "", Done, ""},
        {"{}", "show s2", "", Done, ""},
        {R"({"items": {"0x2000": "020000001234"}})", "show 02:00:00:00:12:34", "", Done, ""},
        {"{}", "show 02:00:00:00:12:35", "", NotReached, "02:00"},
        // A printer on the network has no name of its own, and is not changed.
        {desk, "show Label-Printer", "", NotReached, "Label-Printer"},
        {"{}", "show virtual://network", "", Done, ""},
        {"{}", "apply virtual://network f.json --yes", name, UsedWrongly, "network"},
        {"{}", "networks virtual://network", "", UsedWrongly, "network"}};
    for (const auto &row : rows) {
        Printers printers({row.profile, desk, desk});
        printers.add(network);
        printers.catalogue.virtualPrinters.insert(network, printerOf("{}"));
        printers.write(u"f.json"_s, row.file);
        printers.write(u"t.csv"_s, "serial,login.pasword\nS1,x\n");
        const Ended ended = run(printers, row.arguments);
        EXPECT_EQ(ended.code, row.code) << row.said << ended.err.constData();
        expectIn(ended.err, {row.said});
    }
}

TEST(Commands, AreExplainedInTheirHelpAndInTheManPage) {
    QFile file(QStringLiteral(NST_MAN_PAGE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression macros(u"^\\.([BIR]+ |br$)"_s,
                                           QRegularExpression::MultilineOption);
    const QString page = QString::fromUtf8(file.readAll()).remove(u'\\').remove(macros);
    const QString synopses = page.section(u".SH DESCRIPTION"_s, 0, 0).section(u".SH SYNOPSIS"_s, 1);
    QString wanted;
    const Printers printers({});
    for (const Command &command : allCommands()) {
        if (!command.helpKey) continue;
        wanted += synopsisOf(command).join(QString());
        EXPECT_TRUE(page.section(u".SH COMMANDS"_s, 1).contains(u".TP\n"_s + command.name));
        for (const Option &option : command.options)
            EXPECT_TRUE(page.section(u".SH OPTIONS"_s, 1).contains(u".TP\n--"_s + option.name))
                << option.name.toStdString();
        const Ended help = run(printers, {command.name, u"--help"_s});
        EXPECT_EQ(help.out, run(printers, {u"help"_s, command.name}).out);
        EXPECT_EQ(help.code, Done);
        for (const QByteArray &line : (help.out + run(printers, "--help").out).split('\n'))
            EXPECT_LE(QString::fromUtf8(line).size(), longestLine) << line.constData();
        expectIn(help.out, {command.example.toUtf8()});
        EXPECT_TRUE(page.contains(command.example)) << command.example.toStdString();
    }
    EXPECT_EQ(QString(synopses).remove(QRegularExpression(u"\\s"_s)).toStdString(),
              wanted.remove(u' ').toStdString());
}

TEST(Commands, EndAChangeAsThePrinterWasSeenToHaveIt) {
    for (const EndingCase &c : endingCases()) {
        const Printers printers({R"({"password": "open123"})"});
        const auto faults = faultsOfSend(printers[1], c);
        printers.write(u"f.json"_s, "{\"" + QByteArray(c.wanted).replace("=", "\": \"") + "\"}");
        const Ended ended = run(printers, "apply S1 f.json --yes --keys always", c.password);
        EXPECT_EQ(ended.code, c.code) << c.ending << ended.err.constData();
        expectIn(ended.out + ended.err, {c.said});
    }
}

TEST(Commands, ReportAChangeToPrograms) {
    const char *const office = R"({"wireless": {"ssid": "Office", "authentication": "wpa2-psk",
        "encryption": "aes", "key": "office-key"}, "password": {"administrator": "next-1"},
        "wired": {"address": {"mode": "dhcp", "ip": "10.9.9.9"}}, "device": {"timeout": 90}})";
    const char *const notCompared = R"("notCompared":["wireless.key"])";
    const struct {
        const char *arguments, *file;
        ExitCode code;
        QByteArrayList parts;
    } rows[] = {
        {"--dry-run --exit-code",
         office,
         WouldChange,
         {R"("outcome":"would-change")", R"("serial":"S1")",
          R"({"name":"device.timeout","new":90,"old":60})", R"({"name":"wireless.key","new":true})",
          R"("leftOut":[{"name":"wired.address.ip","reason":"automatic"}])"}},
        {"--yes",
         office,
         Done,
         {R"("outcome":"changed")", notCompared, R"("password.administrator")"}},
        // Once more, nothing is left to do; the password is the new one.
        {"--yes",
         office,
         Done,
         {R"("changes":[])", R"("outcome":"unchanged")",
          R"({"name":"wireless.key","reason":"same-network"})"}},
        {"--yes --keys always", office, Done, {R"("outcome":"changed")", notCompared}},
        {"--yes", R"({"device.timeout": 91})", LoginRefused, {R"("outcome":"login-refused")"}},
        {"--yes",
         R"({"device.timeout": 9})",
         InputRefused,
         {R"("faults":[{"fault":"value","file":"f.json","line":1,)", R"("outcome":"refused")"}},
        {"--yes --password-file nowhere", office, InputRefused, {R"("fault":"unreadable")"}},
        {"", office, UsedWrongly, {}}};
    const Printers printers({R"({"password": "open123", "items": {"0x2001": {
        "setting": 0, "address": "10.0.0.5", "mask": "255.0.0.0", "gateway": "10.0.0.1"}}})"});
    for (const auto &row : rows) {
        printers.write(u"f.json"_s, row.file);
        const Ended ended =
            run(printers, ("apply S1 f.json --json "_ba + row.arguments).constData(), "open123");
        EXPECT_EQ(ended.code, row.code) << row.arguments << ended.err.constData();
        EXPECT_EQ(ended.out.count('\n'), row.parts.isEmpty() ? 0 : 1) << ended.out.constData();
        expectIn(ended.out, row.parts);
        for (const char *secret : {"office-key", "next-1"})
            EXPECT_FALSE((ended.out + ended.err).contains(secret));
    }
    const Printers two({"{}", R"({"items": {"0x1006": "Same"}})"});
    expectIn(run(two, "set S1 names.printer=same --yes --json").out,
             {R"("outcome":"changed")", R"("warning":"name-taken")"});
    const Ended gone = run(printers, "apply Nobody f.json --yes --json");
    expectIn(gone.out, {R"("outcome":"not-found")"});
    expectIn(gone.err, {R"("fault":"not-found")"});
}

TEST(Commands, GetAndSetSomeSettings) {
    const Printers printers({R"({"items": {"0x1006": "Desk", "0x3104": "\u00ff\u0001"},
        "faults": {"items": {"0x1005": {"code": "0x7777"}}}})"});
    printers.write(u"key"_s, "office-key");
    const struct {
        const char *arguments, *out;
    } rows[] = {{"get desk device.timeout", "60\n"},
                {"get Desk names.printer device",
                 "names.printer=Desk\ndevice.firmware=1.000\n"
                 "device.timeout=60\n"},
                {"get S1 device.timeout names.service --json",
                 R"({"device.timeout":60,"names.service":null})"},
                {"set S1 device.timeout=91 accessPoint.key=@key --dry-run",
                 "In Desk, this will change:\n  device.timeout: 60 → 91\n  accessPoint.key: new, "
                 "from key\n"},
                {"set S1 device.timeout=91 --yes",
                 "In Desk, this will change:\n  device.timeout: 60 → 91\n"
                 "Desk was changed, and has the new settings.\n"},
                {"diff S1 S1", ""}};
    for (const auto &row : rows) {
        const Ended ended = run(printers, row.arguments);
        EXPECT_EQ(ended.code, Done) << ended.err.constData();
        const bool isJson = QByteArray(row.arguments).endsWith("json");
        EXPECT_EQ((isJson ? compact(ended.out) : ended.out).toStdString(), row.out);
    }
    // What can be changed is a file of settings; a network name may be no text.
    const Ended shown = run(printers, "show S1 --settings --json");
    expectIn(compact(shown.out), {R"("ssid":null,"ssidHex":"c3bf01")"});
    EXPECT_FALSE(shown.out.contains("uri"));
    printers.write(u"f.json"_s, R"({"wireless": {"ssidHex": "C3A9ff00"}})");
    EXPECT_EQ(run(printers, "apply S1 f.json --yes").code, Done);
    EXPECT_TRUE(printers[1].item(0x3104).contains("\xC3\xA9\xFF"_ba));
    const QByteArray all = compact(run(printers, "settings --json").out);
    expectIn(all,
             {R"({"access":"change","kind":"number","max":300,"min":30,"name":"device.timeout")",
              R"("secret":true)", R"("values":["automatic","fixed"])"});
}

TEST(Commands, ListTheNetworksThatThePrinterFinds) {
    const Printers printers({R"({"networks": [
        {"ssid": "Office", "mode": 2, "authentic": 3, "encryption": 4, "signal": -61},
        {"ssidHex": "436166c3a9", "mode": 2, "authentic": 0, "encryption": 9, "signal": -70}],
        "scanPolls": 0})"});
    printers[1].setFaults(faultsOf(R"({"items": {"0x3120": {"noReply": true}}})"));
    EXPECT_EQ(run(printers, "networks S1").code, NotReached) << "silence is no empty list";
    printers[1].setFaults({});
    const Ended people = run(printers, "networks S1");
    EXPECT_EQ(people.code, Done) << people.err.constData();
    expectIn(people.out, {"Office  wpa/wpa2  tkip/aes  -61 dBm"});
    const QByteArray json = compact(run(printers, "networks S1 --json").out);
    EXPECT_TRUE(json.endsWith(R"(},{"authentication":"open","encryption":9,"signal":-70,)"
                              R"("ssid":"Café","ssidHex":"436166c3a9"}])"))
        << json.constData();
}

TEST(Commands, AskAtTheTerminal) {
    Printers printers({});
    const QString profile = printers.write(u"printer.json"_s, R"({"password": "open123"})");
    const QStringList arguments{u"--listen"_s, u"127.0.0.1:0"_s, u"--profile"_s, profile};
    QProcess printer;
    printer.start(QStringLiteral(NST_VIRTUAL_PRINTER), arguments);
    ASSERT_TRUE(printer.waitForReadyRead());
    const QByteArray port = printer.readLine().trimmed().split(':').last();
    printers.add(u"tcp://127.0.0.1:"_s + QString::fromLatin1(port), u"S1"_s);
    printers.write(u"f.json"_s, R"({"names": {"printer": "Desk-1"}})");
    const char *const apply = "apply S1 f.json";
    EXPECT_EQ(talk(printers, apply, {{"[y/N]", "\n"}}).code, Stopped);
    EXPECT_EQ(talk(printers, apply, {{"[y/N]", "\x03"}}).code, Stopped);
    EXPECT_EQ(talk(printers, apply, {{"[y/N]", "y\n"}, {"password of", "\x03\n"}}).code, Stopped);
    const Ended changed =
        talk(printers, apply,
             {{"[y/N]", "Yes\n"}, {"password of", "wrong\n"}, {"password of", "open123\n"}});
    EXPECT_EQ(changed.code, Done) << changed.out.constData();
    expectIn(changed.out, {"Label-Printer", "Reading"});  // it was not changed before
    EXPECT_FALSE(changed.out.contains("open123")) << changed.out.constData();
    expectIn(talk(printers, apply, {}).out, {"Nothing was sent"});
    printer.kill();
    EXPECT_TRUE(printer.waitForFinished());
}
