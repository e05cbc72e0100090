#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// Serves a virtual printer on a character device whose other end is the host: the device side of a
// USB printer gadget (/dev/g_printer0), or a pseudo-terminal in raw mode. Lives on one thread,
// which must run an event loop.
//
// When the host goes (the end of the file, or an error) its connection is dropped and the device is
// opened anew, every reopenInterval until that succeeds. So is it when the printer itself closes
// the connection, and tried again while its faults refuse one; the host only sees that nothing
// answers meanwhile.
class VirtualPrinterDevice : public QObject {
  public:
    static constexpr int reopenInterval = 100;  // ms
    // How often the device is read without being readable: a gadget may wake its reader for a host
    // that goes right before it can report that.
    static constexpr int lookInterval = 50;  // ms

    VirtualPrinterDevice(std::shared_ptr<VirtualPrinter> printer, const QString &path,
                         QObject *parent = nullptr);

    // Opens the device and begins to serve. False with the reason in errorString() when it cannot
    // be opened, or is no character device; then nothing is tried again.
    bool open();
    QString errorString() const;

  private:
    const std::shared_ptr<VirtualPrinter> m_printer;
    const QString m_path;
    QTimer m_reopen;
    QString m_error;
};
