#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <array>

#include "support/Profiles.h"
#include "virtualprinter/VirtualPrinterDevice.h"

namespace {

const QByteArray start = hex("1b7b045501567d");
const QByteArray update = hex("1b7b0377777d");
const QByteArray readName = hex("1b7b056606107c7d");
const QByteArray nameAB = hex("43463b08003b06103b41423b4a");
const QByteArray nameCD = hex("43463b08003b06103b43443b4e");
const QByteArray writeAB = hex("43463b09003b06103b4142003b4a");
const QByteArray accepted = hex("43523b08003b06103b00003bc7");

// The host's end of a pseudo-terminal in raw mode.
class Host {
  public:
    Host() : m_fd(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        ::grantpt(m_fd);
        ::unlockpt(m_fd);
        termios mode{};
        ::tcgetattr(m_fd, &mode);
        ::cfmakeraw(&mode);
        ::tcsetattr(m_fd, TCSANOW, &mode);
    }
    ~Host() { ::close(m_fd); }

    QString device() const { return QFile::decodeName(::ptsname(m_fd)); }
    void write(const QByteArray &bytes) const {
        ASSERT_EQ(::write(m_fd, bytes.constData(), static_cast<size_t>(bytes.size())),
                  bytes.size());
    }
    // What has come, once it is `wanted` or after a while.
    QByteArray read(const QByteArray &wanted) {
        QByteArray got;
        (void)QTest::qWaitFor([&] {
            std::array<char, 64> area;
            const ssize_t count = ::read(m_fd, area.data(), area.size());
            if (count > 0) got.append(area.data(), count);
            return got == wanted;
        });
        return got;
    }

  private:
    const int m_fd;
};

class Device : public testing::Test {
  protected:
    // A host that the path of the device leads to from now on.
    void plugIn() {
        host.reset();
        QFile::remove(path);
        host = std::make_unique<Host>();
        ASSERT_TRUE(QFile::link(host->device(), path));
    }
    void serve(const QByteArray &profile) {
        printer = printerOf(profile);
        served = std::make_unique<VirtualPrinterDevice>(printer, path);
        ASSERT_TRUE(served->open()) << qPrintable(served->errorString());
    }
    QByteArray name(const QByteArray &wanted) {
        host->write(start + readName);
        return host->read(wanted);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printer"));
    std::unique_ptr<Host> host;
    std::shared_ptr<VirtualPrinter> printer;
    std::unique_ptr<VirtualPrinterDevice> served;
};

TEST_F(Device, AnswersInOrderWhateverThePiecesAndDelays) {
    plugIn();
    serve(R"({"items": {"0x1006": "AB"},
              "faults": {"piecewise": true, "items": {"0x1006": {"delay": 20}}}})");
    for (const char byte : start + readName) host->write(QByteArray(1, byte));
    host->write(writeAB);
    EXPECT_EQ(host->read(nameAB + accepted).toHex(), (nameAB + accepted).toHex());
}

TEST_F(Device, AHostThatComesAnewFindsNothingOfTheOneBefore) {
    plugIn();
    serve(R"({"items": {"0x1006": "CD"}})");
    host->write(start + writeAB + writeAB.first(9));
    EXPECT_EQ(host->read(accepted), accepted);
    plugIn();
    host->write(update + readName);
    EXPECT_EQ(name(nameCD).toHex(), nameCD.toHex()) << "before the start there is no transaction";
}

TEST_F(Device, AConnectionThatThePrinterClosesIsOpenedAnew) {
    plugIn();
    serve(R"({"items": {"0x1006": "CD"}, "faults": {"closeAfterFrames": 2}})");
    EXPECT_EQ(name(nameCD), nameCD);
    printer->setFaults({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return name(nameCD).endsWith(nameCD); }));
}

TEST_F(Device, APrinterThatRefusesAtFirstIsTriedAgain) {
    plugIn();
    serve(R"({"items": {"0x1006": "CD"}, "faults": {"refuseConnection": true}})");
    printer->setFaults({});
    EXPECT_EQ(name(nameCD), nameCD);
}

TEST_F(Device, WhatIsNoDeviceIsRefusedWithItsReason) {
    EXPECT_FALSE(VirtualPrinterDevice(printerOf("{}"), path).open());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    VirtualPrinterDevice noDevice(printerOf("{}"), path);
    EXPECT_FALSE(noDevice.open());
    EXPECT_EQ(noDevice.errorString(), QStringLiteral("not a character device"));
}

}  // namespace
