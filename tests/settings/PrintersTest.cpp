#include <QTemporaryDir>

#include "link/Binding.h"
#include "platform/core/PropertyList.h"
#include "settings/DWTDataManager.h"
#include "support/Arguments.h"
#include "support/Catalogues.h"
#include "support/RecordingLibrary.h"

namespace {

// A catalogue of printers by URI, each with the description given.
class Printers : public testing::Test {
  protected:
    ~Printers() override { installLibrary(nullptr); }

    void add(const char *uri, const char *connection, const char *model, const char *profile) {
        const QString key = QLatin1String(uri);
        PrinterEntry entry{{QStringLiteral("DeviceURI"), key},
                           {QStringLiteral("ConnectionType"), QLatin1String(connection)},
                           {QStringLiteral("ProductName"), QLatin1String(model)}};
        if (entry[QStringLiteral("ConnectionType")] == u"Network")
            entry.insert(QStringLiteral("BonjourServiceName"), QStringLiteral("Service"));
        catalogue.entries << entry;
        catalogue.virtualPrinters.insert(key, printerOf(profile));
    }
    // URI and name of each listed printer.
    QString list() {
        installLibrary(std::make_shared<CatalogueLibrary>(catalogue, 100));
        QStringList names;
        for (const PrinterEntry &entry : manager->printerList().value_or(QList<PrinterEntry>()))
            names << entry[QStringLiteral("DeviceURI")] + u'=' +
                         entry.value(QStringLiteral("MachineName"));
        return names.join(u' ');
    }

    Catalogue catalogue;
    const std::shared_ptr<DWTDataManager> manager = make<DWTDataManager>();
};

TEST_F(Printers, ListsSupportedModelsAndAsksOnlyUsbPrintersForTheirName) {
    add("net", "Network", "Larkfield L400", "{}");
    add("usb", "USB", "Larkfield L200", R"({"items": {"0x1006": "Desk"}})");
    add("unsupported", "USB", "Larkfield P900", "{}");
    add("case", "USB", "larkfield l200", "{}");
    add("refusing", "USB", "Larkfield L200", R"({"faults": {"refuseConnection": true}})");
    add("silent", "USB", "Larkfield L200",
        R"({"faults": {"items": {"0x1006": {"noReply": true}}}})");
    add("foreign", "USB", "Larkfield L200",
        R"({"faults": {"items": {"0x1006": {"code": "0x1004"}}}})");
    add("last", "USB", "Larkfield L400", R"({"items": {"0x1006": "Last"}})");
    EXPECT_EQ(list(), QStringLiteral("net= usb=Desk last=Last"));
    EXPECT_TRUE(catalogue.virtualPrinters[QStringLiteral("net")]->log().isEmpty());
    EXPECT_TRUE(catalogue.virtualPrinters[QStringLiteral("unsupported")]->log().isEmpty());
    const ArgumentOverride installer("-installer");
    EXPECT_EQ(list(), QStringLiteral("usb=Desk last=Last"))
        << "installer mode lists USB printers only";
}

TEST_F(Printers, WithoutAStatusTableOrAListTheListIsEmpty) {
    add("usb", "USB", "Larkfield L200", "{}");
    const QTemporaryDir folder;
    {
        const PropertyList::FolderOverride override(folder.path());
        EXPECT_EQ(list(), QString());
    }
    installLibrary(std::make_shared<RecordingLibrary>());
    EXPECT_EQ(manager->printerList(), QList<PrinterEntry>());
}

TEST_F(Printers, AnAddressOfFourPartsIsChecked) {
    const auto library = std::make_shared<RecordingLibrary>();
    installLibrary(library);
    const auto printer =
        DWTDataManager::dataManager({{QStringLiteral("DeviceURI"), QStringLiteral("net:1")}});
    printer->qkStatusLength(32);
    const auto check = [&](const char *address) {
        return printer->isCheckConnectToPrinter(QString::fromLatin1(address).split(u'.'));
    };
    EXPECT_EQ(check("192.168.00.010"), 0);
    EXPECT_EQ(library->calls,
              QStringList{QStringLiteral("ZMIOOpenForUDP net:1 192.168.0.10 32 15000")});
    EXPECT_EQ(check("1.2.3"), -1);
    EXPECT_EQ(check("1.2.3.4.5"), -1);
    EXPECT_EQ(library->calls.size(), 1);
    EXPECT_EQ(manager->isCheckConnectToPrinter({{}, {}, {}, {}}), -1) << "without a link";
}

TEST_F(Printers, ThePasswordStateFollowsTheAnswer) {
    const struct {
        QByteArray reply;
        int result;
        int state;
    } cases[] = {{hex("43463b08003b00103b0000"), 0, 3},
                 {hex("43463b08003b00103b0100"), 0, 2},
                 {hex("43463b08003b00103b0200"), 0, 1},
                 {hex("43463b08003b01103b0100"), 0, 3},
                 {hex("43463b08003b00103b0100"), 9, 1}};
    for (const auto &c : cases) {
        const auto library = std::make_shared<RecordingLibrary>();
        library->reply = c.reply;
        library->result = c.result;
        installLibrary(library);
        const auto printer =
            DWTDataManager::dataManager({{QStringLiteral("DeviceURI"), QStringLiteral("x")}});
        EXPECT_EQ(printer->isPassword(), c.state) << c.reply.toHex().constData() << c.result;
        EXPECT_EQ(library->calls.last().startsWith(QLatin1String("ZMEnd")), c.result == 0);
    }
    EXPECT_EQ(manager->isPassword(), 1);
    EXPECT_EQ(manager->checkLoginPassword(QStringLiteral("x")), 0);
    EXPECT_EQ(manager->connectPrinter(), 1);
}

}  // namespace
