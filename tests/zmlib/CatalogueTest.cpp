#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

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
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("printers.json")));
    const auto problemsWith = [](const QByteArray &value) {
        qputenv("ZMLIB_PRINTERS", value);
        return catalogueFromEnvironment().problems.join(u'|');
    };
    EXPECT_TRUE(problemsWith(file.fileName().toUtf8()).startsWith(file.fileName()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("{\"printers\": [") && file.flush());
    EXPECT_TRUE(problemsWith(file.fileName().toUtf8()).contains(QLatin1String("not JSON")));
    ASSERT_TRUE(file.resize(longestDescription + 1));
    EXPECT_TRUE(
        problemsWith(file.fileName().toUtf8()).endsWith(QLatin1String("larger than 16 MiB")));
    const QByteArray pipe = folder.filePath(QStringLiteral("pipe")).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    for (const QByteArray &path : {pipe, QByteArray("/dev/zero"), folder.path().toUtf8()})
        EXPECT_TRUE(problemsWith(path).endsWith(QLatin1String("not a regular file")))
            << path.data();
    EXPECT_EQ(problemsWith("demo"), QString());
    EXPECT_FALSE(catalogueFromEnvironment().entries.isEmpty());
    EXPECT_EQ(problemsWith(""), QString());
    EXPECT_TRUE(catalogueFromEnvironment().entries.isEmpty());
}

}  // namespace
