#include <sys/fsuid.h>
#include <sys/stat.h>

#include "LibraryCalls.h"
#include "zmlib/DeviceId.h"

namespace {

using namespace Qt::StringLiterals;

TEST(DeviceId, NamesTheProductAsTheTableOfModelsDoes) {
    const struct {
        QByteArray id;
        const char *manufacturer, *product, *name;
    } cases[] = {
        {"MFG:Larkfield;MDL:L200;CLS:PRINTER;SN:1;", "M", "P", "Larkfield L200"},
        {"MODEL: L200 ; manufacturer:Larkfield", "M", "P", "Larkfield L200"},
        {"MFG:Larkfield;MDL:LARKFIELD L200;", "", "", "LARKFIELD L200"},
        {"MFG:Lark;MDL:Larkfield L200;", "", "", "Lark Larkfield L200"},
        {"MFG:One;MFG:Two;MDL:A:B;", "", "", "One A:B"},
        {"MFG:Larkfield;CMD:X;", "Larkfield", "L300", "Larkfield L300"},
        {"MFG:;MDL:L200;", " Larkfield ", "L300\n", "Larkfield L300"},
        {"MFG:Lark\0field;MDL", "", "L300", "L300"},
        {";;:;:::;MFG", "Larkfield", "", "Larkfield"},
        {QByteArray(65536, ';'), "", "", ""},
        {"MFG:" + QByteArray(65536, 'x'), "M", "P", "M P"},
    };
    for (const auto &[id, manufacturer, product, name] : cases) {
        const auto model = modelOf(id, QLatin1String(manufacturer), QLatin1String(product));
        EXPECT_EQ(productName(model), QLatin1String(name)) << id.left(40).constData();
    }
}

class Usb : public testing::Test, protected LibraryCalls {
  protected:
    Usb() { uri = u"usb:///Larkfield/L200?serial=0001"_s; }
    void SetUp() override {
        if (!UsbBed::isThere()) GTEST_SKIP();
    }
    UsbEmulator &plug(const UsbEmulator::Description &description,
                      const QByteArray &profile = "{}") {
        printers.push_back(printerOf(profile));
        usb.push_back(std::make_unique<UsbEmulator>(bed, printers.back(), description));
        return *usb.back();
    }
    ZMLib &library() override {
        if (!m_library) m_library = libraryOf<UsbSource>(limit);
        return *m_library;
    }

    const UsbBed bed;
    std::vector<std::shared_ptr<VirtualPrinter>> printers;
    std::vector<std::unique_ptr<UsbEmulator>> usb;
    std::shared_ptr<PrinterLibrary> m_library;
};

TEST_F(Usb, ListsPrintersByPortWithoutOpeningOne) {
    plug({.port = "1-10", .address = 1, .product = "L400", .serial = "a/b 1"});
    plug({.port = "1-2", .address = 2, .serial = ""});
    plug({.port = "1-9", .address = 3, .product = "X", .deviceId = "MFG:Larkfield;MDL:L300;"});
    plug({.port = "1-3", .address = 4, .serial = "7"});
    plug({.port = "1-4", .address = 5, .serial = "7"});
    plug({.port = "1-5", .address = 6, .interface = "090400000207010400"});  // another protocol
    plug({.port = "1-6", .address = 7, .interface = "090400000007010200", .endpoints = ""});
    plug({.port = "1-7", .address = 8, .endpoints = "0705810200"});          // cut
    plug({.port = "1-8", .address = 9, .interface = "0904000002ff010200"});  // no printer
    plug({.port = "1-1", .address = 10, .interface = "090402000207010200"});
    EXPECT_EQ(listed(),
              u"USB|usb:///Larkfield/L200?serial=0001&interface=2|Larkfield L200|0001\n"
              "USB|usb:///Larkfield/L200?port=1-2|1-2|Larkfield L200\n"
              "USB|usb:///Larkfield/L200?port=1-3|Larkfield L200|7\n"
              "USB|usb:///Larkfield/L200?port=1-4|Larkfield L200|7\n"
              "USB|usb:///Larkfield/L300?serial=0001|Larkfield L300|0001\n"
              "USB|usb:///Larkfield/L400?serial=a%2Fb%201|Larkfield L400|a/b 1"_s);
    for (const auto &one : usb) EXPECT_EQ(one->opens, 0);
    EXPECT_FALSE(library().hasListChanged());
    umockdev_testbed_set_attribute(bed.get(), "/sys/devices/usb1/1-4", "product", "L500");
    const QString called = u"usb:///Larkfield/L200?port=1-4"_s;
    EXPECT_EQ(library().ZMGetEngageStatusSub(called, limit), 1) << "named otherwise since";
    EXPECT_EQ(usb[4]->claims, 1);
    usb[4]->unplug();
    plug({.port = "1-4", .address = 11, .product = "L500", .serial = ""});
    EXPECT_TRUE(QTest::qWaitFor([&] { return library().hasListChanged(); }));
    EXPECT_EQ(library().ZMGetEngageStatusSub(called, limit), ZMLib::UnknownPrinter)
        << "another printer on the same port";
    EXPECT_LT(library().ZMGetEngageStatusSub(u"usb:///Larkfield/L200?port=1-5"_s, limit), 0);
}

TEST_F(Usb, ATransactionClaimsTheInterfaceOnceAndGivesItBackToTheKernel) {
    UsbEmulator &printer = plug({}, R"({"items": {"0x1006": "AB"}})");
    printer.setDriver("usblp");
    const QByteArray stale = hex("43463b08003b06103b58583b4a");
    printer.leave(stale);  // asked for by a host that is gone
    printer.packet = 1;
    ASSERT_EQ(status(), 1);
    ASSERT_EQ(engage(), 0);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(get(), 0);
        EXPECT_EQ(reply, nameAB) << i << ": left over, or not whole";
        printer.packet = 512;
        printer.leave(stale);  // comes between the exchanges
    }
    EXPECT_EQ(finish(), 0);
    EXPECT_EQ(printer.claims, 1);
    EXPECT_EQ(printer.releases, 1);
    EXPECT_EQ(printer.driver(), "usblp");
}

TEST_F(Usb, WhoMayNotOrCannotOpenAPrinterIsTold) {
    UsbEmulator &printer = plug({});
    listed();
    printer.setDriver("usbfs");
    EXPECT_EQ(status(), ZMLib::InUse);
    EXPECT_EQ(problems(), QStringList{u"1Larkfield L200 (0001)"_s});
    printer.setDriver("");
    EXPECT_EQ(status(), 1);
    EXPECT_EQ(problems(), QStringList()) << "told although it can be opened now";
    EXPECT_EQ(engage(), 0);
    finish();
    const std::unique_ptr<char, decltype(&g_free)> root(umockdev_testbed_get_root_dir(bed.get()),
                                                        g_free);
    ::chmod(root.get(), 0755);
    ::chmod((root.get() + ("/ioctl" + printer.node())).constData(), 0777);
    ::chmod(printer.node().constData(), 0);  // for its owner as well
    ::setfsuid(65534);
    EXPECT_EQ(status(), ZMLib::NoPermission);
    ::setfsuid(0);
    EXPECT_EQ(problems(), QStringList{u"0Larkfield L200 (0001)"_s});
    listed();
    EXPECT_EQ(problems(), QStringList{u"0Larkfield L200 (0001)"_s}) << "forgotten by the next list";
    printer.unplug();
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed().isEmpty(); })) << "kept without a printer";
}

TEST_F(Usb, APrinterThatMisbehavesGivesAResultInTime) {
    UsbEmulator &printer = plug({}, R"({"faults": {"items": {"0x1006": {"noReply": true}}}})");
    ASSERT_EQ(engage(), 0);
    for (const bool empty : {false, true}) {
        printer.emptyPackets = empty;
        const QDeadlineTimer deadline(limit);
        EXPECT_EQ(get(ZMLib::replyArea, 100), ZMLib::TimedOut);
        EXPECT_FALSE(deadline.hasExpired());
    }
    printer.emptyPackets = false;
    printers[0]->setFaults({});
    EXPECT_EQ(get(), 0) << "the channel did not stay open";
    printer.stallOut = true;
    EXPECT_EQ(get(), ZMLib::Closed);
    EXPECT_FALSE(printer.stallOut) << "left stalled";
    printer.stallIn = true;
    EXPECT_EQ(engage(), 0) << "a stall of before";
    printer.stallIn = true;
    EXPECT_EQ(get(), ZMLib::Closed);
    EXPECT_EQ(printer.claims, printer.releases);
}

TEST_F(Usb, NothingThatAPrinterOrTheSystemDoesKeepsACallBeyondItsTime) {
    UsbEmulator &printer = plug({});
    printer.drips = true;
    const QDeadlineTimer deadline(limit);
    EXPECT_EQ(status(), ZMLib::UnknownPrinter);
    printer.drips = false;
    ASSERT_EQ(engage(), 0);
    printer.drips = true;
    EXPECT_EQ(finish(), 0);
    printer.drips = false;
    printer.room = 0;
    EXPECT_EQ(library().ZMGetEngageStatusSub(uri, 100), ZMLib::UnknownPrinter);
    printer.room = -1;
    ASSERT_EQ(engage(), 0);
    printer.reapFails = true;
    EXPECT_EQ(get(), ZMLib::Closed);
    EXPECT_FALSE(deadline.hasExpired());
}

TEST_F(Usb, AFrameThatTimedOutHalfWayIsFinishedBeforeTheNext) {
    UsbEmulator &printer = plug({}, R"({"items": {"0x1006": "AB"}})");
    ASSERT_EQ(engage(), 0);
    for (const int room : {0, 3}) {
        printer.room = room;
        EXPECT_EQ(get(ZMLib::replyArea, 50), ZMLib::TimedOut);
        printer.room = -1;
        EXPECT_EQ(get(), 0) << room;
        EXPECT_EQ(reply, nameAB) << room;
    }
    EXPECT_EQ(finish(), 0);
}

TEST_F(Usb, WhatWasStagedIsDroppedWhenATransactionIsGivenUp) {
    UsbEmulator &printer = plug({}, R"({"items": {"0x1006": "XY"}})");
    for (const bool stalls : {true, false}) {  // otherwise the program ends
        ASSERT_EQ(engage(), 0);
        const int size = static_cast<int>(writeAB.size());
        ASSERT_EQ(library().ZMSendSettingData(uri, size, writeAB, reply, commands, limit), 0);
        printer.stallIn = stalls;
        EXPECT_EQ(get(), stalls ? ZMLib::Closed : ZMLib::Success);
        m_library.reset();
        EXPECT_EQ(printers[0]->log().last().bytes, commands[2]) << stalls;
        EXPECT_TRUE(printers[0]->item(0x1006).startsWith("XY")) << stalls;
    }
}

TEST_F(Usb, APrinterThatVanishesAtAnyRequestIsReadyAgainAndAppliedOnlyWhatWasToldSo) {
    UsbEmulator &printer = plug({});
    const QByteArray update = commands[1];
    int failed = 0;
    for (int requests = 1; printer.requestsLeft == 0; ++requests) {
        ASSERT_LT(requests, 200);
        printers[0]->clearLog();
        printer.requestsLeft = requests;
        const bool done = status() == 1 && engage() == 0 && get() == 0 && finish() == 0;
        EXPECT_EQ(finish(), ZMLib::NotOpen) << requests;
        const auto log = printers[0]->log();
        const bool applied = std::any_of(log.begin(), log.end(),
                                         [&](const auto &frame) { return frame.bytes == update; });
        EXPECT_EQ(done, applied) << requests;
        failed += done ? 0 : 1;
    }
    EXPECT_GT(failed, 6) << "open, claim, start, request, reply, update";
    printer.requestsLeft = 0;
    printer.unplug();
    EXPECT_TRUE(QTest::qWaitFor([&] { return status() == ZMLib::UnknownPrinter; }));
    printer.plug();
    EXPECT_TRUE(QTest::qWaitFor([&] { return status() == 1 && engage() == 0 && get() == 0; }));
}

}  // namespace
