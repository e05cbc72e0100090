#include <sys/stat.h>

#include "support/Folder.h"
#include "virtualprinter/Description.h"
#include "zmlib/Catalogue.h"

namespace {

TEST(Catalogue, BadEntriesAreNamedAndTheGoodOnesListed) {
    const QByteArray usb = R"("ConnectionType": "USB", "ProductName": "P"})";
    const struct {
        QByteArray entry;
        const char *problem;
    } cases[] = {
        {"{" + usb, "\"DeviceURI\" is missing"},
        {R"({"DeviceURI": "virtual://good", )" + usb, "listed already"},
        {R"({"DeviceURI": "virtual://x", "ProductName": "P"})", "\"ConnectionType\" is neither"},
        {R"({"DeviceURI": "virtual://x", "ConnectionType": "Network", "ProductName": "P"})",
         "needs a \"BonjourServiceName\""},
        {R"({"DeviceURI": "a\n\u202eb", )" + usb, "\"a\\u000a\\u202eb\" is neither virtual"},
        {R"({"DeviceURI": ")" + QByteArray(99, 'x') + "\"," + usb, "xxx…\" is neither virtual"},
        {R"({"DeviceURI": "tcp://x", )" + usb, "host or a port"},
        {R"({"DeviceURI": "virtual://x", "profile": {"items": {"0x9999": 1}}, )" + usb,
         "profile: items.0x9999: unknown item"},
    };
    for (const auto &c : cases) {
        const Catalogue catalogue = catalogueFromJson(
            R"({"printers": [{"DeviceURI": "virtual://good", )" + usb + "," + c.entry + "]}",
            QStringLiteral("list.json"));
        EXPECT_EQ(catalogue.entries.size(), 1) << c.problem;
        const QString problem = catalogue.problems.join(u'|');
        EXPECT_TRUE(problem.startsWith(QLatin1String("list.json: printers[1]: ")));
        EXPECT_TRUE(problem.contains(QString::fromUtf8(c.problem))) << qPrintable(problem);
    }
}

TEST(Catalogue, IsFoundThroughTheEnvironment) {
    const Folder folder;
    const auto problemsWith = [](const QByteArray &value) {
        qputenv("ZMLIB_PRINTERS", value);
        return catalogueFromEnvironment().problems.join(u'|');
    };
    const QString missing = folder.path(QStringLiteral("missing"));
    EXPECT_TRUE(problemsWith(missing.toUtf8()).startsWith(missing));
    const std::pair<QByteArray, const char *> cases[] = {
        {"{\"printers\": [", "not JSON"},
        {QByteArray(longestDescription + 1, ' '), "larger than 16 MiB"}};
    for (const auto &[bytes, problem] : cases) {
        const QString file = folder.write(QStringLiteral("printers.json"), bytes);
        EXPECT_TRUE(problemsWith(file.toUtf8()).contains(QLatin1String(problem))) << problem;
    }
    const QByteArray pipe = folder.path(QStringLiteral("pipe")).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    for (const QByteArray &path : {pipe, QByteArray("/dev/zero"), folder.path({}).toUtf8()})
        EXPECT_TRUE(problemsWith(path).endsWith(QLatin1String("regular file"))) << path.data();
    EXPECT_EQ(problemsWith("demo"), QString());
    EXPECT_FALSE(catalogueFromEnvironment().entries.isEmpty());
    EXPECT_EQ(problemsWith(""), QString());
    EXPECT_TRUE(catalogueFromEnvironment().entries.isEmpty());
}

}  // namespace
