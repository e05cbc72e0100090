#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/Catalogue.h"
#include "zmlib/CatalogueLibrary.h"

namespace {

QStringList urisOf(const Catalogue &catalogue) {
    QStringList uris;
    for (const PrinterEntry &entry : catalogue.entries) uris << entry[QStringLiteral("DeviceURI")];
    return uris;
}

TEST(Catalogue, BadEntriesAreNamedAndTheGoodOnesListed) {
    const struct {
        const char *entry;
        const char *problem;
    } cases[] = {
        {"5", "not an object"},
        {R"({"ConnectionType": "USB", "ProductName": "P"})", "\"DeviceURI\" is missing"},
        {R"({"DeviceURI": "virtual://good", "ConnectionType": "USB", "ProductName": "P"})",
         "listed already"},
        {R"({"DeviceURI": "virtual://x", "ProductName": "P"})", "\"ConnectionType\" is neither"},
        {R"({"DeviceURI": "virtual://x", "ConnectionType": "USB"})", "\"ProductName\" is missing"},
        {R"({"DeviceURI": "virtual://x", "ConnectionType": "Network", "ProductName": "P"})",
         "needs a \"BonjourServiceName\""},
        {R"({"DeviceURI": "lpd://x", "ConnectionType": "USB", "ProductName": "P"})",
         "neither virtual"},
        {R"({"DeviceURI": "tcp://x", "ConnectionType": "USB", "ProductName": "P"})",
         "host or a port"},
        {R"({"DeviceURI": "virtual://x", "ConnectionType": "USB", "ProductName": "P", "Port": "1"})",
         "unknown key \"Port\""},
        {R"({"DeviceURI": "virtual://x", "ConnectionType": "USB", "ProductName": "P",
             "profile": {"items": {"0x9999": 1}}})",
         "profile: items.0x9999: unknown item"},
    };
    for (const auto &c : cases) {
        const QByteArray good =
            R"({"DeviceURI": "virtual://good", "ConnectionType": "USB", "ProductName": "P"})";
        const Catalogue catalogue = catalogueFromJson(
            "{\"printers\": [" + good + "," + c.entry + "]}", QStringLiteral("list.json"));
        EXPECT_EQ(urisOf(catalogue), QStringList{QStringLiteral("virtual://good")}) << c.entry;
        ASSERT_EQ(catalogue.problems.size(), 1) << c.entry;
        EXPECT_TRUE(catalogue.problems[0].startsWith(QLatin1String("list.json: printers[1]: ")));
        EXPECT_TRUE(catalogue.problems[0].contains(QLatin1String(c.problem)))
            << qPrintable(catalogue.problems[0]);
    }
}

TEST(Catalogue, IsFoundThroughTheEnvironment) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printers.json"));
    const auto problemsWith = [&](const QByteArray &value) {
        qputenv("ZMLIB_PRINTERS", value);
        return catalogueFromEnvironment().problems.join(u'|');
    };
    EXPECT_TRUE(problemsWith(path.toUtf8()).startsWith(path)) << "missing file";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"printers\": [");
    file.close();
    EXPECT_TRUE(problemsWith(path.toUtf8()).contains(QLatin1String("not JSON")));
    EXPECT_EQ(problemsWith("demo"), QString());
    EXPECT_GE(catalogueFromEnvironment().entries.size(), 6);
    qunsetenv("ZMLIB_PRINTERS");
    EXPECT_TRUE(catalogueFromEnvironment().entries.isEmpty());
}

TEST(Catalogue, TheDemoHasAPrinterForEverySituation) {
    qputenv("ZMLIB_PRINTERS", "demo");
    const Catalogue catalogue = catalogueFromEnvironment();
    int open = 0, locked = 0, faulty = 0, unreachable = 0, network = 0;
    for (const PrinterEntry &entry : catalogue.entries) {
        const auto printer = catalogue.virtualPrinters[entry[QStringLiteral("DeviceURI")]];
        ASSERT_TRUE(printer);
        const bool usb = entry[QStringLiteral("ConnectionType")] == u"USB";
        const Faults faults = printer->faults();
        network += !usb;
        unreachable += usb && faults.refuseConnection;
        faulty += usb && !faults.items.isEmpty();
        locked += usb && !printer->password().isEmpty();
        open += usb && !faults.refuseConnection && faults.items.isEmpty() &&
                printer->password().isEmpty();
    }
    EXPECT_TRUE(open && locked && faulty && unreachable);
    EXPECT_GE(network, 2);
}

}  // namespace
