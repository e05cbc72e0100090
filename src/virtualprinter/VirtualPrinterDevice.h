#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// Serves a virtual printer on a character device: a USB printer gadget (/dev/g_printer0), or a raw
// pseudo-terminal. Lives on one thread with an event loop. When the host or the printer closes, the
// device is opened anew every reopenInterval.
class VirtualPrinterDevice : public QObject {
  public:
    static constexpr int reopenInterval = 100;  // ms
    // How often the device is read without being readable: a gadget may wake its reader for a host
    // that goes right before it can report that.
    static constexpr int lookInterval = 50;  // ms

    VirtualPrinterDevice(std::shared_ptr<VirtualPrinter> printer, const QString &path,
                         QObject *parent = nullptr);

    // Opens and serves the device. False, with an errorString(), when that fails.
    bool open();
    QString errorString() const { return m_error; }

  private:
    const std::shared_ptr<VirtualPrinter> m_printer;
    const QString m_path;
    QTimer m_reopen;
    QString m_error;
};
