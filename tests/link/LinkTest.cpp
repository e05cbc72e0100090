#include <gtest/gtest.h>

#include "link/Binding.h"
#include "link/DWTCommunicationControl.h"
#include "support/RecordingLibrary.h"

namespace {

using namespace Qt::StringLiterals;

class Link : public testing::Test {
  protected:
    Link() { installLibrary(library); }
    ~Link() override { installLibrary(nullptr); }

    std::shared_ptr<RecordingLibrary> library = std::make_shared<RecordingLibrary>();
    std::shared_ptr<DWTCommunicationControl> link = DWTCommunicationControl::communicationControl(
        {{PrinterKey::DeviceURI, u"usb:1"_s},
         {PrinterKey::ConnectionType, PrinterConnection::USB}});
};

TEST_F(Link, EachEngageStatusLeadsToItsOwnCall) {
    const struct {
        int status, result;
        QString lastCall;
    } cases[] = {{0, -7, u"ZMStartCommand usb:1 // 20 15000"_s},
                 {1, -7, u"ZMEngageConnectAndStartCommand usb:1 // 20 15000"_s},
                 {2, 1, u"ZMGetEngageStatusSub usb:1 15000"_s}};
    library->result = -7;
    link->setCommandSettingToArray();
    for (const auto &c : cases) {
        library->status = c.status;
        EXPECT_EQ(link->connectPrinter(0), c.result) << c.status;
        EXPECT_EQ(library->calls.last(), c.lastCall);
    }
}

TEST_F(Link, AFailureIsHandedOnAndIsNoEmptyAnswer) {
    library->result = -3;
    EXPECT_EQ(link->disconnectPrinter(0), -3);
    EXPECT_EQ(link->sendSetting("frame"), std::nullopt);
    EXPECT_EQ(link->printerList(), std::nullopt);
    library->result = 0;
    EXPECT_EQ(link->sendSetting("frame"), QByteArray());
}

TEST_F(Link, AnyPrinterMayAnswerForOneOnUsb) {
    link->checkConnect(u"1.2.3.4"_s);
    EXPECT_EQ(library->calls.last(), u"ZMIOOpenForUDP ZMtcpip:// 1.2.3.4 20 15000"_s);
}

}  // namespace
