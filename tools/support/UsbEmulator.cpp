#include "support/UsbEmulator.h"

#include <sys/ioctl.h>

#include <cstring>
#include <utility>

UsbEmulator::UsbEmulator(const UsbBed &bed, std::shared_ptr<VirtualPrinter> printer,
                         Description description)
    : m_bed(bed),
      m_description(std::move(description)),
      m_printer(std::move(printer)),
      m_handler(umockdev_ioctl_base_new()) {
    const auto handle = +[](UMockdevIoctlBase *, Client *client, gpointer self) -> gboolean {
        return static_cast<UsbEmulator *>(self)->answer(client);
    };
    g_signal_connect(m_handler, "handle-ioctl", G_CALLBACK(handle), this);
    plug();
}

UsbEmulator::~UsbEmulator() {
    unplug();
    g_object_unref(m_handler);
}

QByteArray UsbEmulator::node() const {
    return "/dev/bus/usb/001/" + QByteArray::number(m_description.address).rightJustified(3, '0');
}

void UsbEmulator::plug() {
    if (m_plugged) return;
    m_plugged = true;
    const auto text = [](const char *name, const QByteArray &value) {
        return value.isEmpty() ? QByteArray() : QByteArray("A: ") + name + '=' + value + "\\n\n";
    };
    const Description &d = m_description;
    const QByteArray end = d.interface + d.endpoints;
    const auto size = static_cast<quint16>(9 + end.size() / 2);
    const QByteArray descriptors =
        "12010002000000403412cdab000101020301"
        "0902" +
        QByteArray(1, static_cast<char>(size & 0xFF)).toHex() +
        QByteArray(1, static_cast<char>(size >> 8)).toHex() + "01010080fa" + end;
    const QByteArray device =
        "P: /devices/usb1/" + d.port + "\nN: " + node().mid(5) +
        "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\nE: BUSNUM=001\nE: DEVNUM=" +
        QByteArray::number(d.address) + "\nE: DEVNAME=" + node() + "\nE: MAJOR=189\nE: MINOR=6\n" +
        text("bConfigurationValue", "1") + text("busnum", "1") +
        text("devnum", QByteArray::number(d.address)) + text("speed", "480") +
        text("manufacturer", d.manufacturer) + text("product", d.product) +
        text("serial", d.serial) + "H: descriptors=" + descriptors + "\n\n";
    const QByteArray interface = "P: /devices/usb1/" + d.port + '/' + d.port +
                                 ":1.0\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_interface\n" +
                                 text("ieee1284_id", d.deviceId) + '\n';
    {
        const std::lock_guard lock(m_mutex);
        m_gone = false;
    }
    GError *error = nullptr;
    if (!umockdev_testbed_attach_ioctl(m_bed.get(), node(), m_handler, &error) ||
        !umockdev_testbed_add_from_string(m_bed.get(), device, &error) ||
        !umockdev_testbed_add_from_string(m_bed.get(), interface, &error))
        qFatal("%s", error->message);
}

void UsbEmulator::unplug() {
    if (!m_plugged) return;
    m_plugged = false;
    {
        const std::lock_guard lock(m_mutex);
        vanish();
    }
    const QByteArray path = "/sys/devices/usb1/" + m_description.port;
    umockdev_testbed_uevent(m_bed.get(), path, "remove");
    umockdev_testbed_remove_device(m_bed.get(), path + '/' + m_description.port + ":1.0");
    umockdev_testbed_remove_device(m_bed.get(), path);
    umockdev_testbed_detach_ioctl(m_bed.get(), node(), nullptr);
}

QByteArray UsbEmulator::driver() const {
    const std::lock_guard lock(m_mutex);
    return m_driver;
}

void UsbEmulator::setDriver(const QByteArray &name) {
    const std::lock_guard lock(m_mutex);
    m_driver = name;
}

void UsbEmulator::leave(const QByteArray &bytes) {
    const std::lock_guard lock(m_mutex);
    m_toHost.push_back({bytes, QDeadlineTimer(0)});
}

void UsbEmulator::vanish() {
    m_gone = true;
    m_claimed = false;
    m_channel.reset();
    m_toHost.clear();
    for (usbdevfs_urb *urb : m_reading) end(urb, -ESHUTDOWN, 0);
    m_reading.clear();
}

void UsbEmulator::end(usbdevfs_urb *urb, int status, int moved) {
    urb->status = status;
    urb->actual_length = moved;
    m_done.push_back(urb);
}

void UsbEmulator::giveBytes() {
    if (drips && m_toHost.empty() && m_drip.hasExpired()) {
        m_toHost.push_back({QByteArray(1, 'x'), QDeadlineTimer(0)});
        m_drip = QDeadlineTimer(dripPause);
    }
    while (!m_reading.empty()) {
        usbdevfs_urb *const urb = m_reading.front();
        if (stallIn) {
            end(urb, -EPIPE, 0);
        } else if (!m_toHost.empty() && m_toHost.front().due.hasExpired()) {
            QByteArray &bytes = m_toHost.front().bytes;
            const int moved =
                std::min({static_cast<int>(bytes.size()), urb->buffer_length, packet.load()});
            std::memcpy(urb->buffer, bytes.constData(), static_cast<size_t>(moved));
            bytes.remove(0, moved);
            if (bytes.isEmpty()) m_toHost.pop_front();
            end(urb, 0, moved);
        } else if (emptyPackets) {
            end(urb, 0, 0);
        } else {
            return;
        }
        m_reading.pop_front();
    }
}

void UsbEmulator::submit(usbdevfs_urb *urb) {
    if (urb->endpoint & 0x80) {
        m_reading.push_back(urb);
        return giveBytes();
    }
    if (stallOut || !m_channel) return end(urb, -EPIPE, 0);
    const int taken = room < 0 ? urb->buffer_length : std::min(room.load(), urb->buffer_length);
    if (room > 0) room -= taken;
    if (taken == urb->buffer_length)
        end(urb, 0, taken);
    else
        m_writing = urb;
    urb->actual_length = taken;
    for (const auto &reply :
         m_channel->receive(QByteArray(static_cast<const char *>(urb->buffer), taken)))
        m_toHost.push_back({reply.bytes, QDeadlineTimer(reply.delay, Qt::PreciseTimer)});
    giveBytes();
    if (!m_channel->isOpen()) vanish();
}

// The result of a request: what it gives, or a negative error.
int UsbEmulator::control(unsigned long request, void *argument) {
    if (request == USBDEVFS_REAPURBNDELAY) {
        giveBytes();
        if (reapFails) return -EIO;
        if (m_done.empty()) return m_gone ? -ENODEV : -EAGAIN;
        *static_cast<void **>(argument) = m_done.front();
        m_done.pop_front();
        return 0;
    }
    if (request == USBDEVFS_GET_CAPABILITIES)  // opened: what closed its channel can be back again
        m_gone = !m_plugged || m_printer->faults().refuseConnection;
    if (requestsLeft > 0 && --requestsLeft == 0) vanish();
    if (m_gone) return -ENODEV;
    switch (request) {
        case USBDEVFS_GET_CAPABILITIES:
            ++opens;
            *static_cast<__u32 *>(argument) =
                USBDEVFS_CAP_NO_PACKET_SIZE_LIM | USBDEVFS_CAP_REAP_AFTER_DISCONNECT;
            return 0;
        case USBDEVFS_GETDRIVER: {
            if (m_driver.isEmpty()) return -ENODATA;
            auto *const found = static_cast<usbdevfs_getdriver *>(argument);
            std::memcpy(found->driver, m_driver.constData(),
                        static_cast<size_t>(m_driver.size()) + 1);
            return 0;
        }
        case USBDEVFS_DISCONNECT_CLAIM:
        case USBDEVFS_CLAIMINTERFACE:
            if (m_driver == "usbfs" || m_claimed) return -EBUSY;
            if (request == USBDEVFS_CLAIMINTERFACE && !m_driver.isEmpty()) return -EBUSY;
            m_channel = m_printer->openChannel();
            m_driver.clear();
            m_claimed = true;
            ++claims;
            return 0;
        case USBDEVFS_RELEASEINTERFACE:
            m_claimed = false;
            m_channel.reset();
            ++releases;
            return 0;
        case USBDEVFS_IOCTL: {
            const int code = static_cast<usbdevfs_ioctl *>(argument)->ioctl_code;
            if (static_cast<unsigned>(code) == USBDEVFS_DISCONNECT) m_driver.clear();
            if (static_cast<unsigned>(code) == USBDEVFS_CONNECT) m_driver = "usblp";
            return 0;
        }
        case USBDEVFS_CLEAR_HALT:
            stallIn = stallOut = false;
            return 0;
        case USBDEVFS_SUBMITURB:
            submit(static_cast<usbdevfs_urb *>(argument));
            return 0;
        case USBDEVFS_DISCARDURB: {
            if (argument == m_writing) {
                end(std::exchange(m_writing, nullptr), -ENOENT,
                    static_cast<usbdevfs_urb *>(argument)->actual_length);
                return 0;
            }
            const auto found = std::find(m_reading.begin(), m_reading.end(), argument);
            if (found == m_reading.end()) return -EINVAL;
            end(*found, -ENOENT, 0);
            m_reading.erase(found);
            return 0;
        }
        default:
            return -ENOTTY;
    }
}

gboolean UsbEmulator::answer(Client *client) {
    const std::lock_guard lock(m_mutex);
    // The argument lies in this process.
    void *const argument = *reinterpret_cast<void **>(umockdev_ioctl_client_get_arg(client)->data);
    const int result = control(umockdev_ioctl_client_get_request(client), argument);
    umockdev_ioctl_client_complete(client, result < 0 ? -1 : result, result < 0 ? -result : 0);
    return TRUE;
}
