#pragma once

#include <QList>
#include <memory>
#include <mutex>
#include <optional>

#include "zmlib/PrinterSource.h"
#include "zmlib/UsbDevices.h"

// The label printers, and other printers, that are connected over USB.
class UsbSource : public PrinterSource {
  public:
    Listing list() override;
    bool hasChanged() override;
    bool lists(const QString &uri) override { return find(uri).has_value(); }
    Opened open(const QString &uri, const QDeadlineTimer &deadline) override;
    bool isOnThisNetwork() const override { return true; }

  private:
    // Made when it is first needed; null while the system does not let it be made.
    std::shared_ptr<libusb_context> context();
    QList<UsbPrinter> find();

    // The printer that is called so, or the very device that the last list called so.
    std::optional<UsbPrinter> find(const QString &uri);

    // A printer as it was listed.
    struct Plugged {
        QString uri;
        QString port;
        int address;
        quint8 interface;
        bool operator==(const Plugged &) const = default;
    };
    static QList<Plugged> pluggedOf(const QList<UsbPrinter> &printers);

    std::mutex m_mutex;  // guards what follows
    std::shared_ptr<libusb_context> m_context;
    QList<Plugged> m_listed;
};
