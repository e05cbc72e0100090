#pragma once

#include <libusb.h>

#include <QList>
#include <QString>
#include <memory>

#include "zmlib/ZMLib.h"

// The printers on the USB, found without opening a device and so without any permission.

// Longest attribute of a device that is read, in bytes: a device id has a length of 16 bits.
inline constexpr qint64 longestAttribute = qint64{64} * 1024;

// A printer interface: class 7, subclass 1, protocol 2 (both ways), with a bulk endpoint each way.
struct UsbPrinter {
    std::shared_ptr<libusb_device> device;
    int address = 0;  // changes whenever the device is plugged in
    QString port;     // where it is plugged in, as the system names it: "1-2.4"
    quint8 configuration = 0;
    quint8 interface = 0;
    quint8 alternate = 0;
    quint8 in = 0;  // endpoint addresses
    quint8 out = 0;
    int packetSize = 0;   // bytes, of the endpoint `in`
    QString serial;       // empty without one
    QString productName;  // empty when the device says nothing of itself
    QString uri;          // "usb:///MAKER/MODEL?serial=..." or "?port=...", "&interface=" unless 0
};

// The printers by port; those of equal maker, model and serial number are told apart by it.
QList<UsbPrinter> usbPrinters(libusb_context *context);

// The file of the kernel's driver while it has the interface ("/dev/usb/lp0"), or empty.
QString kernelPrinterFile(const UsbPrinter &printer);

PrinterEntry entryOf(const UsbPrinter &printer);
