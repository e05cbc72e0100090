#pragma once

#include <linux/usbdevice_fs.h>
#include <umockdev.h>

#include <QByteArray>
#include <QDeadlineTimer>
#include <deque>
#include <memory>
#include <mutex>

#include "virtualprinter/VirtualPrinter.h"

// The kernel's side of a USB without any: what is plugged in exists for this process only. It
// needs libumockdev-preload (see nst_test()); isThere() tells, once there is a bed.
class UsbBed {
  public:
    UsbBed() : m_bed(umockdev_testbed_new()) {}
    ~UsbBed() { g_object_unref(m_bed); }
    UsbBed(const UsbBed &) = delete;
    UsbBed &operator=(const UsbBed &) = delete;

    static bool isThere() {
        const bool there = umockdev_in_mock_environment();
        if (!there && qEnvironmentVariable("LD_PRELOAD").contains(QLatin1String("umockdev")))
            qFatal("LD_PRELOAD names a library that is not there");
        return there;
    }
    UMockdevTestbed *get() const { return m_bed; }

  private:
    UMockdevTestbed *const m_bed;
};

// A virtual printer on a port of that USB. A printer that closes its channel is unplugged, one that
// refuses connections cannot be opened. What is set while it is plugged in counts at once, but for
// the description.
class UsbEmulator {
  public:
    struct Description {
        QByteArray port = "1-2";
        int address = 7;
        // Attributes that the kernel tells of the device; empty ones are missing.
        QByteArray manufacturer = "Larkfield", product = "L200", serial = "0001", deviceId = {};
        // Of the interface and its endpoints, in hexadecimal digits.
        QByteArray interface = "090400000207010200";
        QByteArray endpoints =
            "07058102000200"
            "07050202000200";
    };

    UsbEmulator(const UsbBed &bed, std::shared_ptr<VirtualPrinter> printer,
                Description description);
    UsbEmulator(const UsbBed &bed, std::shared_ptr<VirtualPrinter> printer)
        : UsbEmulator(bed, std::move(printer), Description()) {}
    ~UsbEmulator();

    void plug();
    void unplug();
    QByteArray node() const;

    std::atomic<bool> stallIn = false, stallOut = false, emptyPackets = false;
    std::atomic<bool> drips = false;      // sends a byte every dripPause, without an end
    std::atomic<bool> reapFails = false;  // the system cannot say which transfers have ended
    std::atomic<int> room = -1;           // bytes that it still takes; negative: any number
    static constexpr std::chrono::milliseconds dripPause{8};
    std::atomic<int> packet = 512;      // bytes of the longest packet to the host
    std::atomic<int> requestsLeft = 0;  // before it vanishes; 0: no limit
    std::atomic<int> claims = 0, releases = 0, opens = 0;
    // Who has the interface: nobody, "usblp" (the kernel's driver) or "usbfs" (another program).
    QByteArray driver() const;
    void setDriver(const QByteArray &name);
    // Bytes that a host that is gone has left to be read.
    void leave(const QByteArray &bytes);

  private:
    using Client = UMockdevIoctlClient;
    // The lines below run under m_mutex.
    gboolean answer(Client *client);
    int control(unsigned long request, void *argument);
    void submit(usbdevfs_urb *urb);
    void giveBytes();
    void end(usbdevfs_urb *urb, int status, int moved);
    void vanish();

    const UsbBed &m_bed;
    const Description m_description;
    const std::shared_ptr<VirtualPrinter> m_printer;
    UMockdevIoctlBase *const m_handler;
    bool m_plugged = false;

    mutable std::mutex m_mutex;  // guards what follows
    std::unique_ptr<VirtualPrinter::Channel> m_channel;
    QByteArray m_driver;
    bool m_gone = true;
    bool m_claimed = false;
    struct Bytes {
        QByteArray bytes;
        QDeadlineTimer due;
    };
    std::deque<Bytes> m_toHost;
    QDeadlineTimer m_drip{0};
    std::deque<usbdevfs_urb *> m_reading, m_done;
    usbdevfs_urb *m_writing = nullptr;  // waits for room
};
