// What files and tables give, and what is said of those that cannot be used.

#include "cli/Table.h"
#include "settings/SettingsFile.h"
#include "support/DataManagers.h"
#include "support/Folder.h"

using namespace Qt::StringLiterals;

namespace {

// Values and faults as lines of text: "wired.address.ip=10.0.0.1", "3 names.printer!" for a broken
// rule, "3 names.printer" for any other fault.
std::string asText(const QList<WantedValue> &values, const QList<Fault> &faults) {
    QStringList lines;
    for (const WantedValue &value : values)
        lines << (value.brokenRule.isEmpty()
                      ? value.setting->name + u'=' + std::visit(ValueText(), value.value)
                      : u"%1 %2!"_s.arg(value.place.line).arg(value.place.name));
    for (const Fault &fault : faults)
        lines << u"%1 %2"_s.arg(fault.place.line).arg(fault.place.name).trimmed();
    return lines.join(u" | "_s).toStdString();
}

std::string ofJson(const QByteArray &json) {
    const GivenSettings given = settingsFromJson(json, {});
    return asText(given.values, given.faults) +
           (given.readOnly.isEmpty() ? "" : " - " + given.readOnly.join(u' ').toStdString());
}

std::string ofCsv(const QByteArray &csv) {
    const Table table = tableFromCsv(csv, {});
    QStringList rows;
    for (const TableRow &row : table.rows)
        rows << u"%1 %2: "_s.arg(row.line).arg(row.printer()) +
                    QString::fromStdString(asText(row.values, {}));
    for (const Fault &fault : table.faults)
        rows << u"%1 %2"_s.arg(fault.place.line).arg(fault.place.name).trimmed();
    return rows.join(u" / "_s).toStdString();
}

}  // namespace

TEST(Input, OfSettingsInJson) {
    const std::pair<QByteArray, const char *> rows[] = {
        {R"({"names": {"printer": "A-1", "bonjour": null}, "device": {"timeout": 30}})",
         "names.printer='A-1' | device.timeout=30"},
        {"\xEF\xBB\xBF{\r\n\r\n\"device\": {\"timeout\": 29}}", "3 device.timeout!"},
        {R"({"device": {"timeout": 4294967326}})", "1 device.timeout!"},
        {R"({"device": {"timeout": 60.0}})", "1 device.timeout"},
        {R"({"device": {"timeout": "60"}})", "1 device.timeout"},
        {R"({"names": {"printer": 5, "service": true}})", "1 names.printer | 1 names.service"},
        {R"({"wired": {"address": {"ip": "010.0.0.5", "mask": "1.2.3.256", "gateway": "x"}}})",
         "wired.address.ip=10.0.0.5 | 1 wired.address.mask! | 1 wired.address.gateway"},
        {R"({"wired": {"address": {"ip": 10}}})", "1 wired.address.ip"},
        {R"({"wireless": {"mode": "access-point", "encryption": "AES", "authentication": 3}})",
         "wireless.mode=2 | 1 wireless.encryption | 1 wireless.authentication"},
        {R"({"wireless": {"encryption": 9}})", "1 wireless.encryption!"},
        {R"({"wireless": {"wepKey": "abcde", "wepKeyNumber": 4, "key": "short"}})",
         "wireless.wepKey='abcde' | wireless.wepKeyNumber=4 | 1 wireless.key!"},
        {R"({"password": {"administrator": ""}})", "password.administrator=''"},
        {R"({"password": {"administrator": {"file": "/nowhere"}}})", "1 password.administrator"},
        {R"({"wireless": {"key": {}, "wepKey": {"path": "x"}, "ssid": {"file": "x"}}})",
         "1 wireless.key | 1 wireless.wepKey.path | 1 wireless.wepKey | 1 wireless.ssid"},
        {R"({"printer": {"uri": "x"}, "wired": {"mac": 5, "inUse": null}})",
         " - printer.uri wired.mac"},
        {R"({"wired": {"adress": {"ip": "10.0.0.1", "more": [1, {"a": 2}]}}, "x": null})",
         "1 wired.adress | 1 x"},
        {R"({"names": [{"printer": "A"}], "wired": "x", "a.b": 1, "": 2})",
         "1 names | 1 wired | 1 a.b | 1"},
        {R"({"names": {"printer": "A"}, "names.printer": "B"})",
         "names.printer='A' | names.printer='B' | 1 names.printer"},
        {"{\"names\": {\"printer\": \"A\",\n\"printer\": \"B\"}}",
         "names.printer='A' | names.printer='B' | 2 names.printer"},
        {"[1]", "0"},
        {"null", "0"},
        {"\"x\"", "0"},
        {"", "1"},
        {"{\n\"device\": {\"timeout\": 60},\n}", "device.timeout=60 | 3"},
        {"{\"names\": {\"printer\": \"\xFF\"}}", "1"},
        {"{} {}", "1"},
        {R"({"wireless": {"ssid": null, "ssidHex": "41e9"}})", "wireless.ssid='A\u00e9'"},
        {R"({"wireless": {"ssidHex": "41", "ssid": "A"}})", "wireless.ssid='A' | 1 wireless.ssid"},
        {R"({"wireless": {"ssidHex": "4"}})", "1 wireless.ssidHex"},
        {QByteArray("{\"a\":").repeated(100'000), "1 a | 1"},
    };
    for (const auto &[json, expected] : rows) EXPECT_EQ(ofJson(json), expected) << json.constData();
}

TEST(Input, OfSecretsInFiles) {
    const Folder folder;
    folder.write(u"key"_s, " key with spaces \r\nmore");
    folder.write(u"long"_s, QByteArray(longestInput + 1, 'x'));
    folder.write(u"empty"_s, "\nsecond");
    folder.write(u"bytes"_s, "\xFF\xFE");
    folder.write(u"f.json"_s, R"({"wireless": {"key": {"file": "key"}, "wepKey": {"file": "long"}},
                           "accessPoint": {"key": {"file": "empty"}},
                           "password": {"administrator": {"file": "bytes"}}})");
    const GivenSettings given = settingsFromFile(folder.path(u"f.json"_s));
    EXPECT_EQ(asText(given.values, given.faults),
              "wireless.key=' key with spaces ' | 1 wireless.wepKey | 2 accessPoint.key | "
              "3 password.administrator");
}

TEST(Input, OfTables) {
    const std::pair<QByteArray, const char *> rows[] = {
        {"mac,serial,name,names.printer\n02:00:00:00:00:0a,S1,,A\n,S2,N2,B\n,,\"N\"\"3\",\n",
         "2 02:00:00:00:00:0A: names.printer='A' / 3 S2: names.printer='B' / 4 N\"3: "},
        {"\xEF\xBB\xBFserial;device.timeout\r\nS1;60\r\n\r\n;\r\nS2;61\rS3;x",
         "2 S1: device.timeout=60 / 5 S2: device.timeout=61 / 6 S3:  / 6 device.timeout"},
        {"name,names.service\n\"two\nlines\",\"a,b\"\nnext,c\n",
         "2 two\nlines: names.service='a,b' / 4 next: names.service='c'"},
        {"serial,device.timeout\nS1,29\nS2,x\nS3\nS4,60,1\n",
         "2 S1:  / 3 S2:  / 2 device.timeout / "
         "3 device.timeout / 4 / 5"},
        {"serial,colour,wired.mac,serial\n", "1 colour / 1 wired.mac / 1 serial"},
        {"device.timeout\n60\n", "2 : device.timeout=60 / 1"},
        {"serial,device.timeout\n", "0"},
        {"", "0"},
        {"serial\nS1\nS1\n", "2 S1:  / 3 S1:  / 3 serial"},
        {"mac,device.timeout\n02000000000G,60\n020000000001,60\n02:00:00:00:00:01,60\n",
         "2 : device.timeout=60 / 3 02:00:00:00:00:01: device.timeout=60 / 4 02:00:00:00:00:01: "
         "device.timeout=60 / 2 mac / 2 / 4 mac"},
        {"serial,wired.address.ip,wireless.address.ip\nS1,10.0.0.1,\nS2,,10.00.0.1\n",
         "2 S1: wired.address.ip=10.0.0.1 / 3 S2: wireless.address.ip=10.0.0.1 / "
         "3 wireless.address.ip"},
        {"sep=;\nserial;#place;device.timeout;;\nS1;here;60;;\n", "3 S1: device.timeout=60"},
        {"serial\tdevice.timeout\tlogin.password\nS1\t60\topen", "2 S1: device.timeout=60"},
        {"serial\n\"S1\nS2\n", "4"},
        {"serial\nS\"1\n", "2"},
        {"serial\n\xE9\n", "0"},
        {QByteArray("serial,names.printer\nS1,a\0b\n", 28), "2 S1:  / 2 names.printer"},
    };
    for (const auto &[csv, expected] : rows) EXPECT_EQ(ofCsv(csv), expected) << csv.constData();
}
