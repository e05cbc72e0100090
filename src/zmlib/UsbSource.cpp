#include "zmlib/UsbSource.h"

#include "zmlib/UsbTransport.h"

Listing UsbSource::list() {
    Listing listing;
    QList<Plugged> plugged;
    for (const UsbPrinter &printer : find()) {
        listing.entries.append(entryOf(printer));
        plugged.append({printer.uri, printer.address});
    }
    const std::lock_guard lock(m_mutex);
    m_listed = plugged;
    return listing;
}

bool UsbSource::hasChanged() {
    QList<Plugged> plugged;
    for (const UsbPrinter &printer : find()) plugged.append({printer.uri, printer.address});
    const std::lock_guard lock(m_mutex);
    return plugged != m_listed;
}

bool UsbSource::lists(const QString &uri) {
    return findPrinter(find(), uri) != nullptr;
}

Opened UsbSource::open(const QString &uri, const QDeadlineTimer &deadline) {
    const QList<UsbPrinter> printers = find();
    const UsbPrinter *const printer = findPrinter(printers, uri);
    if (!printer) return {};
    return openUsbTransport(context(), *printer, deadline);
}

std::shared_ptr<libusb_context> UsbSource::context() {
    const std::lock_guard lock(m_mutex);
    libusb_context *made = nullptr;
    if (!m_context && libusb_init(&made) == LIBUSB_SUCCESS) m_context = {made, libusb_exit};
    return m_context;
}

QList<UsbPrinter> UsbSource::find() {
    const auto usb = context();
    return usb ? usbPrinters(usb.get()) : QList<UsbPrinter>();
}
