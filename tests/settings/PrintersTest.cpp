#include "link/Binding.h"
#include "platform/core/PropertyList.h"
#include "settings/DWTDataManager.h"
#include "settings/PrinterNames.h"
#include "settings/Printers.h"
#include "support/Arguments.h"
#include "support/Catalogues.h"
#include "support/Folder.h"
#include "support/RecordingLibrary.h"

namespace {

using namespace Qt::StringLiterals;

PrinterEntry entry(const char *uri, const QString &connection, const char *model) {
    return {{PrinterKey::DeviceURI, QLatin1String(uri)},
            {PrinterKey::ConnectionType, connection},
            {PrinterKey::ProductName, u"Larkfield "_s + QLatin1String(model)}};
}

class ListedPrinters : public testing::Test {
  protected:
    ~ListedPrinters() override { installLibrary(nullptr); }

    // URI and name of each listed printer, once those that have to be are asked.
    QString list() {
        const auto listed = manager->printerList().value_or(QList<PrinterEntry>());
        names.ask(listed);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !names.isAsking(); }));
        QStringList lines;
        for (const PrinterEntry &one : listed)
            lines << one[PrinterKey::DeviceURI] + u'=' +
                         (names.stateOf(one) == PrinterNames::State::Silent
                              ? u"(silent)"_s
                              : names.named(one).value(PrinterKey::MachineName));
        return lines.join(u' ');
    }
    // A data manager on a library that answers with this result and reply.
    std::shared_ptr<DWTDataManager> recorded(int result, const QByteArray &reply) {
        library = std::make_shared<RecordingLibrary>();
        library->result = result;
        library->reply = reply;
        installLibrary(library);
        return DWTDataManager::dataManager({{PrinterKey::DeviceURI, u"net:1"_s}});
    }

    std::shared_ptr<RecordingLibrary> library;
    const std::shared_ptr<DWTDataManager> manager = make<DWTDataManager>();
    PrinterNames names{[] {}};
};

TEST_F(ListedPrinters, ListsSupportedModelsAndAsksOnlyUsbPrintersForTheirName) {
    const QString &usb = PrinterConnection::USB, &network = PrinterConnection::Network;
    const struct {
        const char *uri;
        QString connection;
        const char *model, *profile;
        bool asked;
    } printers[] = {
        {"net", network, "L400", "{}", false},
        {"usb", usb, "L200", R"({"items": {"0x1006": "Desk"}})", true},
        {"unsupported", usb, "P900", "{}", false},
        {"refusing", usb, "L200", R"({"faults": {"refuseConnection": true}})", false},
        {"silent", usb, "L200", R"({"faults": {"items": {"0x1006": {"noReply": true}}}})", true},
        {"foreign", usb, "L200", R"({"faults": {"items": {"0x1006": {"code": "0x1004"}}}})", true},
        {"last", usb, "L400", R"({"items": {"0x1006": "Last"}})", true}};
    Catalogue catalogue;
    for (const auto &p : printers) {
        catalogue.entries << entry(p.uri, p.connection, p.model);
        catalogue.virtualPrinters.insert(QLatin1String(p.uri), printerOf(p.profile));
    }
    const auto listed = catalogueLibrary(catalogue, 100);
    installLibrary(listed);
    const QString usbOnes =
        u"usb=Desk refusing=(silent) silent=(silent) foreign=(silent) last=Last"_s;
    EXPECT_EQ(list(), u"net= "_s + usbOnes);
    EXPECT_EQ(Printers::problems(),
              QList<PrinterProblem>({{PrinterProblem::UnknownModel, u"Larkfield P900"_s}}));
    for (const auto &p : printers) {
        const QLatin1String uri(p.uri);
        EXPECT_EQ(!catalogue.virtualPrinters[uri]->log().isEmpty(), p.asked) << p.uri;
        EXPECT_NE(listed->ZMGetEngageStatusSub(uri, 100), 0) << p.uri << " was left open";
    }
    {
        const ArgumentOverride other("-Installers");
        EXPECT_EQ(list(), u"net= "_s + usbOnes);
    }
    const ArgumentOverride installer("-installer");
    EXPECT_EQ(list(), usbOnes) << "installer mode lists USB printers only";
}

TEST_F(ListedPrinters, APrinterIsAskedOnceAfterEachPlugAndOpenedWhileItIsAsked) {
    Catalogue catalogue;
    catalogue.entries << entry("usb", PrinterConnection::USB, "L200");
    const auto printer = printerOf(R"({"items": {"0x1006": "Desk"}})");
    catalogue.virtualPrinters.insert(u"usb"_s, printer);
    const auto isAsked = [&] {
        printer->clearLog();
        EXPECT_EQ(list(), u"usb=Desk"_s);
        return !printer->log().isEmpty();
    };
    for (const char *plug : {"1", "2"}) {
        catalogue.entries[0][PrinterKey::Plug] = QLatin1String(plug);
        installLibrary(catalogueLibrary(catalogue));
        EXPECT_TRUE(isAsked()) << plug;
        EXPECT_FALSE(isAsked()) << plug;
    }
    names.askAgain();
    EXPECT_TRUE(isAsked());
    printer->setFaults(faultsOf(R"({"items": {"0x1006": {"noReply": true}}})"));
    printer->clearLog();
    names.askAgain();
    names.ask(catalogue.entries);
    EXPECT_TRUE(QTest::qWaitFor([&] { return printer->log().size() == 2; })) << "not asked";
    EXPECT_EQ(names.named(catalogue.entries[0])[PrinterKey::MachineName], u"Desk"_s);
    names.leave(catalogue.entries[0]);
    EXPECT_EQ(installedLibrary()->ZMGetEngageStatusSub(u"usb"_s, 100), 1) << "still in use";
}

TEST_F(ListedPrinters, AnAdministratorAddsAModelAndIsToldOfAFileThatCannotBeUsed) {
    Catalogue catalogue;
    for (const char *model : {"L200", "New"})
        catalogue.entries << entry(model, PrinterConnection::Network, model);
    installLibrary(catalogueLibrary(catalogue, 100));
    const Folder folder;
    const PropertyList::FolderOverride administrators(folder.path({}));
    const QByteArray table = R"(<?xml version="1.0"?><plist version="1.0"><dict>
        <key>Larkfield New</key><dict/></dict></plist>)";
    const struct {
        QByteArray contents;
        qsizetype listed;
        bool problem;
    } cases[] = {{table, 2, false},
                 {"<plist><array/></plist>", 1, true},
                 {table + QByteArray(PropertyList::longestFile, ' '), 1, true},
                 {"", 1, true}};
    for (const auto &c : cases) {
        const QString path = folder.write(u"ZMPrinterStatusTable.plist"_s, c.contents);
        EXPECT_EQ(manager->printerList()->size(), c.listed) << c.contents.left(30).constData();
        EXPECT_EQ(Printers::problems().value(0).subject, c.problem ? path : QString());
    }
}

TEST_F(ListedPrinters, AnAddressOfFourPartsIsChecked) {
    const auto printer = recorded(0, {});
    EXPECT_EQ(manager->printerList(), QList<PrinterEntry>()) << "no list is an empty one";
    printer->qkStatusLength(32);
    EXPECT_EQ(printer->isCheckConnectToPrinter(u"192.168.00.010"_s.split(u'.')), 0);
    EXPECT_EQ(printer->isCheckConnectToPrinter({u"1"_s, u"2"_s, u"3"_s}), -1);
    EXPECT_EQ(printer->isCheckConnectToPrinter({{}, {}, {}, {}, {}}), -1);
    EXPECT_EQ(library->calls.join(u'|'), u"net:1 192.168.0.10 32 15000"_s);
    const auto onUsb = DWTDataManager::dataManager(entry("usb:1", PrinterConnection::USB, ""));
    onUsb->isCheckConnectToPrinter(u"1.2.3.4"_s.split(u'.'));
    EXPECT_EQ(library->calls.last(), u"ZMtcpip:// 1.2.3.4 20 15000"_s);
    EXPECT_EQ(manager->isCheckConnectToPrinter({{}, {}, {}, {}}), -1) << "without a link";
}

TEST_F(ListedPrinters, EachEngageStatusLeadsToItsOwnCall) {
    const struct {
        int status, result;
        const char *call;
    } cases[] = {{0, -7, "start"}, {1, -7, "engage"}, {2, 1, "status"}};
    const auto printer = recorded(-7, {});
    for (const auto &c : cases) {
        library->status = c.status;
        EXPECT_EQ(printer->connectPrinter(), c.result) << c.status;
        EXPECT_EQ(library->calls.last(), QLatin1String(c.call)) << c.status;
    }
}

TEST_F(ListedPrinters, NothingButANumberOfItsOwnIsAPasswordState) {
    for (const char *reply : {"43463b08003b00103b0200", "43463b08003b01103b0100"})
        EXPECT_EQ(recorded(0, hex(reply))->isPassword(), PasswordState::NoAnswer) << reply;
    EXPECT_EQ(library->calls.last(), u"end"_s);
    EXPECT_EQ(recorded(9, hex("43463b08003b00103b0100"))->isPassword(), PasswordState::NoAnswer);
    EXPECT_EQ(manager->isPassword(), PasswordState::NoAnswer) << "without a link";
    EXPECT_EQ(manager->checkLoginPassword(u"x"_s).kind, WriteResult::Unsent);
    EXPECT_EQ(manager->connectPrinter(), 1);
}

}  // namespace
