#include <gtest/gtest.h>

#include "link/Binding.h"
#include "link/DWTCommunicationControl.h"
#include "support/Catalogues.h"
#include "support/RecordingLibrary.h"

namespace {

const PrinterEntry usb{{QStringLiteral("DeviceURI"), QStringLiteral("usb:1")},
                       {QStringLiteral("ConnectionType"), QStringLiteral("USB")}};
const PrinterEntry network{{QStringLiteral("DeviceURI"), QStringLiteral("net:2")},
                           {QStringLiteral("ConnectionType"), QStringLiteral("Network")}};

class Link : public testing::Test {
  protected:
    Link() { installLibrary(library); }
    ~Link() override { installLibrary(nullptr); }

    // A link with its three frames installed, in an order of the caller's.
    std::shared_ptr<DWTCommunicationControl> linkTo(const PrinterEntry &entry) {
        auto link = DWTCommunicationControl::communicationControl(entry);
        EXPECT_FALSE(link->setEndSetting("E"));
        EXPECT_FALSE(link->setUpdateSetting("U"));
        EXPECT_FALSE(link->setStartSetting("S"));
        link->setCommandSettingToArray();
        return link;
    }
    QStringList calls() { return std::exchange(library->calls, {}); }

    std::shared_ptr<RecordingLibrary> library = std::make_shared<RecordingLibrary>();
};

TEST_F(Link, EachEngageStatusLeadsToItsOwnCall) {
    const auto link = linkTo(usb);
    const QString asked = QStringLiteral("ZMGetEngageStatusSub usb:1 15000");
    const QString arguments = QStringLiteral(" usb:1 S/U/E 20 15000");
    library->result = -7;
    library->status = 0;
    EXPECT_EQ(link->connectPrinter(0), -7);
    EXPECT_EQ(calls(), (QStringList{asked, QStringLiteral("ZMStartCommand") + arguments}));
    library->status = 1;
    EXPECT_EQ(link->connectPrinter(0), -7);
    EXPECT_EQ(calls(),
              (QStringList{asked, QStringLiteral("ZMEngageConnectAndStartCommand") + arguments}));
    for (const int status : {2, -1, 1000}) {
        library->status = status;
        EXPECT_EQ(link->connectPrinter(0), 1) << status;
        EXPECT_EQ(calls(), QStringList{asked}) << status;
    }
    link->qkStatusLength(32);
    EXPECT_EQ(link->disconnectPrinter(0), -7);
    EXPECT_EQ(calls(),
              QStringList{QStringLiteral("ZMEndCommandAndEngageDisConnect usb:1 S/U/E 32 15000")});
}

TEST_F(Link, ARepliedFrameGivesItsReplyAndAFailedOneNothing) {
    const auto link = linkTo(usb);
    library->reply = "reply";
    EXPECT_EQ(link->selectPrinterInfomation("ask"), "reply");
    EXPECT_EQ(link->sendSetting("frame"), "reply");
    EXPECT_EQ(calls(),
              (QStringList{QStringLiteral("ZMGetSettingData usb:1 512 ask [] S/U/E 15000"),
                           QStringLiteral("ZMSendSettingData usb:1 5 frame [] S/U/E 15000")}));
    for (const int result : {-1, 1}) {
        library->result = result;
        EXPECT_EQ(link->selectPrinterInfomation("ask"), std::nullopt) << result;
        EXPECT_EQ(link->sendSetting("frame"), std::nullopt) << result;
    }
    library->result = 0;
    library->reply.clear();
    EXPECT_EQ(link->sendSetting("frame"), QByteArray()) << "an empty reply is not a missing one";
}

TEST_F(Link, TheAddressCheckOfAUsbPrinterAsksEveryPrinter) {
    const auto link = linkTo(usb);
    library->result = -3;
    EXPECT_EQ(link->checkConnect(QStringLiteral("1.2.3.4")), -3);
    link->communicationToPrinterList(network);
    EXPECT_EQ(link->checkConnect(QStringLiteral("1.2.3.4")), -3);
    EXPECT_EQ(calls(), (QStringList{QStringLiteral("ZMIOOpenForUDP ZMtcpip:// 1.2.3.4 20 15000"),
                                    QStringLiteral("ZMIOOpenForUDP net:2 1.2.3.4 20 15000")}));
}

TEST_F(Link, PointedAtAnotherPrinterItKeepsFramesAndStatusLength) {
    const auto link = linkTo(usb);
    link->qkStatusLength(44);
    link->communicationToPrinterList(network);
    link->disconnectPrinter(0);
    EXPECT_EQ(calls(),
              QStringList{QStringLiteral("ZMEndCommandAndEngageDisConnect net:2 S/U/E 44 15000")});
}

TEST_F(Link, NoListIsNotAnEmptyList) {
    const auto link = make<DWTCommunicationControl>();
    EXPECT_EQ(link->printerList(), std::nullopt);
    library->list = QList<PrinterEntry>{};
    EXPECT_EQ(link->printerList(), QList<PrinterEntry>{});
    library->list = QList<PrinterEntry>{usb, network};
    EXPECT_EQ(link->printerList(), (QList<PrinterEntry>{usb, network}));
}

TEST_F(Link, WithoutAnEntryThereIsNoLinkAndWithoutAFrameNoSuccess) {
    EXPECT_FALSE(DWTCommunicationControl::communicationControl({}));
    const auto link = DWTCommunicationControl::communicationControl(usb);
    EXPECT_TRUE(link->setStartSetting({}));
    EXPECT_TRUE(link->setEndSetting({}));
    EXPECT_TRUE(link->setUpdateSetting({}));
}

class LinkOnTheWire : public testing::TestWithParam<OnePrinterLibrary::Transport> {
  protected:
    ~LinkOnTheWire() override { installLibrary(nullptr); }
};

INSTANTIATE_TEST_SUITE_P(, LinkOnTheWire,
                         testing::Values(OnePrinterLibrary::Transport::Virtual,
                                         OnePrinterLibrary::Transport::Tcp),
                         [](const auto &p) { return nameOf(p.param); });

TEST_P(LinkOnTheWire, ListsReadsLogsInWritesScansAndDisconnects) {
    OnePrinterLibrary served(
        printerOf(R"({"password": "abc", "scanPolls": 0, "items": {"0x1006": "Old"},
                      "networks": [{"ssid": "Net"}]})"),
        GetParam());
    installLibrary(served.library());
    const auto lister = make<DWTCommunicationControl>();
    const auto list = lister->printerList();
    ASSERT_TRUE(list && list->size() == 1);
    const auto link = DWTCommunicationControl::communicationControl(list->first());
    const QByteArray start = hex("1b7b045501567d"), end = hex("1b7b045500557d"),
                     update = hex("1b7b0377777d"), read = hex("1b7b056606107c7d"),
                     login = hex("43463b0a003b01103b616263003be8"),
                     write = hex("43463b09003b06103b4142003b4a"),
                     scan = hex("43463b08003b20313b01003b03"), poll = hex("1b7b05662031b77d");
    link->setStartSetting(start);
    link->setEndSetting(end);
    link->setUpdateSetting(update);
    link->setCommandSettingToArray();

    ASSERT_EQ(link->connectPrinter(0), 0);
    EXPECT_EQ(link->selectPrinterInfomation(read).value().mid(9, 3), "Old");
    EXPECT_EQ(link->sendSetting(login).value().mid(9, 2), hex("0000"));
    EXPECT_EQ(link->sendSetting(write).value().mid(9, 2), hex("0000"));
    EXPECT_EQ(link->sendSetting(scan).value().mid(9, 2), hex("0000"));
    EXPECT_EQ(link->selectPrinterInfomation(poll).value().mid(9, 4), hex("02000100"));
    EXPECT_EQ(link->disconnectPrinter(0), 0);
    EXPECT_EQ(served.receivedUntilEnd(),
              QStringLiteral("start ?1006 =1001 =1006 =3120 ?3120 update end"));
    EXPECT_EQ(served.printer().item(0x1006), "AB");
}

}  // namespace
