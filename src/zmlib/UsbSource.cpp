#include "zmlib/UsbSource.h"

#include "zmlib/UsbTransport.h"

Listing UsbSource::list() {
    const QList<UsbPrinter> printers = find();
    Listing listing;
    for (const UsbPrinter &printer : printers) listing.entries.append(entryOf(printer));
    const std::lock_guard lock(m_mutex);
    m_listed = pluggedOf(printers);
    return listing;
}

bool UsbSource::hasChanged() {
    const QList<Plugged> plugged = pluggedOf(find());
    const std::lock_guard lock(m_mutex);
    return plugged != m_listed;
}

Opened UsbSource::open(const QString &uri, const QDeadlineTimer &deadline) {
    const auto printer = find(uri);
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

std::optional<UsbPrinter> UsbSource::find(const QString &uri) {
    const QList<UsbPrinter> printers = find();
    const QList<Plugged> plugged = pluggedOf(printers);
    const std::lock_guard lock(m_mutex);
    for (const UsbPrinter &printer : printers)
        if (printer.uri == uri) return printer;
    for (Plugged before : std::as_const(m_listed)) {
        if (before.uri != uri) continue;
        for (qsizetype i = 0; i < printers.size(); ++i) {
            before.uri = printers[i].uri;
            if (before == plugged[i]) return printers[i];
        }
    }
    return {};
}

QList<UsbSource::Plugged> UsbSource::pluggedOf(const QList<UsbPrinter> &printers) {
    QList<Plugged> plugged;
    for (const UsbPrinter &printer : printers)
        plugged.append({printer.uri, printer.port, printer.address, printer.interface});
    return plugged;
}
