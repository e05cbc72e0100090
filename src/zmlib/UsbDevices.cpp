#include "zmlib/UsbDevices.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QUrl>
#include <algorithm>
#include <array>

#include "zmlib/DeviceId.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint8 printerSubclass = 1;
constexpr quint8 bothWays = 2;  // the protocol
constexpr int packetSizeMask = 0x7FF;

// What the kernel tells anyone of a device or an interface.
QByteArray attribute(const QString &node, const char *name) {
    QFile file(u"/sys/bus/usb/devices/%1/%2"_s.arg(node, QLatin1String(name)));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.read(longestAttribute).trimmed();
}

QString textAttribute(const QString &node, const char *name) {
    return QString::fromUtf8(attribute(node, name));
}

QString portOf(libusb_device *device) {
    std::array<quint8, 7> numbers{};  // the deepest tree of hubs
    const int depth =
        libusb_get_port_numbers(device, numbers.data(), static_cast<int>(numbers.size()));
    QStringList path;
    for (int i = 0; i < depth; ++i) path << QString::number(numbers[static_cast<size_t>(i)]);
    return u"%1-%2"_s.arg(libusb_get_bus_number(device)).arg(path.join(u'.'));
}

QString interfaceNode(const UsbPrinter &printer) {
    return u"%1:%2.%3"_s.arg(printer.port).arg(printer.configuration).arg(printer.interface);
}

// Takes the endpoints of an alternate setting; false when it is no printer's.
bool takeEndpoints(UsbPrinter &printer, const libusb_interface_descriptor &setting) {
    if (setting.bInterfaceClass != LIBUSB_CLASS_PRINTER ||
        setting.bInterfaceSubClass != printerSubclass || setting.bInterfaceProtocol != bothWays)
        return false;
    // A descriptor that ends early leaves the number of endpoints without the endpoints.
    const int endpoints = setting.endpoint ? setting.bNumEndpoints : 0;
    for (int i = 0; i < endpoints; ++i) {
        const libusb_endpoint_descriptor &end = setting.endpoint[i];
        if ((end.bmAttributes & LIBUSB_TRANSFER_TYPE_MASK) != LIBUSB_TRANSFER_TYPE_BULK) continue;
        if (end.bEndpointAddress & LIBUSB_ENDPOINT_IN) {
            printer.in = end.bEndpointAddress;
            printer.packetSize = end.wMaxPacketSize & packetSizeMask;
        } else {
            printer.out = end.bEndpointAddress;
        }
    }
    printer.interface = setting.bInterfaceNumber;
    printer.alternate = setting.bAlternateSetting;
    return printer.in != 0 && printer.out != 0;
}

QString uriOf(const UsbPrinter &printer, const Model &model, bool bySerial) {
    const auto encoded = [](const QString &text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    QString uri = u"usb:///%1/%2?"_s.arg(encoded(model.maker), encoded(model.name));
    uri += bySerial ? u"serial="_s + encoded(printer.serial) : u"port="_s + printer.port;
    if (printer.interface != 0) uri += u"&interface=%1"_s.arg(printer.interface);
    return uri;
}

// The printer interfaces of one device.
QList<UsbPrinter> interfacesOf(libusb_device *device) {
    libusb_config_descriptor *found = nullptr;
    if (libusb_get_active_config_descriptor(device, &found) != LIBUSB_SUCCESS) return {};
    const std::unique_ptr<libusb_config_descriptor, decltype(&libusb_free_config_descriptor)>
        configuration(found, libusb_free_config_descriptor);
    QList<UsbPrinter> printers;
    for (int i = 0; i < configuration->bNumInterfaces; ++i) {
        const libusb_interface &one = configuration->interface[i];
        for (int k = 0; k < one.num_altsetting; ++k) {
            UsbPrinter printer;
            if (!takeEndpoints(printer, one.altsetting[k])) continue;
            printer.device = {libusb_ref_device(device), libusb_unref_device};
            printer.address = libusb_get_device_address(device);
            printer.configuration = configuration->bConfigurationValue;
            printers.append(printer);
            break;
        }
    }
    return printers;
}

// "1-10" comes after "1-9".
QList<int> sortKey(const UsbPrinter &printer) {
    QList<int> key;
    for (const QString &number : QString(printer.port).replace(u'-', u'.').split(u'.'))
        key << number.toInt();
    return key << printer.interface;
}

}  // namespace

QList<UsbPrinter> usbPrinters(libusb_context *context) {
    libusb_device **devices = nullptr;
    const ssize_t count = libusb_get_device_list(context, &devices);
    QList<UsbPrinter> printers;
    for (ssize_t i = 0; i < count; ++i) printers += interfacesOf(devices[i]);
    if (count >= 0) libusb_free_device_list(devices, 1);

    QMap<QString, int> sharing;  // how many printers have the URI
    QList<Model> models;
    for (UsbPrinter &printer : printers) printer.port = portOf(printer.device.get());
    std::stable_sort(printers.begin(), printers.end(), [](const auto &one, const auto &other) {
        return sortKey(one) < sortKey(other);
    });
    for (UsbPrinter &printer : printers) {
        printer.serial = textAttribute(printer.port, "serial");
        const Model model = modelOf(attribute(interfaceNode(printer), "ieee1284_id"),
                                    textAttribute(printer.port, "manufacturer"),
                                    textAttribute(printer.port, "product"));
        printer.productName = productName(model);
        printer.uri = uriOf(printer, model, !printer.serial.isEmpty());
        ++sharing[printer.uri];
        models.append(model);
    }
    for (qsizetype i = 0; i < printers.size(); ++i)
        if (sharing[printers[i].uri] > 1) printers[i].uri = uriOf(printers[i], models[i], false);
    return printers;
}

QString kernelPrinterFile(const UsbPrinter &printer) {
    const QDir folder(u"/sys/bus/usb/devices/%1/usbmisc"_s.arg(interfaceNode(printer)));
    const QStringList names = folder.entryList({u"lp*"_s}, QDir::AllEntries);
    return names.isEmpty() ? QString() : u"/dev/usb/"_s + names.first();
}

PrinterEntry entryOf(const UsbPrinter &printer) {
    PrinterEntry entry{{PrinterKey::DeviceURI, printer.uri},
                       {PrinterKey::ConnectionType, PrinterConnection::USB},
                       {PrinterKey::ProductName, printer.productName},
                       {PrinterKey::Plug, u"%1#%2"_s.arg(printer.port).arg(printer.address)}};
    if (printer.serial.isEmpty())
        entry.insert(PrinterKey::Port, printer.port);
    else
        entry.insert(PrinterKey::SerialNumber, printer.serial);
    return entry;
}
