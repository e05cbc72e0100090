#pragma once

#include <QList>
#include <QPair>
#include <memory>
#include <mutex>

#include "zmlib/PrinterSource.h"
#include "zmlib/UsbDevices.h"

// The label printers, and other printers, that are connected over USB.
class UsbSource : public PrinterSource {
  public:
    Listing list() override;
    bool hasChanged() override;
    bool lists(const QString &uri) override;
    Opened open(const QString &uri, const QDeadlineTimer &deadline) override;
    bool isOnThisNetwork() const override { return true; }

  private:
    // Made when it is first needed; null while the system does not let it be made.
    std::shared_ptr<libusb_context> context();
    QList<UsbPrinter> find();

    using Plugged = QPair<QString, int>;  // URI and address of a printer

    std::mutex m_mutex;  // guards what follows
    std::shared_ptr<libusb_context> m_context;
    QList<Plugged> m_listed;
};
