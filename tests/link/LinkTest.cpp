#include <gtest/gtest.h>

#include "link/Binding.h"
#include "link/DWTCommunicationControl.h"
#include "support/Catalogues.h"
#include "support/RecordingLibrary.h"

namespace {

using namespace Qt::StringLiterals;

const PrinterEntry usb{{PrinterKey::DeviceURI, u"usb:1"_s},
                       {PrinterKey::ConnectionType, PrinterConnection::USB}};
const PrinterEntry network{{PrinterKey::DeviceURI, u"net:2"_s},
                           {PrinterKey::ConnectionType, PrinterConnection::Network}};

// A link to the USB printer with its three frames installed, in an order of the caller's.
class Link : public testing::Test {
  protected:
    Link() {
        installLibrary(library);
        EXPECT_FALSE(link->setEndSetting("E"));
        EXPECT_FALSE(link->setUpdateSetting("U"));
        EXPECT_FALSE(link->setStartSetting("S"));
        link->setCommandSettingToArray();
    }
    ~Link() override { installLibrary(nullptr); }
    QString calls() { return std::exchange(library->calls, {}).join(u'|'); }

    std::shared_ptr<RecordingLibrary> library = std::make_shared<RecordingLibrary>();
    std::shared_ptr<DWTCommunicationControl> link =
        DWTCommunicationControl::communicationControl(usb);
};

TEST_F(Link, EachEngageStatusLeadsToItsOwnCall) {
    const QString asked = u"ZMGetEngageStatusSub usb:1 15000"_s;
    const struct {
        int status;
        QString call;
    } cases[] = {{0, u"|ZMStartCommand usb:1 S/U/E 20 15000"_s},
                 {1, u"|ZMEngageConnectAndStartCommand usb:1 S/U/E 20 15000"_s},
                 {2, {}},
                 {-1, {}}};
    library->result = -7;
    for (const auto &c : cases) {
        library->status = c.status;
        EXPECT_EQ(link->connectPrinter(0), c.call.isEmpty() ? 1 : -7) << c.status;
        EXPECT_EQ(calls(), asked + c.call);
    }
}

TEST_F(Link, PointedAtAnotherPrinterItKeepsFramesAndStatusLength) {
    library->result = -3;
    EXPECT_EQ(link->checkConnect(u"1.2.3.4"_s), -3);
    link->qkStatusLength(32);
    EXPECT_EQ(link->disconnectPrinter(0), -3);
    link->communicationToPrinterList(network);
    EXPECT_EQ(link->checkConnect(u"1.2.3.4"_s), -3);
    EXPECT_EQ(link->disconnectPrinter(0), -3);
    EXPECT_EQ(calls(),
              u"ZMIOOpenForUDP ZMtcpip:// 1.2.3.4 20 15000|"
              "ZMEndCommandAndEngageDisConnect usb:1 S/U/E 32 15000|"
              "ZMIOOpenForUDP net:2 1.2.3.4 32 15000|"
              "ZMEndCommandAndEngageDisConnect net:2 S/U/E 32 15000"_s);
}

TEST_F(Link, ARepliedFrameGivesItsReplyAndAFailedOneNothing) {
    library->reply = "reply";
    EXPECT_EQ(link->selectPrinterInfomation("ask"), "reply");
    EXPECT_EQ(link->sendSetting("frame"), "reply");
    EXPECT_EQ(calls(),
              u"ZMGetSettingData usb:1 S/U/E/ask 512 15000|"
              "ZMSendSettingData usb:1 S/U/E/frame 5 15000"_s);
    for (const int result : {-1, 1}) {
        library->result = result;
        EXPECT_EQ(link->selectPrinterInfomation("ask"), std::nullopt) << result;
        EXPECT_EQ(link->sendSetting("frame"), std::nullopt) << result;
    }
    library->result = 0;
    library->reply.clear();
    EXPECT_EQ(link->sendSetting("frame"), QByteArray()) << "an empty reply is not a missing one";
}

TEST_F(Link, NoListIsNotAnEmptyListAndWithoutAnEntryThereIsNoLink) {
    EXPECT_EQ(link->printerList(), std::nullopt);
    library->list = QList<PrinterEntry>{};
    EXPECT_EQ(link->printerList(), QList<PrinterEntry>{});
    library->list = QList<PrinterEntry>{usb, network};
    EXPECT_EQ(link->printerList(), (QList<PrinterEntry>{usb, network}));
    EXPECT_FALSE(DWTCommunicationControl::communicationControl({}));
}

}  // namespace
